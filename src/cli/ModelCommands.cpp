// qor-cli material / list
#include "Cli.h"
#include "MaterialJson.h"

#include "model/PackManifest.h"
#include "model/QORModel.h"
#include "model/Resources.h"

#include <QJsonArray>
#include <QJsonObject>

namespace qor::cli {

namespace {

void printMaterialText(QTextStream& out, const QJsonObject& o)
{
    const QJsonObject sources = o.value(QStringLiteral("sources")).toObject();
    const auto source = [&](const char* group) { out << "    " << sources.value(QLatin1String(group)).toString() << "\n"; };
    const QString unId = o.value(QStringLiteral("unId")).toString();
    out << o.value(QStringLiteral("name")).toString() << "  UN" << unId << "\n";
    const bool shippingOnly = o.value(QStringLiteral("fromShippingTableOnly")).toBool();
    if (shippingOnly)
        out << "  " << L::tr("The guidebook's index does not list UN%1; shown from the shipping table.").arg(unId) << "\n";
    const QJsonObject guide = o.value(QStringLiteral("guide")).toObject();
    const QString guideId = o.value(QStringLiteral("guideId")).toString();
    if (guideId.isEmpty() && shippingOnly) {
        out << "  " << L::tr("Guide: not in this data pack") << "\n";
    } else {
        out << "  Guide " << guideId << (o.value(QStringLiteral("mayPolymerize")).toBool() ? "P" : "");
        if (!guide.isEmpty())
            out << "  " << guide.value(QStringLiteral("name")).toString();
        out << "\n";
    }
    const QString row = o.value(QStringLiteral("guidebookRow")).toString();
    if (!row.isEmpty())
        out << "  " << L::tr("Guide of the index's row \"%1\"").arg(row) << "\n";
    const QString cls = o.value(QStringLiteral("class")).toString();
    if (!cls.isEmpty())
        out << "  Hazard class " << cls << "  " << o.value(QStringLiteral("classDescription")).toString() << "\n";
    for (const char* key : { "toxicInhalationHazard", "waterReactive", "chemicalWarefareAgent" }) {
        const QJsonValue v = o.value(QLatin1String(key));
        if (v.isString())
            out << "  " << key << ": " << v.toString() << "\n";
    }
    if (!guideId.isEmpty() || !shippingOnly)
        source("material");
    if (!cls.isEmpty())
        source("class");
    out << "  Incidents (12 months): " << o.value(QStringLiteral("numIncidents")).toInt() << "\n";
    const QString incidentsNote = o.value(QStringLiteral("incidentsNote")).toString();
    if (!incidentsNote.isEmpty())
        out << "    " << incidentsNote << "\n";
    // Isolation as the app's table shows it: the material's own condition,
    // the container table, further conditions; each figure in both units.
    const QJsonObject content = o.value(QStringLiteral("content")).toObject();
    const QJsonArray isoSections = content.value(QStringLiteral("isolation")).toObject().value(QStringLiteral("sections")).toArray();
    const auto both = [](const QJsonValue& metric, const QJsonValue& imperial) { return metric.toString() + " / " + imperial.toString(); };
    for (const QJsonValue& v : isoSections) {
        const QJsonObject s = v.toObject();
        const QJsonObject metric = s.value(QStringLiteral("metric")).toObject();
        const QJsonObject imperial = s.value(QStringLiteral("imperial")).toObject();
        if (s.value(QStringLiteral("kind")).toString() == QLatin1String("container")) {
            const QJsonArray md = metric.value(QStringLiteral("day")).toArray(), id = imperial.value(QStringLiteral("day")).toArray();
            const QJsonArray mn = metric.value(QStringLiteral("night")).toArray(), in = imperial.value(QStringLiteral("night")).toArray();
            if (md.size() < 3 || id.size() < 3 || mn.size() < 3 || in.size() < 3)
                continue;
            out << "  Large spill, " << s.value(QStringLiteral("title")).toString() << ": isolate "
                << both(metric.value(QStringLiteral("isolate")), imperial.value(QStringLiteral("isolate"))) << "; day low/moderate/high wind "
                << both(md.at(0), id.at(0)) << ", " << both(md.at(1), id.at(1)) << ", " << both(md.at(2), id.at(2)) << "; night "
                << both(mn.at(0), in.at(0)) << ", " << both(mn.at(1), in.at(1)) << ", " << both(mn.at(2), in.at(2)) << "\n";
            continue;
        }
        out << "  Isolation (" << s.value(QStringLiteral("title")).toString() << ")\n";
        for (const char* spill : { "Small", "Large" }) {
            const QString key = QString::fromLatin1(spill).toLower();
            if (!metric.contains(key))
                continue;
            const QJsonObject m = metric.value(key).toObject(), i = imperial.value(key).toObject();
            out << "    " << spill << " spill: isolate " << both(m.value(QStringLiteral("isolate")), i.value(QStringLiteral("isolate")))
                << "; protect day " << both(m.value(QStringLiteral("day")), i.value(QStringLiteral("day"))) << "; night "
                << both(m.value(QStringLiteral("night")), i.value(QStringLiteral("night"))) << "\n";
        }
    }
    if (!isoSections.isEmpty())
        source("isolation");
    const QString summary = o.value(QStringLiteral("incidentsSummary")).toString();
    if (!summary.isEmpty()) {
        out << "  " << summary.trimmed() << "\n";
        source("incidents");
    }
    const QJsonObject nfpa = o.value(QStringLiteral("nfpa")).toObject();
    if (!nfpa.isEmpty())
        out << "  NFPA 704: health " << nfpa.value(QStringLiteral("health")).toString() << ", fire "
            << nfpa.value(QStringLiteral("fire")).toString() << ", instability " << nfpa.value(QStringLiteral("risk")).toString()
            << (nfpa.value(QStringLiteral("other")).toString().isEmpty() ? QString() : QStringLiteral(", special ") + nfpa.value(QStringLiteral("other")).toString())
            << "\n";
    if (!nfpa.isEmpty())
        source("nfpa");
    const QJsonObject npg = o.value(QStringLiteral("npgAttributes")).toObject();
    const QString cas = o.value(QStringLiteral("casNo")).toString();
    if (!cas.isEmpty())
        out << "  CAS " << cas << "\n";
    bool chemistry = !cas.isEmpty();
    for (const char* key : { "idlhLimit", "nioshExpLimit", "oshaExpLimit" }) {
        const QString v = npg.value(QLatin1String(key)).toString();
        if (!v.isEmpty())
            out << "  " << key << ": " << v << "\n";
        chemistry = chemistry || !v.isEmpty();
    }
    if (chemistry)
        source("chemistry");
    const QJsonArray entries = content.value(QStringLiteral("shipping")).toObject().value(QStringLiteral("entries")).toArray();
    for (const QJsonValue& e : entries) {
        const QJsonObject entry = e.toObject();
        QMap<QString, QString> text;
        for (const QJsonValue& r : entry.value(QStringLiteral("rows")).toArray())
            text.insert(r.toObject().value(QStringLiteral("key")).toString(), r.toObject().value(QStringLiteral("text")).toString());
        out << "  Shipping: " << entry.value(QStringLiteral("name")).toString();
        if (text.value(QStringLiteral("packingGroup")) != L::tr("None"))
            out << ", packing group " << text.value(QStringLiteral("packingGroup"));
        out << "; non-bulk " << text.value(QStringLiteral("nonBulk")) << ", bulk " << text.value(QStringLiteral("bulk")) << "\n";
    }
    if (!entries.isEmpty())
        source("shipping");
}

int materialCommand(Context& ctx, QStringList args)
{
    if (args.size() != 1)
        return ctx.usage(QStringLiteral("material needs exactly one UN number or name"));
    QORModel& model = loadedModel();
    MaterialList found = findMaterials(model, args.first());
    QJsonArray array;
    for (const auto& m : found)
        array.append(materialJson(model, *m));
    if (found.isEmpty()) {
        if (MaterialPtr m = model.shippingTableMaterial(args.first())) {
            found << m;
            QJsonObject o = materialJson(model, *m);
            o.insert(QStringLiteral("fromShippingTableOnly"), true);
            const MaterialPtr row = model.guidebookRowForClass(model.classForMaterial(*m));
            o.insert(QStringLiteral("guidebookRow"), row ? QJsonValue(row->name) : QJsonValue(QJsonValue::Null));
            array.append(o);
        }
    }
    if (ctx.json) {
        ctx.printJson(array);
    } else {
        if (found.isEmpty())
            ctx.out << "No material matches " << args.first() << "\n";
        const QString notice = PackManifest::activeNotice();
        if (!found.isEmpty() && !notice.isEmpty())
            ctx.out << notice << "\n";
        for (const QJsonValue& v : array)
            printMaterialText(ctx.out, v.toObject());
        ctx.out.flush();
    }
    return found.isEmpty() ? NothingFound : Found;
}

QJsonObject materialRowJson(Material& m)
{
    return { { QStringLiteral("name"), m.name }, { QStringLiteral("unId"), m.unId },
             { QStringLiteral("guideId"), m.guideId }, { QStringLiteral("numIncidents"), m.numIncidents() } };
}

int listCommand(Context& ctx, QStringList args)
{
    int sort = 0;
    QString category;
    if (!takeSortAndCategory(ctx, args, &sort, &category))
        return UsageError;
    const bool incidents = takeFlag(args, QStringLiteral("--incidents"));
    if (!args.isEmpty())
        return ctx.usage(QStringLiteral("unexpected argument '%1'").arg(args.first()));

    QORModel& model = loadedModel();
    if (!model.filters().contains(category))
        return ctx.usage(QStringLiteral("unknown category '%1' (use one of A T U M W P)").arg(category));
    model.changeFilter(category, sort);
    model.changeSortType(sort);
    if (incidents) {
        model.setHasIncidents(true);
        model.invalidateCurrentFilter();
    }
    const Filter& filter = *model.currentFilter();

    QJsonArray sections;
    int total = 0;
    auto addSection = [&](const QJsonValue& key, const MaterialList& list) {
        QJsonArray rows;
        for (const auto& m : list)
            rows.append(materialRowJson(*m));
        total += int(list.size());
        sections.append(QJsonObject{ { QStringLiteral("key"), key }, { QStringLiteral("materials"), rows } });
    };
    const QStringList keys = model.getSections();
    if (sort == SortIncidents)
        addSection(QJsonValue::Null, model.materialsForSection(0));
    for (int i = 0; i < keys.size(); ++i)
        addSection(keys.at(i), model.materialsForSection(i));

    const QString title = filter.getFilterText();
    // Counts shown or filtered on come from the incident reports the pack holds.
    QString incidentsNote;
    if (sort == SortIncidents || incidents) {
        incidentsNote = PackManifest::activePartialNote(QStringLiteral("incidents"));
        if (incidentsNote.isEmpty())
            incidentsNote = PackManifest::sourceLine({ QStringLiteral("incidents") });
    }
    if (ctx.json) {
        ctx.printJson(QJsonObject{ { QStringLiteral("title"), title }, { QStringLiteral("category"), category },
                                   { QStringLiteral("sort"), sort }, { QStringLiteral("hasIncidents"), incidents },
                                   { QStringLiteral("sections"), sections }, { QStringLiteral("incidentsNote"), incidentsNote } });
    } else {
        ctx.out << title << "\n";
        if (!incidentsNote.isEmpty())
            ctx.out << incidentsNote << "\n";
        if (total == 0)
            ctx.out << L::tr("0 found") << "\n";
        for (const QJsonValue& s : std::as_const(sections)) {
            const QJsonObject so = s.toObject();
            if (so.value(QStringLiteral("key")).isString())
                ctx.out << "\n[" << so.value(QStringLiteral("key")).toString() << "]\n";
            for (const QJsonValue& r : so.value(QStringLiteral("materials")).toArray()) {
                const QJsonObject ro = r.toObject();
                ctx.out << "  " << ro.value(QStringLiteral("unId")).toString().leftJustified(5) << " "
                        << ro.value(QStringLiteral("name")).toString() << "  (guide " << ro.value(QStringLiteral("guideId")).toString();
                if (sort == SortIncidents)
                    ctx.out << ", " << ro.value(QStringLiteral("numIncidents")).toInt() << " incidents";
                ctx.out << ")\n";
            }
        }
        ctx.out.flush();
    }
    return total > 0 ? Found : NothingFound;
}

const bool registered = registerCommand({ QStringLiteral("material"), QStringLiteral("material ARG        every material with that UN number, or else that name"), materialCommand })
    && registerCommand({ QStringLiteral("list"), QStringLiteral("list [--category A|T|U|M|W|P] [--sort 0-3] [--incidents]"), listCommand });

} // namespace
} // namespace qor::cli
