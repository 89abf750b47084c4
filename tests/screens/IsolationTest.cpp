// The isolation distance tables: sections, container table, units and headers.
#include "ScreensSupport.h"

#include "IsolationTableDelegate.h"
#include "MaterialViewController.h"

#include <QSettings>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;

namespace {

struct IsolationTest : ScreenTest {
    void SetUp() override
    {
        pack.setMaterials({ "HYDROGEN CHLORIDE^2.3^125^1050^X^^", "HYDROGEN CHLORIDE, REFRIGERATED^2.3^125^2186^X^^",
                            "SULFUR DIOXIDE^2.3^125^1079^X^^", "CHLOROSILANES^4.3^139^2988^HCl, H2^W^", "ACETONE^3^127^1090^^^",
                            "CHLOROSULFONIC ACID^8^137^1754^HCl^W^" });
        QString sql;
        for (const char* un : { "1050", "2186", "1079" })
            sql += QStringLiteral("insert into iso_distances values ('%1',NULL,'100','300','0.5','0.3','2.0','1.3','','','','','','');").arg(un);
        sql += "insert into iso_distances values ('2988','','30','100','0.1','0.1','0.2','0.1','100','300','0.5','0.3','1.1','0.7');"
               "insert into iso_distances values ('2988','Spilled in Water','30','100','0.3','0.2','11+','7+','300','1000','2.9','1.8','9.3','5.8');";
        pack.sql("npg.db", sql);
        load();
        QSettings().remove(IsolationTableDelegate::kSavedUnitsKey);
    }
    void TearDown() override { QSettings().remove(IsolationTableDelegate::kSavedUnitsKey); }
    QList<QVariantMap> sections(IsolationTableDelegate& d)
    {
        QList<QVariantMap> out;
        for (const QVariant& v : d.sections())
            out << v.toMap();
        return out;
    }
};

} // namespace

// Which containers each number has is the importer tests' business.
TEST_F(IsolationTest, ContainerSectionsFollowTheSmallSpillHalf)
{
    IsolationTableDelegate d;
    d.setMaterial(material("2186"));
    EXPECT_EQ(d.sections().size(), 1 + QORModel::builtInLargeSpillIsoDistances("1050").count());
    const QList<QVariantMap> s2186 = sections(d);
    d.setMaterial(material("1050"));
    EXPECT_EQ(sections(d), s2186) << "2186 shares 1050's block";
    EXPECT_TRUE(sections(d).at(0).value("hideLargeSpill").toBool());

    d.setMaterial(material("1090"));
    EXPECT_TRUE(d.empty()) << "no rows and no container block";
}

TEST_F(IsolationTest, FiguresShowInTheChosenUnitsAsStored)
{
    IsolationTableDelegate d;
    EXPECT_EQ(d.units(), IsolationTableDelegate::Imperial) << "imperial when nothing is stored";
    d.setMaterial(material("1079"));
    EXPECT_EQ(sections(d).at(1).value("night").toStringList().at(2), "6.0 mi");
    d.segmentAction(IsolationTableDelegate::Metric);
    EXPECT_EQ(IsolationTableDelegate().units(), IsolationTableDelegate::Metric) << "the choice is stored";
    EXPECT_EQ(sections(d).at(1).value("night").toStringList().at(2), "9.6 km");

    d.setMaterial(material("2988"));
    EXPECT_EQ(sections(d).at(1).value("smallNight"), "11+ km") << "a '+' figure keeps its mark";
    d.segmentAction(IsolationTableDelegate::Imperial);
    EXPECT_EQ(sections(d).at(1).value("largeIsolate"), "1000 ft");
    EXPECT_TRUE(IsolationTableDelegate::largeSpillCell("1,2,3", 0).isEmpty()) << "a short row shows nothing rather than crash";
}

// Several gases, and land before water as in the printed table: see the UN1746 golden.
TEST_F(IsolationTest, WaterHeadersNameTheGasesProduced)
{
    pack.sql("npg.db", "insert into iso_distances values ('1754','When Spilled in Water','30','100','0.1','0.1','0.3','0.2','100','300','0.6','0.4','1.9','1.2');");
    IsolationTableDelegate d;
    d.setMaterial(material("1754"));
    EXPECT_EQ(d.titleForSection(0), "When Spilled In Water (TIH Gas Produced: HCl)");
    MaterialPtr single = material("2988").ptr;
    single->toxicInhalationHazard = QStringLiteral("X");
    d.setMaterial(MaterialRef(single));
    EXPECT_EQ(d.titleForSection(1), "Spilled In Water") << "X names no gas";
    single->toxicInhalationHazard.reset();
    d.setMaterial(MaterialRef(single));
    EXPECT_EQ(d.titleForSection(1), "Spilled In Water");
}

// Zones of one UN number: each section titled by its zone, the material's own
// on top, and the summary row naming the zone whose figures the table shows.
using IsolationZones = ScreenTest;
TEST_F(IsolationZones, TheMaterialsOwnZoneLeadsTableAndSummary)
{
    pack.setMaterials({ "Compressed gas, toxic, flammable, n.o.s.^2.3^119^1953^X^^",
                        "Compressed gas, toxic, flammable, n.o.s. (Inhalation Hazard Zone A)^2.3^119^1953^X^^",
                        "Compressed gas, toxic, flammable, n.o.s. (Inhalation Hazard Zone D)^2.3^119^1953^X^^" });
    pack.sql("npg.db",
             "insert into iso_distances values ('1953','Compressed gas, toxic, flammable, n.o.s.','150','500','1.0','0.6','3.9','2.4','1000','3000','6.2','3.9','10.5','6.5');"
             "insert into iso_distances values ('1953','Inhalation Hazard Zone A','150','500','1.0','0.6','3.9','2.4','1000','3000','6.2','3.9','10.5','6.5');"
             "insert into iso_distances values ('1953','Inhalation Hazard Zone D','30','100','0.1','0.1','0.3','0.2','150','500','1.0','0.6','2.7','1.7');");
    load();
    QSettings().setValue(IsolationTableDelegate::kSavedUnitsKey, int(IsolationTableDelegate::Metric));
    const MaterialList& materials = model->materials();

    IsolationTableDelegate d;
    d.setMaterial(MaterialRef(materials.at(2)));
    ASSERT_EQ(d.sections().size(), 3);
    EXPECT_EQ(d.titleForSection(0), "Inhalation Hazard Zone D");
    EXPECT_EQ(d.sections().at(0).toMap().value("smallIsolate"), "30 m") << "the section shows its own zone's figures";
    d.setMaterial(MaterialRef(materials.at(0)));
    EXPECT_EQ(d.titleForSection(0), "Compressed Gas, Toxic, Flammable, N.O.S.") << "titled like the material list's names";

    SummaryTableDelegate summary;
    summary.setMaterial(materials.at(2));
    EXPECT_EQ(rowOfKind(summary.rows(), "iso").value("title"), "Isolation Distances\n (Inhalation Hazard Zone D)");
    QSettings().remove(IsolationTableDelegate::kSavedUnitsKey);
}
