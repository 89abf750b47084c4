// qor-cli import-ecfr / import-npg on the official files, in-process.
#include "CliRun.h"
#include "../history/HistoryTestSupport.h"

#include "model/Sqlite.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace qor;

namespace {

const QString kOfficial = QStringLiteral(QOR_OFFICIAL_DIR);

using CliRun = test::CliResult;
using test::runCli;

QStringList column(const QString& db, const QString& sql)
{
    QStringList out;
    const Database handle = Database::openReadOnly(db);
    for (Statement st(handle, sql); st.step();)
        out << st.text(0);
    return out;
}

} // namespace

TEST(ImportCommands, EcfrAndPocketGuideIntoAFreshFolder)
{
    QTemporaryDir dir;
    const CliRun ecfr = runCli({ "import-ecfr", "--output", dir.path(), kOfficial + "/cfr49/ecfr-section-172.101.xml",
                           kOfficial + "/cfr49/ecfr-section-172.504.xml" });
    ASSERT_EQ(ecfr.code, 0) << ecfr.err.toStdString();
    const QString npgDb = dir.filePath(QStringLiteral("npg.db"));
    EXPECT_EQ(column(npgDb, "select non_bulk || '/' || bulk from hmt where un_id = '1089'"), QStringList{ "201/243" });
    // Sections without special provisions leave the provision pages alone.
    EXPECT_FALSE(QFile::exists(dir.filePath(QStringLiteral("A.html"))));

    // The row counts are the importer tests'; here, that they reach the database.
    const CliRun npg = runCli({ "import-npg", "--output", dir.path(), kOfficial + "/niosh-npg/npg-html-2015.tar.xz" });
    ASSERT_EQ(npg.code, 0) << npg.err.toStdString();
    EXPECT_EQ(column(npgDb, "select count(*) from npg_guides"), QStringList{ "677" });
    // The shipping rows are still there: an import replaces only its own tables.
    EXPECT_EQ(column(npgDb, "select count(*) from hmt"), QStringList{ "3002" });
}

TEST(ImportCommands, ProvisionsAndPackagingTextsBecomePages)
{
    QTemporaryDir dir;
    const QString provisions = dir.filePath(QStringLiteral("172.102.xml")), part173 = dir.filePath(QStringLiteral("173.203.xml"));
    test::writeBytes(provisions, "<DIV8 N=\"172.102\" TYPE=\"SECTION\"><HEAD>Special provisions.</HEAD><P>(a) General.</P>"
            "<P>TP2 The maximum degree of filling must not exceed the degree of filling prescribed.</P></DIV8>");
    test::writeBytes(part173, "<DIV8 N=\"173.203\" TYPE=\"SECTION\"><HEAD>§ 173.203 Non-bulk packagings for liquid hazardous materials in "
            "Packing Group III.</HEAD><P>(a) Authorized packagings.</P></DIV8>");
    const QString out = dir.filePath(QStringLiteral("pack"));
    ASSERT_EQ(runCli({ "import-ecfr", "--output", out, provisions, part173 }).code, 0);
    EXPECT_TRUE(test::readBytes(out + QStringLiteral("/TP.html")).contains("<a name=\"TP2\"></a>"));
    const QString cfr = out + QStringLiteral("/cfr49.db");
    EXPECT_EQ(column(cfr, "select distinct section_id from cfr_text"), QStringList{ "173.203" });
    EXPECT_EQ(column(out + QStringLiteral("/npg.db"), "select section_id || ' ' || title from hmt_sections"),
              QStringList{ "203 Non-bulk packagings for liquid hazardous materials in Packing Group III" });
}

TEST(ImportCommands, BadFilesWriteNothing)
{
    QTemporaryDir dir;
    const QString bad = dir.filePath(QStringLiteral("bad.xml"));
    test::writeBytes(bad, "<DIV8 N=\"173.1\" TYPE=\"SECTION\"><P>unclosed");
    const QString out = dir.filePath(QStringLiteral("pack"));
    // The good file comes first: it must not be written either.
    const CliRun r = runCli({ "import-ecfr", "--output", out, kOfficial + "/cfr49/ecfr-section-172.504.xml", bad });
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(r.err.contains(bad + QStringLiteral(": line "))) << r.err.toStdString();
    EXPECT_TRUE(QDir(out).isEmpty());
    EXPECT_EQ(runCli({ "import-npg", "--output", out, dir.path() }).code, 1);
    EXPECT_EQ(runCli({ "import-npg", "a", "b" }).code, 2);
}
