#pragma once
// Information pages (the model's infoPages, and others on demand) each in a
// page view of their own, plus the single About view. Never dark: only
// guide pages swap their style sheet.
#include "LoadablePage.h"

#include "model/OrderedMap.h"

#include <QObject>
#include <QRect>
#include <memory>

namespace qor {

class InfoView : public LoadablePage {
public:
    InfoView(const QString& pageName, const QSize& size);
    QString page;
    PageView* webView() const override { return m_view.get(); }

private:
    std::unique_ptr<PageView> m_view;
};
using InfoViewPtr = std::shared_ptr<InfoView>;

class InfoViewFactory : public QObject {
    Q_OBJECT
public:
    static InfoViewFactory* sharedInstance(bool create = true);

    // Builds one view per name of the model's infoPages; loads nothing yet.
    explicit InfoViewFactory(QObject* parent = nullptr);
    ~InfoViewFactory() override;

    // The About page view, set to frame; none without a page view backend.
    PageView* getAboutWebView(const QRect& frame);
    QByteArray dataForFile(const QString& path) const;
    // Starts loading the page again on every call.
    InfoViewPtr viewForPage(const QString& page);
    void loadSelectedPage(const QString& page);
    void loadPage(const QString& page);
    void loadPageOld(const QString& page);
    void loadPages(const QStringList& pages);
    void startLoadingTimer();
    void invalidateLoadingTimer();
    bool isLoadingTimerActive() const { return m_loadingTimer.isActive(); }
    void processUnloadedPages();
    int loadingCount() const;
    int unloadedCount() const;

    const OrderedMap<InfoViewPtr>& infoViews() const { return m_infoViews; }

    static constexpr int kOnDemandSide = 500;

private:
    InfoViewPtr makeView(const QString& page, const QSize& size) const;
    QList<InfoViewPtr> views() const;

    OrderedMap<InfoViewPtr> m_infoViews;
    LoadingTimer m_loadingTimer;
    std::unique_ptr<PageView> m_aboutWebView;
    bool m_aboutConfigured = false;
};

} // namespace qor
