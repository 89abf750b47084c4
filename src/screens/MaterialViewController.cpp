#include "MaterialViewController.h"

#include "Navigation.h"
#include "history/HistoryManager.h"
#include "model/Device.h"
#include "model/Filter.h"
#include "model/QORModel.h"
#include "model/Resources.h"
#include "pages/GuideViewFactory.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>

namespace qor {

namespace {

int s_selectedViewIndex = MaterialViewController::SummaryTab;

} // namespace

// ---------------------------------------------------------------- summary

void SummaryTableDelegate::setMaterial(const MaterialPtr& material)
{
    DetailRowBuilder rows;
    if (material) {
        const SummaryContent c = summaryContent(*QORModel::sharedInstance(), *material);
        rows.addOverview(c.overview);
        if (c.nfpa && !Device::isTablet()) {
            rows.beginSection(L::tr("NFPA 704"));
            rows.add(DetailRowModel::Nfpa, { { QStringLiteral("health"), c.nfpa->health },
                                             { QStringLiteral("fire"), c.nfpa->fire },
                                             { QStringLiteral("risk"), c.nfpa->risk },
                                             { QStringLiteral("other"), c.nfpa->other } });
            rows.addSource(c.nfpa->source);
        }
        rows.beginSection();
        rows.add(DetailRowModel::Guide, { { QStringLiteral("text"), c.guideText }, { QStringLiteral("guideId"), c.guideId },
                                          { QStringLiteral("opens"), true } });
        if (c.isolation)
            rows.add(DetailRowModel::Iso, { { QStringLiteral("title"), c.isolation->title }, { QStringLiteral("subtitle"), c.isolation->tihLabel } });
        rows.addAttributes(c.attributes);
        rows.addSource(c.detailSource);
    }
    m_sections = material ? rows.sectionCount() : 0;
    m_rows = rows.rows();
    emit rowsChanged();
}

// ---------------------------------------------------------------- protection

void ProtectionTableDelegate::setMaterial(const MaterialPtr& material)
{
    m_ghsExpanded = false;
    m_content = material ? protectionContent(*QORModel::sharedInstance(), *material) : ProtectionContent();
    m_rows.clear();
    if (material)
        rebuildRows();
    else
        emit rowsChanged();
}

QStringList ProtectionTableDelegate::keys() const
{
    QStringList keys;
    for (const AttributeRow& r : m_content.exposure)
        keys << r.key;
    return keys;
}

void ProtectionTableDelegate::toggleGhsDetails()
{
    m_ghsExpanded = !m_ghsExpanded;
    rebuildRows();
}

void ProtectionTableDelegate::rebuildRows()
{
    const ProtectionContent& p = m_content;
    DetailRowBuilder rows;
    rows.beginSection();
    rows.add(DetailRowModel::Npg, { { QStringLiteral("name"), p.name },
                                    { QStringLiteral("cas"), p.cas },
                                    { QStringLiteral("rtecs"), p.rtecs },
                                    { QStringLiteral("formula"), p.formula },
                                    { QStringLiteral("copyText"), p.copyText } });
    // A tablet shows the overview and exposure as one section.
    const bool tablet = Device::isTablet();
    if (!tablet) {
        rows.addSource(p.overviewSource);
        // The pack explains these figures on its pocket-guide page.
        rows.beginSection(L::tr("Exposure/Protection"), QStringLiteral("NPG"));
    }
    rows.addAttributes(p.exposure);
    rows.addSource(tablet ? p.overviewSource : p.exposureSource);
    if (!tablet && p.ghs) {
        rows.beginSection(L::tr("GHS"), QStringLiteral("GHS"));
        rows.add(DetailRowModel::Ghs, { { QStringLiteral("pictograms"), p.ghs->pictograms },
                                        { QStringLiteral("statements"), p.ghs->statements },
                                        { QStringLiteral("expanded"), m_ghsExpanded } });
        rows.addSource(p.ghs->source);
    }
    m_rows = rows.rows();
    emit rowsChanged();
}

// ---------------------------------------------------------------- screen

MaterialViewController::MaterialViewController(QObject* parent)
    : QObject(parent), m_summary(new SummaryTableDelegate(this)), m_shipping(new ShippingTabViewController(this)),
      m_protection(new ProtectionTableDelegate(this)), m_rowModel(new DetailRowModel(this)),
      m_summaryRowModel(new DetailRowModel(this)), m_sideRowModel(new DetailRowModel(this))
{
    for (QObject* tab : std::initializer_list<QObject*>{ m_summary, m_shipping, m_protection })
        connect(tab, SIGNAL(rowsChanged()), this, SIGNAL(rowsChanged()));
    connect(this, &MaterialViewController::rowsChanged, this, &MaterialViewController::showSelectedRows);
}

int MaterialViewController::selectedViewIndex() const
{
    return s_selectedViewIndex;
}

void MaterialViewController::setSelectedViewIndex(int index)
{
    if (index < 0 || (m_material && index >= segmentCount()))
        index = SummaryTab;
    s_selectedViewIndex = index;
    emit selectedViewIndexChanged();
    emit rowsChanged();
}

void MaterialViewController::setMaterialGuide(const MaterialRef& ref)
{
    m_material = ref.ptr;
    if (!m_material)
        return;
    Material& m = *m_material;
    HistoryManager::sharedInstance()->addToHistory(m_material);
    GuideViewFactory::sharedInstance()->loadSelectedGuideForMaterial(m);
    m_summary->setMaterial(m_material);
    m_shipping->setMaterial(m_material);
    m_protection->setMaterial(m_material);

    m_segmentImages = qor::segmentImages(m_protection->content());
    emit materialChanged();
    // A tab this material lacks falls back to the summary, and that choice sticks.
    if (s_selectedViewIndex >= segmentCount())
        setSelectedViewIndex(SummaryTab);
    else
        emit selectedViewIndexChanged();
    emit rowsChanged();
}

QString MaterialViewController::backTitle() const
{
    return qor::backTitle(m_material.get());
}

void MaterialViewController::showSelectedRows()
{
    switch (s_selectedViewIndex) {
    case SummaryTab: m_rowModel->setRows(m_summary->detailRows()); break;
    case ShippingTab: m_rowModel->setRows(m_shipping->detailRows()); break;
    case ProtectionTab: m_rowModel->setRows(m_protection->detailRows()); break;
    default: m_rowModel->setRows({}); break;
    }
    // The side column leaves out the name and placard that head the summary column.
    DetailRowModel::Rows side = m_shipping->detailRows();
    qsizetype top = !side.isEmpty() && side.first().kind == DetailRowModel::Top ? 1 : 0;
    if (top && side.size() > 1 && side.at(1).kind == DetailRowModel::Source)
        top = 2;
    side.remove(0, top);
    m_protectionRowStart = int(side.size());
    if (segmentCount() > ProtectionTab)
        side += m_protection->detailRows();
    m_summaryRowModel->setRows(m_summary->detailRows());
    m_sideRowModel->setRows(side);
}

void MaterialViewController::openIsolation()
{
    if (m_material)
        Navigation::sharedInstance()->openPage(this, QStringLiteral("IsolationPage.qml"),
                                               { { QStringLiteral("material"), QVariant::fromValue(material()) },
                                                 { QStringLiteral("backText"), backTitle() } });
}

void MaterialViewController::activateIn(DetailRowModel* model, int index)
{
    const DetailRowModel::Row* row = model ? model->rowAt(index) : nullptr;
    if (!row)
        return;
    Navigation* navigation = Navigation::sharedInstance();
    switch (row->kind) {
    case DetailRowModel::Guide:
        navigation->openGuide(row->fields.value(QStringLiteral("guideId")).toString(), material());
        break;
    case DetailRowModel::Iso:
        openIsolation();
        break;
    case DetailRowModel::Entry:
        navigation->openPage(this, QStringLiteral("ShippingEntryPage.qml"),
                             { { QStringLiteral("attributes"), m_shipping->entryAt(row->entry) }, { QStringLiteral("backText"), backTitle() } });
        break;
    case DetailRowModel::Shipping:
        // Shown inline only for the material's one entry.
        openShippingRow(this, row->shipping, m_shipping->firstEntry().value(QStringLiteral("name")).toString(), backTitle());
        break;
    case DetailRowModel::Ghs:
        m_protection->toggleGhsDetails();
        break;
    case DetailRowModel::Top:
    case DetailRowModel::Nfpa:
    case DetailRowModel::Text:
    case DetailRowModel::Incident:
    case DetailRowModel::Npg:
    case DetailRowModel::Provision:
    case DetailRowModel::Source:
        break;
    }
}

void MaterialViewController::copyToClipboard(const QString& text)
{
    if (QClipboard* clipboard = QGuiApplication::clipboard())
        clipboard->setText(text);
}

} // namespace qor
