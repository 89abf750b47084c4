#include "ShippingControllers.h"

#include "MaterialViewController.h"
#include "TableRows.h"
#include "model/QORModel.h"
#include "model/Resources.h"
#include "pages/PageView.h"
#include "queries/SpecialProvisions.h"

namespace qor {

namespace {

struct ShippingRow {
    const char* caption;
    const char* key;
};
const ShippingRow kShippingRows[] = {
    { QT_TRANSLATE_NOOP("QOR", "Packing Group:"), "packingGroup" },
    { QT_TRANSLATE_NOOP("QOR", "Special Provisions:"), "specialProvisions" },
    { QT_TRANSLATE_NOOP("QOR", "Non-Bulk Packaging:"), "nonBulk" },
    { QT_TRANSLATE_NOOP("QOR", "Bulk Packaging:"), "bulk" },
    { QT_TRANSLATE_NOOP("QOR", "Qty Limit Passenger Air/Rail:"), "passAirRail" },
    { QT_TRANSLATE_NOOP("QOR", "Qty Limit Air Cargo:"), "cargoAir" },
    { QT_TRANSLATE_NOOP("QOR", "Vessel Stowage Location:"), "loc" },
};

void addRegulationRows(TableRows& rows, const StringMap& entry)
{
    for (const ShippingRow& r : kShippingRows) {
        const QString value = entry.value(QLatin1String(r.key));
        rows.add(QStringLiteral("shipping"), { { QStringLiteral("key"), QLatin1String(r.key) },
                                               { QStringLiteral("caption"), L::tr(r.caption) },
                                               { QStringLiteral("text"), value.isEmpty() ? L::tr("None") : value },
                                               { QStringLiteral("selectable"), !value.isEmpty() } });
    }
}

// Shipping rows, their stowage wording and section titles.
QStringList shippingTables()
{
    return { QStringLiteral("hmt"), QStringLiteral("vessel_stowage"), QStringLiteral("hmt_sections") };
}

} // namespace

// ---------------------------------------------------------------- one entry

void ShippingTableDelegate::setAttributes(const StringMap& attributes)
{
    m_attributes = attributes;
    emit rowsChanged();
}

QVariantMap ShippingTableDelegate::attributesMap() const
{
    QVariantMap map;
    for (auto it = m_attributes.cbegin(); it != m_attributes.cend(); ++it)
        map.insert(it.key(), it.value());
    return map;
}

void ShippingTableDelegate::setAttributesMap(const QVariantMap& map)
{
    StringMap attributes;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        attributes.insert(it.key(), it.value().toString());
    setAttributes(attributes);
}

const QStringList& ShippingTableDelegate::keys()
{
    static const QStringList keys = [] {
        QStringList k;
        for (const ShippingRow& r : kShippingRows)
            k << QLatin1String(r.key);
        return k;
    }();
    return keys;
}

QVariantList ShippingTableDelegate::rows() const
{
    TableRows rows;
    rows.beginSection(m_attributes.value(QStringLiteral("name")));
    addRegulationRows(rows, m_attributes);
    rows.addSource(shippingTables());
    return rows.rows();
}

QStringList ShippingTableDelegate::splitProvisions(const QString& text)
{
    return text.split(QStringLiteral(", "), Qt::SkipEmptyParts);
}

QVariantMap ShippingTableDelegate::actionForKey(const QString& key) const
{
    const QString value = m_attributes.value(key);
    if (value.isEmpty())
        return {};
    if (key == QLatin1String("nonBulk") || key == QLatin1String("bulk")) {
        QString section = value;
        section.remove(QLatin1Char(' '));
        return { { QStringLiteral("kind"), QStringLiteral("cfr") },
                 { QStringLiteral("title"), QStringLiteral("49CFR § 173.%1").arg(section) },
                 { QStringLiteral("html"), QORModel::sharedInstance()->getHTMLTextForCFRSection(section, QString()) },
                 { QStringLiteral("source"), PackManifest::sourceLine({ QStringLiteral("cfr_text") }) } };
    }
    if (key == QLatin1String("specialProvisions"))
        return { { QStringLiteral("kind"), QStringLiteral("provisions") },
                 { QStringLiteral("title"), L::tr("Special Provisions") },
                 { QStringLiteral("provisions"), splitProvisions(value) },
                 { QStringLiteral("headerTitle"), m_attributes.value(QStringLiteral("name")) } };
    return {};
}

// ---------------------------------------------------------------- shipping tab

bool ShippingTabViewController::hmtEntryIsSameAsMaterialName(const StringMap& entry, const Material& material)
{
    // The table writes names in its own case; the materials file capitalises them.
    return entry.value(QStringLiteral("name")).compare(material.name, Qt::CaseInsensitive) == 0;
}

void ShippingTabViewController::setMaterial(const MaterialPtr& material)
{
    m_material = material;
    m_entries.clear();
    TableRows rows;
    if (m_material) {
        Material& m = *m_material;
        QORModel* model = QORModel::sharedInstance();
        m_entries = model->getHmtEntriesForMaterial(m);
        rows.beginSection();
        rows.add(QStringLiteral("top"), materialOverviewRow(m));
        rows.addSource(materialOverviewTables());
        rows.beginSection(L::tr("Reported Incidents"), QStringLiteral("Hazmat Incidents"));
        rows.add(QStringLiteral("incident"), { { QStringLiteral("text"), model->incidentsSummaryForMaterial(m) } });
        rows.addSource({ QStringLiteral("incidents") }, PackManifest::activePartialNote(QStringLiteral("incidents")));
        rows.beginSection(L::tr("Shipping Regulations"), QStringLiteral("Hazmat Shipping"));
        if (m_entries.size() == 1 && hmtEntryIsSameAsMaterialName(m_entries.first(), m)) {
            addRegulationRows(rows, m_entries.first());
        } else {
            for (int i = 0; i < m_entries.size(); ++i) {
                const StringMap& e = m_entries.at(i);
                QString detail;
                if (m_entries.size() >= 2) {
                    const QString group = e.value(QStringLiteral("packingGroup"));
                    const QString symbols = e.value(QStringLiteral("symbols"));
                    if (!group.isEmpty())
                        detail = QStringLiteral("%1  %2").arg(L::tr("Packing Group:"), group);
                    else if (symbols == QLatin1String("I"))
                        detail = L::tr("International");
                    else if (symbols == QLatin1String("D"))
                        detail = L::tr("Domestic");
                }
                rows.add(QStringLiteral("entry"), { { QStringLiteral("text"), e.value(QStringLiteral("name")) },
                                                    { QStringLiteral("detail"), detail },
                                                    { QStringLiteral("index"), i } });
            }
        }
        rows.addSource(shippingTables());
    }
    m_rows = rows.rows();
    emit rowsChanged();
}

QVariantMap ShippingTabViewController::entryAt(int index) const
{
    if (index < 0 || index >= m_entries.size())
        return {};
    ShippingTableDelegate d;
    d.setAttributes(m_entries.at(index));
    return d.attributesMap();
}

// ---------------------------------------------------------------- provisions

void ShippingSpecialProvisionsTableDelegate::setProvisions(const QStringList& provisions)
{
    m_provisions = provisions;
    emit rowsChanged();
}

QVariantList ShippingSpecialProvisionsTableDelegate::rows() const
{
    TableRows rows;
    rows.beginSection(m_headerTitle);
    for (const QString& code : m_provisions)
        rows.add(QStringLiteral("provision"), { { QStringLiteral("text"), code },
                                                { QStringLiteral("detail"), specialProvisionGroupForCode(code).listSubtitle } });
    rows.addSource(shippingTables());
    return rows.rows();
}

QVariantMap ShippingSpecialProvisionsTableDelegate::chooseProvision(int row)
{
    if (row < 0 || row >= m_provisions.size())
        return {};
    const QString code = m_provisions.at(row);
    const SpecialProvisionGroup group = specialProvisionGroupForCode(code);
    SpecialProvisionsViewFactory* factory = SpecialProvisionsViewFactory::sharedInstance();
    factory->loadCategory(group.key);
    if (SpecialProvisionsView* view = factory->viewForCategory(group.key))
        view->showProvision(code);
    return { { QStringLiteral("category"), group.key }, { QStringLiteral("provision"), code }, { QStringLiteral("title"), group.screenTitle } };
}

void SpecialProvisionsViewController::setCategory(const QString& category)
{
    m_category = category;
    emit categoryChanged();
}

QObject* SpecialProvisionsViewController::pageView() const
{
    SpecialProvisionsView* view = SpecialProvisionsViewFactory::sharedInstance()->viewForCategory(m_category);
    return view ? view->pageView() : nullptr;
}

} // namespace qor
