#include "MaterialHistoryListViewController.h"

#include "AppDelegate.h"
#include "MaterialRows.h"
#include "history/Clock.h"
#include "model/QORModel.h"
#include "model/Resources.h"

namespace qor {

MaterialHistoryListViewController::MaterialHistoryListViewController(QObject* parent) : QAbstractListModel(parent)
{
    connect(QORModel::sharedInstance(), &QORModel::modelLoadingStateChanged, this, &MaterialHistoryListViewController::reload);
    reload();
}

QString MaterialHistoryListViewController::title() const
{
    return L::tr("History");
}

QStringList MaterialHistoryListViewController::segmentTitles() const
{
    return { L::tr("All"), L::tr("Recent"), L::tr("Most Viewed") };
}

void MaterialHistoryListViewController::setSegment(int segment)
{
    if (segment == m_segment)
        return;
    m_segment = segment;
    emit segmentChanged();
    changeView();
}

void MaterialHistoryListViewController::changeView()
{
    reloadRows();
    updateClearButton();
}

void MaterialHistoryListViewController::reload()
{
    reloadRows();
    updateClearButton();
}

void MaterialHistoryListViewController::reloadRows()
{
    beginResetModel();
    m_rows.clear();
    if (HistoryManager* history = HistoryManager::sharedInstance(false)) {
        ViewedHistory& viewed = history->viewedHistory();
        switch (m_segment) {
        case AllSegment:
            m_rows = viewed.allAlpha();
            break;
        case RecentSegment:
            m_rows = viewed.recent();
            break;
        case MostViewedSegment:
            m_rows = viewed.mostViewed();
            break;
        default:
            break;
        }
    }
    endResetModel();
}

void MaterialHistoryListViewController::updateClearButton()
{
    HistoryManager* history = HistoryManager::sharedInstance(false);
    const bool visible = history && history->viewedHistory().allAlpha().size() > kClearButtonThreshold;
    if (visible == m_clearButtonVisible)
        return;
    m_clearButtonVisible = visible;
    emit clearButtonVisibleChanged();
}

void MaterialHistoryListViewController::clearHistory()
{
    HistoryManager::sharedInstance()->viewedHistory().clearHistory();
    reloadRows();
    updateClearButton();
}

int MaterialHistoryListViewController::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

HistoryObjectPtr MaterialHistoryListViewController::historyObjInCurrentViewAtRow(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows.at(row) : nullptr;
}

MaterialPtr MaterialHistoryListViewController::materialInCurrentViewAtRow(int row) const
{
    const HistoryObjectPtr entry = historyObjInCurrentViewAtRow(row);
    return entry ? entry->material : nullptr;
}

MaterialRef MaterialHistoryListViewController::materialAt(int row) const
{
    return MaterialRef(materialInCurrentViewAtRow(row));
}

QString MaterialHistoryListViewController::textForCurrentView(const HistoryObject& entry) const
{
    return textForCurrentView(entry, Clock::currentDateTime().toLocalTime());
}

QString MaterialHistoryListViewController::textForCurrentView(const HistoryObject& entry, const QDateTime& now) const
{
    if (m_segment == RecentSegment) {
        const int nowHour = now.time().hour();
        const qint64 seconds = entry.lastViewDate().secsTo(now);
        const qint64 days = seconds / 86400;
        const qint64 hours = (seconds % 86400) / 3600;
        // Fewer hours ago than have passed today: the view was since midnight.
        if (days < 1 && hours < nowHour)
            return L::tr("today");
        if (days > 1)
            return L::tr("%1 %2%3 ago").arg(days).arg(L::tr("day"), days >= 2 ? L::tr("s") : QString());
        // Any one whole day back reads "yesterday", even two calendar days back.
        return L::tr("yesterday");
    }
    if (m_segment == MostViewedSegment) {
        const int n = entry.viewCount();
        if (n == 1)
            return L::tr("once");
        if (n == 2)
            return L::tr("twice");
        return L::tr("%1 %2%3").arg(n).arg(L::tr("time"), n >= 2 ? L::tr("s") : QString());
    }
    return {};
}

QVariant MaterialHistoryListViewController::data(const QModelIndex& index, int role) const
{
    const HistoryObjectPtr entry = historyObjInCurrentViewAtRow(index.row());
    if (!index.isValid() || !entry)
        return {};
    QORModel* model = QORModel::sharedInstance();
    switch (role) {
    case NameRole:
        return entry->name();
    case UnIdRole:
        return entry->material ? entry->material->unId : entry->unId();
    case GuideIdRole:
        return entry->material ? entry->material->guideId : QString();
    case PlacardImageRole:
        return entry->material ? placardImageForMaterial(*model, *entry->material) : QString();
    case IncidentsTextRole:
        return QString();
    case VerboseTextRole:
        return textForCurrentView(*entry);
    case EnabledRole:
        return !model->isLoading();
    case MaterialRole:
        return QVariant::fromValue(MaterialRef(entry->material));
    default:
        return {};
    }
}

QHash<int, QByteArray> MaterialHistoryListViewController::roleNames() const
{
    return { { NameRole, "name" },
             { UnIdRole, "unId" },
             { GuideIdRole, "guideId" },
             { PlacardImageRole, "placardImage" },
             { IncidentsTextRole, "incidentsText" },
             { VerboseTextRole, "verboseText" },
             { EnabledRole, "rowEnabled" },
             { MaterialRole, "material" } };
}

void MaterialHistoryListViewController::selectRow(int row)
{
    const MaterialPtr material = materialInCurrentViewAtRow(row);
    if (!material)
        return;
    if (QORAppDelegate::sharedInstance()->showInDetailArea(MaterialRef(material))) {
        reload();
        return;
    }
    emit materialRequested(MaterialRef(material));
}

} // namespace qor
