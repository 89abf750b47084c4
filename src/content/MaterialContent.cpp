#include "MaterialContent.h"

#include "model/Filter.h"
#include "model/PackManifest.h"
#include "model/QORModel.h"
#include "model/Resources.h"

#include <QJsonArray>
#include <algorithm>

namespace qor {

namespace {

const QString kSmall = QStringLiteral("Small Spill");
const QString kLarge = QStringLiteral("Large Spill");

QString withUnit(const QString& value, const char* unit)
{
    return QStringLiteral("%1 %2").arg(value, QLatin1String(unit));
}

QString attributeText(Material& m, const QString& key)
{
    if (std::optional<QString> v = m.attributeForKey(key))
        return *v;
    // The hazard marks of the materials file come as captions of their own.
    return m.qorAttributes.value(key).toString();
}

struct Caption {
    const char* caption;
    const char* key;
};
// The regulation table's rows, in the order the entry shows them.
const Caption kShippingRows[] = {
    { QT_TRANSLATE_NOOP("QOR", "Packing Group:"), "packingGroup" },
    { QT_TRANSLATE_NOOP("QOR", "Special Provisions:"), "specialProvisions" },
    { QT_TRANSLATE_NOOP("QOR", "Non-Bulk Packaging:"), "nonBulk" },
    { QT_TRANSLATE_NOOP("QOR", "Bulk Packaging:"), "bulk" },
    { QT_TRANSLATE_NOOP("QOR", "Qty Limit Passenger Air/Rail:"), "passAirRail" },
    { QT_TRANSLATE_NOOP("QOR", "Qty Limit Air Cargo:"), "cargoAir" },
    { QT_TRANSLATE_NOOP("QOR", "Vessel Stowage Location:"), "loc" },
};
const Caption kSummaryCaptions[] = {
    { QT_TRANSLATE_NOOP("QOR", "Note:"), "waterReactive" },
    { QT_TRANSLATE_NOOP("QOR", "Physical Description:"), "physDesc" },
    { QT_TRANSLATE_NOOP("QOR", "Synonyms/Trade Names:"), "syn" },
};

} // namespace

// Numeric-aware caption order.
QList<QPair<QString, QString>> exposureLabels()
{
    QList<QPair<QString, QString>> labels = {
        { QStringLiteral("CameoHazardText"), L::tr("Exposure:") }, { QStringLiteral("idlhLimit"), QStringLiteral("IDLH") },
        // The pocket guide's response cells.
        { QStringLiteral("exposureRoutes"), L::tr("Exposure Routes") }, { QStringLiteral("symptoms"), L::tr("Symptoms") },
        { QStringLiteral("targetOrgans"), L::tr("Target Organs") }, { QStringLiteral("personalProtection"), L::tr("Personal Protection") },
        { QStringLiteral("firstAid"), L::tr("First Aid") }
    };
    std::stable_sort(labels.begin(), labels.end(), [](const auto& a, const auto& b) { return compareNumerically(a.second, b.second) < 0; });
    return labels;
}

namespace {

QString withWaterSuffix(const Material& material, const QString& title)
{
    // Only the water-reactive case names its gases in the header.
    if (!title.contains(QLatin1String("Water")))
        return title;
    const QString gases = tihProducedText(material);
    return gases.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, gases);
}

QJsonArray rowsJson(const QList<AttributeRow>& rows)
{
    QJsonArray a;
    for (const AttributeRow& r : rows)
        a.append(r.toJson());
    return a;
}

QJsonObject spillJson(const SpillFigures& s)
{
    return { { QStringLiteral("isolate"), s.isolate }, { QStringLiteral("day"), s.day }, { QStringLiteral("night"), s.night } };
}

QString shippingActionName(ShippingAction a)
{
    switch (a) {
    case ShippingAction::PackagingSection: return QStringLiteral("packagingSection");
    case ShippingAction::SpecialProvisions: return QStringLiteral("specialProvisions");
    case ShippingAction::None: break;
    }
    return QStringLiteral("none");
}

} // namespace

// ---------------------------------------------------------------- JSON

SourceLine SourceLine::forTables(const QStringList& tables, const QString& note)
{
    return { PackManifest::sourceLine(tables), note };
}

QJsonObject SourceLine::toJson() const
{
    QJsonObject o{ { QStringLiteral("text"), text } };
    if (!note.isEmpty())
        o.insert(QStringLiteral("note"), note);
    return o;
}

QJsonObject AttributeRow::toJson() const
{
    return { { QStringLiteral("key"), key }, { QStringLiteral("caption"), caption }, { QStringLiteral("text"), text } };
}

QJsonObject MaterialOverview::toJson() const
{
    return { { QStringLiteral("name"), name },
             { QStringLiteral("unId"), unId },
             { QStringLiteral("placardImage"), placardImage },
             { QStringLiteral("hazardClass"), hazardClass },
             { QStringLiteral("classDescription"), classDescription },
             { QStringLiteral("source"), source.toJson() } };
}

QJsonObject NfpaRecord::toJson() const
{
    return { { QStringLiteral("health"), health }, { QStringLiteral("fire"), fire }, { QStringLiteral("risk"), risk },
             { QStringLiteral("other"), other },   { QStringLiteral("source"), source.toJson() } };
}

QJsonObject SummaryContent::toJson() const
{
    QJsonObject o{ { QStringLiteral("overview"), overview.toJson() },
                   { QStringLiteral("guide"), QJsonObject{ { QStringLiteral("text"), guideText }, { QStringLiteral("guideId"), guideId } } },
                   { QStringLiteral("attributes"), rowsJson(attributes) },
                   { QStringLiteral("source"), detailSource.toJson() } };
    o.insert(QStringLiteral("nfpa"), nfpa ? QJsonValue(nfpa->toJson()) : QJsonValue(QJsonValue::Null));
    o.insert(QStringLiteral("isolation"), isolation ? QJsonValue(QJsonObject{ { QStringLiteral("title"), isolation->title },
                                                                               { QStringLiteral("tihLabel"), isolation->tihLabel } })
                                                    : QJsonValue(QJsonValue::Null));
    return o;
}

QJsonObject ShippingRow::toJson() const
{
    QJsonObject o{ { QStringLiteral("key"), key },
                   { QStringLiteral("caption"), caption },
                   { QStringLiteral("text"), text },
                   { QStringLiteral("action"), shippingActionName(action) } };
    if (action == ShippingAction::PackagingSection)
        o.insert(QStringLiteral("section"), section);
    if (action == ShippingAction::SpecialProvisions)
        o.insert(QStringLiteral("provisions"), QJsonArray::fromStringList(provisions));
    return o;
}

QJsonObject ShippingEntry::toJson() const
{
    QJsonArray a;
    for (const ShippingRow& r : rows)
        a.append(r.toJson());
    return { { QStringLiteral("name"), name }, { QStringLiteral("detail"), detail }, { QStringLiteral("rows"), a } };
}

QJsonObject ShippingContent::toJson() const
{
    QJsonArray a;
    for (const ShippingEntry& e : entries)
        a.append(e.toJson());
    return { { QStringLiteral("overview"), overview.toJson() },
             { QStringLiteral("incidents"), QJsonObject{ { QStringLiteral("text"), incidentSummary },
                                                         { QStringLiteral("source"), incidentSource.toJson() } } },
             { QStringLiteral("inlineEntry"), inlineEntry },
             { QStringLiteral("entries"), a },
             { QStringLiteral("source"), source.toJson() } };
}

QJsonObject ProtectionContent::toJson() const
{
    QJsonObject o{ { QStringLiteral("available"), available },
                   { QStringLiteral("name"), name },
                   { QStringLiteral("formula"), formula },
                   { QStringLiteral("cas"), cas },
                   { QStringLiteral("rtecs"), rtecs },
                   { QStringLiteral("source"), overviewSource.toJson() },
                   { QStringLiteral("exposure"), rowsJson(exposure) },
                   { QStringLiteral("exposureSource"), exposureSource.toJson() } };
    if (ghs)
        o.insert(QStringLiteral("ghs"), QJsonObject{ { QStringLiteral("pictograms"), QJsonArray::fromStringList(ghs->pictograms) },
                                                     { QStringLiteral("statements"), QJsonArray::fromStringList(ghs->statements) },
                                                     { QStringLiteral("source"), ghs->source.toJson() } });
    else
        o.insert(QStringLiteral("ghs"), QJsonValue::Null);
    return o;
}

QJsonObject IsolationSection::toJson() const
{
    QJsonObject o{ { QStringLiteral("kind"), kind == Kind::Condition ? QStringLiteral("condition") : QStringLiteral("container") },
                   { QStringLiteral("title"), title } };
    if (kind == Kind::Condition)
        o.insert(QStringLiteral("replacedByContainers"), replacedByContainers);
    const char* unitNames[] = { "imperial", "metric" };
    for (int u = 0; u < 2; ++u) {
        if (kind == Kind::Condition) {
            QJsonObject figures{ { QStringLiteral("small"), spillJson(condition[u].small) } };
            if (hasLargeSpill)
                figures.insert(QStringLiteral("large"), spillJson(condition[u].large));
            o.insert(QLatin1String(unitNames[u]), figures);
        } else {
            const ContainerFigures& c = container[u];
            o.insert(QLatin1String(unitNames[u]), QJsonObject{ { QStringLiteral("isolate"), c.isolate },
                                                               { QStringLiteral("windCaptions"), QJsonArray::fromStringList(c.windCaptions) },
                                                               { QStringLiteral("day"), QJsonArray::fromStringList(c.day) },
                                                               { QStringLiteral("night"), QJsonArray::fromStringList(c.night) } });
        }
    }
    return o;
}

QJsonObject IsolationContent::toJson() const
{
    QJsonArray a;
    for (const IsolationSection& s : sections)
        a.append(s.toJson());
    return { { QStringLiteral("sections"), a }, { QStringLiteral("source"), source.toJson() } };
}

QJsonObject MaterialContent::toJson() const
{
    return { { QStringLiteral("summary"), summary.toJson() },
             { QStringLiteral("shipping"), shipping.toJson() },
             { QStringLiteral("protection"), protection.toJson() },
             { QStringLiteral("isolation"), isolation.toJson() },
             { QStringLiteral("segments"), QJsonArray::fromStringList(segmentImages) },
             { QStringLiteral("backTitle"), backTitle } };
}

// ---------------------------------------------------------------- rules

QString tihProducedText(const Material& material)
{
    const QString tih = material.toxicInhalationHazard.value_or(QString());
    if (tih.isEmpty() || tih == QLatin1String("X"))
        return QString();
    const QString label = tih.contains(QLatin1Char(',')) ? L::tr("TIH Gases Produced:") : L::tr("TIH Gas Produced:");
    return QStringLiteral("%1 %2").arg(label, tih);
}

QString backTitle(const Material* material)
{
    if (!material || material->unId.isEmpty() || !material->chemicalWarefareAgent.value_or(QString()).isEmpty())
        return L::tr("Back");
    return L::tr("UN%1").arg(material->unId);
}

QStringList splitProvisions(const QString& text)
{
    return text.split(QStringLiteral(", "), Qt::SkipEmptyParts);
}

const QStringList& shippingKeys()
{
    static const QStringList keys = [] {
        QStringList k;
        for (const Caption& r : kShippingRows)
            k << QLatin1String(r.key);
        return k;
    }();
    return keys;
}

bool hmtEntryIsSameAsMaterialName(const StringMap& entry, const Material& material)
{
    // The table writes names in its own case; the materials file capitalises them.
    return entry.value(QStringLiteral("name")).compare(material.name, Qt::CaseInsensitive) == 0;
}

MaterialOverview materialOverview(QORModel& model, Material& m)
{
    MaterialOverview o;
    o.name = m.name;
    // The guidebook's explosives rows carry no number; it prints a dash.
    o.unId = m.unId.isEmpty() ? QStringLiteral("—") : L::tr("UN%1").arg(m.unId);
    o.placardImage = placardImageForMaterial(model, m);
    o.hazardClass = model.classForMaterial(m);
    o.classDescription = model.classDescriptionForMaterial(m).value_or(QString());
    o.copyText = QStringLiteral("%1\n%2\n%3 %4\n%5").arg(m.name, o.unId, L::tr("Hazard Class"), o.hazardClass, o.classDescription);
    o.source = SourceLine::forTables({ QStringLiteral("materials"), QStringLiteral("dot_classes"), QStringLiteral("dot_placards"),
                                       QStringLiteral("placards") });
    return o;
}

SummaryContent summaryContent(QORModel& model, Material& m)
{
    SummaryContent s;
    const IsolationDistances& iso = model.isolationDistancesForMaterial(m);
    const bool english = Preferences::firstPreferredLanguage().startsWith(QLatin1String("en"));
    QStringList available;
    for (const char* key : { "waterReactive", "chemicalWarefareAgent", "toxicInhalationHazard", "physDesc", "syn" }) {
        const QString k = QLatin1String(key);
        // The pocket guide's descriptions are English only.
        if (k == QLatin1String("physDesc") && !english)
            continue;
        const QString text = attributeText(m, k);
        if (!text.isEmpty())
            s.attributes.append({ k, QString(), text });
    }
    s.overview = materialOverview(model, m);
    if (const std::optional<StringMap> nfpa = model.nfpaForMaterial(m))
        s.nfpa = NfpaRecord{ nfpa->value(QStringLiteral("health")), nfpa->value(QStringLiteral("fire")), nfpa->value(QStringLiteral("risk")),
                             nfpa->value(QStringLiteral("other")), SourceLine::forTables({ QStringLiteral("nfpa") }) };
    s.guideText = QStringLiteral("%1 %2%3").arg(L::tr("Guide"), m.guideId, m.mayPolymerize ? QStringLiteral("P") : QString());
    s.guideId = m.guideId;

    QStringList detailTables = { QStringLiteral("materials") };
    if (!iso.isEmpty()) {
        detailTables << QStringLiteral("iso_distances");
        QString title = L::tr("Isolation Distances");
        // A material whose name has figures of its own (a zone of an n.o.s.
        // entry) names them, not those of another name of its number.
        const QString own = model.isolationConditionsForMaterial(m).value(0);
        const bool named = QORModel::isolationConditionNamesMaterial(own, m.name);
        if (iso.count() == 1 || named) {
            const QString condition = iso.value(named ? own : iso.keys().first()).value(QStringLiteral("Condition"));
            if (!condition.isEmpty() && condition != QLatin1String("default") && condition != L::tr("default"))
                title = QStringLiteral("%1\n (%2)").arg(title, named ? capitalized(condition) : condition);
        }
        s.isolation = SummaryContent::IsolationLink{ title, tihProducedText(m) };
    }
    for (AttributeRow& row : s.attributes) {
        if (row.key == QLatin1String("physDesc") || row.key == QLatin1String("syn"))
            detailTables << QStringLiteral("npg_guides") << QStringLiteral("cameo");
        for (const Caption& c : kSummaryCaptions)
            if (row.key == QLatin1String(c.key))
                row.caption = L::tr(c.caption);
    }
    s.detailSource = SourceLine::forTables(detailTables);
    return s;
}

ShippingEntry shippingEntry(const StringMap& attributes, bool withDetail)
{
    ShippingEntry e;
    e.name = attributes.value(QStringLiteral("name"));
    e.attributes = attributes;
    if (withDetail) {
        const QString group = attributes.value(QStringLiteral("packingGroup"));
        const QString symbols = attributes.value(QStringLiteral("symbols"));
        if (!group.isEmpty())
            e.detail = QStringLiteral("%1  %2").arg(L::tr("Packing Group:"), group);
        else if (symbols == QLatin1String("I"))
            e.detail = L::tr("International");
        else if (symbols == QLatin1String("D"))
            e.detail = L::tr("Domestic");
    }
    for (const Caption& c : kShippingRows) {
        ShippingRow row;
        row.key = QLatin1String(c.key);
        row.caption = L::tr(c.caption);
        const QString value = attributes.value(row.key);
        row.text = value.isEmpty() ? L::tr("None") : value;
        if (!value.isEmpty() && (row.key == QLatin1String("nonBulk") || row.key == QLatin1String("bulk"))) {
            row.action = ShippingAction::PackagingSection;
            row.section = value;
            row.section.remove(QLatin1Char(' '));
        } else if (!value.isEmpty() && row.key == QLatin1String("specialProvisions")) {
            row.action = ShippingAction::SpecialProvisions;
            row.provisions = splitProvisions(value);
        }
        e.rows.append(row);
    }
    return e;
}

ShippingContent shippingContent(QORModel& model, Material& m)
{
    ShippingContent s;
    const QList<StringMap> entries = model.getHmtEntriesForMaterial(m);
    s.overview = materialOverview(model, m);
    s.incidentSummary = model.incidentsSummaryForMaterial(m);
    s.incidentSource = SourceLine::forTables({ QStringLiteral("incidents") }, PackManifest::activePartialNote(QStringLiteral("incidents")));
    s.inlineEntry = entries.size() == 1 && hmtEntryIsSameAsMaterialName(entries.first(), m);
    for (const StringMap& e : entries)
        s.entries.append(shippingEntry(e, entries.size() >= 2));
    s.source = shippingSource();
    return s;
}

SourceLine shippingSource()
{
    return SourceLine::forTables({ QStringLiteral("hmt"), QStringLiteral("vessel_stowage"), QStringLiteral("hmt_sections") });
}

QStringList segmentImages(const ProtectionContent& protection)
{
    QStringList images = { QStringLiteral("diamond.pdf"), QStringLiteral("newtruck.pdf") };
    if (protection.available)
        images << QStringLiteral("ppe_dust_mask.pdf");
    return images;
}

ProtectionContent protectionContent(QORModel& model, Material& m)
{
    ProtectionContent p;
    // These lookups fill in the CAS number read below.
    bool anyLabel = false;
    for (const auto& [key, caption] : exposureLabels()) {
        const std::optional<QString> value = m.attributeForKey(key);
        anyLabel = anyLabel || value.has_value();
        if (!value.value_or(QString()).isEmpty())
            p.exposure.append({ key, caption, *value });
    }
    p.name = m.attributeForKey(QStringLiteral("NPGName")).value_or(QString());
    if (p.name.isEmpty())
        p.name = m.attributeForKey(QStringLiteral("CameoName")).value_or(QString());
    p.formula = m.attributeForKey(QStringLiteral("htmlFormula")).value_or(QString());
    p.copyText = QStringLiteral("%1\n%2\nCAS#: %3").arg(p.name, p.formula, m.casNo);
    if (!m.rtecNo.isEmpty())
        p.copyText = QStringLiteral("%1\nRTECS#: %2").arg(p.copyText, m.rtecNo);
    p.cas = m.casNo.isEmpty() ? QString() : QStringLiteral("CAS#: ") + m.casNo;
    p.rtecs = m.rtecNo.isEmpty() ? QString() : QStringLiteral("RTECS#: ") + m.rtecNo;
    p.overviewSource = SourceLine::forTables({ QStringLiteral("npg_guides"), QStringLiteral("unid_npgid"), QStringLiteral("cameo") });
    // Exposure comes from the chemistry rows, the IDLH from the pocket guide.
    p.exposureSource = SourceLine::forTables({ QStringLiteral("cameo"), QStringLiteral("npg_guides") });
    const StringMap ghs = model.getGHSAttributesForMaterial(m);
    if (!ghs.isEmpty()) {
        ProtectionContent::Ghs g;
        for (const QString& part : ghs.value(QStringLiteral("GHSPictograms")).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            const QString code = part.trimmed().toLower();
            // Signal words, not pictures.
            if (code == QLatin1String("dgr") || code == QLatin1String("wng") || code.isEmpty())
                continue;
            g.pictograms << model.ghsPictograms.value(code, code + QStringLiteral(".pdf"));
        }
        for (const QString& s : ghs.value(QStringLiteral("GHSHazStatementsKey")).split(QLatin1Char(','), Qt::SkipEmptyParts))
            g.statements << s.trimmed();
        g.source = SourceLine::forTables({ QStringLiteral("ghs") });
        p.ghs = g;
    }
    // Read after the lookups above, which fill in the CAS number.
    p.available = anyLabel || !m.casNo.isNull();
    return p;
}

ConditionFigures conditionFigures(const IsolationRecord& record, Units units)
{
    const bool metric = units == Units::Metric;
    ConditionFigures f;
    for (const QString& spill : { kSmall, kLarge }) {
        auto value = [&](const char* what) {
            return record.value(QStringLiteral("%1 %2 %3").arg(spill, QLatin1String(what), metric ? QStringLiteral("Metric") : QStringLiteral("Imp")));
        };
        SpillFigures& s = spill == kSmall ? f.small : f.large;
        s.isolate = withUnit(value("Initial isolation distance"), metric ? "m" : "ft");
        s.day = withUnit(value("Protect distance Day"), metric ? "km" : "mi");
        s.night = withUnit(value("Protect distance Night"), metric ? "km" : "mi");
    }
    return f;
}

ContainerFigures containerFigures(const QString& row, Units units)
{
    // Metric and imperial figures alternate: isolate, day low/moderate/high, night low/moderate/high.
    const QStringList f = row.split(QLatin1Char(','));
    ContainerFigures c;
    if (f.size() < 14) {
        qWarning("isolation: container row with %d fields, 14 expected: %s", int(f.size()), qPrintable(row));
        return c;
    }
    const bool metric = units == Units::Metric;
    const char* unit = metric ? "km" : "mi";
    const int first = metric ? 0 : 1;
    c.isolate = withUnit(f.at(first), metric ? "m" : "ft");
    c.windCaptions = metric ? QStringList{ L::tr("Low wind (< 10 km/h):"), L::tr("Moderate wind (10-20 km/h):"), L::tr("High wind (> 20 km/h):") }
                            : QStringList{ L::tr("Low wind (< 6 mph):"), L::tr("Moderate wind (6-12 mph):"), L::tr("High wind (> 12 mph):") };
    for (int i = 0; i < 3; ++i) {
        c.day << withUnit(f.at(2 + first + 2 * i), unit);
        c.night << withUnit(f.at(8 + first + 2 * i), unit);
    }
    return c;
}

IsolationContent isolationContent(QORModel& model, Material& material)
{
    IsolationContent content;
    content.source = SourceLine::forTables({ QStringLiteral("iso_distances") });
    const IsolationDistances& iso = model.isolationDistancesForMaterial(material);
    const OrderedMap<QString> containers = model.largeSpillIsoDistancesForMaterial(material);
    auto addCondition = [&](const QString& key, bool first) {
        const IsolationRecord record = iso.value(key);
        IsolationSection s;
        s.kind = IsolationSection::Kind::Condition;
        s.title = withWaterSuffix(material, capitalized(record.value(QStringLiteral("Condition"))));
        // The container table replaces the large-spill half of the first condition.
        s.replacedByContainers = first && containers.count() > 0;
        s.hasLargeSpill = record.contains(QStringLiteral("Large Spill Initial isolation distance Imp"));
        for (Units u : { Units::Imperial, Units::Metric })
            s.condition[int(u)] = conditionFigures(record, u);
        content.sections.append(s);
    };
    // The material's own zone (or name) first: its figures on top.
    const QStringList keys = model.isolationConditionsForMaterial(material);
    if (!keys.isEmpty())
        addCondition(keys.first(), true);
    for (const QString& name : containers.keys()) {
        IsolationSection s;
        s.kind = IsolationSection::Kind::Container;
        s.title = withWaterSuffix(material, name);
        for (Units u : { Units::Imperial, Units::Metric })
            s.container[int(u)] = containerFigures(containers.value(name), u);
        content.sections.append(s);
    }
    // Further conditions follow the container table rather than being dropped.
    for (qsizetype i = 1; i < keys.size(); ++i)
        addCondition(keys.at(i), false);
    return content;
}

MaterialContent materialContent(QORModel& model, Material& material)
{
    MaterialContent c;
    c.summary = summaryContent(model, material);
    c.shipping = shippingContent(model, material);
    c.protection = protectionContent(model, material);
    c.isolation = isolationContent(model, material);
    c.segmentImages = segmentImages(c.protection);
    c.backTitle = backTitle(&material);
    return c;
}

} // namespace qor
