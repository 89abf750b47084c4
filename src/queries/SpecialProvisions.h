#pragma once
// Special provisions of the shipping table: the group a provision code belongs
// to, and the factory that keeps one page per group and pre-loads them.
#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QRecursiveMutex>
#include <QString>
#include <QStringList>

class QTimer;

namespace qor {

class PageView;

struct SpecialProvisionGroup {
    QString key;           // page name: "A", "IB", "TP", "numeric", ...
    QString listSubtitle;  // detail text of the provision list row
    QString screenTitle;   // title of the provision screen
};

SpecialProvisionGroup specialProvisionGroupForCode(const QString& code);

// One group's page: its prepared bytes and whether the page view holds them yet.
class SpecialProvisionsView : public QObject {
    Q_OBJECT
public:
    SpecialProvisionsView(const QString& category, const QByteArray& data, QObject* parent = nullptr);

    QString category;
    QString provision;
    QByteArray data;

    bool isLoaded() const { return m_loaded; }
    bool isLoading() const { return m_loading; }
    void load();
    void stopLoading();
    // Jumps to the code's anchor when the page is there; a page still
    // loading opens at its top.
    void showProvision(const QString& code);

    PageView* pageView() const { return m_view; }
    QRecursiveMutex& lock() { return m_lock; }

signals:
    void loadedChanged();

private:
    PageView* m_view;
    bool m_loaded = false;
    bool m_loading = false;
    QRecursiveMutex m_lock;
};

class SpecialProvisionsViewFactory : public QObject {
    Q_OBJECT
public:
    static SpecialProvisionsViewFactory* sharedInstance();
    // Makes the nine views with their page data; loads nothing yet.
    explicit SpecialProvisionsViewFactory(QObject* parent = nullptr);
    ~SpecialProvisionsViewFactory() override;

    // The group keys in the order the views are made.
    static const QStringList& categoryKeys();
    // The page file with the user's text size and the tablet width applied.
    static QByteArray dataForFile(const QString& path);

    SpecialProvisionsView* viewForCategory(const QString& key) const;
    void loadCategory(const QString& key);
    void loadCategories(const QStringList& keys);
    void loadSelectedCategory(const QString& key);
    void startLoadingTimer();
    void invalidateLoadingTimer();
    void processUnloadedCategories();
    int loadingCount() const;
    int unloadedCount() const;
    bool hasLoadingTimer() const { return m_loadingTimer != nullptr; }

    // Loads in flight at most, and new loads per timer tick.
    static constexpr int kMaxLoading = 3;
    static constexpr int kLoadsPerTick = 2;
    static constexpr int kTimerIntervalMs = 1500;

private:
    QList<SpecialProvisionsView*> m_views;  // in categoryKeys() order
    QTimer* m_loadingTimer = nullptr;
    QMutex m_timerLock;
};

} // namespace qor
