// qor-cli material (lookup keys and their order), cfr and provision, in-process.
#include "Cli.h"
#include "QueriesFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace qor;

namespace {

struct QueryCommands : test::QueriesTest {
    void SetUp() override
    {
        pack.setMaterials({ "AMMONIA, ANHYDROUS^^125^1005^1005^^" });
        pack.sql("npg.db", "insert into unid_npgid values ('1005','10');"
                           "insert into npg_guides (id, name, cas_no, icsc) values ('10','AMMONIA','npg-cas','');"
                           "insert into cameo (un_id, name, cas_no) values ('1005','AMMONIA, ANHYDROUS','cameo-cas');"
                           "insert into ghs values ('npg-cas','GHS04','H221'), ('cameo-cas','GHS06','H331');"
                           "insert into dot_placards values ('1005','2.2');"
                           "insert into hmt (un_id, name, class, packing_group) values ('1005','Ammonia, anhydrous','2.2','');");
        pack.sql("cfr49.db", "insert into cfr_text values ('173.304','n304','<p>304</p>','');");
    }
    int run(const QStringList& args, QString* out)
    {
        delete QORModel::sharedInstance(false);
        fixture.reset();
        QString err;
        QTextStream o(out), e(&err);
        const int code = cli::run(args, o, e);
        o.flush();
        delete QORModel::sharedInstance(false);
        return code;
    }
};

} // namespace

TEST_F(QueryCommands, MaterialRunsTheLookupsInDetailScreenOrder)
{
    QString out;
    ASSERT_EQ(run({ "--json", "material", "1005" }, &out), 0);
    const QJsonObject o = QJsonDocument::fromJson(out.toUtf8()).array().first().toObject();
    // NPG ran after CAMEO, so GHS found the pocket guide's CAS number.
    EXPECT_EQ(o.value("casNo").toString(), QStringLiteral("npg-cas"));
    EXPECT_EQ(o.value("ghsAttributes").toObject().value("GHSPictograms").toString(), QStringLiteral("GHS04"));
    EXPECT_EQ(o.value("npgIndex").toInt(), 10);
    EXPECT_EQ(o.value("otherResources").toArray().size(), 1);
    EXPECT_TRUE(o.value("nfpa").isNull());
    EXPECT_EQ(o.value("placardName").toString(), QStringLiteral("2.2"));
    EXPECT_EQ(o.value("hmtEntries").toArray().size(), 1);
    EXPECT_EQ(o.value("hmtAttributes").toObject().value("class").toString(), QStringLiteral("2.2"));
    EXPECT_TRUE(o.value("incidentsSummary").toString().startsWith(QStringLiteral("There were no incidents")));
    for (const char* key : { "cameoAttributes", "npgAttributes", "wiserAttributes", "casNumbers", "rtecNo" })
        EXPECT_TRUE(o.contains(QLatin1String(key))) << key;
}

TEST_F(QueryCommands, CfrAndProvision)
{
    QString out;
    EXPECT_EQ(run({ "cfr", "304" }, &out), 0);
    EXPECT_TRUE(out.contains(QStringLiteral("<body> <p>304</p> </body>")));
    out.clear();
    EXPECT_EQ(run({ "--json", "cfr", "--node", "n304" }, &out), 0);
    EXPECT_TRUE(QJsonDocument::fromJson(out.toUtf8()).object().value("html").toString().contains(QStringLiteral("<p>304</p>")));
    EXPECT_EQ(run({ "cfr", "305" }, &out), 1);
    EXPECT_EQ(run({ "cfr" }, &out), 2);
    EXPECT_EQ(run({ "cfr", "304", "--node", "n1" }, &out), 2);

    out.clear();
    EXPECT_EQ(run({ "provision", "TP7" }, &out), 0);
    EXPECT_EQ(out, QStringLiteral("TP\nIM and UN Specification Portable Tanks\nPortable Tanks\n"));
    EXPECT_EQ(run({ "provision" }, &out), 2);
}
