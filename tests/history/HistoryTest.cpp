// The viewed history: recording, orderings, the history file, the legacy
// import and keeping unreadable files.
#include "FixturePack.h"
#include "HistoryTestSupport.h"

#include "history/DialogService.h"
#include "history/HistoryManager.h"
#include "history/PropertyList.h"
#include "model/QORModel.h"

using namespace qor;
using namespace qor::test;

namespace qor::test {
QByteArray legacyArchiveXml();
}

namespace {

struct HistoryTest : ::testing::Test {
    UserFolder user;
    DialogRecorder dialogs;
    HistoryManager manager;
    ViewedHistory& history = manager.viewedHistory();

    QString historyFile() const { return user.library("viewedHistory.dat"); }
    QString legacyFile() const { return user.documents("materialViewedHistory.dat"); }
};

QStringList unIds(const HistoryList& list)
{
    QStringList out;
    for (const auto& e : list)
        out << e->unId();
    return out;
}

// A material with every optional field set.
MaterialPtr markedChlorine()
{
    auto m = makeMaterial("1017", "Chlorine", "124");
    m->toxicInhalationHazard = "X";
    m->mayPolymerize = true;
    return m;
}

} // namespace

TEST_F(HistoryTest, RepeatedViewsMakeOneEntryKeepingItsFirstFields)
{
    const MaterialPtr chlorine = markedChlorine();
    manager.addToHistory(chlorine, utc("2024-03-01T10:00:00Z"));
    manager.addToHistory(chlorine, utc("2024-03-02T10:00:00Z"));
    Clock::setFixed(utc("2024-03-03T10:00:00Z"));
    auto renamed = makeMaterial("1017", "Chlorine, Renamed", "999");
    manager.addToHistory(renamed);

    ASSERT_EQ(history.objects.size(), 1);
    const HistoryObjectPtr entry = manager.historyObjectForKey("1017");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->viewCount(), 3);
    EXPECT_EQ(entry->lastViewDate(), utc("2024-03-03T10:00:00Z"));
    EXPECT_EQ(entry->name(), "Chlorine");
    EXPECT_EQ(entry->material, chlorine) << "the entry keeps the material first viewed";
    const QVariantMap& p = entry->properties;
    EXPECT_EQ(p.value("guideId").toString(), "124");

    manager.addToHistory(makeMaterial("1005", "Ammonia"));
    EXPECT_FALSE(manager.historyObjectForKey("1005")->properties.contains("tih"));
}

TEST_F(HistoryTest, OrderingsLimitToTwelveAndBreakTiesByName)
{
    // 20 materials; names run backwards against UN ids so ties show their order.
    for (int i = 0; i < 20; ++i) {
        auto m = makeMaterial(QString::number(1001 + i), QStringLiteral("M%1").arg(19 - i, 2, 10, QChar('0')));
        const QDateTime when = utc("2024-01-01T00:00:00Z").addSecs(i < 10 ? 0 : i * 60);
        for (int v = 0; v <= i % 5; ++v)
            manager.addToHistory(m, when);
    }
    EXPECT_EQ(history.allAlpha().first()->name(), "M00");
    ASSERT_EQ(history.recent().size(), 12);
    EXPECT_EQ(unIds(history.recent()).mid(0, 10),
              QStringList({ "1020", "1019", "1018", "1017", "1016", "1015", "1014", "1013", "1012", "1011" }));
    EXPECT_EQ(unIds(history.recent()).mid(10), QStringList({ "1010", "1009" })) << "equal dates by name: M10, M11";
    const HistoryList most = history.mostViewed();
    ASSERT_EQ(most.size(), 12);
    EXPECT_EQ(unIds(most).mid(0, 4), QStringList({ "1020", "1015", "1010", "1005" })) << "count 5, then by name";
}

TEST_F(HistoryTest, AlphabeticalOrderIsLiteralAndFollowsAdditions)
{
    manager.addToHistory(makeMaterial("1005", "b"));
    manager.addToHistory(makeMaterial("1006", "B"));
    EXPECT_EQ(unIds(history.allAlpha()), QStringList({ "1006", "1005" })) << "literal, case-sensitive";
    manager.addToHistory(makeMaterial("1007", "A"));
    EXPECT_EQ(history.allAlpha().size(), 3);
}

TEST_F(HistoryTest, SavedHistoryReloadsExactly)
{
    manager.loadHistory();
    const MaterialPtr chlorine = markedChlorine();
    manager.addToHistory(chlorine, utc("2024-03-05T14:07:09Z"));
    manager.addToHistory(chlorine, utc("2024-03-06T08:00:00Z"));
    manager.addToHistory(makeMaterial("1005", "Ammonia, Anhydrous"), utc("2024-03-07T09:30:00Z"));
    history.objects.value("1005")->properties.insert("watchFlag", true);
    ASSERT_TRUE(manager.saveHistory());
    ASSERT_TRUE(readBytes(historyFile()).startsWith("bplist00"));

    HistoryManager reloaded;
    reloaded.loadHistory();
    ASSERT_EQ(reloaded.viewedHistory().objects.size(), 2);
    for (const QString& unId : { QString("1005"), QString("1017") })
        EXPECT_EQ(reloaded.historyObjectForKey(unId)->properties, manager.historyObjectForKey(unId)->properties);
    EXPECT_EQ(unIds(reloaded.viewedHistory().watching()), QStringList{ "1005" });
}

TEST_F(HistoryTest, AnUnreadableFileIsSetAsideUnderAFreeNameNeverOverwritten)
{
    for (int n = 1; n <= 999; ++n)
        writeBytes(historyFile() + ".unreadable" + (n == 1 ? QString() : "." + QString::number(n)), "old");
    writeBytes(historyFile() + ".unreadable.x", "not numbered");
    writeBytes(historyFile(), "damaged");
    manager.loadHistory();
    EXPECT_TRUE(history.objects.isEmpty());
    manager.addToHistory(makeMaterial("1005", "Ammonia"));
    ASSERT_TRUE(manager.saveHistory());
    ASSERT_TRUE(manager.saveHistory());
    EXPECT_EQ(readBytes(historyFile() + ".unreadable.1000"), "damaged");
    EXPECT_FALSE(QFile::exists(historyFile() + ".unreadable.1001")) << "the second save keeps the new file";
    EXPECT_EQ(plist::parse(readBytes(historyFile()))->toList().size(), 1);
}

TEST_F(HistoryTest, NothingIsSavedBeforeTheHistoryIsLoaded)
{
    const QByteArray file = *plist::serialize(QVariantList{ QVariantMap{ { "unId", "1017" }, { "name", "Chlorine" } } });
    writeBytes(historyFile(), file);
    EXPECT_FALSE(manager.saveHistory());
    EXPECT_EQ(readBytes(historyFile()), file);
    manager.loadHistory();
    manager.addToHistory(makeMaterial("1005", "Ammonia"));
    ASSERT_TRUE(manager.saveHistory());
    EXPECT_EQ(plist::parse(readBytes(historyFile()))->toList().size(), 2);
}

TEST_F(HistoryTest, LegacyArchiveIsImportedOnceAtItsModificationTimeThenMoved)
{
    const QByteArray legacy = legacyArchiveXml();
    writeBytes(legacyFile(), legacy);
    const QDateTime modified = utc("2019-05-04T03:02:01Z");
    QFile f(legacyFile());
    ASSERT_TRUE(f.open(QIODevice::ReadWrite) && f.setFileTime(modified, QFileDevice::FileModificationTime));
    f.close();

    manager.loadHistory();
    EXPECT_EQ(unIds(history.allAlpha()), QStringList({ "1005", "1017" }));
    for (const auto& e : history.history()) {
        EXPECT_EQ(e->viewCount(), 1) << "old counts are not carried over";
        EXPECT_EQ(e->lastViewDate(), modified);
    }
    EXPECT_EQ(readBytes(legacyFile() + ".bak"), legacy);
    EXPECT_FALSE(QFile::exists(historyFile())) << "written at the next save, not by the import";

    ASSERT_TRUE(manager.saveHistory());
    HistoryManager next;
    next.loadHistory();
    EXPECT_EQ(next.viewedHistory().objects.size(), 2);
}

TEST_F(HistoryTest, WithBothFilesOnlyTheNewOneIsRead)
{
    writeBytes(legacyFile(), legacyArchiveXml());
    writeBytes(historyFile(), *plist::serialize(QVariantList{ QVariantMap{ { "unId", "2000" }, { "name", "New" } } }));
    manager.loadHistory();
    EXPECT_EQ(unIds(history.history()), QStringList{ "2000" });
    EXPECT_TRUE(QFile::exists(legacyFile()));
}

TEST_F(HistoryTest, AnUndecodableLegacyFileIsReportedAndStillMovedAside)
{
    writeBytes(legacyFile(), "garbage");
    manager.loadHistory();
    EXPECT_TRUE(dialogs.dialogs().at(0).message.startsWith("Unable to load data: "));
    EXPECT_EQ(readBytes(legacyFile() + ".bak"), "garbage");
}

TEST_F(HistoryTest, EntriesFromDiskBecomeThePacksOwnMaterialWhenItStillHasIt)
{
    FixturePack pack;
    pack.setMaterials({ "SODIUM^4.3^138^1428^^W^", "SODIUM^4.3^138^1428^^W^", "CHLORINE^2.3^124^1017^X^^" });
    writeBytes(historyFile(), *plist::serialize(QVariantList{
                                  QVariantMap{ { "unId", "1428" }, { "name", "Sodium" }, { "guideId", "138" } },
                                  QVariantMap{ { "unId", "1017" }, { "name", "Chlorine, Renamed" } },
                                  QVariantMap{ { "unId", "9999" }, { "name", "Gone From The Pack" }, { "guideId", "111" } },
                              }));
    delete HistoryManager::sharedInstance(false);
    {
        ModelFixture model;
        const MaterialList& materials = QORModel::sharedInstance()->materials();
        HistoryManager& shared = *HistoryManager::sharedInstance();
        const HistoryObjectPtr sodium = shared.historyObjectForKey("1428");
        ASSERT_TRUE(sodium);
        EXPECT_EQ(sodium->material, materials.at(0)) << "the first material with that UN id and name";
        const HistoryObjectPtr renamed = shared.historyObjectForKey("1017");
        EXPECT_TRUE(renamed->partialMaterial) << "another name is another material";
        const HistoryObjectPtr gone = shared.historyObjectForKey("9999");
        EXPECT_EQ(gone->material->guideId, "111");
    }
    delete HistoryManager::sharedInstance(false);
}
