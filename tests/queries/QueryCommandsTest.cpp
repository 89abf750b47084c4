// qor-cli material (lookup keys and their order), cfr and provision, in-process.
#include "CliRun.h"
#include "QueriesFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace qor;

using QueryCommands = test::QueriesTest;

TEST_F(QueryCommands, MaterialCfrAndProvision)
{
    pack.setMaterials({ "AMMONIA, ANHYDROUS^^125^1005^1005^^" });
    pack.sql("npg.db", "insert into unid_npgid values ('1005','10');"
                       "insert into npg_guides (id, name, cas_no) values ('10','AMMONIA','npg-cas');"
                       "insert into cameo (un_id, name, cas_no) values ('1005','AMMONIA, ANHYDROUS','cameo-cas');"
                       "insert into ghs values ('npg-cas','GHS04','H221'), ('cameo-cas','GHS06','H331');"
                       "insert into dot_placards values ('1005','2.2');"
                       "insert into hmt (un_id, name, class) values ('1005','Ammonia','2.2');");
    pack.sql("cfr49.db", "insert into cfr_text values ('173.304','n304','<p>304</p>','');");
    QString out;
    auto run = [&](const QStringList& args) {
        const test::CliResult r = test::runCli(args);
        out = r.out;
        return r.code;
    };

    ASSERT_EQ(run({ "--json", "material", "1005" }), 0);
    const QJsonObject o = QJsonDocument::fromJson(out.toUtf8()).array().first().toObject();
    // NPG ran after CAMEO, so GHS found the pocket guide's CAS number.
    EXPECT_EQ(o.value("casNo").toString(), QStringLiteral("npg-cas"));
    EXPECT_EQ(o.value("ghsAttributes").toObject().value("GHSPictograms").toString(), QStringLiteral("GHS04"));
    EXPECT_EQ(o.value("hmtAttributes").toObject().value("class").toString(), QStringLiteral("2.2"));
    EXPECT_TRUE(o.value("nfpa").isNull());

    EXPECT_EQ(run({ "cfr", "304" }), 0);
    EXPECT_TRUE(out.contains(QStringLiteral("<body> <p>304</p> </body>")));
    EXPECT_EQ(run({ "cfr", "305" }), 1);
    EXPECT_EQ(run({ "cfr", "304", "--node", "n1" }), 2);
    EXPECT_EQ(run({ "provision", "TP7" }), 0);
    EXPECT_EQ(out, QStringLiteral("TP\nIM and UN Specification Portable Tanks\nPortable Tanks\n"));
    EXPECT_EQ(run({ "provision" }), 2);
}
