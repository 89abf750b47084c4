// What the user stores survives failed writes and crashes; what the pack
// holds cannot be written; the user's files are the owner's alone.
#include "FixturePack.h"
#include "../history/HistoryTestSupport.h"
#include "../pages/PagesSupport.h"

#include "history/HistoryManager.h"
#include "history/PropertyList.h"
#include "model/QORModel.h"
#include "model/Resources.h"
#include "pages/PdfImages.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <csignal>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace qor;
using qor::test::FixturePack;
using qor::test::ModelFixture;

namespace {

using qor::test::readBytes;
using qor::test::makeMaterial;

struct UserRoot : qor::test::UserFolder {
    QString historyFile() const { return root.path() + "/Library/viewedHistory.dat"; }
};

QStringList savedIds(const QString& file)
{
    QStringList ids;
    for (const QVariant& v : plist::parse(readBytes(file)).value_or(QVariant()).toList())
        ids << v.toMap().value("unId").toString();
    ids.sort();
    return ids;
}

// Files may grow to `limit` bytes in this scope: a write past it fails with
// EFBIG halfway through, as on a full disk. Works for root too, unlike a
// read-only folder.
struct FileSizeLimit {
    rlimit old{};
    void (*oldHandler)(int);
    explicit FileSizeLimit(rlim_t limit)
    {
        getrlimit(RLIMIT_FSIZE, &old);
        oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit l = old;
        l.rlim_cur = limit;
        setrlimit(RLIMIT_FSIZE, &l);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &old);
        std::signal(SIGXFSZ, oldHandler);
    }
};

mode_t modeOf(const QString& path)
{
    struct stat st {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_mode & 07777 : 0;
}

QByteArray digestOfFolder(const QString& dir)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QDirIterator it(dir, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    QStringList files;
    while (it.hasNext())
        files << it.next();
    files.sort();
    for (const QString& f : files) {
        hash.addData(f.toUtf8());
        hash.addData(readBytes(f));
        hash.addData(QByteArray::number(QFileInfo(f).lastModified().toMSecsSinceEpoch()));
    }
    return hash.result();
}

} // namespace

TEST(NothingLost, AHistoryWriteThatFailsHalfwayLeavesThePreviousFile)
{
    // A few entries fit in a write buffer and fail only when flushed; many
    // fail on the write itself.
    for (const int added : { 3, 400 }) {
        SCOPED_TRACE(added);
        UserRoot user;
        HistoryManager manager;
        manager.loadHistory();
        manager.addToHistory(makeMaterial("1005", "Ammonia"));
        ASSERT_TRUE(manager.saveHistory());
        const QByteArray before = readBytes(user.historyFile());

        for (int i = 0; i < added; ++i)
            manager.addToHistory(makeMaterial(QString::number(2000 + i), QString(40, QLatin1Char('n'))));
        {
            FileSizeLimit limit(before.size() / 2);
            EXPECT_FALSE(manager.saveHistory());
        }
        EXPECT_EQ(readBytes(user.historyFile()), before);
        EXPECT_EQ(QDir(user.root.path() + "/Library").entryList(QDir::Files | QDir::Hidden),
                  QStringList{ "viewedHistory.dat" })
            << "the half-written file is not left behind";

        ASSERT_TRUE(manager.saveHistory()) << "room again: the next save goes through";
        EXPECT_EQ(savedIds(user.historyFile()).size(), added + 1);
    }
}

// The app saves whenever it is hidden (the model's saveData); a crash after
// that loses only the views made since.
TEST(NothingLostDeathTest, ViewsSavedWhenHiddenSurviveACrash)
{
    // Forked without re-running the test, so the child writes into this
    // test's folders.
    GTEST_FLAG_SET(death_test_style, "fast");
    FixturePack pack;
    pack.setMaterials({ "AMMONIA^2.3^125^1005^X^^", "CHLORINE^2.3^124^1017^X^^" });
    UserRoot user;
    EXPECT_DEATH(
        {
            ModelFixture fixture;
            auto* history = HistoryManager::sharedInstance();
            history->addToHistory(QORModel::sharedInstance()->materials().at(0));
            QORModel::sharedInstance()->saveData();  // hidden
            history->addToHistory(QORModel::sharedInstance()->materials().at(1));
            std::abort();
        },
        "");
    // What the next start reads from it is HistoryTest's.
    EXPECT_EQ(savedIds(user.historyFile()), QStringList{ "1005" });
}

TEST(NothingLost, AnUnreadableHistoryIsSetAsideBeforeAnythingIsWritten)
{
    UserRoot user;
    const QByteArray cut = plist::serialize(QVariantList{ QVariantMap{ { "unId", "1005" } } })->chopped(3);
    qor::test::writeBytes(user.library("viewedHistory.dat"), cut);

    HistoryManager manager;
    manager.loadHistory();
    manager.addToHistory(makeMaterial("1017", "Chlorine"));
    {
        // Setting aside is a rename: it needs no room, and happens even when
        // the new history cannot be written.
        FileSizeLimit limit(0);
        EXPECT_FALSE(manager.saveHistory());
    }
    EXPECT_EQ(readBytes(user.historyFile() + ".unreadable"), cut);
    ASSERT_TRUE(manager.saveHistory());
    EXPECT_EQ(readBytes(user.historyFile() + ".unreadable"), cut);
    EXPECT_EQ(savedIds(user.historyFile()), QStringList{ "1017" });
}

TEST(ReadOnlyPack, TheDatabasesRefuseWritesAndThePackIsUntouched)
{
    FixturePack pack;
    pack.setMaterials({ "AMMONIA^2.3^125^1005^X^^" });
    pack.sql("npg.db", "insert into iso_distances values ('1005','','30','100','0.1','0.1','0.2','0.1','','','','','','');");
    const QByteArray before = digestOfFolder(pack.dir());
    {
        UserRoot user;
        ModelFixture fixture;
        QORModel& model = *QORModel::sharedInstance();
        for (const Database* db : { &model.incidentsDatabase(), &model.chemistryDatabase(), &model.regulationsDatabase() }) {
            SCOPED_TRACE(db->path().toStdString());
            EXPECT_TRUE(sqlite3_db_readonly(db->handle(), "main"));
            char* err = nullptr;
            EXPECT_NE(sqlite3_exec(db->handle(), "create table intruder(x); pragma user_version = 7;", nullptr, nullptr, &err), SQLITE_OK);
            sqlite3_free(err);
        }
        Material& m = *model.materials().first();
        model.isolationDistancesForMaterial(m);
        model.incidentsSummaryForMaterial(m);
        model.getHmtEntriesForMaterial(m);
        model.saveData();
        EXPECT_TRUE(QFile::exists(user.historyFile())) << "user data goes to the user's folder";
    }
    EXPECT_EQ(digestOfFolder(pack.dir()), before) << "nothing in the pack changed, not even a journal";
}

TEST(OwnerOnly, UserFoldersAndFilesAreTheOwnersAloneWhateverTheUmask)
{
    const mode_t oldMask = ::umask(0);
    UserRoot user;
    FixturePack pack;
    test::writePdf(pack.path("box.pdf"), { QSizeF(40, 20) });
    HistoryManager manager;
    manager.loadHistory();
    manager.addToHistory(makeMaterial("1005", "Ammonia"));
    ASSERT_TRUE(manager.saveHistory());
    ASSERT_FALSE(ImageCreations::imageWithPDFURL(QUrl::fromLocalFile(pack.path("box.pdf")), QSizeF(40, 20)).isNull());
    ::umask(oldMask);

    QStringList checked;
    QDirIterator it(user.root.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const mode_t want = QFileInfo(path).isDir() ? 0700 : 0600;
        EXPECT_EQ(modeOf(path), want) << path.toStdString();
        checked << QDir(user.root.path()).relativeFilePath(path);
    }
    EXPECT_TRUE(checked.contains("Library/viewedHistory.dat"));
    EXPECT_TRUE(checked.contains("Caches/__PDF_CACHE__")) << checked.join(' ').toStdString();
    EXPECT_EQ(checked.filter(".png").size(), 1);
}
