#include "GuideViewFactory.h"

#include "PagePreparation.h"

#include "model/QORModel.h"
#include "model/Resources.h"

#include <QMutex>

namespace qor {

namespace {
GuideViewFactory* s_shared = nullptr;
bool s_dark = false;
QMutex s_webViewMutex;
PageView* s_webView = nullptr;
} // namespace

PageView* GuideView::sharedWebView()
{
    QMutexLocker locker(&s_webViewMutex);
    if (!s_webView) {
        s_webView = PageViewFactory::create();
        s_webView->setFrame(QRect());
    }
    return s_webView;
}

void GuideView::releaseSharedWebView()
{
    QMutexLocker locker(&s_webViewMutex);
    delete s_webView;
    s_webView = nullptr;
}

GuideViewFactory* GuideViewFactory::sharedInstance(bool create)
{
    if (!s_shared && create)
        new GuideViewFactory();
    return s_shared;
}

GuideViewFactory::GuideViewFactory(QObject* parent)
    : QObject(parent), m_loadingTimer(this, [this] { processUnloadedGuides(); })
{
    s_shared = this;
    QTimer::singleShot(1, Qt::PreciseTimer, this, &GuideViewFactory::loadGuideList);
    // Starting the page engine now keeps the first guide from waiting for it.
    m_warmUpView.reset(PageViewFactory::create());
    m_warmUpView->loadUrl(QUrl());
}

GuideViewFactory::~GuideViewFactory()
{
    if (s_shared == this) {
        s_shared = nullptr;
        GuideView::releaseSharedWebView();
    }
}

bool GuideViewFactory::darkAppearance()
{
    return s_dark;
}

QByteArray GuideViewFactory::dataForGuide(const QString& path) const
{
    return preparePageFile(path, currentPageOptions(s_dark));
}

GuideViewPtr GuideViewFactory::makeView(const GuidePtr& guide) const
{
    auto view = std::make_shared<GuideView>();
    view->data = dataForGuide(Resources::path(guide->guideId, QStringLiteral("html")));
    view->guide = guide;
    return view;
}

QList<GuideViewPtr> GuideViewFactory::views() const
{
    QList<GuideViewPtr> list;
    for (const QString& id : m_guideViews.keys())
        list.append(m_guideViews.value(id));
    return list;
}

void GuideViewFactory::loadGuideList()
{
    m_guideViews = {};
    QORModel* model = QORModel::sharedInstance();
    model->loadGuideList();
    for (const GuidePtr& guide : std::as_const(model->guides()))
        m_guideViews.insert(guide->guideId, makeView(guide));
    startLoadingTimer();
}

GuideViewPtr GuideViewFactory::viewForGuide(const Guide& guide) const
{
    return m_guideViews.value(guide.guideId);
}

void GuideViewFactory::loadSelectedGuide(const QString& guideId)
{
    invalidateLoadingTimer();
    const GuideViewPtr view = m_guideViews.value(guideId);
    if (!view)
        return;
    QMutexLocker locker(&view->mutex);
    if (!view->loading)
        view->load();
}

void GuideViewFactory::loadSelectedGuideForMaterial(const Material& material)
{
    loadSelectedGuide(material.guideId);
}

void GuideViewFactory::loadGuide(const Guide& guide)
{
    const GuideViewPtr view = m_guideViews.value(guide.guideId);
    if (!view)
        return;
    QMutexLocker locker(&view->mutex);
    if (!view->loaded && !view->loading)
        view->load();
}

void GuideViewFactory::stopLoadingExcept(const QStringList& keep)
{
    for (const GuideViewPtr& view : views()) {
        QMutexLocker locker(&view->mutex);
        if (view->loading && !keep.contains(view->guide->guideId))
            view->stopLoading();
    }
}

void GuideViewFactory::loadGuides(const QList<GuidePtr>& guides)
{
    QStringList ids;
    for (const GuidePtr& g : guides)
        ids.append(g->guideId);
    stopLoadingExcept(ids);
    for (const GuidePtr& g : guides)
        loadGuide(*g);
    if (guides.size() >= 2)
        startLoadingTimer();
}

int GuideViewFactory::loadingCount() const
{
    return qor::loadingCount(views());
}

int GuideViewFactory::unloadedCount() const
{
    return qor::unloadedCount(views());
}

void GuideViewFactory::startLoadingTimer()
{
    m_loadingTimer.start();
}

void GuideViewFactory::invalidateLoadingTimer()
{
    m_loadingTimer.invalidate();
}

void GuideViewFactory::processUnloadedGuides()
{
    const QList<GuideViewPtr> list = views();
    if (qor::unloadedCount(list) == 0)
        return;
    loadIdlePagesBelow(list, 2, [this](const GuideViewPtr& v) { loadGuide(*v->guide); });
}

void GuideViewFactory::releaseGuides()
{
    QORModel* model = QORModel::sharedInstance();
    QStringList ids;
    for (const GuidePtr& g : std::as_const(model->guides()))
        ids.append(g->guideId);
    stopLoadingExcept(ids);

    m_guideViews = {};
    for (const GuidePtr& guide : std::as_const(model->guides())) {
        GuideViewPtr view = makeView(guide);
        {
            QMutexLocker locker(&view->mutex);
            view->load();
        }
        m_guideViews.insert(guide->guideId, view);
    }
    startLoadingTimer();
}

void GuideViewFactory::reloadGuides(bool dark)
{
    s_dark = dark;
    releaseGuides();
    loadGuideList();
}

} // namespace qor
