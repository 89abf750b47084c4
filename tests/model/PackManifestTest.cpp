// pack.json: provenance read and written, citations and notes derived from
// it, and how the active pack is described when pack.json is missing or broken.
#include "FixturePack.h"

#include "model/PackManifest.h"

#include <QFile>
#include <gtest/gtest.h>

namespace qor::test {
namespace {

void writeJson(FixturePack& pack, const QByteArray& json)
{
    pack.writeFile(QString::fromLatin1(PackManifest::kFileName), json);
}

TEST(PackManifest, ProvenanceSurvivesWriteAndRead)
{
    FixturePack pack;
    PackManifest written = FixturePack::officialManifest();
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
    EXPECT_EQ(read->sources, QStringList({ "49 CFR 172.101", "Emergency Response Guidebook 2024, 2024", "Incident reports" }));
}

TEST(PackManifest, CitationOfAnUnlistedTableAndPartialNotes)
{
    const PackManifest m = FixturePack::officialManifest();
    EXPECT_EQ(m.citation(QStringLiteral("large_spill_distances")), "") << "not listed";
    EXPECT_EQ(m.partialNote(QStringLiteral("incidents")), "From a partial extract of DOT 5800.1 reports, Aug 2024 to Jul 2025");
    PackManifest noPeriod = m;
    noPeriod.sourceList[2].periodTo.clear();
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
    PackManifest official = FixturePack::officialManifest();
    official.tables[QStringLiteral("materials")].sources << FixturePack::partialReportsSource().id;
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
    EXPECT_FALSE(PackManifest::active());

    QFile::remove(pack.path(QString::fromLatin1(PackManifest::kFileName)));
    EXPECT_EQ(PackManifest::activeNotice(), PackManifest::unverifiedNotice());
}

} // namespace
} // namespace qor::test
