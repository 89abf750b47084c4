#pragma once
// Guide pages: one prepared page per response guide, all shown in a single
// shared page view, pre-loaded in the background.
#include "LoadablePage.h"

#include "model/Material.h"
#include "model/OrderedMap.h"

#include <QObject>
#include <memory>

namespace qor {

class GuideView : public LoadablePage {
public:
    GuideView() = default;
    GuidePtr guide;
    // Every guide loads into the one shared view.
    PageView* webView() const override { return sharedWebView(); }

    // Made on first use, exactly once; owned by the guide factory.
    static PageView* sharedWebView();
    static void releaseSharedWebView();
};
using GuideViewPtr = std::shared_ptr<GuideView>;

class GuideViewFactory : public QObject {
    Q_OBJECT
public:
    static GuideViewFactory* sharedInstance(bool create = true);

    // Registers itself as the shared instance, warms the page engine and
    // builds the guide views 1 ms later.
    explicit GuideViewFactory(QObject* parent = nullptr);
    ~GuideViewFactory() override;

    // The process-wide dark appearance flag, set by reloadGuides().
    static bool darkAppearance();

    void loadGuideList();
    // Prepared page bytes of the HTML file at path.
    QByteArray dataForGuide(const QString& path) const;
    GuideViewPtr viewForGuide(const Guide& guide) const;
    void loadSelectedGuide(const QString& guideId);
    void loadSelectedGuideForMaterial(const Material& material);
    void loadGuide(const Guide& guide);
    void loadGuides(const QList<GuidePtr>& guides);
    int loadingCount() const;
    int unloadedCount() const;
    void startLoadingTimer();
    void invalidateLoadingTimer();
    bool isLoadingTimerActive() const { return m_loadingTimer.isActive(); }
    void processUnloadedGuides();
    void releaseGuides();
    void reloadGuides(bool dark);

    // Guide id -> view, in the model's guide order.
    const OrderedMap<GuideViewPtr>& guideViews() const { return m_guideViews; }

private:
    GuideViewPtr makeView(const GuidePtr& guide) const;
    QList<GuideViewPtr> views() const;
    // Stops every loading view whose guide id is not in keep.
    void stopLoadingExcept(const QStringList& keep);

    OrderedMap<GuideViewPtr> m_guideViews;
    LoadingTimer m_loadingTimer;
    std::unique_ptr<PageView> m_warmUpView;
};

} // namespace qor
