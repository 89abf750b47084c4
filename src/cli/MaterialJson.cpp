#include "MaterialJson.h"

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

    // Isolation distances, in database row order (JSON objects keep no order,
    // so the keys are also listed).
    const IsolationDistances& iso = model.isolationDistancesForMaterial(m);
    QJsonObject isoJson;
    for (const QString& key : iso.keys())
        isoJson.insert(key, stringMapJson(iso.value(key)));
    o.insert(QStringLiteral("isolationDistances"), isoJson);
    o.insert(QStringLiteral("isolationConditions"), QJsonArray::fromStringList(iso.keys()));
    return o;
}

MaterialList findMaterials(QORModel& model, const QString& arg)
{
    MaterialList out;
    for (const auto& m : std::as_const(model.materials))
        if (m->unId == arg)
            out.append(m);
    if (out.isEmpty())
        for (const auto& m : std::as_const(model.materials))
            if (m->name.compare(arg, Qt::CaseInsensitive) == 0)
                out.append(m);
    return out;
}

QORModel& loadedModel()
{
    QORModel* model = QORModel::sharedInstance();
    if (model->isLoading())
        model->loadData();
    if (model->guides.isEmpty())
        model->loadGuideList();
    return *model;
}

} // namespace qor::cli
