// qor-cli material and list, run in-process on a fixture pack.
#include "Cli.h"
#include "FixturePack.h"

#include "model/QORModel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace qor;
using qor::test::FixturePack;

namespace {

struct Result {
    int code;
    QString out;
    QString err;
    QJsonDocument json() const { return QJsonDocument::fromJson(out.toUtf8()); }
};

Result runCli(const QStringList& args)
{
    delete QORModel::sharedInstance(false);  // every run starts like a new process
    QString out, err;
    QTextStream o(&out), e(&err);
    const int code = cli::run(args, o, e);
    o.flush();
    e.flush();
    delete QORModel::sharedInstance(false);
    return { code, out, err };
}

struct Cli : ::testing::Test {
    FixturePack pack;
    void SetUp() override
    {
        pack.setMaterials({
            "CHLORINE^2.3^124^1017^1017^^",
            "AMMONIA, ANHYDROUS^2.3^125^1005^1005^^",
            "AMMONIA SOLUTION^8^154^2672^^^",
            "O'BRIEN'S SOLVENT^3^128^1993^^^",
        });
        pack.setGuides({ "124^Gases - Toxic and/or Corrosive - Oxidizing", "125^Gases - Corrosive" });
        pack.sql("npg.db",
                 "insert into iso_distances values ('1005','Land','30','100','0.1','0.1','0.2','0.1','','','','','','');"
                 "insert into iso_distances values ('1005','Water','60','200','0.4','0.3','1.7','1.1','','','','','','');"
                 "insert into iso_distances values ('1005','Land','90','300','0.5','0.3','1.9','1.2','','','','','','');"
                 "insert into dot_classes values ('1005','2.3');");
        pack.sql("hazmat_incidents.dat", "insert into incidents (un_id) values ('1005'),('1005');");
    }
};

} // namespace

TEST_F(Cli, MaterialByNumberAsJson)
{
    const Result r = runCli({ "--json", "material", "1005" });
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QJsonArray array = r.json().array();
    ASSERT_EQ(array.size(), 1);
    const QJsonObject m = array.at(0).toObject();
    EXPECT_EQ(m.value("name").toString(), "Ammonia, Anhydrous");
    EXPECT_EQ(m.value("numIncidents").toInt(), 2);
    EXPECT_EQ(m.value("guide").toObject().value("name").toString(), "Gases - Corrosive");
    EXPECT_EQ(m.value("class").toString(), "2.3");
    EXPECT_EQ(m.value("classDescription").toString(), "Poisonous Gases");
    EXPECT_TRUE(m.value("chemicalWarefareAgent").isNull());
    EXPECT_EQ(m.value("isolationConditions").toArray(), QJsonArray({ "Land", "Water" })) << "database row order";
    EXPECT_EQ(m.value("isolationDistances").toObject().value("Land").toObject()
                  .value("Small Spill Initial isolation distance Metric").toString(), "90");
}

TEST_F(Cli, MaterialByNameIgnoresCaseAndAcceptsApostrophes)
{
    EXPECT_EQ(runCli({ "material", "ammonia solution" }).code, 0);
    const Result r = runCli({ "--json", "material", "o'brien's solvent" });
    ASSERT_EQ(r.code, 0);
    EXPECT_EQ(r.json().array().at(0).toObject().value("unId").toString(), "1993");
    EXPECT_EQ(runCli({ "material", "9999" }).code, 1);
}

TEST_F(Cli, ListBySortAndCategory)
{
    Result r = runCli({ "--json", "list", "--sort", "1" });
    ASSERT_EQ(r.code, 0);
    QJsonObject o = r.json().object();
    EXPECT_EQ(o.value("title").toString(), "Materials");
    const QJsonArray sections = o.value("sections").toArray();
    ASSERT_EQ(sections.size(), 3);
    EXPECT_EQ(sections.at(0).toObject().value("key").toString(), "1000");
    EXPECT_EQ(sections.at(0).toObject().value("materials").toArray().at(0).toObject().value("unId").toString(), "1005");

    r = runCli({ "--json", "list", "--category", "T", "--incidents" });
    ASSERT_EQ(r.code, 0);
    o = r.json().object();
    EXPECT_EQ(o.value("title").toString(), "Toxic Inhalation Hazard");
    const QJsonArray rows = o.value("sections").toArray().at(0).toObject().value("materials").toArray();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.at(0).toObject().value("name").toString(), "Ammonia, Anhydrous");

    EXPECT_EQ(runCli({ "list", "--category", "M" }).code, 1) << "nothing found";
}

TEST_F(Cli, UsageErrors)
{
    for (const QStringList& args : { QStringList{}, QStringList{ "frobnicate" }, QStringList{ "material" },
                                     QStringList{ "list", "--sort", "7" }, QStringList{ "list", "--category", "Q" },
                                     QStringList{ "list", "--sort" }, QStringList{ "--resources" } }) {
        const Result r = runCli(args);
        EXPECT_EQ(r.code, 2) << args.join(' ').toStdString();
        EXPECT_FALSE(r.err.isEmpty());
    }
}

TEST_F(Cli, SearchOffersMarkedSuggestionsOnlyWhenNothingMatches)
{
    Result r = runCli({ "search", "clorine" });
    EXPECT_EQ(r.code, cli::NothingFound) << "a suggestion is not a match";
    EXPECT_TRUE(r.out.startsWith("0 search results\n"));
    EXPECT_TRUE(r.out.contains("Did you mean"));
    EXPECT_TRUE(r.out.contains("suggestion 1017 "));

    r = runCli({ "--json", "search", "amonia" });
    const QJsonArray a = r.json().array();
    ASSERT_FALSE(a.isEmpty());
    EXPECT_EQ(a.first().toObject().value("unId").toString(), "1005");
    for (const auto& v : a)
        EXPECT_TRUE(v.toObject().value("suggestion").toBool());

    r = runCli({ "--json", "search", "chlorine" });
    EXPECT_EQ(r.code, cli::Found);
    for (const auto& v : r.json().array())
        EXPECT_FALSE(v.toObject().contains("suggestion"));
    r = runCli({ "search", "--sort", "1", "clorine" });
    EXPECT_FALSE(r.out.contains("Did you mean")) << "names are not searched by UN number";
}
