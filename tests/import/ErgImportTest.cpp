// The guidebook importer on the official pages: whole-table facts, rows read
// by value against the printed pages, and clear errors on bad input.
#include "ImportTestSupport.h"
#include "../history/HistoryTestSupport.h"

#include "import/ErgImport.h"

#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::import;
using qor::test::ergPdf;

namespace {

// The yellow index and Tables 1 to 3, read once for all tests.
const ErgTables& tables()
{
    static const ErgTables t = [] {
        QString error;
        auto read = ErgImport::read({ ergPdf("ERG_Material_Yellow_Section.pdf"), ergPdf("TIH_Table1.pdf"), ergPdf("TIH_Table2.pdf"),
                                      ergPdf("TIH_Table3.pdf") },
                                    &error);
        EXPECT_TRUE(read) << error.toStdString();
        return read.value_or(ErgTables{});
    }();
    return t;
}

QList<ErgTable1Row> table1Rows(const QString& id)
{
    QList<ErgTable1Row> out;
    for (const ErgTable1Row& r : tables().table1)
        if (r.id == id)
            out << r;
    return out;
}

} // namespace

TEST(ErgImport, WholeTablesHaveTheGuidebooksCounts)
{
    QSet<QString> ids;
    int highlighted = 0;
    for (const ErgIndexRow& r : tables().index) {
        ids.insert(r.id);
        highlighted += r.highlighted;
    }
    EXPECT_EQ(tables().index.size(), 2771);
    EXPECT_EQ(ids.size() - 1, 1983);  // less the explosives' dash
    EXPECT_EQ(highlighted, 522);

    QSet<QString> t1Ids, t1Pairs;
    int water = 0;
    for (const ErgTable1Row& r : tables().table1) {
        t1Ids.insert(r.id);
        t1Pairs.insert(r.id + QLatin1Char('^') + r.name);
        water += r.condition == ErgImport::kWater;
    }
    EXPECT_EQ(tables().table1.size(), 537);
    EXPECT_EQ(t1Ids.size(), 272);
    EXPECT_EQ(water, 108);
    EXPECT_EQ(t1Pairs.size(), 522);
    EXPECT_EQ(tables().table2.size() + tables().table3.size(), 108 + 22);
    // The green fill read from the drawn page names exactly Table 1's materials.
    EXPECT_EQ(ErgImport::highlightMismatches(tables()), QStringList());
}

TEST(ErgImport, Table1RowsByValue)
{
    // Two names of one group share the figures; Table 3 gives ammonia's large spill.
    const auto ammonia = table1Rows(QStringLiteral("1005"));
    ASSERT_EQ(ammonia.size(), 2);
    EXPECT_EQ(ammonia[1].name, QStringLiteral("Anhydrous ammonia"));
    EXPECT_EQ(ammonia[1].small.values(), QStringList({ "30", "100", "0.1", "0.1", "0.2", "0.1" }));
    EXPECT_FALSE(ammonia[1].large);

    const auto phosgene = table1Rows(QStringLiteral("1076"));
    ASSERT_EQ(phosgene.size(), 1);
    EXPECT_EQ(phosgene[0].small.values(), QStringList({ "100", "300", "0.6", "0.4", "2.5", "1.6" }));
    ASSERT_TRUE(phosgene[0].large);
    EXPECT_EQ(phosgene[0].large->values(), QStringList({ "500", "1500", "3.0", "1.9", "9.5", "5.9" }));

    // Land before water, as printed; the suffix becomes the condition.
    const auto bromine = table1Rows(QStringLiteral("1746"));
    ASSERT_EQ(bromine.size(), 2);
    EXPECT_EQ(bromine[0].condition, ErgImport::kLand);
    EXPECT_EQ(bromine[1].condition, ErgImport::kWater);
    EXPECT_EQ(bromine[1].small.values(), QStringList({ "30", "100", "0.1", "0.1", "0.3", "0.2" }));
    EXPECT_EQ(bromine[1].large->values(), QStringList({ "100", "300", "0.8", "0.5", "2.8", "1.8" }));
}

TEST(ErgImport, Table1GroupsWrappedNamesAndOpenEndedFigures)
{
    // The figures sit beside the second synonym's first line; the group's
    // rules give them to both.
    const auto r1113 = table1Rows(QStringLiteral("1082"));
    ASSERT_EQ(r1113.size(), 2);
    EXPECT_EQ(r1113[1].name, QStringLiteral("Trifluorochloroethylene, stabilized"));
    EXPECT_EQ(r1113[0].small.values(), r1113[1].small.values());
    ASSERT_TRUE(r1113[0].large);
    EXPECT_EQ(r1113[0].large->nightMi, QStringLiteral("0.5"));

    const auto nickel = table1Rows(QStringLiteral("1259"));
    ASSERT_EQ(nickel.size(), 1);
    ASSERT_TRUE(nickel[0].large);
    EXPECT_EQ(nickel[0].large->dayKm, QStringLiteral("11.0+"));
    EXPECT_EQ(nickel[0].large->nightMi, QStringLiteral("7.0+"));
}

TEST(ErgImport, IndexRowsJoinWrappedNamesAndKeepThePolymerizationMark)
{
    auto find = [&](const QString& id, const QString& name) -> const ErgIndexRow* {
        for (const ErgIndexRow& r : tables().index)
            if (r.id == id && r.name == name)
                return &r;
        return nullptr;
    };
    const ErgIndexRow* butadienes = find(QStringLiteral("1010"), QStringLiteral("Butadienes and hydrocarbon mixture, stabilized"));
    ASSERT_TRUE(butadienes);
    EXPECT_EQ(butadienes->guide, QStringLiteral("116P"));
    EXPECT_FALSE(butadienes->highlighted);
    EXPECT_TRUE(find(QStringLiteral("1005"), QStringLiteral("Ammonia, anhydrous"))->highlighted);
}

TEST(ErgImport, Tables2And3ByValue)
{
    QHash<QString, QStringList> gases;
    for (const ErgTable2Row& r : tables().table2)
        gases.insert(r.id + QLatin1Char(' ') + r.name, r.gases);
    EXPECT_EQ(gases.value(QStringLiteral("1384 Sodium dithionite")), (QStringList{ "H2S", "SO2" }));
    EXPECT_EQ(gases.value(QStringLiteral("1432 Sodium phosphide")), (QStringList{ "PH3" }));

    const ErgTable3Row* tonSulfur = nullptr;
    const ErgTable3Row* hclRail = nullptr;
    for (const ErgTable3Row& r : tables().table3) {
        if (r.ids == QStringList{ "1079" } && r.container == QLatin1String("Multiple ton cylinders"))
            tonSulfur = &r;
        if (r.ids == QStringList({ "1050", "2186" }) && r.container == QLatin1String("Rail tank car"))
            hclRail = &r;
    }
    ASSERT_TRUE(tonSulfur);
    EXPECT_EQ(tonSulfur->values, (QStringList{ "500", "1500", "5.2", "3.3", "2.2", "1.4", "1.7", "1.1", "7.4", "4.3", "4.0", "2.5", "2.7", "1.7" }));
    ASSERT_TRUE(hclRail);
    EXPECT_EQ(hclRail->values.first(), QStringLiteral("500"));
}

TEST(ErgImport, IsoConditionsKeepEveryNamesOwnFigures)
{
    const QList<ErgTable1Row>& rows = tables().table1;
    const QStringList conditions = isoConditions(rows);
    ASSERT_EQ(conditions.size(), rows.size());
    // The app keeps one record per ID and condition: rows that meet in one
    // record must print the same figures, or a name would show another's.
    QHash<QString, QStringList> figures;
    QSet<QString> told;
    auto figuresOf = [](const ErgTable1Row& r) { return r.small.values() + (r.large ? r.large->values() : QStringList()); };
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QString key = rows[i].id + QLatin1Char('^') + conditions[i];
        if (figures.contains(key))
            EXPECT_EQ(figures.value(key), figuresOf(rows[i])) << key.toStdString();
        figures.insert(key, figuresOf(rows[i]));
        if (conditions[i] != rows[i].condition)
            told.insert(rows[i].id);
    }
    const QStringList toldIds = [&] { QStringList l(told.begin(), told.end()); l.sort(); return l; }();
    EXPECT_EQ(toldIds, QStringList({ "1744", "1953", "1955", "2845", "2927", "3160", "3162", "3303", "3304", "3305", "3306",
                                     "3307", "3308", "3309", "3310", "3355" }));

    auto record = [&](const QString& id, const QString& condition) -> const ErgTable1Row* {
        for (qsizetype i = 0; i < rows.size(); ++i)
            if (rows[i].id == id && conditions[i] == condition)
                return &rows[i];
        return nullptr;
    };
    // UN1953 by value against the printed page: zone A is five times zone D's isolation.
    const ErgTable1Row* zoneA = record("1953", "Inhalation Hazard Zone A");
    ASSERT_TRUE(zoneA);
    EXPECT_EQ(zoneA->small.values(), QStringList({ "150", "500", "1.0", "0.6", "3.9", "2.4" }));
    ASSERT_TRUE(zoneA->large);
    EXPECT_EQ(zoneA->large->values(), QStringList({ "1000", "3000", "6.2", "3.9", "10.5", "6.5" }));
    // A name without a zone is its own condition.
    EXPECT_TRUE(record("2845", "Methyl phosphonous dichloride"));
    EXPECT_TRUE(record("1744", "Bromine"));
    EXPECT_TRUE(record("1744", "Inhalation Hazard Zone B"));

    // Names sharing their figures keep one record, spill conditions as they were.
    EXPECT_TRUE(record("1005", QString())) << "two names of ammonia, one record";
    EXPECT_FALSE(record("1005", "Anhydrous ammonia"));
    EXPECT_TRUE(record("1746", ErgImport::kWater));
    EXPECT_TRUE(isoDistancesSql(tables()).contains(QStringLiteral("('1953','Inhalation Hazard Zone A','150','500',")));
}

TEST(ErgIsoConditions, ASpillConditionFollowsTheNameThatTellsRowsApart)
{
    const ErgDistances a{ "30", "100", "0.1", "0.1", "0.2", "0.1" }, b{ "60", "200", "0.3", "0.2", "0.9", "0.6" };
    const QList<ErgTable1Row> rows = {
        { "9999", "155", "Gas X", ErgImport::kLand, a, std::nullopt },
        { "9999", "155", "Gas X", ErgImport::kWater, a, std::nullopt },
        { "9999", "155", "Gas Y", ErgImport::kWater, b, std::nullopt },
        { "9998", "125", "Gas Z (Inhalation Hazard Zone A)", QString(), a, b },
        { "9998", "125", "Gas Z (Inhalation Hazard Zone B)", QString(), a, a },
    };
    EXPECT_EQ(isoConditions(rows), QStringList({ ErgImport::kLand, "Gas X - When Spilled in Water", "Gas Y - When Spilled in Water",
                                                 "Inhalation Hazard Zone A", "Inhalation Hazard Zone B" }));
}

TEST(ErgImportSections, TheWholeGreenSectionReadsLikeItsExtracts)
{
    QString error;
    const auto whole = ErgImport::read({ ergPdf("TIH_Table.pdf"), ergPdf("ERG_Material_Yellow_Section.pdf") }, &error);
    ASSERT_TRUE(whole) << error.toStdString();
    const auto parts = ErgImport::read({ ergPdf("TIH_Table1.pdf"), ergPdf("TIH_Table2.pdf"), ergPdf("ERG_Material_Yellow_Section.pdf"),
                                         ergPdf("TIH_Table3.pdf") },
                                       &error);
    ASSERT_TRUE(parts) << error.toStdString();
    EXPECT_EQ(table1Csv(*whole), table1Csv(*parts));
    EXPECT_EQ(table2Csv(*whole), table2Csv(*parts));
    // The green section holds only the first page of Table 3.
    EXPECT_EQ(whole->table3.size(), 8);
    EXPECT_EQ(whole->table3, parts->table3.mid(0, 8));
}

TEST(ErgImportErrors, NameTheFileAndWhatIsMissing)
{
    QString error;
    EXPECT_FALSE(ErgImport::read({ QStringLiteral("/nonexistent/erg.pdf") }, &error));
    EXPECT_EQ(error, QStringLiteral("/nonexistent/erg.pdf: no such file"));

    QTemporaryDir dir;
    const QString notPdf = dir.filePath(QStringLiteral("notes.pdf"));
    test::writeBytes(notPdf, "%PDF-1.4\nthis is not really a PDF\n");
    EXPECT_FALSE(ErgImport::read({ notPdf }, &error));
    EXPECT_TRUE(error.startsWith(notPdf + QStringLiteral(": "))) << error.toStdString();

    // Files that hold only some sections: the rest is named as not found.
    EXPECT_FALSE(ErgImport::read({ ergPdf("TIH_Table2.pdf"), ergPdf("Guide_introduction.pdf") }, &error));
    EXPECT_TRUE(error.startsWith(QStringLiteral("TIH_Table2.pdf, Guide_introduction.pdf: not found: the yellow index"))) << error.toStdString();
    EXPECT_FALSE(error.contains(QStringLiteral("Table 2 ("))) << error.toStdString();
}

TEST(ErgImportErrors, ATruncatedExtractGivesAnErrorOrFewerRowsNeverACrash)
{
    const QByteArray bytes = test::readBytes(ergPdf("TIH_Table3.pdf"));
    ASSERT_FALSE(bytes.isEmpty());
    for (const qsizetype size : { qsizetype(0), qsizetype(100), bytes.size() / 2, bytes.size() - 200 }) {
        QString error;
        const auto tables = ErgImport::readData(bytes.left(size), QStringLiteral("cut.pdf"), &error);
        if (tables)
            EXPECT_LE(tables->table3.size(), 22);
        else
            EXPECT_TRUE(error.startsWith(QStringLiteral("cut.pdf: "))) << error.toStdString();
    }
}

// A one-page index drawn like the guidebook's: two columns of "ID Guide Name
// of Material", rows 15 pt apart.
static QByteArray drawnIndex(const QList<QStringList>& rows)
{
    const double offsets[] = { 0, 30, 65 };
    QList<test::DrawnText> page;
    for (int column = 0; column < 3; ++column) {
        for (const double x : { 30.0, 205.0 })
            page << test::DrawnText{ x + offsets[column], 20, 9, QStringList({ "ID", "Guide", "Name of Material" }).at(column) };
        for (int i = 0; i < rows.size(); ++i)
            page << test::DrawnText{ 30 + offsets[column], 50.0 + 15 * i, 9, rows.at(i).at(column) };
    }
    return test::drawnPdf({ page });
}

TEST(ErgImportDrawn, AnUnreadableRowNamesFileAndPage)
{
    QString error;
    EXPECT_FALSE(ErgImport::readData(drawnIndex({ { "1005", "125", "Ammonia, anhydrous" }, { "10O5", "125", "Misprinted" } }),
                                     QStringLiteral("drawn.pdf"), &error));
    EXPECT_EQ(error.toStdString(), "drawn.pdf: page 1: unreadable index row \"10O5 125 Misprinted\"");
}
