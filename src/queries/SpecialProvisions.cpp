#include "SpecialProvisions.h"

#include "model/Device.h"
#include "model/PackSchema.h"
#include "model/Resources.h"
#include "pages/PagePreparation.h"
#include "pages/PageView.h"

#include <QGuiApplication>
#include <QMutexLocker>
#include <QScreen>
#include <QTimer>
#include <QUrl>

namespace qor {

SpecialProvisionGroup specialProvisionGroupForCode(const QString& code)
{
    // The page of the code decides its group; the texts go with the page.
    static const struct { const char* page; const char* subtitle; const char* title; } texts[] = {
        { "A", QT_TRANSLATE_NOOP("QOR", "Aircraft Transportation"), QT_TRANSLATE_NOOP("QOR", "Aircraft") },
        { "B", QT_TRANSLATE_NOOP("QOR", "Bulk Packaging"), QT_TRANSLATE_NOOP("QOR", "Bulk Packaging") },
        { "IB", QT_TRANSLATE_NOOP("QOR", "Intermediate Bulk Containers"), QT_TRANSLATE_NOOP("QOR", "IBC") },
        { "IP", QT_TRANSLATE_NOOP("QOR", "Intermediate Bulk Containers"), QT_TRANSLATE_NOOP("QOR", "IBC") },
        { "N", QT_TRANSLATE_NOOP("QOR", "Non-Bulk Packaging"), QT_TRANSLATE_NOOP("QOR", "Non-Bulk Packaging") },
        { "TP", QT_TRANSLATE_NOOP("QOR", "IM and UN Specification Portable Tanks"), QT_TRANSLATE_NOOP("QOR", "Portable Tanks") },
        { "T", QT_TRANSLATE_NOOP("QOR", "UN Portable Tanks"), QT_TRANSLATE_NOOP("QOR", "UN Portable Tanks") },
        { "W", QT_TRANSLATE_NOOP("QOR", "Water Transportation"), QT_TRANSLATE_NOOP("QOR", "Water transport") },
    };
    const QString page = specialProvisionPage(code);
    for (const auto& t : texts)
        if (page == QLatin1String(t.page))
            return SpecialProvisionGroup{ page, L::tr(t.subtitle), L::tr(t.title) };
    return SpecialProvisionGroup{ page, QString(), L::tr("Numeric Provisions") };
}

// ---------------------------------------------------------------- view

SpecialProvisionsView::SpecialProvisionsView(const QString& cat, const QByteArray& bytes, QObject* parent)
    : QObject(parent), category(cat), data(bytes), m_view(PageViewFactory::create())
{
    m_view->setParent(this);
    connect(m_view, &PageView::loadFinished, this, [this](bool ok) {
        m_loading = false;
        // A failed load stays unloaded, so the loading timer tries it again.
        m_loaded = ok;
        emit loadedChanged();
    });
}

void SpecialProvisionsView::load()
{
    m_loading = true;
    m_view->loadData(data, QStringLiteral("text/html"), QStringLiteral("UTF8"), QUrl::fromLocalFile(Resources::dir() + QLatin1Char('/')));
}

void SpecialProvisionsView::stopLoading()
{
    m_view->stopLoading();
    m_loading = false;
}

void SpecialProvisionsView::showProvision(const QString& code)
{
    provision = code;
    if (m_loaded)
        m_view->evaluateJavaScript(QStringLiteral("window.location.hash='#%1'").arg(code), {});
}

// ---------------------------------------------------------------- factory

SpecialProvisionsViewFactory* SpecialProvisionsViewFactory::sharedInstance()
{
    static SpecialProvisionsViewFactory* instance = new SpecialProvisionsViewFactory();
    return instance;
}

const QStringList& SpecialProvisionsViewFactory::categoryKeys()
{
    return specialProvisionPages();
}

QByteArray SpecialProvisionsViewFactory::dataForFile(const QString& path)
{
    return preparePageFile(path, currentPageOptions(false));
}

SpecialProvisionsViewFactory::SpecialProvisionsViewFactory(QObject* parent) : QObject(parent)
{
    QSize size(500, 600);
    if (!Device::isTablet()) {
        const auto* gui = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
        const QScreen* screen = gui ? QGuiApplication::primaryScreen() : nullptr;
        size = screen ? screen->availableGeometry().size() : QSize(320, 480);
    }
    for (const QString& key : categoryKeys()) {
        auto* view = new SpecialProvisionsView(key, dataForFile(Resources::path(key, QStringLiteral("html"))), this);
        view->pageView()->setSize(size);
        m_views.append(view);
    }
}

SpecialProvisionsViewFactory::~SpecialProvisionsViewFactory()
{
    invalidateLoadingTimer();
}

SpecialProvisionsView* SpecialProvisionsViewFactory::viewForCategory(const QString& key) const
{
    for (SpecialProvisionsView* view : m_views)
        if (view->category == key)
            return view;
    return nullptr;
}

void SpecialProvisionsViewFactory::loadCategory(const QString& key)
{
    // Each page load is heavy; keep the web engine from being swamped.
    if (loadingCount() >= kMaxLoading)
        return;
    SpecialProvisionsView* view = viewForCategory(key);
    if (!view)
        return;
    QMutexLocker locker(&view->lock());
    if (!view->isLoaded() && !view->isLoading())
        view->load();
}

void SpecialProvisionsViewFactory::loadCategories(const QStringList& keys)
{
    // Pages nobody asked for give way to the ones wanted now.
    for (SpecialProvisionsView* view : std::as_const(m_views))
        if (view->isLoading() && !keys.contains(view->category))
            view->stopLoading();
    for (const QString& key : keys)
        loadCategory(key);
    if (keys.size() < 2)
        QMetaObject::invokeMethod(this, &SpecialProvisionsViewFactory::startLoadingTimer);
}

void SpecialProvisionsViewFactory::loadSelectedCategory(const QString& key)
{
    SpecialProvisionsView* view = viewForCategory(key);
    if (view && !view->isLoaded() && !view->isLoading())
        view->load();
}

void SpecialProvisionsViewFactory::startLoadingTimer()
{
    invalidateLoadingTimer();
    QMutexLocker locker(&m_timerLock);
    m_loadingTimer = new QTimer(this);
    m_loadingTimer->setInterval(kTimerIntervalMs);
    connect(m_loadingTimer, &QTimer::timeout, this, &SpecialProvisionsViewFactory::processUnloadedCategories);
    m_loadingTimer->start();
}

void SpecialProvisionsViewFactory::invalidateLoadingTimer()
{
    QMutexLocker locker(&m_timerLock);
    if (!m_loadingTimer)
        return;
    m_loadingTimer->stop();
    m_loadingTimer->deleteLater();
    m_loadingTimer = nullptr;
}

void SpecialProvisionsViewFactory::processUnloadedCategories()
{
    if (unloadedCount() == 0) {
        QMetaObject::invokeMethod(this, &SpecialProvisionsViewFactory::invalidateLoadingTimer);
        return;
    }
    int started = 0;
    for (SpecialProvisionsView* view : std::as_const(m_views)) {
        if (started >= kLoadsPerTick)
            break;
        if (!view->isLoaded() && !view->isLoading()) {
            loadCategory(view->category);
            ++started;
        }
    }
}

int SpecialProvisionsViewFactory::loadingCount() const
{
    return int(std::count_if(m_views.cbegin(), m_views.cend(), [](const SpecialProvisionsView* v) { return v->isLoading(); }));
}

int SpecialProvisionsViewFactory::unloadedCount() const
{
    return int(std::count_if(m_views.cbegin(), m_views.cend(), [](const SpecialProvisionsView* v) { return !v->isLoaded(); }));
}

} // namespace qor
