// pack.json: provenance read and written, citations and notes derived from
// it, and how the active pack is described when pack.json is missing or broken.
#include "FixturePack.h"

#include "model/PackManifest.h"

#include <QFile>
#include <gtest/gtest.h>

namespace qor::test {
namespace {

PackManifest officialManifest()
{
    PackManifest m;
    m.edition = QStringLiteral("official");
    m.buildDate = QStringLiteral("2026-08-01");
    PackSource erg;
    erg.id = QStringLiteral("erg2024");
    erg.title = QStringLiteral("Emergency Response Guidebook 2024");
    erg.edition = QStringLiteral("2024");
    erg.citation = QStringLiteral("ERG 2024");
    erg.files.insert(QStringLiteral("official/erg2024/TIH_Table1.pdf"), QString(64, QLatin1Char('a')));
    const PackSource reports = FixturePack::partialReportsSource();
    m.sourceList << erg << reports;
    PackTable iso;
    iso.sources << erg.id;
    iso.citation = QStringLiteral("ERG 2024, Table 1");
    iso.rows = 537;
    PackTable guides;
    guides.sources << erg.id;
    PackTable incidents;
    incidents.sources << reports.id;
    m.tables.insert(QStringLiteral("iso_distances"), iso);
    m.tables.insert(QStringLiteral("guides"), guides);
    m.tables.insert(QStringLiteral("incidents"), incidents);
    m.tables.insert(QStringLiteral("nfpa"), PackTable());
    PackTable both;
    both.sources << erg.id << reports.id;
    m.tables.insert(QStringLiteral("materials"), both);
    return m;
}

void writeJson(FixturePack& pack, const QByteArray& json)
{
    pack.writeFile(QString::fromLatin1(PackManifest::kFileName), json);
}

TEST(PackManifest, ProvenanceSurvivesWriteAndRead)
{
    FixturePack pack;
    PackManifest written = officialManifest();
    ASSERT_TRUE(written.writeWithChecksums(pack.dir()));
    QString error;
    const auto read = PackManifest::read(pack.dir(), &error);
    ASSERT_TRUE(read) << error.toStdString();
    const PackSource* erg = read->source(QStringLiteral("erg2024"));
    ASSERT_TRUE(erg);
    EXPECT_EQ(erg->files.value(QStringLiteral("official/erg2024/TIH_Table1.pdf")), QString(64, QLatin1Char('a')));
    EXPECT_TRUE(read->source(QStringLiteral("dot5800"))->partial);
    EXPECT_EQ(read->tables.value(QStringLiteral("iso_distances")).rows, 537);
    EXPECT_EQ(read->tables.value(QStringLiteral("guides")).rows, -1) << "text contents carry no row count";
    EXPECT_TRUE(read->tables.value(QStringLiteral("nfpa")).sources.isEmpty());
    EXPECT_EQ(read->sources, QStringList({ "Emergency Response Guidebook 2024, 2024", "Incident reports" }));
}

TEST(PackManifest, CitationOfAnUnlistedTableAndPartialNotes)
{
    const PackManifest m = officialManifest();
    EXPECT_EQ(m.citation(QStringLiteral("hmt")), "") << "not listed";
    EXPECT_EQ(m.partialNote(QStringLiteral("incidents")), "From a partial extract of DOT 5800.1 reports, Aug 2024 to Jul 2025");
    PackManifest noPeriod = m;
    noPeriod.sourceList[1].periodTo.clear();
    EXPECT_EQ(noPeriod.partialNote(QStringLiteral("incidents")), "From a partial extract of DOT 5800.1 reports");
    EXPECT_TRUE(FixturePack::fixtureManifest().tableIsSample(QStringLiteral("hmt")));
}

TEST(PackManifest, OlderAndMalformedManifests)
{
    FixturePack pack;
    QString error;
    // Plain source lines, as packs built before per-table sources wrote them.
    writeJson(pack, R"({"edition":"old","buildDate":"2025-01-01","sample":true,"sources":["US DOT names"],"files":{}})");
    auto m = PackManifest::read(pack.dir(), &error);
    ASSERT_TRUE(m) << error.toStdString();
    EXPECT_EQ(m->sources, QStringList({ "US DOT names" }));

    const QList<QPair<QByteArray, QString>> broken = {
        { "{\"edition\":", "not a JSON object" },
        { R"({"sources":[],"files":[]})", "no \"files\" object" },
        { R"({"sources":[{"title":"no id"}],"files":{}})", "needs an \"id\"" },
        { R"({"sources":[{"id":"a","title":"A"},{"id":"a","title":"B"}],"files":{}})", "declared twice" },
        { R"({"sources":[],"tables":{"hmt":{"sources":["cfr"]}},"files":{}})", "undeclared source \"cfr\"" },
    };
    for (const auto& [json, why] : broken) {
        writeJson(pack, json);
        error.clear();
        EXPECT_FALSE(PackManifest::read(pack.dir(), &error)) << json.constData();
        EXPECT_TRUE(error.contains(why)) << error.toStdString();
    }
    QFile::remove(pack.path(QString::fromLatin1(PackManifest::kFileName)));
    EXPECT_FALSE(PackManifest::read(pack.dir(), &error));
    EXPECT_TRUE(error.startsWith(QStringLiteral("cannot read")));
}

TEST(PackManifest, ActivePackMarksAndSourceLines)
{
    FixturePack pack;
    PackManifest official = officialManifest();
    ASSERT_TRUE(official.writeWithChecksums(pack.dir()));
    EXPECT_EQ(PackManifest::activeNotice(), "") << "a verified official pack shows no mark";
    // Each citation once; a table without sources adds nothing.
    EXPECT_EQ(PackManifest::sourceLine({ QStringLiteral("guides"), QStringLiteral("nfpa"), QStringLiteral("guides"), QStringLiteral("incidents") }),
              "Source: ERG 2024; DOT 5800.1");
    EXPECT_EQ(PackManifest::sourceLine({ QStringLiteral("nfpa") }), "Source: not recorded in this data pack");
    // pack.json stores the joined citation of a two-source table; still each source once.
    EXPECT_EQ(PackManifest::sourceLine({ QStringLiteral("materials"), QStringLiteral("guides") }), "Source: ERG 2024; DOT 5800.1");

    // Rewritten in place: the cached manifest must not outlive the file.
    writeJson(pack, "{ broken");
    EXPECT_EQ(PackManifest::activeNotice(), PackManifest::unverifiedNotice());
    EXPECT_EQ(PackManifest::sourceLine({ QStringLiteral("iso_distances") }), "Source: unknown (unverified data pack)");
    QString error;
    EXPECT_FALSE(PackManifest::active(&error));
    EXPECT_TRUE(error.contains(QStringLiteral("not a JSON object")));

    QFile::remove(pack.path(QString::fromLatin1(PackManifest::kFileName)));
    EXPECT_EQ(PackManifest::activeNotice(), PackManifest::unverifiedNotice());
}

} // namespace
} // namespace qor::test
