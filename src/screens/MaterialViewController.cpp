#include "MaterialViewController.h"

#include "IsolationTableDelegate.h"
#include "MaterialRows.h"
#include "TableRows.h"
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

QString attributeText(Material& m, const QString& key)
{
    if (std::optional<QString> v = m.attributeForKey(key))
        return *v;
    // The hazard marks of the materials file come as captions of their own.
    return m.qorAttributes.value(key).toString();
}

} // namespace

QStringList materialOverviewTables()
{
    return { QStringLiteral("materials"), QStringLiteral("dot_classes"), QStringLiteral("dot_placards"), QStringLiteral("placards") };
}

QVariantMap materialOverviewRow(Material& m)
{
    QORModel* model = QORModel::sharedInstance();
    // The guidebook's explosives rows carry no number; it prints a dash.
    const QString unText = m.unId.isEmpty() ? QStringLiteral("—") : L::tr("UN%1").arg(m.unId);
    const QString hazardClass = model->classForMaterial(m);
    const QString description = model->classDescriptionForMaterial(m).value_or(QString());
    return {
        { QStringLiteral("name"), m.name },
        { QStringLiteral("unId"), unText },
        { QStringLiteral("placardImage"), placardImageForMaterial(*model, m) },
        { QStringLiteral("hazardClass"), hazardClass },
        { QStringLiteral("classDescription"), description },
        { QStringLiteral("copyText"), QStringLiteral("%1\n%2\n%3 %4\n%5").arg(m.name, unText, L::tr("Hazard Class"), hazardClass, description) },
    };
}

// ---------------------------------------------------------------- summary

void SummaryTableDelegate::setMaterial(const MaterialPtr& material)
{
    m_material = material;
    m_available.clear();
    TableRows rows;
    if (!m_material) {
        m_rows = rows.rows();
        emit rowsChanged();
        return;
    }
    Material& m = *m_material;
    QORModel* model = QORModel::sharedInstance();
    const IsolationDistances& iso = model->isolationDistancesForMaterial(m);
    if (!iso.isEmpty())
        m_available.append({ QStringLiteral("ISO"), L::tr("Isolation Distances") });
    const bool english = Preferences::firstPreferredLanguage().startsWith(QLatin1String("en"));
    for (const char* key : { "waterReactive", "chemicalWarefareAgent", "toxicInhalationHazard", "physDesc", "syn" }) {
        const QString k = QLatin1String(key);
        if (k == QLatin1String("physDesc") && !english)
            continue;
        const QString text = attributeText(m, k);
        if (!text.isEmpty())
            m_available.append({ k, text });
    }

    rows.beginSection();
    rows.add(QStringLiteral("top"), materialOverviewRow(m));
    rows.addSource(materialOverviewTables());
    if (!Device::isTablet()) {
        if (const std::optional<StringMap> nfpa = model->nfpaForMaterial(m)) {
            rows.beginSection(L::tr("NFPA 704"));
            QVariantMap r;
            for (const char* k : { "health", "fire", "risk", "other" })
                r.insert(QLatin1String(k), nfpa->value(QLatin1String(k)));
            rows.add(QStringLiteral("nfpa"), r);
            rows.addSource({ QStringLiteral("nfpa") });
        }
    }
    rows.beginSection();
    rows.add(QStringLiteral("guide"),
             { { QStringLiteral("text"), QStringLiteral("%1 %2%3").arg(L::tr("Guide"), m.guideId, m.mayPolymerize ? QStringLiteral("P") : QString()) },
               { QStringLiteral("guideId"), m.guideId } });
    static const QMap<QString, const char*> captions = {
        { QStringLiteral("waterReactive"), QT_TRANSLATE_NOOP("QOR", "Note:") },
        { QStringLiteral("physDesc"), QT_TRANSLATE_NOOP("QOR", "Physical Description:") },
        { QStringLiteral("syn"), QT_TRANSLATE_NOOP("QOR", "Synonyms/Trade Names:") },
    };
    QStringList detailTables = { QStringLiteral("materials") };
    for (const auto& [key, text] : std::as_const(m_available)) {
        if (key == QLatin1String("physDesc") || key == QLatin1String("syn"))
            detailTables << QStringLiteral("npg_guides") << QStringLiteral("cameo");
        if (key == QLatin1String("ISO")) {
            detailTables << QStringLiteral("iso_distances");
            QString title = text;
            // A material whose name has figures of its own (a zone of an n.o.s.
            // entry) names them, not those of another name of its number.
            const QString own = model->isolationConditionsForMaterial(m).value(0);
            const bool named = QORModel::isolationConditionNamesMaterial(own, m.name);
            if (iso.count() == 1 || named) {
                const QString condition = iso.value(named ? own : iso.keys().first()).value(QStringLiteral("Condition"));
                if (!condition.isEmpty() && condition != QLatin1String("default") && condition != L::tr("default"))
                    title = QStringLiteral("%1\n (%2)").arg(text, named ? capitalized(condition) : condition);
            }
            rows.add(QStringLiteral("iso"), { { QStringLiteral("title"), title },
                                              { QStringLiteral("subtitle"), IsolationTableDelegate::tihProducedText(m) } });
            continue;
        }
        const char* caption = captions.value(key);
        rows.add(QStringLiteral("text"), { { QStringLiteral("key"), key },
                                           { QStringLiteral("caption"), caption ? L::tr(caption) : QString() },
                                           { QStringLiteral("text"), text } });
    }
    rows.addSource(detailTables);
    m_sections = rows.sectionCount();
    m_rows = rows.rows();
    emit rowsChanged();
}

// ---------------------------------------------------------------- protection

ProtectionTableDelegate::ProtectionTableDelegate(QObject* parent) : QObject(parent)
{
    m_labels = { { QStringLiteral("CameoHazardText"), L::tr("Exposure:") }, { QStringLiteral("idlhLimit"), QStringLiteral("IDLH") },
                 // The pocket guide's response cells.
                 { QStringLiteral("exposureRoutes"), L::tr("Exposure Routes") }, { QStringLiteral("symptoms"), L::tr("Symptoms") },
                 { QStringLiteral("targetOrgans"), L::tr("Target Organs") },
                 { QStringLiteral("personalProtection"), L::tr("Personal Protection") },
                 { QStringLiteral("firstAid"), L::tr("First Aid") } };
    std::stable_sort(m_labels.begin(), m_labels.end(), [](const auto& a, const auto& b) { return compareNumerically(a.second, b.second) < 0; });
}

void ProtectionTableDelegate::setMaterial(const MaterialPtr& material)
{
    m_material = material;
    m_ghsExpanded = false;
    m_keys.clear();
    if (m_material)
        for (const auto& [key, caption] : std::as_const(m_labels))
            if (!m_material->attributeForKey(key).value_or(QString()).isEmpty())
                m_keys << key;
    rebuildRows();
}

void ProtectionTableDelegate::toggleGhsDetails()
{
    m_ghsExpanded = !m_ghsExpanded;
    rebuildRows();
}

void ProtectionTableDelegate::rebuildRows()
{
    TableRows rows;
    if (m_material) {
        Material& m = *m_material;
        QORModel* model = QORModel::sharedInstance();
        QString name = m.attributeForKey(QStringLiteral("NPGName")).value_or(QString());
        if (name.isEmpty())
            name = m.attributeForKey(QStringLiteral("CameoName")).value_or(QString());
        const QString formula = m.attributeForKey(QStringLiteral("htmlFormula")).value_or(QString());
        QString copy = QStringLiteral("%1\n%2\nCAS#: %3").arg(name, formula, m.casNo);
        if (!m.rtecNo.isEmpty())
            copy = QStringLiteral("%1\nRTECS#: %2").arg(copy, m.rtecNo);
        rows.beginSection();
        rows.add(QStringLiteral("npg"), { { QStringLiteral("name"), name },
                                          { QStringLiteral("cas"), m.casNo.isEmpty() ? QString() : QStringLiteral("CAS#: ") + m.casNo },
                                          { QStringLiteral("rtecs"), m.rtecNo.isEmpty() ? QString() : QStringLiteral("RTECS#: ") + m.rtecNo },
                                          { QStringLiteral("formula"), formula },
                                          { QStringLiteral("copyText"), copy } });
        const bool tablet = Device::isTablet();
        const QStringList overviewTables = { QStringLiteral("npg_guides"), QStringLiteral("unid_npgid"), QStringLiteral("cameo") };
        if (!tablet) {
            rows.addSource(overviewTables);
            // The pack explains these figures on its pocket-guide page.
            rows.beginSection(L::tr("Exposure/Protection"), QStringLiteral("NPG"));
        }
        for (const QString& key : std::as_const(m_keys)) {
            const auto caption = std::find_if(m_labels.cbegin(), m_labels.cend(), [&](const auto& l) { return l.first == key; });
            rows.add(QStringLiteral("text"), { { QStringLiteral("key"), key },
                                               { QStringLiteral("caption"), caption->second },
                                               { QStringLiteral("text"), m.attributeForKey(key).value_or(QString()) } });
        }
        // Exposure comes from the chemistry rows, the IDLH from the pocket guide.
        rows.addSource(tablet ? overviewTables : QStringList{ QStringLiteral("cameo"), QStringLiteral("npg_guides") });
        const StringMap ghs = model->getGHSAttributesForMaterial(m);
        if (!tablet && !ghs.isEmpty()) {
            QStringList pictograms;
            for (const QString& part : ghs.value(QStringLiteral("GHSPictograms")).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
                const QString p = part.trimmed().toLower();
                // Signal words, not pictures.
                if (p == QLatin1String("dgr") || p == QLatin1String("wng") || p.isEmpty())
                    continue;
                pictograms << model->ghsPictograms.value(p, p + QStringLiteral(".pdf"));
            }
            QStringList statements;
            for (const QString& s : ghs.value(QStringLiteral("GHSHazStatementsKey")).split(QLatin1Char(','), Qt::SkipEmptyParts))
                statements << s.trimmed();
            rows.beginSection(L::tr("GHS"), QStringLiteral("GHS"));
            rows.add(QStringLiteral("ghs"), { { QStringLiteral("pictograms"), pictograms },
                                              { QStringLiteral("statements"), statements },
                                              { QStringLiteral("expanded"), m_ghsExpanded } });
            rows.addSource({ QStringLiteral("ghs") });
        }
    }
    m_rows = rows.rows();
    emit rowsChanged();
}

// ---------------------------------------------------------------- screen

MaterialViewController::MaterialViewController(QObject* parent)
    : QObject(parent), m_summary(new SummaryTableDelegate(this)), m_shipping(new ShippingTabViewController(this)),
      m_protection(new ProtectionTableDelegate(this))
{
    for (QObject* tab : std::initializer_list<QObject*>{ m_summary, m_shipping, m_protection })
        connect(tab, SIGNAL(rowsChanged()), this, SIGNAL(rowsChanged()));
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

    bool protection = false;
    for (const auto& label : m_protection->labels())
        protection = protection || m.attributeForKey(label.first).has_value();
    // Read after the lookups above, which fill in the CAS number.
    protection = protection || !m.casNo.isNull();
    m_segmentImages = { QStringLiteral("diamond.pdf"), QStringLiteral("newtruck.pdf") };
    if (protection)
        m_segmentImages << QStringLiteral("ppe_dust_mask.pdf");
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
    if (!m_material || m_material->unId.isEmpty() || !m_material->chemicalWarefareAgent.value_or(QString()).isEmpty())
        return L::tr("Back");
    return L::tr("UN%1").arg(m_material->unId);
}

QVariantList MaterialViewController::rows() const
{
    switch (s_selectedViewIndex) {
    case SummaryTab: return m_summary->rows();
    case ShippingTab: return m_shipping->rows();
    case ProtectionTab: return m_protection->rows();
    default: return {};
    }
}

void MaterialViewController::copyToClipboard(const QString& text)
{
    if (QClipboard* clipboard = QGuiApplication::clipboard())
        clipboard->setText(text);
}

} // namespace qor
