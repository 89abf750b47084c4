#include "SpecialProvisions.h"

#include "model/Device.h"
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
    auto group = [](const QString& key, const char* subtitle, const char* title) {
        return SpecialProvisionGroup{ key, subtitle[0] ? L::tr(subtitle) : QString(), L::tr(title) };
    };
    if (code.startsWith(QLatin1Char('A')))
        return group(QStringLiteral("A"), QT_TRANSLATE_NOOP("QOR", "Aircraft Transportation"), QT_TRANSLATE_NOOP("QOR", "Aircraft"));
    if (code.startsWith(QLatin1Char('B')))
        return group(QStringLiteral("B"), QT_TRANSLATE_NOOP("QOR", "Bulk Packaging"), QT_TRANSLATE_NOOP("QOR", "Bulk Packaging"));
    if (code.startsWith(QLatin1String("IB")) || code.startsWith(QLatin1String("IP")))
        return group(code.left(2), QT_TRANSLATE_NOOP("QOR", "Intermediate Bulk Containers"), QT_TRANSLATE_NOOP("QOR", "IBC"));
    if (code.startsWith(QLatin1Char('N')))
        return group(QStringLiteral("N"), QT_TRANSLATE_NOOP("QOR", "Non-Bulk Packaging"), QT_TRANSLATE_NOOP("QOR", "Non-Bulk Packaging"));
    if (code.startsWith(QLatin1String("TP")))
        return group(QStringLiteral("TP"), QT_TRANSLATE_NOOP("QOR", "IM and UN Specification Portable Tanks"),
                     QT_TRANSLATE_NOOP("QOR", "Portable Tanks"));
    if (code.startsWith(QLatin1Char('T')))
        return group(QStringLiteral("T"), QT_TRANSLATE_NOOP("QOR", "UN Portable Tanks"), QT_TRANSLATE_NOOP("QOR", "UN Portable Tanks"));
    if (code.startsWith(QLatin1Char('W')))
        return group(QStringLiteral("W"), QT_TRANSLATE_NOOP("QOR", "Water Transportation"), QT_TRANSLATE_NOOP("QOR", "Water transport"));
    return group(QStringLiteral("numeric"), "", QT_TRANSLATE_NOOP("QOR", "Numeric Provisions"));
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
    static const QStringList keys = { QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("IB"),
                                      QStringLiteral("IP"), QStringLiteral("N"), QStringLiteral("W"),
                                      QStringLiteral("TP"), QStringLiteral("T"), QStringLiteral("numeric") };
    return keys;
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
