// FileManager: dialogs, the silent cases, atomic owner-only writes, archives.
#include "HistoryTestSupport.h"

#include "history/DialogService.h"
#include "history/FileManager.h"
#include "history/HistoryManager.h"
#include "history/MaterialArchive.h"

#include <QPoint>
#include <QStandardPaths>
#include <sys/stat.h>

using namespace qor;
using namespace qor::test;

namespace {

struct FileManagerTest : ::testing::Test {
    UserFolder user;
    DialogRecorder dialogs;
    FileManager files;
};

uint modeOf(const QString& path)
{
    struct stat st;
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? uint(st.st_mode & 0777) : 0;
}

} // namespace

TEST_F(FileManagerTest, FoldersLieUnderTheUserRootAndMatchTheHomeBuiltForm)
{
    EXPECT_EQ(files.documentFilePath() + "/h.dat", homeFilePath("Documents", "h.dat"));
    EXPECT_EQ(files.libraryFilePath() + "/h.dat", homeFilePath("Library", "h.dat"));
    UserPaths::setDataDir(QString());
    qunsetenv("QOR_DATA_DIR");
    const QString base = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    EXPECT_EQ(files.documentFilePath(), base + "/Documents");
    EXPECT_EQ(files.libraryFilePath(), base + "/Library");
}

TEST_F(FileManagerTest, UniqueNamesRoundMillisecondsHalfToEven)
{
    const auto at = [](qint64 microseconds) {
        const auto origin = Clock::fromDateTime(Clock::referenceDate());
        Clock::setSource([=] { return origin + std::chrono::microseconds(microseconds); });
    };
    at(1500);
    EXPECT_EQ(files.uniqueFileNameWithPrefix("h", "dat"), "h-2.dat");
    at(2500);
    EXPECT_EQ(files.uniqueFileNameWithPrefix("h", "dat"), "h-2.dat");
    at(3500);
    EXPECT_EQ(files.uniqueFileNameWithPrefix("h", "dat"), "h-4.dat");
    Clock::setFixed(utc("2024-03-05T00:00:00Z"));
    EXPECT_EQ(files.uniqueFileNameWithPrefix("img", "png"), "img-731289600000.png");
}

TEST_F(FileManagerTest, WritesReplaceAtomicallyOwnerOnlyAndRefuseOverwriteSilently)
{
    const QString dir = user.root.path() + "/Fresh/Sub";
    ASSERT_TRUE(files.writeFile("one", "a.dat", dir, false));
    EXPECT_EQ(modeOf(dir), 0700u);
    EXPECT_EQ(modeOf(user.root.path() + "/Fresh"), 0700u);
    EXPECT_EQ(modeOf(dir + "/a.dat"), 0600u);

    EXPECT_FALSE(files.writeFile("two", "a.dat", dir, false));
    EXPECT_EQ(readBytes(dir + "/a.dat"), "one");
    EXPECT_TRUE(dialogs.dialogs().isEmpty());

    ASSERT_TRUE(files.writeFile("three", "a.dat", dir, true));
    EXPECT_EQ(*files.readFile("a.dat", dir), "three");
    EXPECT_EQ(modeOf(dir + "/a.dat"), 0600u);
    EXPECT_EQ(QDir(dir).entryList(QDir::Files | QDir::Hidden), QStringList{ "a.dat" }) << "no temporary left behind";
}

TEST_F(FileManagerTest, FailedWriteShowsFileErrorAndKeepsTheOldFile)
{
    const QString dir = user.documents();
    ASSERT_TRUE(QDir(dir).mkpath("taken"));
    EXPECT_FALSE(files.writeFile("x", "taken", dir, true));
    ASSERT_EQ(dialogs.dialogs().size(), 1);
    EXPECT_TRUE(dialogs.dialogs().at(0).message.startsWith("[512] ")) << dialogs.dialogs().at(0).message.toStdString();
    EXPECT_TRUE(QFileInfo(dir + "/taken").isDir());
}

TEST_F(FileManagerTest, MissingFilesAreReportedOnlyWhereTheyShouldBe)
{
    const QString dir = user.documents();
    EXPECT_FALSE(files.readFile("nothing.dat", dir));
    EXPECT_FALSE(files.loadDataFromFileName("nothing.dat", QString()));
    EXPECT_FALSE(files.fileAttributes("nothing.dat", dir));  // silent
    EXPECT_TRUE(files.deleteFile("nothing.dat", dir, true));  // silent
    EXPECT_FALSE(files.deleteFile("nothing.dat", dir, false));
    EXPECT_FALSE(files.filesAtPath(dir + "/none", ""));

    ASSERT_EQ(dialogs.dialogs().size(), 4);
    const DialogMessage expected{ "Error Message", "Unable to locate file nothing.dat", "Dismiss" };
    EXPECT_EQ(dialogs.dialogs().at(0), expected);
    EXPECT_EQ(dialogs.dialogs().at(1), expected) << "one dialog per load, not a second for the missing bytes";
    const QString deleteMessage = dialogs.dialogs().at(2).message;
    EXPECT_TRUE(deleteMessage.startsWith("[4] ")) << deleteMessage.toStdString();
    EXPECT_TRUE(deleteMessage.contains(", reason: No such file or directory")) << deleteMessage.toStdString();
    EXPECT_TRUE(dialogs.dialogs().at(3).message.startsWith("[260] "));
}

TEST_F(FileManagerTest, ReadingAFolderIsAFileError)
{
    user.library();
    EXPECT_FALSE(files.readFile("Library", user.root.path()));
    ASSERT_EQ(dialogs.dialogs().size(), 1);
    EXPECT_TRUE(dialogs.dialogs().at(0).message.startsWith("[256] "));
}

TEST_F(FileManagerTest, AttributesDeleteAndListing)
{
    const QString dir = user.documents();
    writeBytes(dir + "/h-1.dat", "12345");
    writeBytes(dir + "/h-2.dat", "");
    writeBytes(dir + "/H-3.dat", "");
    writeBytes(dir + "/other", "");
    const QDateTime stamp = utc("2023-07-01T10:00:00Z");
    QFile f(dir + "/h-1.dat");
    ASSERT_TRUE(f.open(QIODevice::ReadWrite) && f.setFileTime(stamp, QFileDevice::FileModificationTime));
    f.close();

    const auto attributes = files.fileAttributes("h-1.dat", dir);
    ASSERT_TRUE(attributes);
    EXPECT_EQ(attributes->modificationDate, stamp);
    EXPECT_EQ(attributes->size, 5);

    QStringList listed = *files.filesAtPath(dir, "h-");
    listed.sort();
    EXPECT_EQ(listed, QStringList({ "h-1.dat", "h-2.dat" })) << "prefix is case-sensitive";
    EXPECT_EQ(files.filesAtPath(dir, "")->size(), 4);

    EXPECT_TRUE(files.deleteFile("h-1.dat", dir, false));
    EXPECT_FALSE(QFile::exists(dir + "/h-1.dat"));
    EXPECT_TRUE(dialogs.dialogs().isEmpty());
}

TEST_F(FileManagerTest, ArchivesRoundTripAndBadOnesRaiseTheirDialogs)
{
    auto m = makeMaterial("1005", "Ammonia, Anhydrous");
    m->npgIndex = 27;
    m->toxicInhalationHazard = "X";
    m->viewCount = 4;
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
    EXPECT_EQ(dialogs.dialogs().at(1).title, "Error Message");
    EXPECT_TRUE(dialogs.dialogs().at(1).message.startsWith("Unable to load data: "));
}

TEST_F(FileManagerTest, PropertyListWriterIsSilentAndLeavesNothingOnFailure)
{
    HistoryManager history;
    EXPECT_FALSE(history.serialize(QVariantList{ QVariant::fromValue(QPoint(1, 2)) }, "bad.dat"));
    EXPECT_FALSE(QFile::exists(user.library("bad.dat")));
    ASSERT_TRUE(history.serialize(QVariantList{ "a" }, "good.dat"));
    EXPECT_TRUE(readBytes(user.library("good.dat")).startsWith("bplist00"));
    EXPECT_EQ(modeOf(user.library("good.dat")), 0600u);
    EXPECT_TRUE(dialogs.dialogs().isEmpty());
}

TEST(DialogService, RecorderWinsOverPresenterAndNests)
{
    QStringList presented;
    DialogService::setPresenter([&](const QString& t, const QString& m, const QString& b) { presented << t + "|" + m + "|" + b; });
    DialogService::show("T", "one", "OK");
    {
        DialogRecorder outer;
        {
            DialogRecorder inner;
            DialogService::show("T", "two", "OK");
            EXPECT_EQ(inner.messages(), QStringList{ "two" });
        }
        DialogService::show("T", "three", "OK");
        EXPECT_EQ(outer.messages(), QStringList{ "three" });
    }
    DialogService::show("T", "four", "OK");
    DialogService::setPresenter({});
    EXPECT_EQ(presented, QStringList({ "T|one|OK", "T|four|OK" }));
}
