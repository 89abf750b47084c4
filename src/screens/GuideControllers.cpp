#include "GuideControllers.h"

#include "model/Device.h"
#include "model/QORModel.h"
#include "model/Resources.h"
#include "history/DialogService.h"
#include "history/UserPaths.h"
#include "pages/GuideMail.h"
#include "pages/GuideViewFactory.h"
#include "pages/InfoViewFactory.h"
#include "pages/PagePreparation.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QPalette>
#include <QSettings>
#include <algorithm>

namespace qor {

// ---------------------------------------------------------------- appearance

Appearance::Appearance(QObject* parent) : QObject(parent), m_dark(isDark())
{
    qApp->installEventFilter(this);
}

namespace {
QEvent::Type choiceChangeEvent()
{
    static const auto type = QEvent::Type(QEvent::registerEventType());
    return type;
}
} // namespace

bool Appearance::systemDark()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

bool Appearance::isDark()
{
    const QString chosen = choice();
    return chosen == QLatin1String("system") ? systemDark() : chosen == QLatin1String("dark");
}

QString Appearance::choice()
{
    const QString chosen = QSettings().value(QLatin1String(kChoiceKey)).toString();
    return chosen == QLatin1String("light") || chosen == QLatin1String("dark") ? chosen : QStringLiteral("system");
}

void Appearance::setChoice(const QString& chosen)
{
    QSettings settings;
    if (chosen == QLatin1String("light") || chosen == QLatin1String("dark"))
        settings.setValue(QLatin1String(kChoiceKey), chosen);
    else
        settings.remove(QLatin1String(kChoiceKey));
    QEvent changed(choiceChangeEvent());
    QCoreApplication::sendEvent(qApp, &changed);
}

bool Appearance::eventFilter(QObject* watched, QEvent* event)
{
    const bool relevant = event->type() == QEvent::ApplicationPaletteChange || event->type() == choiceChangeEvent();
    if (watched == qApp && relevant && isDark() != m_dark) {
        m_dark = !m_dark;
        emit darkChanged();
    }
    return false;
}

// ---------------------------------------------------------------- guide list

GuideListViewController::GuideListViewController(QObject* parent) : QAbstractListModel(parent)
{
    m_loadGuidesTimer.setSingleShot(true);
    m_loadGuidesTimer.setInterval(0);
    connect(&m_loadGuidesTimer, &QTimer::timeout, this, [this] { loadGuidesForCurrentView(m_first, m_last); });
    QORModel* model = QORModel::sharedInstance();
    connect(model, &QORModel::guidesChanged, this, [this] {
        beginResetModel();
        m_guides = QORModel::sharedInstance()->guides();
        endResetModel();
    });
    if (model->guides().isEmpty())
        model->loadGuideList();
    m_guides = model->guides();
    GuideViewFactory* factory = GuideViewFactory::sharedInstance();
    auto* appearance = new Appearance(this);
    connect(appearance, &Appearance::darkChanged, this, [this, appearance] { appearanceChanged(appearance->dark()); });
    if (appearance->dark() != GuideViewFactory::darkAppearance())
        factory->reloadGuides(appearance->dark());
}

int GuideListViewController::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_guides.size());
}

QVariant GuideListViewController::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_guides.size())
        return {};
    const Guide& g = *m_guides.at(index.row());
    switch (role) {
    case GuideIdRole: return g.guideId;
    case NameRole: return g.name;
    case BadgeRole: return QLatin1String(kBadge);
    default: return {};
    }
}

QHash<int, QByteArray> GuideListViewController::roleNames() const
{
    return { { GuideIdRole, "guideId" }, { NameRole, "name" }, { BadgeRole, "badge" } };
}

void GuideListViewController::loadGuidesForCurrentView(int firstRow, int lastRow)
{
    firstRow = std::max(firstRow, 0);
    lastRow = std::min(lastRow, int(m_guides.size()) - 1);
    if (firstRow > lastRow)
        return;
    GuideViewFactory::sharedInstance()->loadGuides(m_guides.mid(firstRow, lastRow - firstRow + 1));
}

void GuideListViewController::startLoadGuidesTimer(bool tracking, bool dragging, bool decelerating, int firstRow, int lastRow)
{
    if (tracking || dragging || decelerating)
        return;
    m_first = firstRow;
    m_last = lastRow;
    m_loadGuidesTimer.start();
}

QString GuideListViewController::selectGuide(int row)
{
    if (row < 0 || row >= m_guides.size())
        return QString();
    const QString id = m_guides.at(row)->guideId;
    GuideViewFactory::sharedInstance()->loadSelectedGuide(id);
    return id;
}

void GuideListViewController::appearanceChanged(bool dark)
{
    GuideViewFactory::sharedInstance()->reloadGuides(dark);
}

// ---------------------------------------------------------------- guide page

GuideViewController::GuideViewController(QObject* parent) : QObject(parent)
{
    m_promptTimer.setSingleShot(true);
    m_promptTimer.setInterval(kPromptDelayMs);
    connect(&m_promptTimer, &QTimer::timeout, this, [this] { setRotatePromptVisible(true); });
}

QString GuideViewController::guideId() const
{
    return m_guide ? m_guide->guideId : QString();
}

void GuideViewController::setGuide(const QString& guideId)
{
    QORModel* model = QORModel::sharedInstance();
    if (model->guides().isEmpty())
        model->loadGuideList();
    const auto it = std::find_if(model->guides().cbegin(), model->guides().cend(), [&](const GuidePtr& g) { return g->guideId == guideId; });
    m_guide = it == model->guides().cend() ? std::make_shared<Guide>(guideId, QString()) : *it;
    emit guideChanged();
}

void GuideViewController::setMaterial(const MaterialRef& material)
{
    m_material = material;
    emit guideChanged();
}

QString GuideViewController::title() const
{
    return QStringLiteral("%1 %2").arg(L::tr("Guide"), guideId());
}

QObject* GuideViewController::pageView() const
{
    return GuideView::sharedWebView();
}

double GuideViewController::storedTextFontSize()
{
    return QSettings().value(QLatin1String(kTextFontSizeKey), 100.0).toDouble();
}

void GuideViewController::setRotatePromptVisible(bool on)
{
    if (on == m_rotatePromptVisible)
        return;
    m_rotatePromptVisible = on;
    emit rotatePromptVisibleChanged();
}

void GuideViewController::hideRotatePrompt()
{
    m_promptTimer.stop();
    setRotatePromptVisible(false);
}

void GuideViewController::viewWillAppear(double width, double height)
{
    // The screen always shows its own guide, whatever the shared view loaded
    // last; background loading would replace it in the one shared view.
    GuideViewFactory* factory = GuideViewFactory::sharedInstance();
    factory->invalidateLoadingTimer();
    if (m_guide)
        if (const GuideViewPtr view = factory->viewForGuide(*m_guide)) {
            QMutexLocker locker(&view->mutex);
            view->load();
        }

    QSettings settings;
    const bool seen = settings.value(QLatin1String(kRotatePromptKey), false).toBool();
    if (width > height) {
        settings.setValue(QLatin1String(kRotatePromptKey), true);
        hideRotatePrompt();
    } else if (!seen) {
        m_promptTimer.start();
    }

    GuideView::sharedWebView()->evaluateJavaScript(guideTextSizeScript(storedTextFontSize()), {});
    prepareViewsForSize(width, height);
}

void GuideViewController::prepareViewsForSize(double width, double height)
{
    const bool landscape = width > height;
    const bool hasDistances = m_material.ptr && !Device::isTablet()
        && !QORModel::sharedInstance()->isolationDistancesForMaterial(*m_material.ptr).isEmpty();
    m_isolationVisible = hasDistances;
    if (hasDistances) {
        // In portrait the panel waits off screen at the right edge.
        m_webWidth = landscape ? width / 2 : width;
        m_panelX = m_webWidth;
        m_panelWidth = width / 1.8;
    } else {
        m_webWidth = width;
        m_panelX = width;
        m_panelWidth = 0;
    }
    emit layoutChanged();
}

void GuideViewController::sliderChanged(double value)
{
    const double v = std::clamp(value, kMinTextSize, kMaxTextSize);
    GuideView::sharedWebView()->evaluateJavaScript(guideTextSizeScript(v), {});
    QSettings settings;
    settings.setValue(QLatin1String(kTextFontSizeKey), v);
    settings.sync();
    emit textFontSizeChanged();
}

bool GuideViewController::emailWebPage()
{
    if (!m_guide)
        return false;
    return sendMail(guideMailMessage(*m_guide), m_guide->guideId);
}

void GuideViewController::printWebPage()
{
    if (!m_guide)
        return;
    const QString dir = UserPaths::cachesDir() + QStringLiteral("/Print");
    if (!UserPaths::ensureDir(dir))
        return;
    QString name = guidePrintSettings(*m_guide).jobName;
    if (name.isEmpty())
        name = title();
    name.replace(QLatin1Char('/'), QLatin1Char('-'));
    emit printRequested(QStringLiteral("%1/%2.pdf").arg(dir, name));
}

void GuideViewController::printFinished(const QString& pdfPath, bool ok)
{
    // The app has no print dialog of its own: the desktop's PDF viewer offers
    // one with the system's printers. Every outcome ends in a message, so the
    // user always sees where the page went.
    QString message;
    if (!ok)
        message = L::tr("The guide could not be saved as a PDF for printing (%1).").arg(pdfPath);
    else if (QDesktopServices::openUrl(QUrl::fromLocalFile(pdfPath)))
        message = L::tr("The guide was saved as a PDF and opened in your PDF viewer, which can print it:\n%1").arg(pdfPath);
    else
        message = L::tr("The guide was saved as a PDF; open it to print it:\n%1").arg(pdfPath);
    DialogService::show(L::tr("Print"), message, L::tr("OK"));
}

// ---------------------------------------------------------------- info page

InfoViewController::InfoViewController(QObject* parent) : QObject(parent) {}

void InfoViewController::setPage(const QString& page)
{
    m_page = page;
    InfoViewFactory* factory = InfoViewFactory::sharedInstance();
    // Pages outside the standing list get their view made on demand.
    InfoViewPtr view = factory->viewForPage(page);
    if (!view) {
        factory->loadPage(page);
        view = factory->infoViews().value(page);
    }
    m_pageView = view ? view->webView() : nullptr;
    emit pageChanged();
}

void InfoViewController::decidePolicyForNavigation(const QString& link)
{
    const QUrl url(link);
    const QString text = url.toString();
    const QString scheme = url.scheme().toLower();
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https") || scheme == QLatin1String("mailto")) {
        emit externalUrlRequested(url);
        return;
    }
    if (!text.startsWith(QLatin1String(kGuideScheme)))
        return;
    QString id = text.mid(int(qstrlen(kGuideScheme)));
    // URL parsing reads a bare number host as an IPv4 address (128 -> 0.0.0.128).
    if (const QStringList parts = id.split(QLatin1Char('.')); parts.size() == 4) {
        quint32 n = 0;
        bool ok = true;
        for (const QString& p : parts)
            n = (n << 8) | (p.toUInt(&ok) & 0xff);
        if (ok)
            id = QString::number(n);
    }
    const QList<GuidePtr>& guides = QORModel::sharedInstance()->guides();
    const bool known = std::any_of(guides.cbegin(), guides.cend(), [&](const GuidePtr& g) { return g->guideId == id; });
    if (!known)
        return;
    if (GuideViewFactory* factory = GuideViewFactory::sharedInstance())
        if (const GuideViewPtr view = factory->guideViews().value(id))
            factory->loadGuide(*view->guide);
    emit guideRequested(id, QStringLiteral("%1 %2").arg(L::tr("Guide"), id));
}

} // namespace qor
