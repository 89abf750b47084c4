// qor-cli on the guidebook: the bundled pack's UN1005, and import-erg on the
// official pages (all or nothing).
#include "Cli.h"

#include "model/QORModel.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace qor;

namespace {

struct CliRun {
    int code;
    QString out, err;
};

CliRun runCli(const QStringList& args)
{
    delete QORModel::sharedInstance(false);
    QString out, err;
    QTextStream o(&out), e(&err);
    const int code = cli::run(args, o, e);
    o.flush();
    e.flush();
    delete QORModel::sharedInstance(false);
    return { code, out, err };
}

QString official(const char* name)
{
    return QStringLiteral(QOR_SOURCE_DIR "/resources/official/erg2024/") + QLatin1String(name);
}

QString readAll(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

} // namespace

TEST(ErgCli, BundledUn1005ShowsTheGuidebooksFigures)
{
    const QString pack = qEnvironmentVariable("QOR_PACK", QStringLiteral(QOR_DEFAULT_RESOURCES));
    const CliRun r = runCli({ QStringLiteral("--resources"), pack, QStringLiteral("material"), QStringLiteral("1005") });
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.contains(QStringLiteral("Ammonia, Anhydrous  UN1005\n  Guide 125"))) << r.out.toStdString();
    EXPECT_TRUE(r.out.contains(QStringLiteral("Small spill: isolate 30 m / 100 ft; protect day 0.1 km / 0.1 mi; night 0.2 km / 0.1 mi")))
        << r.out.toStdString();
    // Both names of UN1005 show the four containers of Table 3.
    EXPECT_EQ(r.out.count(QStringLiteral("Large spill, ")), 8) << r.out.toStdString();
    EXPECT_TRUE(r.out.contains(QStringLiteral("Large spill, Multiple small cylinders: isolate 30 m / 100 ft; day low/moderate/high wind "
                                              "0.3 km / 0.2 mi, 0.2 km / 0.1 mi, 0.1 km / 0.1 mi")))
        << r.out.toStdString();
}

TEST(ErgCli, ImportWritesEveryTableOrNothing)
{
    QTemporaryDir dir;
    const QString out = dir.filePath(QStringLiteral("erg"));
    const QStringList pdfs = { official("ERG_Material_Yellow_Section.pdf"), official("TIH_Table1.pdf"), official("TIH_Table2.pdf"),
                               official("TIH_Table3.pdf") };

    // A missing file and a file with none of the sections stop the import before anything is written.
    CliRun r = runCli(QStringList{ QStringLiteral("import-erg") } + pdfs + QStringList{ official("missing.pdf"), QStringLiteral("--output"), out });
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
    EXPECT_TRUE(r.out.startsWith(QStringLiteral("Index: 2771 rows, 522 highlighted\nTable 1: 537 rows, 108 for spills in water\n"
                                                "Table 2: 108 rows\nTable 3: 22 rows\n")))
        << r.out.toStdString();
    const QStringList materials = readAll(QDir(out).filePath(QStringLiteral("chemicals_2024.csv"))).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_EQ(materials.size(), 2771);
    EXPECT_EQ(readAll(QDir(out).filePath(QStringLiteral("iso_distances.sql"))).count(QStringLiteral("insert into iso_distances")), 537);
    EXPECT_EQ(readAll(QDir(out).filePath(QStringLiteral("large_spill_distances.sql"))).count(QStringLiteral("insert into")), 26);
    const QString table1 = readAll(QDir(out).filePath(QStringLiteral("table1.csv")));
    EXPECT_TRUE(table1.contains(QStringLiteral("\n1746,144,Bromine trifluoride,When Spilled in Water,30,100,0.1,0.1,0.3,0.2,100,300,0.8,0.5,2.8,1.8\n")));
    EXPECT_TRUE(table1.contains(QStringLiteral("\n1005,125,\"Ammonia, anhydrous\",,30,100,0.1,0.1,0.2,0.1,,,,,,\n")));
}
