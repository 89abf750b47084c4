#include "IsolationTableDelegate.h"

#include "model/QORModel.h"
#include "model/Resources.h"
#include "pages/ProtectiveZone.h"

#include <QSettings>

namespace qor {

namespace {

QString withUnit(const QString& value, const char* unit)
{
    return QStringLiteral("%1 %2").arg(value, QLatin1String(unit));
}

const QString kSmall = QStringLiteral("Small Spill");
const QString kLarge = QStringLiteral("Large Spill");

} // namespace

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

QString IsolationTableDelegate::tihProducedText(const Material& material)
{
    const QString tih = material.toxicInhalationHazard.value_or(QString());
    if (tih.isEmpty() || tih == QLatin1String("X"))
        return QString();
    const QString label = tih.contains(QLatin1Char(',')) ? L::tr("TIH Gases Produced:") : L::tr("TIH Gas Produced:");
    return QStringLiteral("%1 %2").arg(label, tih);
}

QString IsolationTableDelegate::withWaterSuffix(const QString& title) const
{
    // Only the water-reactive case names its gases in the header.
    if (!m_material.ptr || !title.contains(QLatin1String("Water")))
        return title;
    const QString gases = tihProducedText(*m_material.ptr);
    return gases.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, gases);
}

QVariantMap IsolationTableDelegate::conditionCell(const QMap<QString, QString>& record, int units)
{
    const bool metric = units == Metric;
    QVariantMap cell;
    for (const QString& spill : { kSmall, kLarge }) {
        const QString prefix = spill == kSmall ? QStringLiteral("small") : QStringLiteral("large");
        auto value = [&](const char* what) {
            return record.value(QStringLiteral("%1 %2 %3").arg(spill, QLatin1String(what), metric ? QStringLiteral("Metric") : QStringLiteral("Imp")));
        };
        cell.insert(prefix + QStringLiteral("Isolate"), withUnit(value("Initial isolation distance"), metric ? "m" : "ft"));
        cell.insert(prefix + QStringLiteral("Day"), withUnit(value("Protect distance Day"), metric ? "km" : "mi"));
        cell.insert(prefix + QStringLiteral("Night"), withUnit(value("Protect distance Night"), metric ? "km" : "mi"));
    }
    return cell;
}

QVariantMap IsolationTableDelegate::largeSpillCell(const QString& row, int units)
{
    const QStringList f = row.split(QLatin1Char(','));
    QVariantMap cell;
    if (f.size() < 14) {
        qWarning("isolation: container row with %d fields, 14 expected: %s", int(f.size()), qPrintable(row));
        return cell;
    }
    const bool metric = units == Metric;
    const char* unit = metric ? "km" : "mi";
    const int first = metric ? 0 : 1;
    cell.insert(QStringLiteral("isolate"), withUnit(f.at(first), metric ? "m" : "ft"));
    cell.insert(QStringLiteral("windCaptions"),
                metric ? QStringList{ L::tr("Low wind (< 10 km/h):"), L::tr("Moderate wind (10-20 km/h):"), L::tr("High wind (> 20 km/h):") }
                       : QStringList{ L::tr("Low wind (< 6 mph):"), L::tr("Moderate wind (6-12 mph):"), L::tr("High wind (> 12 mph):") });
    QStringList day, night;
    for (int i = 0; i < 3; ++i) {
        day << withUnit(f.at(2 + first + 2 * i), unit);
        night << withUnit(f.at(8 + first + 2 * i), unit);
    }
    cell.insert(QStringLiteral("day"), day);
    cell.insert(QStringLiteral("night"), night);
    return cell;
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
        Material& material = *m_material.ptr;
        QORModel* model = QORModel::sharedInstance();
        const IsolationDistances& iso = model->isolationDistancesForMaterial(material);
        const OrderedMap<QString> containers = largeSpillIsoDistancesForMaterial(material);
        const int units = savedUnits();
        const qsizetype n = containers.count();
        auto addCondition = [&](const QString& key, bool first) {
            const IsolationRecord record = iso.value(key);
            QVariantMap s = conditionCell(record, units);
            s.insert(QStringLiteral("kind"), QStringLiteral("condition"));
            s.insert(QStringLiteral("title"), withWaterSuffix(capitalized(record.value(QStringLiteral("Condition")))));
            // The container table replaces the large-spill half of the first condition.
            const bool shortCell = first && n > 0;
            s.insert(QStringLiteral("hideLargeSpill"), shortCell || !record.contains(QStringLiteral("Large Spill Initial isolation distance Imp")));
            s.insert(QStringLiteral("height"), shortCell ? kShortRowHeight : kRowHeight);
            m_sections.append(s);
        };
        // The material's own zone (or name) first: its figures on top.
        const QStringList keys = model->isolationConditionsForMaterial(material);
        if (!keys.isEmpty())
            addCondition(keys.first(), true);
        for (const QString& name : containers.keys()) {
            QVariantMap s = largeSpillCell(containers.value(name), units);
            s.insert(QStringLiteral("kind"), QStringLiteral("container"));
            s.insert(QStringLiteral("title"), withWaterSuffix(name));
            s.insert(QStringLiteral("height"), kRowHeight);
            m_sections.append(s);
        }
        // Further conditions follow the container table rather than being dropped.
        for (qsizetype i = 1; i < keys.size(); ++i)
            addCondition(keys.at(i), false);
    }
    emit tableChanged();
}

} // namespace qor
