// What `qor-cli --json material` printed before the detail rows came under
// "content": dispatch scripts read these keys, so each stays with its shape.
#include "CliRun.h"
#include "FixturePack.h"

#include "model/QORModel.h"
#include "model/Resources.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <gtest/gtest.h>

using namespace qor;

namespace {

QJsonArray materialJson(const QString& arg)
{
    const test::CliResult r = test::runCli({ "--resources", test::bundledPack(), "--json", "material", arg });
    EXPECT_EQ(r.code, 0) << r.err.toStdString();
    Resources::setOverride(QString());
    return r.json().array();
}

QSet<QString> keySet(const QJsonObject& o)
{
    const QStringList keys = o.keys();
    return QSet<QString>(keys.cbegin(), keys.cend());
}

// Key -> the JSON types it may have (a null where the material lacks the value).
const QMap<QString, QList<QJsonValue::Type>>& oldKeys()
{
    using T = QJsonValue::Type;
    static const QMap<QString, QList<T>> keys = {
        { "cameoAttributes", { T::Object } },        { "casNo", { T::String } },
        { "casNumbers", { T::Object } },             { "chemicalWarefareAgent", { T::Null, T::String } },
        { "class", { T::String } },                  { "classDescription", { T::String, T::Null } },
        { "ghsAttributes", { T::Object } },          { "guide", { T::Object, T::Null } },
        { "guideId", { T::String } },                { "hmtAttributes", { T::Object } },
        { "hmtEntries", { T::Array } },              { "incidentsNote", { T::String } },
        { "incidentsSummary", { T::String } },       { "isolationConditions", { T::Array } },
        { "isolationDistances", { T::Object } },     { "largeSpillContainers", { T::Array } },
        { "mayPolymerize", { T::Bool } },            { "methLab", { T::Bool } },
        { "name", { T::String } },                   { "nfpa", { T::Null, T::Object } },
        { "npgAttributes", { T::Object } },          { "npgIndex", { T::Double } },
        { "numIncidents", { T::Double } },           { "otherResources", { T::Array } },
        { "packNotice", { T::String } },             { "placardId", { T::String } },
        { "placardName", { T::String } },            { "qorAttributes", { T::Object } },
        { "rtecNo", { T::String } },                 { "sources", { T::Object } },
        { "toxicInhalationHazard", { T::Null, T::String } }, { "unId", { T::String } },
        { "waterReactive", { T::Null, T::String } }, { "wiserAttributes", { T::Object } },
    };
    return keys;
}

} // namespace

TEST(MaterialJsonKeys, OldKeysKeepTheirShapeAndTheRowsComeUnderContent)
{
    for (const char* un : { "1005", "1993" }) {
        const QJsonArray materials = materialJson(QLatin1String(un));
        ASSERT_FALSE(materials.isEmpty()) << un;
        for (const QJsonValue& v : materials) {
            const QJsonObject o = v.toObject();
            const std::string where = o.value("name").toString().toStdString();
            QSet<QString> expected(oldKeys().keyBegin(), oldKeys().keyEnd());
            expected.insert(QStringLiteral("content"));
            EXPECT_EQ(keySet(o), expected) << where << ": new values belong under \"content\"";
            for (auto it = oldKeys().cbegin(); it != oldKeys().cend(); ++it)
                EXPECT_TRUE(it.value().contains(o.value(it.key()).type())) << where << ": " << it.key().toStdString();
            EXPECT_EQ(keySet(o.value("sources").toObject()),
                      QSet<QString>({ "material", "class", "isolation", "incidents", "chemistry", "ghs", "nfpa", "shipping", "placard" }))
                << where;
            if (o.value("guide").isObject())
                EXPECT_EQ(keySet(o.value("guide").toObject()), QSet<QString>({ "guideId", "name" })) << where;
            for (const QJsonValue& c : o.value("largeSpillContainers").toArray()) {
                EXPECT_EQ(keySet(c.toObject()), QSet<QString>({ "container", "figures" })) << where;
                EXPECT_EQ(c.toObject().value("figures").toArray().size(), 14) << where;
            }
            // One isolation key per condition, each listed in order once.
            EXPECT_EQ(o.value("isolationConditions").toArray().size(), o.value("isolationDistances").toObject().size()) << where;
        }
    }
}
