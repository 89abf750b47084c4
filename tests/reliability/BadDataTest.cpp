// Damaged reference data and history files degrade without crashing; only
// a database that cannot be used stops start-up, naming the file.
#include "FixturePack.h"
#include "../history/HistoryTestSupport.h"

#include "history/HistoryManager.h"
#include "history/PropertyList.h"
#include "model/PackSchema.h"
#include "model/QORModel.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace qor;
using qor::test::FixturePack;
using qor::test::ModelFixture;

namespace {

QORModel& model()
{
    return *QORModel::sharedInstance();
}

void truncateFile(const QString& path, qint64 size)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    ASSERT_TRUE(f.resize(size));
}

} // namespace

TEST(BadText, InvalidUtf8AndNulBytesLoadAsText)
{
    FixturePack pack;
    pack.writeFile("chemicals_2024.csv", QByteArrayLiteral("AMM\xff\xfeONIA^2.3^125^1005^X^^\n"
                                                           "NUL\0NAME^3^127^1090^^^\n"
                                                           "\xc3^8^132^2789^^^\n"));
    pack.writeFile("guides.csv", QByteArrayLiteral("125^Gases \xe2\x28\xa1 Corrosive\n12\0" "7^Flammable\n"));
    pack.writeFile("wikipedia_descriptions_by_un_number.csv", QByteArrayLiteral("1005^\xff\xff\0text\n"));
    ModelFixture fixture;
    ASSERT_EQ(model().materials().size(), 3);
    EXPECT_EQ(model().materials().at(0)->unId, "1005");
    EXPECT_TRUE(model().materials().at(0)->name.contains(QChar::ReplacementCharacter));
    EXPECT_EQ(model().materials().at(1)->name, QString::fromUtf8("Nul\0Name", 8)) << "a NUL byte is kept, not an end";

    model().loadGuideList();
    ASSERT_EQ(model().guides().size(), 2);
    EXPECT_TRUE(model().dotGuideForMaterial(model().materials().at(0).get()));
    model().loadWikipediaDescriptions();
    EXPECT_TRUE(model().descriptions.value("1005").endsWith("text"));
}

TEST(BadText, OneMegabyteLinesAreOrdinaryLines)
{
    FixturePack pack;
    const QString longName = QString(1 << 20, QLatin1Char('a'));
    pack.setMaterials({ longName + "^3^127^1090^^^", "ACETONE^3^127^1091^^^", QString(1 << 20, QLatin1Char('^')) });
    pack.setGuides({ "127^" + longName, QString(1 << 20, QLatin1Char('x')) });
    ModelFixture fixture;
    ASSERT_EQ(model().materials().size(), 3) << "a line of nothing but separators is a line of empty fields";
    EXPECT_EQ(model().materials().at(0)->name.size(), 1 << 20);
    EXPECT_EQ(model().allFilter->alphaIndex.value("aaa").size(), 1);
    model().loadGuideList();
    ASSERT_EQ(model().guides().size(), 1);
    EXPECT_EQ(model().guides().at(0)->name.size(), 1 << 20);
}

// Each database, truncated or replaced by something else, ends start-up
// with a message naming that file, never with a later crash or silent gaps.
TEST(BadDatabaseDeathTest, TruncatedOrForeignDatabasesAbortNamingTheFile)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const char* name : { "hazmat_incidents.dat", "npg.db", "cfr49.db" }) {
        SCOPED_TRACE(name);
        {
            FixturePack pack;
            pack.writeFile(name, "SQLite format 3 is what this is not");
            EXPECT_DEATH({ ModelFixture f(false); }, QStringLiteral("cannot open database .*%1").arg(name).toStdString());
        }
        {
            FixturePack pack;
            truncateFile(pack.path(name), 0);
            EXPECT_DEATH({ ModelFixture f(false); }, QStringLiteral("cannot open database .*%1: empty file").arg(name).toStdString());
        }
        {
            FixturePack pack;
            // Enough rows to need more pages than the first.
            pack.sql(name, QStringLiteral("create table filler(t text); with recursive n(i) as (select 1 union all select i+1 "
                                          "from n where i < 2000) insert into filler select printf('%0500d', i) from n;"));
            truncateFile(pack.path(name), 8192);
            EXPECT_DEATH({ ModelFixture f(false); }, QStringLiteral("cannot open database .*%1: truncated").arg(name).toStdString());
        }
    }
}

TEST(BadDatabase, NullColumnsReadAsEmpty)
{
    FixturePack pack;
    pack.setMaterials({ "AMMONIA^2.3^125^1005^X^^" });
    for (const auto& db : packDatabases())
        for (const auto& t : db.tables) {
            QStringList values(t.columns.size(), QStringLiteral("NULL"));
            values[0] = QStringLiteral("'1005'");
            pack.sql(db.fileName, QStringLiteral("insert into %1 values (%2); insert into %1 values (%3);")
                                      .arg(t.name, values.join(','), QStringList(t.columns.size(), "NULL").join(',')));
        }
    pack.sql("cfr49.db", "insert into cfr_text values ('173.1', 'n1', NULL, NULL);");
    ModelFixture fixture;
    ASSERT_EQ(model().materials().size(), 1);
    Material& m = *model().materials().first();
    model().isolationDistancesForMaterial(m);
    model().incidentsSummaryForMaterial(m);
    model().getNPGCasNumbersForMaterial(m);
    model().getNPGAttributesForMaterial(m);
    model().getCameoAttributesForMaterial(m);
    model().getWiserAttributesForMaterial(m);
    model().getGHSAttributesForMaterial(m);
    model().nfpaForMaterial(m);
    model().getHmtEntriesForMaterial(m);
    model().getHmtAttributesForMaterial(m);
    model().placardNameForMaterial(m);
    EXPECT_EQ(model().classForMaterial(m), "");
    EXPECT_EQ(model().descriptionForMaterial(m).value_or(""), "");
    // NULL texts read as no text: the page says so rather than staying blank.
    EXPECT_TRUE(model().getHTMLTextForCFRSection(QString("1"), "").contains("is not in this data pack"));
    EXPECT_TRUE(model().getHTMLTextForCFRSection(std::nullopt, "n1").contains("is not in this data pack"));
    (void)m.numIncidents();
}

// History files written by something else: of another shape, or holding
// values of the wrong types. They load what they can and are kept.
TEST(BadHistory, ForeignAndMistypedFilesLoadWhatTheyCan)
{
    test::UserFolder user;
    const QString file = user.library("viewedHistory.dat");
    const auto write = [&](const QByteArray& bytes) { test::writeBytes(file, bytes); };
    const QVariantMap good{ { "unId", "1005" }, { "name", "Ammonia" }, { "viewCount", 3 } };

    // Bytes cut short or no property list at all are the parser's tests and
    // HistoryTest's; here, lists of the wrong shape.
    const QList<QByteArray> broken = {
        *plist::serialize(QVariant("a string root")),
        *plist::serialize(QVariantList{ 1, "two", QVariantList{ good } }),
    };
    for (const QByteArray& bytes : broken) {
        write(bytes);
        HistoryManager manager;
        manager.loadHistory();
        EXPECT_TRUE(manager.keepsUnreadableFile());
        manager.viewedHistory().allAlpha();
        manager.viewedHistory().recent();
        QFile::remove(file);
    }

    const QVariantList mistyped{
        QVariantMap{ { "unId", 1005 }, { "name", QVariantList{ 1, 2 } }, { "viewCount", "many" },
                     { "lastViewDate", "yesterday" }, { "watchFlag", QVariantMap{} } },
        QVariantMap{ { "unId", "1017" }, { "name", QByteArray("\xff") }, { "viewCount", std::numeric_limits<qlonglong>::max() },
                     { "lastViewDate", 3.5 }, { "tih", QVariantList{} }, { "mayPolymerize", "yes" } },
        QVariantMap{ { "unId", "1075" }, { "viewCount", std::numeric_limits<int>::max() } },
    };
    write(*plist::serialize(mistyped));
    HistoryManager manager;
    manager.loadHistory();
    auto& history = manager.viewedHistory();
    // Values of the wrong type are dropped; without a UN id there is no entry.
    EXPECT_EQ(history.allAlpha().size(), 2);
    EXPECT_EQ(manager.historyObjectForKey("1017")->properties.keys(), QStringList{ "unId" });
    EXPECT_TRUE(manager.keepsUnreadableFile());
    EXPECT_TRUE(history.watching().isEmpty());
    // Counting on from a count at the top of the range must not overflow.
    manager.addToHistory(manager.historyObjectForKey("1075")->material);
    EXPECT_EQ(manager.historyObjectForKey("1075")->viewCount(), std::numeric_limits<int>::max());
    EXPECT_TRUE(manager.saveHistory());
    EXPECT_EQ(test::readBytes(file + ".unreadable"), *plist::serialize(mistyped)) << "the hand-edited file is kept aside";
}
