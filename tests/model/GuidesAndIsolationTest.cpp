// Guides of materials and the isolation distance lookup.
#include "PackTest.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace qor;
using Guides = qor::test::PackTest;
using Isolation = qor::test::PackTest;

TEST_F(Guides, FirstMatchingGuideAndReloadWithoutDuplicates)
{
    pack.setMaterials({ "ACETONE^3^127^1090^^^", "NO GUIDE^3^^1091^^^" });
    pack.setGuides({ "127^Flammable Liquids (Water-Miscible)", "127^Second copy", "128^Flammable Liquids", "bad line" });
    load();
    model->loadGuideList();
    model->loadGuideList();
    ASSERT_EQ(model->guides().size(), 3);
    EXPECT_EQ(model->dotGuideForMaterial(model->materials().at(0).get())->name, "Flammable Liquids (Water-Miscible)");
    EXPECT_FALSE(model->dotGuideForMaterial(model->materials().at(1).get()));

    pack.setGuides({ "^Guide without a number" });
    model->loadGuideList();
    EXPECT_EQ(model->dotGuideForMaterial(model->materials().at(1).get())->name, "Guide without a number");
}

TEST_F(Isolation, ConditionsRecordsAndCaching)
{
    pack.setMaterials({ "THIONYL CHLORIDE^8^137^1836^HCl, SO2^W^", "ACETONE^3^127^1090^^^", "AMMONIA^2.3^125^1005^X^^" });
    pack.sql("npg.db",
             "insert into iso_distances values ('1836',NULL,'30','100','0.1','0.1','0.2','0.1','100','300','0.6','0.4','1.9','1.2');"
             "insert into iso_distances values ('1836','When Spilled in Water','30','100','0.1','0.1','0.3','0.2','','','','','','');"
             "insert into iso_distances values ('1836','When Spilled in Water','60','200','0.4','0.3','1.7','1.1','500','1500','6.0','3.8','11+','7+');"
             "insert into iso_distances values ('1005','','30','100','0.1','0.1','0.2','0.1',NULL,NULL,NULL,NULL,NULL,NULL);");
    load();

    Material& thionyl = *model->materials().at(0);
    const IsolationDistances& iso = model->isolationDistancesForMaterial(thionyl);
    ASSERT_EQ(iso.keys(), QStringList({ "default", "When Spilled in Water" })) << "database row order";
    const IsolationRecord water = iso.value("When Spilled in Water");
    EXPECT_EQ(water.value("Small Spill Initial isolation distance Metric"), "60") << "the last row wins";
    EXPECT_EQ(water.value("Large Spill Protect distance Night Metric"), "11+") << "open-ended values stay text";
    EXPECT_EQ(&model->isolationDistancesForMaterial(thionyl), &iso) << "the cached map is returned";

    const IsolationDistances& ammonia = model->isolationDistancesForMaterial(*model->materials().at(2));
    ASSERT_EQ(ammonia.keys(), QStringList({ "default" })) << "an empty condition reads as default";
    EXPECT_EQ(ammonia.value("default").size(), 7) << "no large-spill keys without column 8";

    Material& acetone = *model->materials().at(1);
    EXPECT_TRUE(model->isolationDistancesForMaterial(acetone).isEmpty());
    EXPECT_TRUE(acetone.isolationDistances.has_value()) << "an empty answer is cached too";
    model->releaseUnneededMemory();
    EXPECT_FALSE(acetone.isolationDistances.has_value());
}

TEST_F(Isolation, NonNumericIdFailsQuietly)
{
    // The id is put into the SQL unquoted: one that carries SQL of its own
    // must find nothing, though the tables hold rows it could reach.
    pack.setMaterials({ "ODD NAME'S ID^3^127^1090 or 1=1; drop^^^", "ACETONE^3^127^1090^^^" });
    pack.sql("npg.db",
             "insert into iso_distances values ('1090',NULL,'30','100','0.1','0.1','0.2','0.1','','','','','','');"
             "insert into iso_distances values ('1005',NULL,'30','100','0.1','0.1','0.2','0.1','','','','','','');"
             "insert into dot_classes values ('1090','3'), ('1005','2.3');");
    load();
    auto withId = [this](const QString& id) -> Material& {
        for (const auto& material : std::as_const(model->materials()))
            if (material->unId == id)
                return *material;
        throw std::runtime_error("no such material");
    };
    Material& odd = withId("1090 or 1=1; drop");
    EXPECT_TRUE(model->isolationDistancesForMaterial(odd).isEmpty());
    EXPECT_EQ(model->classForMaterial(odd), "");
    // The same lookups do answer for a plain id.
    EXPECT_EQ(model->classForMaterial(withId("1090")), "3");
}

TEST_F(Isolation, ContainerTableFromThePackOrBuiltIn)
{
    pack.setMaterials({ "HYDROGEN CHLORIDE, REFRIGERATED LIQUID^2.3^125^2186^X^^", "SULFUR DIOXIDE^2.3^125^1079^X^^" });
    load();
    // Without rows, the built-in table answers; the importer tests check its figures.
    EXPECT_EQ(model->largeSpillIsoDistancesForMaterial(*model->materials().at(1)).keys(), QORModel::builtInLargeSpillIsoDistances("1079").keys());
    EXPECT_TRUE(QORModel::builtInLargeSpillIsoDistances("1090").isEmpty());

    // With Table 3 rows: their names and figures, in row order; other IDs get nothing.
    pack.sql("npg.db",
             "insert into large_spill_distances values ('2186','Rail tank car','500','1500','3.7','2.3','2.0','1.3','1.7','1.1','9.7','6.1','3.3','2.1','2.2','1.4');"
             "insert into large_spill_distances values ('2186','Highway tank truck or trailer','200','600','1.5','0.9','0.8','0.5','0.6','0.4','3.7','2.3','1.5','0.9','0.8','0.5');");
    load();
    const OrderedMap<QString> hcl = model->largeSpillIsoDistancesForMaterial(*model->materials().at(0));
    EXPECT_EQ(hcl.keys(), QStringList({ "Rail tank car", "Highway tank truck or trailer" }));
    EXPECT_EQ(hcl.value("Rail tank car"), "500,1500,3.7,2.3,2.0,1.3,1.7,1.1,9.7,6.1,3.3,2.1,2.2,1.4");
    EXPECT_TRUE(model->largeSpillIsoDistancesForMaterial(*model->materials().at(1)).isEmpty()) << "the pack's table is the whole answer";
}

TEST_F(Isolation, AMaterialsOwnZoneOrNameComesFirst)
{
    pack.setMaterials({ "Compressed gas, toxic, n.o.s.^2.3^123^1955^X^^", "Compressed gas, toxic, n.o.s. (Inhalation Hazard Zone B)^2.3^123^1955^X^^",
                        "Methyl phosphonous dichloride^6.1^135^2845^X^^", "Thionyl chloride^8^137^1836^X^W^" });
    pack.sql("npg.db",
             "insert into iso_distances values ('1955','Compressed gas, toxic, n.o.s.','150','500','1.0','0.6','3.9','2.4','1000','3000','6.2','3.9','10.5','6.5');"
             "insert into iso_distances values ('1955','Inhalation Hazard Zone A','150','500','1.0','0.6','3.9','2.4','1000','3000','6.2','3.9','10.5','6.5');"
             "insert into iso_distances values ('1955','Inhalation Hazard Zone B','30','100','0.2','0.2','1.1','0.7','300','1000','1.4','0.9','3.7','2.3');"
             "insert into iso_distances values ('2845','Ethyl phosphonous dichloride, anhydrous','30','100','0.3','0.2','0.7','0.5','100','300','1.4','0.9','2.3','1.4');"
             "insert into iso_distances values ('2845','Methyl phosphonous dichloride','30','100','0.4','0.3','1.2','0.7','200','600','2.6','1.6','4.2','2.6');"
             "insert into iso_distances values ('1836','When Spilled on Land','30','100','0.1','0.1','0.2','0.1','100','300','0.6','0.4','1.9','1.2');"
             "insert into iso_distances values ('1836','When Spilled in Water','30','100','0.1','0.1','0.3','0.2','','','','','','');");
    load();
    // Names are shown capitalized; the match ignores case.
    Material& zoneB = *model->materials().at(1);
    ASSERT_EQ(zoneB.name, "Compressed Gas, Toxic, N.O.S. (Inhalation Hazard Zone B)");
    EXPECT_EQ(model->isolationConditionsForMaterial(zoneB),
              QStringList({ "Inhalation Hazard Zone B", "Compressed gas, toxic, n.o.s.", "Inhalation Hazard Zone A" }));
    EXPECT_EQ(model->isolationConditionsForMaterial(*model->materials().at(2)),
              QStringList({ "Methyl phosphonous dichloride", "Ethyl phosphonous dichloride, anhydrous" }));
    EXPECT_EQ(model->isolationConditionsForMaterial(*model->materials().at(3)), QStringList({ "When Spilled on Land", "When Spilled in Water" }))
        << "spill conditions keep table order";
}

TEST_F(Isolation, WhichConditionsNameAMaterial)
{
    const QString zoneA = QStringLiteral("Liquefied Gas, Toxic, N.O.S. (Inhalation Hazard Zone A)");
    EXPECT_TRUE(QORModel::isolationConditionNamesMaterial("Inhalation Hazard Zone A", zoneA));
    EXPECT_TRUE(QORModel::isolationConditionNamesMaterial("Inhalation Hazard Zone A - When Spilled in Water", zoneA));
    EXPECT_FALSE(QORModel::isolationConditionNamesMaterial("Inhalation Hazard Zone B", zoneA));
    EXPECT_FALSE(QORModel::isolationConditionNamesMaterial("Zone A", zoneA)) << "a whole parenthesis, not its end";
    EXPECT_FALSE(QORModel::isolationConditionNamesMaterial("Bromine", "Bromine, Solution"));
    EXPECT_FALSE(QORModel::isolationConditionNamesMaterial("Bromine, solution", "Bromine"));
    EXPECT_FALSE(QORModel::isolationConditionNamesMaterial("When Spilled in Water", "Bromine"));
    EXPECT_FALSE(QORModel::isolationConditionNamesMaterial(QString(), "Ammonia"));
}
