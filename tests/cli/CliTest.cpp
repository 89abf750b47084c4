// qor-cli material and list, run in-process on a fixture pack; the bundled
// pack and import-erg on the official guidebook pages.
#include "CliRun.h"
#include "FixturePack.h"

#include "model/PackManifest.h"
#include "model/QORModel.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QProcess>
#include <gtest/gtest.h>

using namespace qor;
using qor::test::bundledPack;
using qor::test::FixturePack;
using qor::test::runCli;
using Result = qor::test::CliResult;

namespace {

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
                 "insert into dot_classes values ('1005','2.3');");
        pack.sql("hazmat_incidents.dat", "insert into incidents (un_id) values ('1005'),('1005');");
    }
};

} // namespace

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
    EXPECT_EQ(r.json().object().value("sections").toArray().size(), 3);

    r = runCli({ "--json", "list", "--category", "T", "--incidents" });
    ASSERT_EQ(r.code, 0);
    const QJsonArray rows = r.json().object().value("sections").toArray().at(0).toObject().value("materials").toArray();
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

// The guidebook: the bundled pack's UN1005, and import-erg on the official pages.
namespace {

QString official(const char* name)
{
    return QStringLiteral(QOR_SOURCE_DIR "/resources/official/erg2024/") + QLatin1String(name);
}

} // namespace

// The text output's shape on the bundled pack; the figures themselves are
// pinned by the importer tests and the detail goldens, the order of the
// conditions by the model's and the isolation table's tests.
TEST(ErgCli, BundledMaterialTextShowsEachCondition)
{
    const Result r = runCli({ "--resources", bundledPack(), "material", "1005" });
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.contains("Ammonia, Anhydrous  UN1005\n  Guide 125")) << r.out.toStdString();
    EXPECT_TRUE(r.out.contains("Small spill: isolate 30 m / 100 ft; protect day 0.1 km / 0.1 mi; night 0.2 km / 0.1 mi"));
    EXPECT_EQ(r.out.count("Large spill, "), 8) << "both names of UN1005 show the four containers";
}

TEST(ErgCli, ImportWritesEveryTableOrNothing)
{
    QTemporaryDir dir;
    const QString out = dir.filePath(QStringLiteral("erg"));
    const QStringList pdfs = { official("ERG_Material_Yellow_Section.pdf"), official("TIH_Table1.pdf"), official("TIH_Table2.pdf"),
                               official("TIH_Table3.pdf") };

    // A missing file and a file with none of the sections stop the import before anything is written.
    Result r = runCli(QStringList{ QStringLiteral("import-erg") } + pdfs + QStringList{ official("missing.pdf"), QStringLiteral("--output"), out });
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("missing.pdf: no such file"))) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(QStringLiteral("nothing written")));
    EXPECT_FALSE(QDir(out).exists());
    r = runCli(QStringList{ QStringLiteral("import-erg") } + pdfs + QStringList{ official("Guide_introduction.pdf"), QStringLiteral("--output"), out });
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("Guide_introduction.pdf: no yellow index and no Table 1, 2 or 3 found"))) << r.err.toStdString();
    EXPECT_FALSE(QDir(out).exists());

    EXPECT_EQ(runCli({ QStringLiteral("import-erg"), official("TIH_Table3.pdf") }).code, 2);  // no --output

    r = runCli(QStringList{ QStringLiteral("import-erg") } + pdfs + QStringList{ QStringLiteral("--output"), out });
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    for (const char* file : { "chemicals_2024.csv", "iso_distances.sql", "large_spill_distances.sql", "table1.csv" })
        EXPECT_GT(QFileInfo(QDir(out).filePath(QLatin1String(file))).size(), 0) << file;
}

TEST_F(Cli, MaterialAndListNameTheirSources)
{
    // Incidents from a partial extract, everything else sample content.
    PackManifest m = FixturePack::fixtureManifest();
    const PackSource reports = FixturePack::partialReportsSource();
    m.sourceList << reports;
    m.tables[QStringLiteral("incidents")].sources = QStringList{ reports.id };
    m.tables[QStringLiteral("nfpa")].sources.clear();
    ASSERT_TRUE(m.writeWithChecksums(pack.dir()));
    const QString note = QStringLiteral("From a partial extract of DOT 5800.1 reports, Aug 2024 to Jul 2025");

    // The values are the model's (checked with the screens); here, where the text puts them.
    Result r = runCli({ "material", "1005" });
    EXPECT_TRUE(r.out.startsWith(PackManifest::sampleNotice()));
    EXPECT_TRUE(r.out.contains("  Incidents (12 months): 2\n    " + note + "\n")) << r.out.toStdString();
    EXPECT_TRUE(r.out.contains(" mi\n    Source: Test fixture\n")) << "isolation figures, then their source";

    EXPECT_TRUE(runCli({ "list", "--sort", "2" }).out.startsWith("Materials\n" + note + "\n"));
    EXPECT_TRUE(runCli({ "list", "--category", "M" }).out.contains("0 found"));
}

// Scripts merge both streams and parse --json; where no runtime directory is
// set (containers, cron, ssh) nothing else may appear in them.
TEST_F(Cli, JsonParsesWithBothStreamsMergedAndNoRuntimeDirectory)
{
    QProcess cli;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    env.insert(QStringLiteral("QOR_PACK"), pack.dir());
    cli.setProcessEnvironment(env);
    cli.setProcessChannelMode(QProcess::MergedChannels);
    cli.start(QStringLiteral(QOR_CLI_BINARY), { "--json", "--resources", pack.dir(), "material", "1005" });
    ASSERT_TRUE(cli.waitForFinished(30000));
    const QByteArray output = cli.readAll();
    EXPECT_EQ(cli.exitCode(), 0) << output.constData();
    QJsonParseError error;
    QJsonDocument::fromJson(output, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << output.left(200).constData();
}

TEST_F(Cli, SearchOffersMarkedSuggestionsOnlyWhenNothingMatches)
{
    Result r = runCli({ "search", "clorine" });
    EXPECT_EQ(r.code, cli::NothingFound) << "a suggestion is not a match";
    EXPECT_TRUE(r.out.contains("suggestion 1017 ")) << r.out.toStdString();

    r = runCli({ "--json", "search", "amonia" });
    ASSERT_FALSE(r.json().array().isEmpty());
    for (const auto& v : r.json().array())
        EXPECT_TRUE(v.toObject().value("suggestion").toBool());

    r = runCli({ "--json", "search", "chlorine" });
    EXPECT_EQ(r.code, cli::Found);
    for (const auto& v : r.json().array())
        EXPECT_FALSE(v.toObject().contains("suggestion"));
    r = runCli({ "search", "--sort", "1", "clorine" });
    EXPECT_FALSE(r.out.contains("Did you mean")) << "names are not searched by UN number";
}

// The guidebook's index lists explosives by division, not by number: an ID
// only the shipping table has is shown from it, with its division's guide.
TEST(ShippingOnlyCli, BundledExplosivesGetTheirDivisionsGuide)
{
    const auto material = [&](const QStringList& args) {
        return runCli(QStringList{ QStringLiteral("--resources"), bundledPack() } + args);
    };

    Result r = material({ "material", "0004" });
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.contains("Ammonium picrate  UN0004\n"
                               "  The guidebook's index does not list UN0004; shown from the shipping table.\n  Guide 112"))
        << r.out.toStdString();


    // Division 1.4 goes to the other row; an ID with rows of two classes keeps every name.
    EXPECT_EQ(material({ "--json", "material", "0012" }).json().array().at(0).toObject().value("guideId").toString(), "114");
    EXPECT_EQ(material({ "--json", "material", "0331" }).json().array().at(0).toObject().value("guideId").toString(), "112")
        << "1.5 shares the 1.1 row";
    r = material({ "material", "0027" });
    EXPECT_TRUE(r.out.contains("Black powder for small arms; Black powder or Gunpowder  UN0027\n")) << r.out.toStdString();
    EXPECT_EQ(r.out.count("  Shipping: "), 2);

    // No class, so no guide: said so, and no source line for a guide not shown.
    r = material({ "material", "0190" });
    ASSERT_EQ(r.code, 0);
    EXPECT_TRUE(r.out.contains("  Guide: not in this data pack\n")) << r.out.toStdString();
    EXPECT_FALSE(r.out.contains("yellow index")) << r.out.toStdString();

    // In neither table, or not a whole four-digit id (the id column is numeric, so 4 is 0004).
    for (const char* id : { "9999", "4", "004", "00004", "NA0004" })
        EXPECT_EQ(material({ "material", id }).code, 1) << id;

    // A material the index lists is shown as before.
    EXPECT_FALSE(material({ "material", "1005" }).out.contains("does not list"));
}

// The guide comes from whichever unnumbered row of the materials file names
// the division, whatever its number.
TEST_F(Cli, ShippingOnlyGuideIsReadFromTheUnnumberedRows)
{
    pack.setMaterials({ "CHLORINE^2.3^124^1017^1017^^", "EXPLOSIVES, DIVISION 1.1, 1.2, 1.3 OR 1.5^^124^^^^",
                        "EXPLOSIVES, DIVISION 1.4 OR 1.6^^125^—^^^" });
    pack.sql("npg.db", "insert into hmt (un_id, name, class) values ('0012','Cartridges, small arms','1.4S');"
                       "insert into dot_classes values ('0012','1.4');");
    const Result r = runCli({ "--json", "material", "0012" });
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QJsonObject o = r.json().array().at(0).toObject();
    EXPECT_EQ(o.value("guideId").toString(), "125");
    EXPECT_EQ(o.value("guidebookRow").toString(), "Explosives, Division 1.4 Or 1.6");
}
