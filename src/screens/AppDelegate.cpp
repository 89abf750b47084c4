#include "AppDelegate.h"

#include "model/Device.h"
#include "model/QORModel.h"
#include "pages/GuideViewFactory.h"
#include "pages/InfoViewFactory.h"

#include <QGuiApplication>
#include <QTimer>

namespace qor {

QORAppDelegate* QORAppDelegate::sharedInstance()
{
    static QORAppDelegate* instance = new QORAppDelegate();
    return instance;
}

QORAppDelegate* QORAppDelegate::create(QQmlEngine*, QJSEngine*)
{
    QORAppDelegate* d = sharedInstance();
    QJSEngine::setObjectOwnership(d, QJSEngine::CppOwnership);
    return d;
}

QORAppDelegate::QORAppDelegate(QObject* parent) : QObject(parent)
{
    m_tablet = Device::isTablet();
}

void QORAppDelegate::setCurrentTab(int tab)
{
    if (tab == m_currentTab)
        return;
    m_currentTab = tab;
    // Full screen belongs to the guide being read; another tab shows its bars.
    setFullscreen(false);
    emit currentTabChanged();
}

void QORAppDelegate::setTablet(bool tablet)
{
    Device::setTablet(tablet);
    if (tablet == m_tablet)
        return;
    m_tablet = tablet;
    // The tablet has no About tab; keep the user on a tab that exists.
    if (m_tablet && m_currentTab == AboutTab)
        setCurrentTab(ReferenceTab);
    emit tabletChanged();
}

void QORAppDelegate::setFormFactorOverride(const QString& formFactor)
{
    m_formFactorOverride = formFactor;
    if (formFactor == QLatin1String("tablet"))
        setTablet(true);
    else if (formFactor == QLatin1String("phone"))
        setTablet(false);
}

void QORAppDelegate::updateForWindowSize(int width, int)
{
    if (!m_formFactorOverride.isEmpty())
        return;
    setTablet(width >= kTabletMinWidth);
}

void QORAppDelegate::showGuide(const QString& guideId)
{
    showGuideForMaterial(guideId, MaterialRef());
}

void QORAppDelegate::showGuideForMaterial(const QString& guideId, const MaterialRef& material)
{
    setCurrentTab(GuidesTab);
    emit guideRequested(guideId, material);
}

void QORAppDelegate::showAllMaterialsWithSort(int sort)
{
    QORModel* model = QORModel::sharedInstance();
    model->changeFilter(QStringLiteral("A"), sort);
    if (model->currentFilter())
        emit sortImageRequested(model->currentFilter()->sortImages.value(sort));
    emit endSearchRequested();
    setCurrentTab(MaterialsTab);
}

void QORAppDelegate::showFilteredListForCategory(const QString& abbrev)
{
    QORModel::sharedInstance()->changeFilter(abbrev);
    emit endSearchRequested();
    setCurrentTab(MaterialsTab);
}

bool QORAppDelegate::showInDetailArea(const MaterialRef& material)
{
    if (!m_tablet)
        return false;
    showDetailForMaterial(material);
    return true;
}

void QORAppDelegate::showDetailForMaterial(const MaterialRef& material)
{
    m_detailMaterial = material;
    emit detailMaterialChanged();
}

void QORAppDelegate::clearDetail()
{
    showDetailForMaterial(MaterialRef());
}

void QORAppDelegate::toggleFullscreen()
{
    setFullscreen(!m_fullscreen);
}

void QORAppDelegate::setFullscreen(bool fullscreen)
{
    if (fullscreen == m_fullscreen)
        return;
    m_fullscreen = fullscreen;
    emit fullscreenChanged();
}

bool QORAppDelegate::openUrl(const QString& url)
{
    const AppLink link = parseAppLink(url);
    switch (link.kind) {
    case AppLink::Search:
        QTimer::singleShot(kSearchLinkDelayMs, this, [this, text = link.text] {
            setCurrentTab(MaterialsTab);
            emit searchRequested(text);
        });
        break;
    case AppLink::Chemical: {
        MaterialPtr m = firstMaterialWithUnNumber(QORModel::sharedInstance()->materials(), link.unId);
        if (!m)
            break;
        const MaterialRef ref(m);
        if (!showInDetailArea(ref))
            emit materialRequested(ref);
        QTimer::singleShot(kScrollLinkDelayMs, this, [this, ref] { emit scrollToMaterialRequested(ref); });
        break;
    }
    case AppLink::None:
        break;
    }
    return true;
}

void QORAppDelegate::saveData()
{
    if (QORModel* model = QORModel::sharedInstance(false))
        model->saveData();
}

void QORAppDelegate::saveWhenHiddenOrQuitting(QGuiApplication* app, QWindow* window)
{
    connect(app, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationHidden || state == Qt::ApplicationInactive)
            saveData();
    });
    connect(app, &QCoreApplication::aboutToQuit, this, &QORAppDelegate::saveData);
    // Windows hidden to the tray or minimised count as hidden.
    if (window)
        connect(window, &QWindow::visibilityChanged, this, [this](QWindow::Visibility v) {
            if (v == QWindow::Hidden || v == QWindow::Minimized)
                saveData();
        });
}

void QORAppDelegate::applicationDidReceiveMemoryWarning()
{
    if (GuideViewFactory* guides = GuideViewFactory::sharedInstance(false))
        guides->releaseGuides();
    if (QORModel* model = QORModel::sharedInstance(false))
        model->releaseUnneededMemory();
}

void QORAppDelegate::loadGuideList()
{
    // Creating the guide page builder loads the guide list.
    GuideViewFactory::sharedInstance();
    InfoViewFactory::sharedInstance();
}

} // namespace qor
