// The guidebook importer on the official pages: whole-table facts, rows read
// by value against the printed pages, and clear errors on bad input.
#include "import/ErgImport.h"
#include "model/QORModel.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::import;

namespace {

QString official(const char* name)
{
    return QStringLiteral(QOR_SOURCE_DIR "/resources/official/erg2024/") + QLatin1String(name);
}

class ErgImportTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        QString error;
        auto read = ErgImport::read({ official("ERG_Material_Yellow_Section.pdf"), official("TIH_Table1.pdf"),
                                      official("TIH_Table2.pdf"), official("TIH_Table3.pdf") },
                                    &error);
        ASSERT_TRUE(read) << error.toStdString();
        s_tables = new ErgTables(*read);
    }
    static void TearDownTestSuite()
    {
        delete s_tables;
        s_tables = nullptr;
    }
    static const ErgTables& tables() { return *s_tables; }

    static QList<ErgTable1Row> table1Rows(const QString& id)
    {
        QList<ErgTable1Row> out;
        for (const ErgTable1Row& r : tables().table1)
            if (r.id == id)
                out << r;
        return out;
    }

private:
    static inline ErgTables* s_tables = nullptr;
};

} // namespace

TEST_F(ErgImportTest, WholeTablesHaveTheGuidebooksCounts)
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

TEST_F(ErgImportTest, Table1RowsByValue)
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

TEST_F(ErgImportTest, Table1GroupsWrappedNamesAndOpenEndedFigures)
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

TEST_F(ErgImportTest, IndexRowsJoinWrappedNamesAndKeepThePolymerizationMark)
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

TEST_F(ErgImportTest, Tables2And3ByValue)
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

TEST_F(ErgImportTest, IsoConditionsKeepEveryNamesOwnFigures)
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

TEST_F(ErgImportTest, BuiltInContainerRowsMatchTheImportedTable3)
{
    // Compared as numbers: the built-in rows write "11+" for the printed "11.0+".
    auto number = [](QString s) { return s.remove(QLatin1Char('+')).toDouble(); };
    QSet<QString> ids;
    for (const ErgTable3Row& r : tables().table3)
        for (const QString& id : r.ids)
            ids.insert(id);
    ASSERT_EQ(ids.size(), 7);
    for (const QString& id : ids) {
        QList<QStringList> imported;
        for (const ErgTable3Row& r : tables().table3)
            if (r.ids.contains(id))
                imported << r.values;
        const OrderedMap<QString> builtIn = QORModel::builtInLargeSpillIsoDistances(id);
        ASSERT_EQ(builtIn.count(), imported.size()) << id.toStdString();
        for (qsizetype i = 0; i < imported.size(); ++i) {
            const QStringList figures = builtIn.value(builtIn.keys().at(i)).split(QLatin1Char(','));
            ASSERT_EQ(figures.size(), 14);
            for (int k = 0; k < 14; ++k) {
                EXPECT_EQ(number(figures.at(k)), number(imported[i].at(k))) << "UN" << id.toStdString() << " row " << i << " figure " << k;
                EXPECT_EQ(figures.at(k).endsWith(QLatin1Char('+')), imported[i].at(k).endsWith(QLatin1Char('+')));
            }
        }
    }
}

TEST(ErgImportSections, TheWholeGreenSectionReadsLikeItsExtracts)
{
    QString error;
    const auto whole = ErgImport::read({ official("TIH_Table.pdf"), official("ERG_Material_Yellow_Section.pdf") }, &error);
    ASSERT_TRUE(whole) << error.toStdString();
    const auto parts = ErgImport::read({ official("TIH_Table1.pdf"), official("TIH_Table2.pdf"), official("ERG_Material_Yellow_Section.pdf"),
                                         official("TIH_Table3.pdf") },
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
    QFile f(notPdf);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("%PDF-1.4\nthis is not really a PDF\n");
    f.close();
    EXPECT_FALSE(ErgImport::read({ notPdf }, &error));
    EXPECT_TRUE(error.startsWith(notPdf + QStringLiteral(": "))) << error.toStdString();

    // Files that hold only some sections: the rest is named as not found.
    EXPECT_FALSE(ErgImport::read({ official("TIH_Table2.pdf"), official("Guide_introduction.pdf") }, &error));
    EXPECT_TRUE(error.startsWith(QStringLiteral("TIH_Table2.pdf, Guide_introduction.pdf: not found: the yellow index"))) << error.toStdString();
    EXPECT_FALSE(error.contains(QStringLiteral("Table 2 ("))) << error.toStdString();
}

TEST(ErgImportErrors, ATruncatedExtractGivesAnErrorOrFewerRowsNeverACrash)
{
    QFile f(official("TIH_Table3.pdf"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    for (const qsizetype size : { qsizetype(0), qsizetype(100), bytes.size() / 2, bytes.size() - 200 }) {
        QString error;
        const auto tables = ErgImport::readData(bytes.left(size), QStringLiteral("cut.pdf"), &error);
        if (tables)
            EXPECT_LE(tables->table3.size(), 22);
        else
            EXPECT_TRUE(error.startsWith(QStringLiteral("cut.pdf: "))) << error.toStdString();
    }
}

namespace {

// A one-page index drawn like the guidebook's: two columns of "ID Guide Name
// of Material", rows 15 pt apart.
QByteArray drawnIndex(const QList<QStringList>& rows)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QSizeF(391.5, 549), QPageSize::Point));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setResolution(72);
        QPainter p(&writer);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(9);
        p.setFont(font);
        for (const double x : { 30.0, 205.0 }) {
            p.drawText(QPointF(x, 20), QStringLiteral("ID"));
            p.drawText(QPointF(x + 30, 20), QStringLiteral("Guide"));
            p.drawText(QPointF(x + 65, 20), QStringLiteral("Name of Material"));
        }
        for (int i = 0; i < rows.size(); ++i) {
            const double y = 50 + 15 * i;
            const QStringList& r = rows.at(i);
            p.drawText(QPointF(r.at(0).isEmpty() ? 100 : 30, y), r.at(0).isEmpty() ? r.at(2) : r.at(0));
            if (!r.at(0).isEmpty()) {
                p.drawText(QPointF(60, y), r.at(1));
                p.drawText(QPointF(95, y), r.at(2));
            }
        }
    }
    return buffer.data();
}

} // namespace

TEST(ErgImportDrawn, AnUnreadableRowNamesFileAndPage)
{
    QString error;
    EXPECT_FALSE(ErgImport::readData(drawnIndex({ { "1005", "125", "Ammonia, anhydrous" }, { "10O5", "125", "Misprinted" } }),
                                     QStringLiteral("drawn.pdf"), &error));
    EXPECT_EQ(error.toStdString(), "drawn.pdf: page 1: unreadable index row \"10O5 125 Misprinted\"");
}
