#include "ShippingControllers.h"

#include "Navigation.h"
#include "model/QORModel.h"
#include "model/Resources.h"
#include "pages/PageView.h"
#include "queries/SpecialProvisions.h"

namespace qor {

void openShippingRow(QObject* origin, const ShippingRow& row, const QString& entryName, const QString& backText)
{
    QVariantMap page;
    QString file;
    switch (row.action) {
    case ShippingAction::PackagingSection:
        file = QStringLiteral("RegulationPage.qml");
        page = { { QStringLiteral("title"), QStringLiteral("49CFR § 173.%1").arg(row.section) },
                 { QStringLiteral("html"), QORModel::sharedInstance()->getHTMLTextForCFRSection(row.section, QString()) },
                 { QStringLiteral("source"), PackManifest::sourceLine({ QStringLiteral("cfr_text") }) } };
        if (!backText.isEmpty())
            page.insert(QStringLiteral("backText"), backText);
        break;
    case ShippingAction::SpecialProvisions:
        file = QStringLiteral("ProvisionsPage.qml");
        page = { { QStringLiteral("title"), L::tr("Special Provisions") },
                 { QStringLiteral("provisions"), row.provisions },
                 { QStringLiteral("headerTitle"), entryName } };
        break;
    case ShippingAction::None:
        return;
    }
    Navigation::sharedInstance()->openPage(origin, file, page);
}

// ---------------------------------------------------------------- one entry

ShippingTableDelegate::ShippingTableDelegate(QObject* parent) : QObject(parent), m_rowModel(new DetailRowModel(this)) {}

void ShippingTableDelegate::setAttributes(const StringMap& attributes)
{
    m_attributes = attributes;
    DetailRowBuilder rows;
    rows.beginSection(m_attributes.value(QStringLiteral("name")));
    rows.addShippingRows(shippingEntry(m_attributes));
    rows.addSource(shippingSource());
    m_rowModel->setRows(rows.rows());
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

void ShippingTableDelegate::activate(int index)
{
    if (const DetailRowModel::Row* row = m_rowModel->rowAt(index); row && row->kind == DetailRowModel::Shipping)
        openShippingRow(this, row->shipping, m_attributes.value(QStringLiteral("name")));
}

// ---------------------------------------------------------------- shipping tab

void ShippingTabViewController::setMaterial(const MaterialPtr& material)
{
    m_entries.clear();
    DetailRowBuilder rows;
    if (material) {
        const ShippingContent c = shippingContent(*QORModel::sharedInstance(), *material);
        m_entries = c.entries;
        rows.addOverview(c.overview);
        rows.beginSection(L::tr("Reported Incidents"), QStringLiteral("Hazmat Incidents"));
        rows.add(DetailRowModel::Incident, { { QStringLiteral("text"), c.incidentSummary } });
        rows.addSource(c.incidentSource);
        rows.beginSection(L::tr("Shipping Regulations"), QStringLiteral("Hazmat Shipping"));
        if (c.inlineEntry) {
            rows.addShippingRows(c.entries.first());
        } else {
            for (int i = 0; i < c.entries.size(); ++i)
                rows.add(DetailRowModel::Entry, { { QStringLiteral("text"), c.entries.at(i).name },
                                                  { QStringLiteral("detail"), c.entries.at(i).detail },
                                                  { QStringLiteral("opens"), true } })
                    .entry = i;
        }
        rows.addSource(c.source);
    }
    m_rows = rows.rows();
    emit rowsChanged();
}

QVariantMap ShippingTabViewController::entryAt(int index) const
{
    if (index < 0 || index >= m_entries.size())
        return {};
    QVariantMap map;
    const StringMap& attributes = m_entries.at(index).attributes;
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it)
        map.insert(it.key(), it.value());
    return map;
}

// ---------------------------------------------------------------- provisions

ShippingSpecialProvisionsTableDelegate::ShippingSpecialProvisionsTableDelegate(QObject* parent)
    : QObject(parent), m_rowModel(new DetailRowModel(this))
{
}

void ShippingSpecialProvisionsTableDelegate::setProvisions(const QStringList& provisions)
{
    m_provisions = provisions;
    rebuildRows();
}

void ShippingSpecialProvisionsTableDelegate::setHeaderTitle(const QString& title)
{
    m_headerTitle = title;
    rebuildRows();
}

void ShippingSpecialProvisionsTableDelegate::rebuildRows()
{
    DetailRowBuilder rows;
    rows.beginSection(m_headerTitle);
    for (const QString& code : std::as_const(m_provisions))
        rows.add(DetailRowModel::Provision, { { QStringLiteral("text"), code },
                                              { QStringLiteral("detail"), specialProvisionGroupForCode(code).listSubtitle },
                                              { QStringLiteral("opens"), true } });
    rows.addSource(shippingSource());
    m_rowModel->setRows(rows.rows());
    emit rowsChanged();
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

void ShippingSpecialProvisionsTableDelegate::activate(int row)
{
    const QVariantMap chosen = chooseProvision(row);
    if (!chosen.value(QStringLiteral("category")).toString().isEmpty())
        Navigation::sharedInstance()->openPage(this, QStringLiteral("ProvisionPage.qml"), chosen);
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
