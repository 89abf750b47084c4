#include "InfoViewFactory.h"

#include "PagePreparation.h"

#include "model/Device.h"
#include "model/QORModel.h"
#include "model/Resources.h"

#include <QGuiApplication>
#include <QScreen>

namespace qor {

namespace {
InfoViewFactory* s_shared = nullptr;

QSize listedPageSize()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const int height = screen ? screen->size().height() : 0;
    return QSize(320, qMax(0, height - 58));
}
} // namespace

InfoView::InfoView(const QString& pageName, const QSize& size) : page(pageName), m_view(PageViewFactory::create())
{
    m_view->setSize(size);
}

InfoViewFactory* InfoViewFactory::sharedInstance(bool create)
{
    if (!s_shared && create)
        new InfoViewFactory();
    return s_shared;
}

InfoViewFactory::InfoViewFactory(QObject* parent)
    : QObject(parent), m_loadingTimer(this, [this] { processUnloadedPages(); })
{
    s_shared = this;
    if (PageViewFactory::isAvailable())
        m_aboutWebView.reset(PageViewFactory::create());
    const QSize size = listedPageSize();
    for (const QString& page : std::as_const(QORModel::sharedInstance()->infoPages))
        m_infoViews.insert(page, makeView(page, size));
}

InfoViewFactory::~InfoViewFactory()
{
    if (s_shared == this)
        s_shared = nullptr;
}

InfoViewPtr InfoViewFactory::makeView(const QString& page, const QSize& size) const
{
    auto view = std::make_shared<InfoView>(page, size);
    view->data = dataForFile(Resources::path(page, QStringLiteral("html")));
    return view;
}

QList<InfoViewPtr> InfoViewFactory::views() const
{
    QList<InfoViewPtr> list;
    for (const QString& page : m_infoViews.keys())
        list.append(m_infoViews.value(page));
    return list;
}

PageView* InfoViewFactory::getAboutWebView(const QRect& frame)
{
    if (!m_aboutWebView && PageViewFactory::isAvailable())
        m_aboutWebView.reset(PageViewFactory::create());
    if (!m_aboutWebView)
        return nullptr;
    if (!m_aboutConfigured) {
        m_aboutConfigured = true;
        m_aboutWebView->setResizesWithContainer(true);
        m_aboutWebView->setBackgroundColor(QColor::fromRgbF(0.14f, 0.18f, 0.25f));
        const QString page = Device::isTablet() ? QStringLiteral("about-ipad") : QStringLiteral("about");
        m_aboutWebView->loadUrl(QUrl::fromLocalFile(Resources::path(page, QStringLiteral("html"))));
    }
    m_aboutWebView->setFrame(frame);
    return m_aboutWebView.get();
}

QByteArray InfoViewFactory::dataForFile(const QString& path) const
{
    return preparePageFile(path, currentPageOptions(false));
}

InfoViewPtr InfoViewFactory::viewForPage(const QString& page)
{
    const InfoViewPtr view = m_infoViews.value(page);
    if (view) {
        QMutexLocker locker(&view->mutex);
        view->load();
    }
    return view;
}

void InfoViewFactory::loadSelectedPage(const QString& page)
{
    invalidateLoadingTimer();
    loadPage(page);
}

void InfoViewFactory::loadPage(const QString& page)
{
    InfoViewPtr view = m_infoViews.value(page);
    if (!view) {
        view = makeView(page, QSize(kOnDemandSide, kOnDemandSide));
        m_infoViews.insert(page, view);
    }
    if (view->loaded)
        return;
    QMutexLocker locker(&view->mutex);
    if (!view->loading)
        view->load();
}

void InfoViewFactory::loadPageOld(const QString& page)
{
    if (loadingCount() < 3)
        loadPage(page);
}

void InfoViewFactory::loadPages(const QStringList& pages)
{
    for (const QString& page : pages)
        loadPage(page);
    if (pages.size() >= 2)
        startLoadingTimer();
}

void InfoViewFactory::startLoadingTimer()
{
    m_loadingTimer.start();
}

void InfoViewFactory::invalidateLoadingTimer()
{
    m_loadingTimer.invalidate();
}

void InfoViewFactory::processUnloadedPages()
{
    const QList<InfoViewPtr> list = views();
    if (qor::unloadedCount(list) == 0) {
        invalidateLoadingTimer();
        return;
    }
    loadIdlePagesBelow(list, 2, [this](const InfoViewPtr& v) { loadPage(v->page); });
}

int InfoViewFactory::loadingCount() const
{
    return qor::loadingCount(views());
}

int InfoViewFactory::unloadedCount() const
{
    return qor::unloadedCount(views());
}

} // namespace qor
