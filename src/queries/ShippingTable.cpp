// Hazardous materials shipping table: a material's rows, the row of its own
// hazard class, section titles, vessel stowage texts and the placard name.
#include "QueryText.h"

#include "model/QORModel.h"
#include "model/Resources.h"

#include <QRegularExpression>
#include <algorithm>

namespace qor {

namespace {

// The placard a shipping lookup works with: the materials file's own, or the
// one the placard table gives for the UN number.
QString placardFor(QORModel& model, Material& material)
{
    const QString own = material.placardId.trimmed();
    return own.isEmpty() ? model.placardNameForMaterial(material) : own;
}

QString sectionTitle(QORModel& model, const QString& section)
{
    return fillFormat(L::tr("49CFR § 173.%@ %@"), { section, model.titleForHMTRegSection(section) });
}

QString localised(const QString& stored)
{
    return QCoreApplication::translate("QOR", stored.toUtf8().constData());
}

void insertPackingGroup(const QORModel& model, StringMap& entry, const QString& group)
{
    auto it = model.packageGroupTextList.constFind(group);
    if (it != model.packageGroupTextList.cend())
        entry.insert(QStringLiteral("packingGroup"), group + QLatin1Char(' ') + *it);
}

void replaceStowage(QORModel& model, StringMap& entry)
{
    auto it = entry.find(QStringLiteral("loc"));
    if (it == entry.end() || it->isEmpty())
        return;
    const QString category = *it;
    const QString description = model.vesselStowageDescForCategory(category);
    // Some descriptions already carry the heading; never wrap those twice.
    *it = description.startsWith(QLatin1String("Stowage category"))
        ? description
        : fillFormat(L::tr("Stowage category \"%@\" - %@"), { category, description });
}

int packingGroupRank(const StringMap& entry)
{
    const QString group = entry.value(QStringLiteral("packingGroup"));
    if (group.startsWith(QLatin1String("III")))
        return 3;
    if (group.startsWith(QLatin1String("II")))
        return 2;
    return 1;
}

} // namespace

QString QORModel::placardNameForMaterial(Material& material)
{
    auto cached = material.qorAttributes.constFind(QStringLiteral("PlacardName"));
    if (cached != material.qorAttributes.cend())
        return cached->toString();
    QString name = QStringLiteral("blank");
    Statement st(m_npgDb, QStringLiteral("select name from dot_placards where un_number = %1").arg(sqlBareUnId(material.unId)));
    if (st.step())
        name = st.text(0);
    material.qorAttributes.insert(QStringLiteral("PlacardName"), name);
    return name;
}

QString placardImageForMaterial(QORModel& model, Material& material)
{
    QString key = material.placardId.trimmed();
    if (key.isEmpty())
        key = model.placardNameForMaterial(material);
    return model.placards.value(key, key + QStringLiteral(".pdf"));
}

QList<StringMap> QORModel::getHmtEntriesForMaterial(Material& material)
{
    return cachedLookup(material.hmtEntries, [&] {
        // Only fills the placard cache; the entries list every class.
        placardFor(*this, material);

        const QString columns = QStringLiteral(" name, packing_group, label_codes, special_provisions, non_bulk, bulk, "
                                               "pass_air_rail, cargo_air, vessel_loc, symbols ");
        Statement st(m_npgDb, QStringLiteral("select distinct %1 from hmt where un_id = %2 group by %1 order by name, packing_group")
                                  .arg(columns, sqlBareUnId(material.unId)));
        QList<StringMap> entries;
        while (st.step()) {
            StringMap entry;
            entry.insert(QStringLiteral("name"), st.text(0));
            insertPackingGroup(*this, entry, st.text(1));
            entry.insert(QStringLiteral("labelCodes"), st.text(2));
            entry.insert(QStringLiteral("specialProvisions"), st.text(3));
            const QString nonBulk = st.text(4);
            entry.insert(QStringLiteral("nonBulkTitle"), sectionTitle(*this, nonBulk));
            entry.insert(QStringLiteral("nonBulk"), nonBulk);
            entry.insert(QStringLiteral("bulk"), st.text(5));
            entry.insert(QStringLiteral("passAirRail"), localised(st.text(6)));
            entry.insert(QStringLiteral("cargoAir"), localised(st.text(7)));
            entry.insert(QStringLiteral("loc"), st.text(8));
            entry.insert(QStringLiteral("symbols"), st.text(9));
            replaceStowage(*this, entry);
            entries.append(entry);
        }
        // Stable, so rows of one rank keep the query's name order.
        std::stable_sort(entries.begin(), entries.end(),
                         [](const StringMap& a, const StringMap& b) { return packingGroupRank(a) < packingGroupRank(b); });
        return entries;
    });
}

StringMap QORModel::getHmtAttributesForMaterial(Material& material)
{
    return cachedLookup(material.hmtAttributes, [&] {
        const QString placard = placardFor(*this, material);

        // The placard goes in as a bare term: numeric classes match, while "blank"
        // or any other word fails to prepare and leaves the attributes empty.
        Statement st(m_npgDb, QStringLiteral("select symbols, class, packing_group, label_codes, special_provisions, exceptions, "
                                             "non_bulk, bulk, pass_air_rail, cargo_air, vessel_loc, other, future  from hmt "
                                             "where un_id = %1 and class = %2")
                                  .arg(sqlBareUnId(material.unId), placard));
        StringMap attributes;
        if (st.step()) {
            attributes.insert(QStringLiteral("symbols"), st.text(0));
            attributes.insert(QStringLiteral("class"), st.text(1));
            insertPackingGroup(*this, attributes, st.text(2));
            attributes.insert(QStringLiteral("labelCodes"), st.text(3));
            attributes.insert(QStringLiteral("specialProvisions"), st.text(4));
            attributes.insert(QStringLiteral("exceptions"), st.text(5));
            const QString nonBulk = st.text(6);
            attributes.insert(QStringLiteral("nonBulk"), nonBulk);
            attributes.insert(QStringLiteral("nonBulkTitle"), sectionTitle(*this, nonBulk));
            const QString bulk = st.text(7);
            attributes.insert(QStringLiteral("bulk"), bulk);
            attributes.insert(QStringLiteral("bulkTitle"), sectionTitle(*this, bulk));
            attributes.insert(QStringLiteral("passAirRail"), localised(st.text(8)));
            attributes.insert(QStringLiteral("cargoAir"), localised(st.text(9)));
            attributes.insert(QStringLiteral("loc"), st.text(10));
            attributes.insert(QStringLiteral("other"), st.text(11));
        }
        replaceStowage(*this, attributes);
        return attributes;
    });
}

MaterialPtr QORModel::shippingTableMaterial(const QString& unId)
{
    static const QRegularExpression fourDigits(QStringLiteral("^\\d{4}$"));
    // The id column is numeric, so "4" would find 0004: only whole ids count.
    if (!fourDigits.match(unId).hasMatch())
        return nullptr;
    auto m = std::make_shared<Material>();
    m->unId = unId;
    const QList<StringMap> entries = getHmtEntriesForMaterial(*m);
    if (entries.isEmpty())
        return nullptr;
    QStringList names;
    for (const StringMap& e : entries)
        if (!names.contains(e.value(QStringLiteral("name"))))
            names << e.value(QStringLiteral("name"));
    m->name = names.join(QStringLiteral("; "));
    if (MaterialPtr row = guidebookRowForClass(classForMaterial(*m)))
        m->guideId = row->guideId;
    m->qorAttributes.insert(QStringLiteral("mayPolymerize"), false);
    return m;
}

MaterialPtr QORModel::guidebookRowForClass(const QString& hazardClass) const
{
    static const QRegularExpression explosive(QStringLiteral("^(1\\.[1-6])[A-S]?$"));
    static const QRegularExpression division(QStringLiteral("(?<![\\d.])1\\.[1-6](?![\\d.]\\d)"));
    const auto cls = explosive.match(hazardClass.trimmed());
    if (!cls.hasMatch())
        return nullptr;
    for (const auto& m : m_materials) {
        if (std::any_of(m->unId.cbegin(), m->unId.cend(), [](QChar c) { return c.isDigit(); }))
            continue;
        for (auto it = division.globalMatch(m->name); it.hasNext();)
            if (it.next().captured() == cls.captured(1))
                return m;
    }
    return nullptr;
}

QString QORModel::titleForHMTRegSection(const QString& section)
{
    Statement st(m_npgDb, QStringLiteral("select title from hmt_sections where section_id = '%1'").arg(sqlQuoted(section)));
    return st.step() ? st.text(0) : QString();
}

QString QORModel::vesselStowageDescForCategory(const QString& category)
{
    Statement st(m_npgDb, QStringLiteral("select description from vessel_stowage where category = '%1'").arg(sqlQuoted(category)));
    return st.step() ? st.text(0) : category;
}

} // namespace qor
