#include "IsolationTableDelegate.h"

#include "model/QORModel.h"
#include "model/Resources.h"
#include "pages/ProtectiveZone.h"

#include <QSettings>

namespace qor {

IsolationTableDelegate::IsolationTableDelegate(QObject* parent) : QObject(parent) {}

void IsolationTableDelegate::setMaterial(const MaterialRef& material)
{
    m_material = material;
    emit materialChanged();
    reloadData();
}

int IsolationTableDelegate::savedUnits()
{
    return QSettings().value(QLatin1String(kSavedUnitsKey), 0).toInt();
}

void IsolationTableDelegate::segmentAction(int index)
{
    QSettings().setValue(QLatin1String(kSavedUnitsKey), index);
    reloadData();
}

static QUrl packIcon(const QString& file)
{
    return Resources::exists(file) ? QUrl::fromLocalFile(Resources::path(file)) : QUrl();
}

QUrl IsolationTableDelegate::dayIcon()
{
    return packIcon(QStringLiteral("Cloudy-Daytime-icon.png"));
}

QUrl IsolationTableDelegate::nightIcon()
{
    return packIcon(QStringLiteral("Cloudy-Nighttime-icon.png"));
}

void IsolationTableDelegate::infoButtonClicked()
{
    emit infoPageRequested(QLatin1String(kInfoPage), L::tr("Isolation Distances"));
}

OrderedMap<QString> IsolationTableDelegate::largeSpillIsoDistancesForMaterial(const Material& material)
{
    return QORModel::sharedInstance()->largeSpillIsoDistancesForMaterial(material);
}

QVariantMap IsolationTableDelegate::conditionCell(const ConditionFigures& f)
{
    QVariantMap cell;
    for (const auto& [prefix, spill] : { std::pair{ "small", &f.small }, std::pair{ "large", &f.large } }) {
        cell.insert(QLatin1String(prefix) + QStringLiteral("Isolate"), spill->isolate);
        cell.insert(QLatin1String(prefix) + QStringLiteral("Day"), spill->day);
        cell.insert(QLatin1String(prefix) + QStringLiteral("Night"), spill->night);
    }
    return cell;
}

QVariantMap IsolationTableDelegate::largeSpillCell(const ContainerFigures& f)
{
    if (f.isolate.isEmpty())
        return {};
    return { { QStringLiteral("isolate"), f.isolate },
             { QStringLiteral("windCaptions"), f.windCaptions },
             { QStringLiteral("day"), f.day },
             { QStringLiteral("night"), f.night } };
}

QString IsolationTableDelegate::titleForSection(int section) const
{
    if (section < 0 || section >= m_sections.size())
        return QString();
    return m_sections.at(section).toMap().value(QStringLiteral("title")).toString();
}

void IsolationTableDelegate::reloadData()
{
    m_sections.clear();
    if (m_material.ptr) {
        const int units = savedUnits() == Metric ? Metric : Imperial;
        for (const IsolationSection& section : isolationContent(*QORModel::sharedInstance(), *m_material.ptr).sections) {
            const bool condition = section.kind == IsolationSection::Kind::Condition;
            QVariantMap s = condition ? conditionCell(section.condition[units]) : largeSpillCell(section.container[units]);
            s.insert(QStringLiteral("kind"), condition ? QStringLiteral("condition") : QStringLiteral("container"));
            s.insert(QStringLiteral("title"), section.title);
            if (condition)
                s.insert(QStringLiteral("hideLargeSpill"), section.hideLargeSpill());
            // The container table replaces the large-spill half of the first condition.
            s.insert(QStringLiteral("height"), section.replacedByContainers ? kShortRowHeight : kRowHeight);
            m_sections.append(s);
        }
    }
    emit tableChanged();
}

} // namespace qor
