// qor-cli validate: each class of violation on a small pack broken on purpose.
#include "CliRun.h"
#include "MiniPack.h"

#include "model/PackManifest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <functional>
#include <gtest/gtest.h>

namespace qor::test {
namespace {

#define EXPECT_REPORTS(list, file, text, ...) \
    EXPECT_TRUE(reports(list, file, text, ##__VA_ARGS__)) << describe(list).join(QLatin1Char('\n')).toStdString()

const QString npg = QStringLiteral("npg.db"), materials = QStringLiteral("chemicals_2024.csv"), manifest = QStringLiteral("pack.json");

// Each test breaks the mini pack in its own way, then seals and validates it.
struct PackValidator : ::testing::Test {
    MiniPack pack;
    QList<cli::Violation> sealed()
    {
        pack.seal();
        return pack.validate();
    }
};

// Rewrites the mini pack's pack.json after `change` altered its provenance.
void sealWith(MiniPack& pack, const std::function<void(PackManifest&)>& change)
{
    PackManifest m = FixturePack::fixtureManifest();
    change(m);
    ASSERT_TRUE(m.writeWithChecksums(pack.dir()));
}

TEST_F(PackValidator, RowsOnlyFromDeclaredSources)
{
    sealWith(pack, [](PackManifest& m) {
        m.tables[QStringLiteral("ghs")].sources.clear();      // has a row, declares nothing
        m.tables[QStringLiteral("nfpa")].sources.clear();     // empty and declares nothing: fine
        m.tables[QStringLiteral("hmt")].rows = 5;             // the build saw other rows
        m.tables.remove(QStringLiteral("dot_classes"));
    });
    auto v = pack.validate();
    EXPECT_REPORTS(v, npg, QStringLiteral("table ghs has 1 rows, but pack.json declares no source"));
    EXPECT_FALSE(reports(v, npg, QStringLiteral("table nfpa")));
    EXPECT_REPORTS(v, npg, QStringLiteral("table hmt has 1 rows; its sources gave 5"));
    EXPECT_REPORTS(v, npg, QStringLiteral("table dot_classes is not listed"));

    // An official pack may hold nothing of sample content, and names each
    // document with the sums of its files.
    sealWith(pack, [](PackManifest& m) {
        m.sample = false;
        PackSource official;
        official.id = QStringLiteral("cfr");
        official.title = QStringLiteral("49 CFR 172.101");
        official.files.insert(QStringLiteral("official/cfr49/ecfr-section-172.101.xml"), QStringLiteral("not-a-sum"));
        PackSource unnamed = official;
        unnamed.id = QStringLiteral("nofiles");
        unnamed.files.clear();
        m.sourceList << official << unnamed;
        m.tables[QStringLiteral("hmt")].sources = QStringList{ official.id };
    });
    v = pack.validate();
    EXPECT_REPORTS(v, manifest, QStringLiteral("\"sample\": false, but table iso_distances holds sample content"));
    EXPECT_FALSE(reports(v, manifest, QStringLiteral("table hmt holds sample"))) << "hmt is declared official";
    EXPECT_FALSE(reports(v, manifest, QStringLiteral("table nfpa holds sample"))) << "an empty table holds nothing";
    EXPECT_REPORTS(v, manifest, QStringLiteral("source cfr: official/cfr49/ecfr-section-172.101.xml has no valid SHA-256"));
    EXPECT_REPORTS(v, manifest, QStringLiteral("source nofiles names no file"));
}

TEST_F(PackValidator, MaterialLinesNeedSevenFields)
{
    pack.setMaterials({ "ACETONE^3^127^1090^^^", "ACETAL^3^127^1088^^", "ACROLEIN^6.1^131^1092", "AMMONIA^2.2^125^1005^X^^^W" });
    const auto v = sealed();
    EXPECT_REPORTS(v, materials, QStringLiteral("6 fields; the app aborts"), 2);
    EXPECT_REPORTS(v, materials, QStringLiteral("4 fields; the app skips"), 3);
    EXPECT_REPORTS(v, materials, QStringLiteral("8 fields"), 4);
    EXPECT_FALSE(reports(v, materials, QString(), 1));
}

TEST_F(PackValidator, MaterialFieldsMustResolve)
{
    pack.setMaterials({ "1,1-DIFLUOROETHANE^2.1^115^1030^^^", "ACETONE^3P^128P^1090^^^", "ACETAL^^127^88^^^\r" });
    const auto v = sealed();
    EXPECT_REPORTS(v, materials, QStringLiteral("in no alphabetical section"), 1);
    EXPECT_REPORTS(v, materials, QStringLiteral("guide \"115\" is not in guides.csv"), 1);
    EXPECT_REPORTS(v, materials, QStringLiteral("guide \"128\" is not in guides.csv"), 2);  // the P is not part of the number
    EXPECT_REPORTS(v, materials, QStringLiteral("placard \"3P\" has no artwork"), 2);
    EXPECT_REPORTS(v, materials, QStringLiteral("not four digits"), 3);
    EXPECT_REPORTS(v, materials, QStringLiteral("carriage return"), 3);
}

TEST_F(PackValidator, GuidesNeedOneEntryAndAPage)
{
    pack.setGuides({ "125^Gases - Corrosive", "127^Flammable Liquids", "129^One", "129^Two", "130" });
    pack.removeFile(QStringLiteral("127.html"));
    const auto v = sealed();
    const QString f = QStringLiteral("guides.csv");
    EXPECT_REPORTS(v, f, QStringLiteral("guide 127 has no page 127.html"), 2);
    EXPECT_REPORTS(v, f, QStringLiteral("listed twice"), 4);
    EXPECT_REPORTS(v, f, QStringLiteral("the line is skipped"), 5);
}

TEST_F(PackValidator, TablesAndColumnOrder)
{
    pack.sql(npg, QStringLiteral(
        "drop table hmt_sections; drop table iso_distances;"
        "create table iso_distances (un_id text, condition text, small_isolation_ft text, small_isolation_m text)"));
    pack.sql(QStringLiteral("hazmat_incidents.dat"), QStringLiteral("alter table incidents add column extra text"));
    const auto v = sealed();
    EXPECT_REPORTS(v, npg, QStringLiteral("table hmt_sections is missing"));
    EXPECT_REPORTS(v, npg, QStringLiteral("iso_distances: column 2 is \"small_isolation_ft\", expected \"small_isolation_m\""));
    // A column added after the known ones breaks no positional read.
    EXPECT_FALSE(reports(v, QStringLiteral("hazmat_incidents.dat"), QString()));
}

TEST_F(PackValidator, UnopenableDatabase)
{
    pack.writeFile(QStringLiteral("cfr49.db"), "not a database");
    pack.removeFile(QStringLiteral("hazmat_incidents.dat"));
    const auto v = sealed();
    EXPECT_REPORTS(v, QStringLiteral("cfr49.db"), QStringLiteral("cannot be opened"));
    EXPECT_REPORTS(v, QStringLiteral("hazmat_incidents.dat"), QStringLiteral("missing; the app aborts"));
}

TEST_F(PackValidator, NullsWhereTheLookupsDoNotGuard)
{
    pack.sql(npg, QStringLiteral(
        // row 2: a small-spill figure missing
        "insert into iso_distances values ('1017',NULL,'30',NULL,'0.1','0.1','0.2','0.1','','','','','','');"
        // row 3: large isolation given, one large figure missing
        "insert into iso_distances values ('1079',NULL,'30','100','0.1','0.1','0.2','0.1','300','1000',NULL,'1.0','4','2.5');"
        // row 4: no large isolation, so the large figures are never read
        "insert into iso_distances values ('1040',NULL,'30','100','0.1','0.1','0.2','0.1',NULL,NULL,NULL,NULL,NULL,NULL);"
        "insert into hmt values ('1005','Ammonia','','2.2',NULL,'2.2','','','304','314','','','','','');"
        "insert into nfpa values ('1005','Ammonia',NULL,'1','0','');"));
    pack.sql(QStringLiteral("hazmat_incidents.dat"),
             QStringLiteral("insert into incidents values ('S-2','1090','2025-01-02',NULL,'N','N','N','N','N','N','N')"));
    pack.sql(QStringLiteral("cfr49.db"), QStringLiteral("insert into cfr_text values ('173.304','n3','<p>c</p>','s');"
                                                        "insert into cfr_text values ('173.314','n4','<p>d</p>','s');"));
    pack.sql(npg, QStringLiteral("insert into hmt_sections values ('304','a'); insert into hmt_sections values ('314','b');"));
    const auto v = sealed();
    EXPECT_REPORTS(v, npg, QStringLiteral("iso_distances row: small_isolation_ft NULL"), 2);
    EXPECT_REPORTS(v, npg, QStringLiteral("iso_distances row: large_day_km NULL"), 3);
    EXPECT_FALSE(reports(v, npg, QStringLiteral("iso_distances row:"), 4));
    EXPECT_REPORTS(v, npg, QStringLiteral("hmt row: packing_group NULL"));
    EXPECT_REPORTS(v, npg, QStringLiteral("nfpa row: health NULL"));
    EXPECT_REPORTS(v, QStringLiteral("hazmat_incidents.dat"), QStringLiteral("Mode_of_Transportation NULL"), 2);
}

TEST_F(PackValidator, DistancesAreNumbersInAgreeingUnits)
{
    pack.sql(npg, QStringLiteral(
        // row 2: no material carries this UN number
        "insert into iso_distances values ('9999',NULL,'30','100','0.1','0.1','0.2','0.1','','','','','','');"
        // row 3: a figure that is not a number
        "insert into iso_distances values ('1005','','30','100','0.l','0.1','0.2','0.1','','','','','','');"
        // row 4: night miles far from the kilometres; large isolation feet far from the metres
        "insert into iso_distances values ('1005','','30','100','0.1','0.1','1.5','0.2','100','1000','0.5','0.3','1.0','0.6');"
        // row 5: the guidebook's own loosest pairs and open-ended figures pass
        "insert into iso_distances values ('1005','','400','1250','0.5','0.4','1.3','0.9','1000','3000','11.0+','7.0+','7.4','4.3');"));
    const auto v = sealed();
    EXPECT_REPORTS(v, npg, QStringLiteral("iso_distances row (UN 9999): no material"), 2);
    EXPECT_REPORTS(v, npg, QStringLiteral("distance \"0.l\" is not a number"), 3);
    EXPECT_REPORTS(v, npg, QStringLiteral("1.5 km and 0.2 mi disagree"), 4);
    EXPECT_REPORTS(v, npg, QStringLiteral("100 m and 1000 ft disagree"), 4);
    EXPECT_FALSE(reports(v, npg, QStringLiteral("iso_distances"), 5)) << describe(v).join(QLatin1Char('\n')).toStdString();
    EXPECT_FALSE(reports(v, npg, QStringLiteral("iso_distances"), 1));
}

TEST_F(PackValidator, BuiltInContainerRowsMustMatchThePacksTable)
{
    const QString rows[] = { "'Rail tank car','300','1000','1.6','1.0','1.2','0.8','1.0','0.6','4.1','2.6','2.1','1.3','1.3','0.8'",
                             "'Highway tank truck or trailer','150','500','0.8','0.5','0.5','0.3','0.4','0.3','1.8','1.1','0.7','0.4','0.6','0.4'",
                             "'Agricultural nurse tank','60','200','0.5','0.3','0.3','0.2','0.3','0.2','1.4','0.9','0.3','0.2','0.3','0.2'",
                             "'Multiple small cylinders','30','100','0.3','0.2','0.2','0.1','0.1','0.1','0.7','0.5','0.3','0.2','0.2','0.1'" };
    auto validateWith = [&](MiniPack& p, const QString& lastRow) {
        for (const QString& row : { rows[0], rows[1], rows[2], lastRow })
            p.sql(npg, QStringLiteral("insert into large_spill_distances values ('1005',%1);").arg(row));
        p.seal();
        return p.validate();
    };
    const auto good = validateWith(pack, rows[3]);
    EXPECT_FALSE(reports(good, npg, QStringLiteral("large_spill_distances"))) << describe(good).join(QLatin1Char('\n')).toStdString();
    // The figure the built-in rows once had: 0.2 mi by day in moderate wind.
    QString old = rows[3];
    old.replace(QStringLiteral("'0.2','0.1','0.1','0.1','0.7'"), QStringLiteral("'0.2','0.2','0.1','0.1','0.7'"));
    ASSERT_NE(old, rows[3]);
    MiniPack oldPack;
    EXPECT_REPORTS(validateWith(oldPack, old), npg, QStringLiteral("large_spill_distances (UN 1005): the built-in container rows differ"));
}

TEST_F(PackValidator, PagesNeedTheBodyTag)
{
    pack.writeFile(QStringLiteral("bleve.html"), "<body style='background-color: #ffb045'>single quotes</body>");
    pack.writeFile(QStringLiteral("125.html"), "<body style=\"background-color: #ffb045\">no style sheet, no mail slot</body>");
    pack.writeFile(QStringLiteral("sendEmailBody.html"), "<p>{description}</p>");
    pack.removeFile(QStringLiteral("numeric.html"));
    const auto v = sealed();
    EXPECT_REPORTS(v, QStringLiteral("bleve.html"), QStringLiteral("no body tag"));
    EXPECT_REPORTS(v, QStringLiteral("125.html"), QStringLiteral("does not link base.css"));
    EXPECT_REPORTS(v, QStringLiteral("125.html"), QStringLiteral("##STYLE##"));
    EXPECT_REPORTS(v, QStringLiteral("sendEmailBody.html"), QStringLiteral("{ideviceName}"));
    EXPECT_REPORTS(v, QStringLiteral("numeric.html"), QStringLiteral("missing"));
}

TEST_F(PackValidator, ArtworkTheAppNames)
{
    const char* named[] = { "6.1-tih.pdf", "Sort-Alphabetically.png", "153.b.png" };
    for (const char* f : named)
        pack.removeFile(QString::fromLatin1(f));
    pack.sql(npg, QStringLiteral("insert into ghs values ('1-1-1','GHS02, GHS10,Wng','H1');"
                                                      "insert into dot_placards values ('1017','2.4');"));
    const auto v = sealed();
    for (const char* f : named)
        EXPECT_REPORTS(v, QString::fromLatin1(f), QStringLiteral("missing"));
    EXPECT_REPORTS(v, npg, QStringLiteral("pictogram \"GHS10\" has no artwork ghs10.pdf"), 2);
    EXPECT_FALSE(reports(v, npg, QStringLiteral("\"Wng\"")));
    EXPECT_REPORTS(v, npg, QStringLiteral("placard \"2.4\" has no artwork"), 2);
}

TEST_F(PackValidator, SpecialProvisionsAndSectionsResolve)
{
    // TP7 belongs on TP.html, not T.html; IB2 alone is not IB20; 211 has neither title nor text.
    pack.sql(npg,
             QStringLiteral("insert into hmt values ('1203','Gasoline','','3','II','3','IB20, TP7, T4','150','211','242','5 L','60 L','B','','')"));
    pack.writeFile(QStringLiteral("T.html"), "<body style=\"background-color: #ffb045\"><a name=\"T4\"></a><a name=\"TP7\"></a></body>");
    const auto v = sealed();
    EXPECT_REPORTS(v, npg, QStringLiteral("\"TP7\" has no anchor in TP.html"), 2);
    EXPECT_REPORTS(v, npg, QStringLiteral("\"IB20\" has no anchor in IB.html"), 2);
    EXPECT_FALSE(reports(v, npg, QStringLiteral("\"T4\"")));
    EXPECT_REPORTS(v, npg, QStringLiteral("section 211 has no title"), 2);
    EXPECT_REPORTS(v, npg, QStringLiteral("section 173.211 has no text"), 2);
}

TEST_F(PackValidator, PacksWithoutRegulationTextSaySo)
{
    // No part 173 text, no section titles, and provision pages that say they
    // hold no provisions: nothing dangles, so only bad references remain.
    pack.sql(QStringLiteral("cfr49.db"), QStringLiteral("delete from cfr_text"));
    pack.sql(npg,
             QStringLiteral("delete from hmt_sections;"
                            "insert into hmt values ('1203','Gasoline','','3','II','3','N7, TP7','15O','202, 3O2c','247 (h)(4)','','','B','','');"
                            "insert into hmt values ('2800','Batteries','','8','','8','','159a','159','63(a)','','','','','')"));
    for (const char* group : { "N", "TP" })
        pack.writeFile(QString::fromLatin1(group) + QStringLiteral(".html"),
                       "<body style=\"background-color: #ffb045\"><div class=\"not-in-pack\">not here</div></body>");
    const auto v = sealed();
    for (const char* dangling : { "has no anchor", "has no title", "has no text" })
        EXPECT_FALSE(reports(v, npg, QLatin1String(dangling))) << dangling;
    // Letters typed for digits are caught; real section forms pass.
    EXPECT_REPORTS(v, npg, QStringLiteral("section reference \"15O\" is not a section number"), 2);
    EXPECT_REPORTS(v, npg, QStringLiteral("section reference \"3O2c\" is not a section number"), 2);
    EXPECT_FALSE(reports(v, npg, QStringLiteral("\"247")));
    EXPECT_FALSE(reports(v, npg, QStringLiteral("is not a section number"), 3));  // 159a, 63(a)
}

TEST_F(PackValidator, ShippedMaterialsHaveAPlacard)
{
    pack.setMaterials({ "ACETONE^^127^1090^^^", "GASOLINE^^127^1203^^^", "DIESEL^3^127^1202^^^", "UNSHIPPED^^127^9999^^^" });
    pack.sql(npg,
             QStringLiteral("insert into hmt values ('1203','Gasoline','','3','II','3','','150','202','242','','','','','');"
                            "insert into hmt values ('1202','Diesel','','3','III','3','','150','203','242','','','','','')"));
    const auto v = sealed();
    // Acetone's key comes from dot_placards, diesel's from its own field.
    EXPECT_REPORTS(v, materials, QStringLiteral("UN 1203 has shipping rows but no placard key"), 2);
    for (const char* un : { "UN 1090", "UN 1202", "UN 9999" })
        EXPECT_FALSE(reports(v, materials, QLatin1String(un))) << un;
}

TEST_F(PackValidator, ManifestChecksums)
{
    pack.writeFile(QStringLiteral("guides.csv"), "125^Changed after sealing\n127^a\n129^b\n");
    pack.writeFile(QStringLiteral("extra.txt"), "unlisted");
    pack.removeFile(QStringLiteral("dark.css"));
    pack.writeFile(QStringLiteral(".stamp"), "");  // build stamps are not part of the pack
    const auto v = pack.validate();
    EXPECT_REPORTS(v, QStringLiteral("guides.csv"), QStringLiteral("SHA-256 differs"));
    EXPECT_REPORTS(v, QStringLiteral("extra.txt"), QStringLiteral("not listed in pack.json"));
    EXPECT_REPORTS(v, manifest, QStringLiteral("lists dark.css, which is not in the pack"));
    EXPECT_FALSE(reports(v, QStringLiteral(".stamp"), QString()));

    pack.writeFile(manifest, "{ not json");
    EXPECT_REPORTS(pack.validate(), manifest, QStringLiteral("not a JSON object"));
    pack.writeFile(manifest, R"({"edition":"old","buildDate":"2025-01-01","sources":["names"],"files":{}})");
    EXPECT_REPORTS(pack.validate(), manifest, QStringLiteral("declares no sources per table"));
    pack.removeFile(manifest);
    EXPECT_REPORTS(pack.validate(), manifest, QStringLiteral("the pack is unverified"));
}

TEST_F(PackValidator, ManyFaultsOfOneKindAreCapped)
{
    pack.setMaterials(QStringList(100, QStringLiteral("ACETONE^3^127^1090^^")));
    const auto v = sealed();
    EXPECT_LT(v.size(), 40);
    EXPECT_REPORTS(v, materials, QStringLiteral("75 more problems"));
}

TEST_F(PackValidator, CommandExitStatusAndJson)
{
    const CliResult valid = runCli({ "validate", pack.dir() });
    EXPECT_EQ(valid.code, 0) << valid.out.toStdString();
    EXPECT_TRUE(valid.out.contains(QStringLiteral("the pack is valid")));

    pack.removeFile(QStringLiteral("8.pdf"));
    const CliResult broken = runCli({ "--json", "validate", pack.dir() });
    EXPECT_EQ(broken.code, 1);
    const QJsonObject o = broken.json().object();
    EXPECT_FALSE(o.value(QStringLiteral("valid")).toBool(true));
    QStringList files;
    for (const QJsonValue& item : o.value(QStringLiteral("violations")).toArray())
        files << item.toObject().value(QStringLiteral("file")).toString();
    EXPECT_TRUE(files.contains(QStringLiteral("8.pdf"))) << files.join(QLatin1Char(' ')).toStdString();

    EXPECT_EQ(runCli({ "validate", pack.path(QStringLiteral("nowhere")) }).code, 1);
    EXPECT_EQ(runCli({ "validate", pack.dir(), pack.dir() }).code, 2);
}

TEST(PackInfo, ShowsTheManifestAndCounts)
{
    MiniPack pack;
    const CliResult info = runCli({ "--json", "pack-info", pack.dir() });
    ASSERT_EQ(info.code, 0);
    const QJsonObject o = info.json().object();
    EXPECT_EQ(o.value(QStringLiteral("notice")).toString(), PackManifest::sampleNotice());
    EXPECT_EQ(o.value(QStringLiteral("materials")).toInt(), 3);
    EXPECT_EQ(o.value(QStringLiteral("incidents")).toInt(), 1);

    pack.removeFile(manifest);
    const CliResult missing = runCli({ "pack-info", pack.dir() });
    EXPECT_EQ(missing.code, 1);
    EXPECT_TRUE(missing.err.contains(manifest)) << missing.err.toStdString();
}

} // namespace
} // namespace qor::test
