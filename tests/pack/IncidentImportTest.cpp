// The incident importer on the real report files kept in the pack sources.
#include "CliRun.h"
#include "FixturePack.h"
#include "IncidentImport.h"
#include "../history/HistoryTestSupport.h"

#include "model/QORModel.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace qor::test {
namespace {

QStringList realReportFiles()
{
    QDir dir(QStringLiteral(QOR_SOURCE_DIR "/resources/src/incidents"));
    QStringList files;
    for (const QString& name : dir.entryList({ QStringLiteral("*.csv") }, QDir::Files, QDir::Name))
        files << dir.filePath(name);
    return files;
}

QMap<QString, int> countsByUnId(const incidents::ImportReport& report)
{
    QMap<QString, int> counts;
    for (const auto& inc : report.incidents)
        ++counts[inc.unId];
    return counts;
}

TEST(IncidentImport, RealFilesTwelveMonths)
{
    const QStringList files = realReportFiles();
    ASSERT_EQ(files.size(), 12);
    QString error;
    const auto report = incidents::readIncidentReports(files, 12, &error);
    ASSERT_TRUE(report) << error.toStdString();
    EXPECT_EQ(report->rows, 92);
    EXPECT_EQ(report->withoutUnId, 1);  // an air report without an identification number
    EXPECT_EQ(report->incidents.size(), 90);
    const auto counts = countsByUnId(*report);
    EXPECT_EQ(counts.size(), 40);
    EXPECT_EQ(counts.value(QStringLiteral("1993")), 4);  // "NA1993" counts under 1993
    // X-2024100971 spans two rows of UN3149 and counts once.
    EXPECT_EQ(counts.value(QStringLiteral("3149")), 3);
    EXPECT_EQ(report->mergedRows, 1);

    // The one serious incident with a bulk release, an evacuation and a major artery closure.
    const auto serious = std::find_if(report->incidents.begin(), report->incidents.end(),
                                      [](const incidents::Incident& i) { return i.reportNumber == QLatin1String("X-2024110526"); });
    ASSERT_NE(serious, report->incidents.end());
    EXPECT_EQ(serious->unId, QStringLiteral("1789"));
    EXPECT_EQ(serious->mode, QStringLiteral("Rail"));
    EXPECT_EQ(serious->flags, (std::array<bool, 7>{ true, true, true, false, true, false, false }));
}

TEST(IncidentImport, WindowEndsAtTheNewestIncident)
{
    QString error;
    const auto report = incidents::readIncidentReports(realReportFiles(), 3, &error);
    ASSERT_TRUE(report) << error.toStdString();
    EXPECT_EQ(report->cutoff, QDate(2025, 4, 21));  // three months before the newest, 2025-07-21
    EXPECT_EQ(report->outsideWindow, 68);
    const auto counts = countsByUnId(*report);
    EXPECT_EQ(counts.value(QStringLiteral("1760")), 1);  // 2025-04-25 is in, 2025-02-25 is not
    EXPECT_EQ(counts.value(QStringLiteral("3264")), 2);  // 2025-04-14 and 2025-04-17 are out
    for (const auto& inc : report->incidents)
        EXPECT_GT(inc.date, QStringLiteral("2025-04-21"));
}

class ImportFiles : public ::testing::Test {
protected:
    QString write(const QString& name, const QByteArray& bytes)
    {
        QFile f(m_dir.filePath(name));
        f.open(QIODevice::WriteOnly);
        f.write(bytes);
        return f.fileName();
    }
    static QByteArray header()
    {
        return "Report Number,Report Number,Date Of Incident,Mode Of Transportation,Identification Number,Serious Incident Ind,"
               "Hmis Serious Bulk Release,Hmis Serious Evacuations,Hmis Serious Fatality,Hmis Serious Major Artery,"
               "Hmis Serious Marine Pollutant,Hmis Serious Radioactive\n";
    }
    QTemporaryDir m_dir;
};

TEST_F(ImportFiles, ReportsSpanningRowsAndMaterials)
{
    // One report of two materials counts for each; the rows of one material merge their flags.
    const QString file = write(QStringLiteral("m.csv"), header()
        + "R-1,\"<a href=\"\"x\"\">R-1</a>\",2025-01-05,Highway,UN1203,No,No,No,No,No,No,No\r\n"
          "R-1,link,2025-01-05,Highway,UN1203,Yes,No,\"Yes\",No,No,No,No\r\n"
          "R-1,link,2025-01-05,Highway,NA1993,No,No,No,No,No,No,No\r\n");
    QString error;
    const auto report = incidents::readIncidentReports({ file }, 12, &error);
    ASSERT_TRUE(report) << error.toStdString();
    ASSERT_EQ(report->incidents.size(), 2);
    const auto& gasoline = report->incidents.at(0).unId == QLatin1String("1203") ? report->incidents.at(0) : report->incidents.at(1);
    EXPECT_EQ(gasoline.flags, (std::array<bool, 7>{ true, false, true, false, false, false, false }));
    EXPECT_EQ(report->mergedRows, 1);
}

TEST_F(ImportFiles, WrongFormatStopsAndWritesNothing)
{
    const QString good = realReportFiles().first();
    const QString output = m_dir.filePath(QStringLiteral("hazmat_incidents.dat"));
    write(QStringLiteral("hazmat_incidents.dat"), "earlier file");
    const struct { const char* name; QByteArray bytes; const char* message; } cases[] = {
        { "names.csv", "prefix,id_number,description\nUN,1005,Ammonia\n", "names.csv:1: not an incident report file: no column \"Report Number\"" },
        { "short.csv", header() + "R-1,l,2025-01-05,Highway,UN1203,No,No\n", "short.csv:2: 7 fields, the header has 12" },
        { "date.csv", header() + "R-1,l,05/01/2025,Highway,UN1203,No,No,No,No,No,No,No\n", "date.csv:2: unreadable incident date" },
        { "flag.csv", header() + "R-1,l,2025-01-05,Highway,UN1203,Maybe,No,No,No,No,No,No\n", "flag.csv:2: column \"Serious Incident Ind\" holds \"Maybe\"" },
        { "quote.csv", header() + "R-1,\"open,2025-01-05\n", "quote.csv:2: a quoted field is never closed" },
        { "empty.csv", "", "empty.csv: empty file" },
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const CliResult r = runCli({ "import-incidents", "--output", output, good, write(QString::fromLatin1(c.name), c.bytes) });
        EXPECT_EQ(r.code, 1);
        EXPECT_TRUE(r.err.contains(QLatin1String(c.message))) << r.err.toStdString();
        EXPECT_EQ(readBytes(output), QByteArray("earlier file"));
    }
    EXPECT_EQ(runCli({ "import-incidents", "--months", "0", good }).code, 2);
}

TEST_F(ImportFiles, TheModelCountsTheImportedDatabase)
{
    FixturePack pack;
    pack.setMaterials({ "ACETONE^3^127^1090^^^", "CORROSIVE LIQUIDS, BASIC, INORGANIC, N.O.S.^8^154^3266^^^" });
    const CliResult r = runCli(QStringList{ "--json", "import-incidents", "--output", pack.path(QStringLiteral("hazmat_incidents.dat")) }
                               + realReportFiles());
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QJsonObject o = r.json().object();
    EXPECT_EQ(o.value(QStringLiteral("countsByUnId")).toObject().value(QStringLiteral("1090")).toInt(), 1);

    ModelFixture model;
    EXPECT_EQ(QORModel::sharedInstance()->materials().at(1)->numIncidents(), 17);
}

} // namespace
} // namespace qor::test
