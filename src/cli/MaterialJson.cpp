#include "MaterialJson.h"

#include "content/MaterialContent.h"
#include "history/HistoryManager.h"
#include "model/PackManifest.h"
#include "model/QORModel.h"

#include <QJsonArray>

namespace qor::cli {

QJsonObject stringMapJson(const StringMap& map)
{
    QJsonObject o;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        o.insert(it.key(), it.value());
    return o;
}

static QJsonValue optionalString(const std::optional<QString>& s)
{
    return s ? QJsonValue(*s) : QJsonValue(QJsonValue::Null);
}

QJsonObject materialJson(QORModel& model, Material& m)
{
    QJsonObject o;
    o.insert(QStringLiteral("name"), m.name);
    o.insert(QStringLiteral("unId"), m.unId);
    o.insert(QStringLiteral("guideId"), m.guideId);
    o.insert(QStringLiteral("placardId"), m.placardId);
    o.insert(QStringLiteral("mayPolymerize"), m.mayPolymerize);
    o.insert(QStringLiteral("methLab"), m.methLab);
    o.insert(QStringLiteral("toxicInhalationHazard"), optionalString(m.toxicInhalationHazard));
    o.insert(QStringLiteral("waterReactive"), optionalString(m.waterReactive));
    o.insert(QStringLiteral("chemicalWarefareAgent"), optionalString(m.chemicalWarefareAgent));
    o.insert(QStringLiteral("qorAttributes"), QJsonObject::fromVariantMap(m.qorAttributes));
    o.insert(QStringLiteral("numIncidents"), m.numIncidents());
    if (GuidePtr g = model.dotGuideForMaterial(&m))
        o.insert(QStringLiteral("guide"), QJsonObject{ { QStringLiteral("guideId"), g->guideId }, { QStringLiteral("name"), g->name } });
    else
        o.insert(QStringLiteral("guide"), QJsonValue::Null);
    o.insert(QStringLiteral("class"), model.classForMaterial(m));
    o.insert(QStringLiteral("classDescription"), optionalString(model.classDescriptionForMaterial(m)));

    // Isolation distances, the material's own conditions first and otherwise
    // in database row order (JSON objects keep no order, so the keys are also listed).
    const IsolationDistances& iso = model.isolationDistancesForMaterial(m);
    const QStringList isoKeys = model.isolationConditionsForMaterial(m);
    QJsonObject isoJson;
    for (const QString& key : isoKeys)
        isoJson.insert(key, stringMapJson(iso.value(key)));
    o.insert(QStringLiteral("isolationDistances"), isoJson);
    o.insert(QStringLiteral("isolationConditions"), QJsonArray::fromStringList(isoKeys));
    // Large spills by container, as "name" and the fourteen figures, in table order.
    QJsonArray containers;
    const OrderedMap<QString> large = model.largeSpillIsoDistancesForMaterial(m);
    for (const QString& name : large.keys())
        containers.append(QJsonObject{ { QStringLiteral("container"), name },
                                       { QStringLiteral("figures"), QJsonArray::fromStringList(large.value(name).split(QLatin1Char(','))) } });
    o.insert(QStringLiteral("largeSpillContainers"), containers);

    // Chemistry in the order attributeForKey walks it: GHS keys on the CAS
    // number that CAMEO and then NPG leave on the material.
    o.insert(QStringLiteral("cameoAttributes"), stringMapJson(model.getCameoAttributesForMaterial(m)));
    o.insert(QStringLiteral("npgAttributes"), stringMapJson(model.getNPGAttributesForMaterial(m)));
    o.insert(QStringLiteral("ghsAttributes"), stringMapJson(model.getGHSAttributesForMaterial(m)));
    o.insert(QStringLiteral("wiserAttributes"), stringMapJson(model.getWiserAttributesForMaterial(m)));
    o.insert(QStringLiteral("casNumbers"), stringMapJson(model.getNPGCasNumbersForMaterial(m)));
    const std::optional<StringMap> nfpa = model.nfpaForMaterial(m);
    o.insert(QStringLiteral("nfpa"), nfpa ? QJsonValue(stringMapJson(*nfpa)) : QJsonValue(QJsonValue::Null));
    o.insert(QStringLiteral("casNo"), m.casNo);
    o.insert(QStringLiteral("rtecNo"), m.rtecNo);
    o.insert(QStringLiteral("npgIndex"), m.npgIndex);
    QJsonArray resources;
    for (const OtherResource& r : std::as_const(m.otherResources))
        resources.append(QJsonObject{ { QStringLiteral("text"), r.text }, { QStringLiteral("url"), r.url },
                                      { QStringLiteral("type"), r.type } });
    o.insert(QStringLiteral("otherResources"), resources);

    o.insert(QStringLiteral("incidentsSummary"), model.incidentsSummaryForMaterial(m));
    QJsonArray entries;
    for (const StringMap& e : model.getHmtEntriesForMaterial(m))
        entries.append(stringMapJson(e));
    o.insert(QStringLiteral("hmtEntries"), entries);
    o.insert(QStringLiteral("hmtAttributes"), stringMapJson(model.getHmtAttributesForMaterial(m)));
    o.insert(QStringLiteral("placardName"), model.placardNameForMaterial(m));

    // Where each group of values above comes from, as the screens say it.
    const auto line = [](std::initializer_list<const char*> tables) {
        QStringList names;
        for (const char* t : tables)
            names << QLatin1String(t);
        return PackManifest::sourceLine(names);
    };
    o.insert(QStringLiteral("sources"),
             QJsonObject{ { QStringLiteral("material"), line({ "materials", "guides" }) },
                          { QStringLiteral("class"), line({ "dot_classes", "hmt" }) },
                          { QStringLiteral("isolation"), line({ "iso_distances" }) },
                          { QStringLiteral("incidents"), line({ "incidents" }) },
                          { QStringLiteral("chemistry"), line({ "npg_guides", "unid_npgid", "cameo", "wiser_text" }) },
                          { QStringLiteral("ghs"), line({ "ghs" }) },
                          { QStringLiteral("nfpa"), line({ "nfpa" }) },
                          { QStringLiteral("shipping"), line({ "hmt", "vessel_stowage", "hmt_sections" }) },
                          { QStringLiteral("placard"), line({ "dot_placards", "placards" }) } });
    o.insert(QStringLiteral("incidentsNote"), PackManifest::activePartialNote(QStringLiteral("incidents")));
    o.insert(QStringLiteral("packNotice"), PackManifest::activeNotice());
    // The rows the app's detail shows, from the same layer; last, so the keys
    // above keep the values they always had.
    o.insert(QStringLiteral("content"), materialContent(model, m).toJson());
    return o;
}

MaterialList findMaterials(QORModel& model, const QString& arg)
{
    MaterialList out;
    for (const auto& m : std::as_const(model.materials()))
        if (m->unId == arg)
            out.append(m);
    if (out.isEmpty())
        for (const auto& m : std::as_const(model.materials()))
            if (m->name.compare(arg, Qt::CaseInsensitive) == 0)
                out.append(m);
    return out;
}

std::function<bool(const Material&)> viewedPredicate()
{
    return [](const Material& m) { return HistoryManager::sharedInstance()->historyObjectForKey(m.unId) != nullptr; };
}

QORModel& loadedModel()
{
    QORModel* model = QORModel::sharedInstance();
    if (model->isLoading())
        model->loadData();
    if (model->guides().isEmpty())
        model->loadGuideList();
    return *model;
}

} // namespace qor::cli
