// FileManager: dialogs, the silent cases, atomic writes, archives.
#include "HistoryTestSupport.h"

#include "history/DialogService.h"
#include "history/FileManager.h"
#include "history/HistoryManager.h"
#include "history/MaterialArchive.h"

#include <QPoint>

using namespace qor;
using namespace qor::test;

namespace {

struct FileManagerTest : ::testing::Test {
    UserFolder user;
    DialogRecorder dialogs;
    FileManager files;
};

} // namespace

TEST_F(FileManagerTest, UniqueNamesRoundMillisecondsHalfToEven)
{
    const auto at = [](qint64 microseconds) {
        const auto origin = Clock::fromDateTime(Clock::referenceDate());
        Clock::setSource([=] { return origin + std::chrono::microseconds(microseconds); });
    };
    at(1500);
    EXPECT_EQ(files.uniqueFileNameWithPrefix("h", "dat"), "h-2.dat");
    at(3500);
    EXPECT_EQ(files.uniqueFileNameWithPrefix("h", "dat"), "h-4.dat");
    Clock::setFixed(utc("2024-03-05T00:00:00Z"));
    EXPECT_EQ(files.uniqueFileNameWithPrefix("img", "png"), "img-731289600000.png");
}

TEST_F(FileManagerTest, WritesReplaceAtomicallyAndRefuseOverwriteSilently)
{
    const QString dir = user.root.path() + "/Fresh/Sub";
    // Modes are OwnerOnly's (reliability), for every file the user's folders get.
    ASSERT_TRUE(files.writeFile("one", "a.dat", dir, false));

    EXPECT_FALSE(files.writeFile("two", "a.dat", dir, false));
    EXPECT_EQ(readBytes(dir + "/a.dat"), "one");
    EXPECT_TRUE(dialogs.dialogs().isEmpty());

    ASSERT_TRUE(files.writeFile("three", "a.dat", dir, true));
    EXPECT_EQ(*files.readFile("a.dat", dir), "three");
    EXPECT_EQ(QDir(dir).entryList(QDir::Files | QDir::Hidden), QStringList{ "a.dat" }) << "no temporary left behind";
}

// Each failure raises one dialog naming its error code, except where the
// caller asked for silence.
TEST_F(FileManagerTest, FileErrorsAreReportedOnlyWhereTheyShouldBe)
{
    const QString dir = user.documents();
    EXPECT_FALSE(files.readFile("nothing.dat", dir));
    EXPECT_FALSE(files.loadDataFromFileName("nothing.dat", QString()));
    EXPECT_FALSE(files.fileAttributes("nothing.dat", dir));  // silent
    EXPECT_TRUE(files.deleteFile("nothing.dat", dir, true));  // silent
    EXPECT_FALSE(files.deleteFile("nothing.dat", dir, false));
    EXPECT_FALSE(files.filesAtPath(dir + "/none", ""));
    ASSERT_TRUE(QDir(dir).mkpath("taken"));
    EXPECT_FALSE(files.writeFile("x", "taken", dir, true));
    EXPECT_FALSE(files.readFile("taken", dir));

    ASSERT_EQ(dialogs.dialogs().size(), 6);
    const DialogMessage expected{ "Error Message", "Unable to locate file nothing.dat", "Dismiss" };
    EXPECT_EQ(dialogs.dialogs().at(0), expected);
    EXPECT_EQ(dialogs.dialogs().at(1), expected) << "one dialog per load, not a second for the missing bytes";
    QStringList codes;
    for (int i = 2; i < 6; ++i)
        codes << dialogs.dialogs().at(i).message.section(QLatin1Char(' '), 0, 0);
    EXPECT_EQ(codes, QStringList({ "[4]", "[260]", "[512]", "[256]" })) << "delete, list, write, read of a folder";
}

TEST_F(FileManagerTest, ListingByPrefixAndDelete)
{
    const QString dir = user.documents();
    for (const char* name : { "h-1.dat", "h-2.dat", "H-3.dat", "other" })
        writeBytes(dir + "/" + name, "");
    QStringList listed = *files.filesAtPath(dir, "h-");
    listed.sort();
    EXPECT_EQ(listed, QStringList({ "h-1.dat", "h-2.dat" })) << "prefix is case-sensitive";

    EXPECT_TRUE(files.deleteFile("h-1.dat", dir, false));
}

TEST_F(FileManagerTest, ArchivesRoundTripAndBadOnesRaiseTheirDialogs)
{
    auto m = makeMaterial("1005", "Ammonia, Anhydrous");
    MaterialViewedHistory legacy;
    legacy.materials.insert("1005", m);
    ASSERT_TRUE(files.saveDataToFile(QVariant::fromValue(legacy.toArchive()), QString(), "legacy.dat"));
    const auto root = files.loadDataFromFileName("legacy.dat", user.documents());
    ASSERT_TRUE(root);
    EXPECT_EQ(root->value<ArchivedObject>(), legacy.toArchive());
    EXPECT_TRUE(dialogs.dialogs().isEmpty());

    // An object an archive cannot hold: reported, yet answered with true.
    EXPECT_TRUE(files.saveDataToFile(QVariant::fromValue(QPoint(1, 2)), QString(), "point.dat"));
    EXPECT_FALSE(QFile::exists(user.documents("point.dat")));
    ASSERT_EQ(dialogs.dialogs().size(), 1);
    EXPECT_TRUE(dialogs.dialogs().at(0).message.startsWith("Unable to save data: "));

    writeBytes(user.documents("junk.dat"), "not an archive");
    EXPECT_FALSE(files.loadDataFromFileName("junk.dat", QString()));
    ASSERT_EQ(dialogs.dialogs().size(), 2);
    EXPECT_TRUE(dialogs.dialogs().at(1).message.startsWith("Unable to load data: "));
}

TEST_F(FileManagerTest, PropertyListWriterIsSilentAndLeavesNothingOnFailure)
{
    HistoryManager history;
    EXPECT_FALSE(history.serialize(QVariantList{ QVariant::fromValue(QPoint(1, 2)) }, "bad.dat"));
    EXPECT_FALSE(QFile::exists(user.library("bad.dat")));
    EXPECT_TRUE(history.serialize(QVariantList{ "a" }, "good.dat"));
}

