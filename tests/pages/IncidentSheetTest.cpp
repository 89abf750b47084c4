// The one-page incident sheet and qor-cli zone/sheet, on a fixture pack; the
// sheet's text is read back from the PDF.
#include "CliRun.h"
#include "PagesSupport.h"

#include "import/PdfText.h"
#include "model/QORModel.h"
#include "pages/IncidentSheet.h"

#include <QFile>
#include <QSettings>
#include <gtest/gtest.h>

using namespace qor;

namespace {

const char* kGuide =
    "<h1>GUIDE 124</h1><h2>GASES - TOXIC</h2>"
    "<div><h3>POTENTIAL HAZARDS</h3><h4>FIRE OR EXPLOSION</h4><ul><li>Will not burn but <b>supports</b> combustion.</li><li>Second point.</li></ul>"
    "<h4>HEALTH</h4><ul><li>TOXIC; may be fatal if inhaled.</li></ul></div>"
    "<h3>PUBLIC SAFETY</h3><ul><li>CALL the emergency response telephone number.</li></ul>"
    "<h4>EVACUATION</h4><p>Isolate the spill &amp; leak area.</p>";

class SheetTest : public ::testing::Test {
protected:
    SheetTest()
    {
        pack.setMaterials({ "Chlorine^2.3^124^1017^X^^", "Ammonia, anhydrous^2.3^125^1005^X^^" });
        pack.setGuides({ "124^Gases - Toxic and/or Corrosive - Oxidizing" });
        pack.writeFile("124.html", kGuide);
        pack.writeFile("pack.json",
                       R"J({"edition": "Fixture edition 7", "buildDate": "2024-01-01", "sample": false,
                           "sources": ["Fixture guidebook, Table 1 (test source line)"], "files": {}})J");
        pack.sql("npg.db", "insert into iso_distances values ('1017',NULL,'100','300','0.3','0.2','1.1','0.7','','','','','','');"
                           "insert into dot_classes values ('1017','2.3');");
        QSettings().remove(ProtectiveZone::kSavedWindKey);
        QSettings().remove(ProtectiveZone::kSavedUnitsKey);
    }
    ~SheetTest() override { delete QORModel::sharedInstance(false); }

    int run(const QStringList& args)
    {
        const test::CliResult r = test::runCli(args);
        output = r.out;
        errors = r.err;
        return r.code;
    }
    // The words of the sheet's one page; its width in points goes to width.
    QString pdfText(const QString& path, double* width = nullptr)
    {
        import::PdfText pdf;
        QString error;
        EXPECT_TRUE(pdf.open(path, &error)) << error.toStdString();
        EXPECT_EQ(pdf.pageCount(), 1);
        if (width)
            *width = pdf.pageSize(0).width();
        QStringList words;
        for (const auto& w : pdf.words(0))
            words << w.text;
        return words.join(' ');
    }

    test::UserDataDir data;
    test::FixturePack pack;
    QTemporaryDir out;
    QString output, errors;
};

} // namespace

TEST_F(SheetTest, Un1017SheetHoldsGuideDistancesAndSources)
{
    const QString path = out.filePath("1017.pdf");
    ASSERT_EQ(run({ "sheet", "1017", "--name", "Engine 7", "--paper", "letter", "-o", path }), cli::Found) << errors.toStdString();
    double width = 0;
    const QString text = pdfText(path, &width);
    EXPECT_NEAR(width, 612, 1) << "letter";
    // Both unit systems, day and night; the guide's headings with their first
    // points only; where it comes from.
    for (const char* expected : { "Chlorine", "Guide 124", "Engine 7", "isolate 100 m (300 ft)", "by day 0.3 km (0.2 mi)",
                                  "by night 1.1 km (0.7 mi)", "Will not burn but supports combustion.",
                                  "Source: Fixture guidebook, Table 1 (test source line)" })
        EXPECT_TRUE(text.contains(expected)) << expected << " in " << text.toStdString();
    EXPECT_FALSE(text.contains("Second point"));
}

TEST_F(SheetTest, TimeMadeCarriesItsOffset)
{
    SheetOptions options;
    options.made = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::OffsetFromUTC, -5 * 3600);
    delete QORModel::sharedInstance(false);
    test::ModelFixture model;
    const QString path = out.filePath("t.pdf");
    ASSERT_TRUE(IncidentSheet::write(path, *QORModel::sharedInstance(), *QORModel::sharedInstance()->materials().first(), options, nullptr));
    EXPECT_TRUE(pdfText(path).contains("2026-03-04T05:06:07-05:00"));
}

TEST_F(SheetTest, MaterialWithoutDistancesSaysSo)
{
    const QString path = out.filePath("1005.pdf");
    ASSERT_EQ(run({ "sheet", "1005", "--paper", "a4", "-o", path }), cli::Found);
    double width = 0;
    EXPECT_TRUE(pdfText(path, &width).contains("not in this data pack"));
    EXPECT_NEAR(width, 595, 1) << "A4";
}

TEST_F(SheetTest, BadArgumentsAndUnwritableFiles)
{
    EXPECT_EQ(run({ "sheet", "1017" }), cli::UsageError);
    EXPECT_EQ(run({ "sheet", "9999", "-o", out.filePath("x.pdf") }), cli::NothingFound);
    EXPECT_EQ(run({ "sheet", "1017", "-o", "/nonexistent-dir/x.pdf" }), cli::UsageError);
    EXPECT_TRUE(errors.contains("/nonexistent-dir/x.pdf"));
    EXPECT_FALSE(QFile::exists(out.filePath("x.pdf")));

    EXPECT_EQ(run({ "zone", "1017", "--wind", "400", "--svg", out.filePath("z.svg") }), cli::UsageError);
    EXPECT_EQ(run({ "zone", "1017" }), cli::UsageError) << "no output named";
    EXPECT_FALSE(QFile::exists(out.filePath("z.svg")));
}

TEST_F(SheetTest, ZoneCommandWritesTheFigureInTheChosenUnits)
{
    const QString svg = out.filePath("z.svg"), png = out.filePath("z.png");
    ASSERT_EQ(run({ "zone", "1017", "--night", "--units", "ft", "--wind", "90", "--svg", svg, "--png", png, "--size", "200" }), cli::Found);
    EXPECT_TRUE(output.contains("isolate 300 ft, protect downwind 0.7 mi"));
    QFile f(svg);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(f.readAll());
    EXPECT_TRUE(text.contains("Wind from 90"));
    EXPECT_EQ(QImage(png).width(), 200);
    f.close();

    // Without --units and --wind the remembered choices apply.
    QSettings().setValue(ProtectiveZone::kSavedUnitsKey, 1);
    ProtectiveZone::saveWindFrom(-90);
    ASSERT_EQ(run({ "zone", "1017", "--svg", svg }), cli::Found);
    EXPECT_TRUE(output.contains("isolate 100 m, protect downwind 0.3 km"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromUtf8(f.readAll()).contains("Wind from 270"));

    // Large spills of chlorine come from the container table (Table 3).
    EXPECT_EQ(run({ "zone", "1017", "--large", "--svg", svg }), cli::Found) << errors.toStdString();
}

TEST(IncidentSheet, GuidePointsTakeTheFirstItemAfterEachHeading)
{
    const QList<GuidePoint> points = IncidentSheet::guidePoints(kGuide);
    ASSERT_EQ(points.size(), 5);
    EXPECT_TRUE(points[0].firstPoint.isEmpty()) << "a section heading directly followed by a heading";
    EXPECT_EQ(points[1].firstPoint, "Will not burn but supports combustion.");
    EXPECT_EQ(points[4].firstPoint, "Isolate the spill & leak area.") << "a paragraph counts as a point";
    EXPECT_TRUE(IncidentSheet::guidePoints("<h4>unterminated <li>x").isEmpty());
}

TEST(IncidentSheet, PaperFollowsTheLocale)
{
    EXPECT_EQ(IncidentSheet::pageSizeForLocale(QLocale(QLocale::English, QLocale::UnitedStates)), QPageSize::Letter);
    EXPECT_EQ(IncidentSheet::pageSizeForLocale(QLocale(QLocale::French, QLocale::Canada)), QPageSize::Letter);
    EXPECT_EQ(IncidentSheet::pageSizeForLocale(QLocale(QLocale::German, QLocale::Germany)), QPageSize::A4);
}

TEST(IncidentSheet, DistanceLinesCoverConditionsAndContainers)
{
    IsolationDistances iso;
    iso.insert("When Spilled in Water", test::record("When Spilled in Water", { "60", "200", "0.4", "0.2", "1.4", "0.9" }));
    ProtectiveZone::ContainerRows rows;
    rows.insert("Rail tank car", "1000,3000,9.6,6.0,6.3,3.9,5.1,3.2,11+,7+,8.9,5.6,6.5,4.1");
    rows.insert("Short", "1,2");
    const QStringList lines = IncidentSheet::distanceLines(iso, rows);
    ASSERT_EQ(lines.size(), 2) << "no large-spill line without figures; the short row is skipped";
    EXPECT_TRUE(lines[0].startsWith("When Spilled In Water, Small spill: isolate 60 m (200 ft)"));
    EXPECT_TRUE(lines[1].contains("Rail tank car: isolate 1000 m (3000 ft)"));
    EXPECT_TRUE(lines[1].contains("low wind 11+ km (7+ mi)"));
}
