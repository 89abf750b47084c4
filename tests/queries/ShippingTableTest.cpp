// Shipping table rows and attributes, stowage texts and the placard fallback.
#include "QueriesFixture.h"

using namespace qor;

namespace {

struct ShippingTable : test::QueriesTest {
    void SetUp() override
    {
        pack.sql("npg.db",
                 "insert into hmt values"
                 " ('1203','B mix','','3','III','3','144','150','203','242','60 L','220 L','B','',''),"
                 " ('1203','A pure','G','3','I','3','','150','202','','Forbidden','30 L','A','40',''),"
                 " ('1203','C blend','','3','II','3','IB2, T4','150','202','242','5 L','60 L','','',''),"
                 " ('1203','D ungraded','','3','','3','','','','','','','E','',''),"
                 " ('1203','C blend','','3','II','3','IB2, T4','150','202','242','5 L','60 L','','',''),"
                 " ('1203','E odd','','3','IV','3','','','','','','','','',''),"
                 " ('1017','Chlorine','','2.3','','2.3','','','304','314','','','D','','');"
                 "insert into hmt_sections values ('202','Non-bulk liquids'), ('242','Bulk packagings');"
                 "insert into vessel_stowage values ('A','Stowage category A: on or under deck'), ('B','Under deck'),"
                 " ('D','Stowage category D: on deck');"
                 "insert into dot_placards values ('1017','2.3');");
    }
};

} // namespace

TEST_F(ShippingTable, EntriesSortByPackingGroupAndCollapseDuplicates)
{
    Material m = material(QStringLiteral("1203"), QStringLiteral("Gasoline"), QStringLiteral("3"));
    const QList<StringMap> entries = model().getHmtEntriesForMaterial(m);
    // Group I, none and IV rank first in name order, then II, then III.
    QStringList names, groups;
    for (const StringMap& e : entries) {
        names << e.value(QStringLiteral("name"));
        groups << e.value(QStringLiteral("packingGroup"), QStringLiteral("-"));
    }
    EXPECT_EQ(names, (QStringList{ "A pure", "D ungraded", "E odd", "C blend", "B mix" }));
    EXPECT_EQ(groups, (QStringList{ "I Great Danger", "-", "-", "II Medium Danger", "III Minor Danger" }));

    EXPECT_EQ(entries[3].value(QStringLiteral("nonBulkTitle")), QStringLiteral("49CFR § 173.202 Non-bulk liquids"));
    EXPECT_FALSE(entries[3].contains(QStringLiteral("bulkTitle")));
    // Stowage: a described heading as it stands, otherwise wrapped once; empty stays empty.
    EXPECT_EQ(entries[0].value(QStringLiteral("loc")), QStringLiteral("Stowage category A: on or under deck"));
    EXPECT_EQ(entries[4].value(QStringLiteral("loc")), QStringLiteral("Stowage category \"B\" - Under deck"));
    EXPECT_EQ(entries[1].value(QStringLiteral("loc")), QStringLiteral("Stowage category \"E\" - E"));
    EXPECT_EQ(entries[3].value(QStringLiteral("loc")), QString());
    EXPECT_EQ(m.hmtEntries, entries);
}

TEST_F(ShippingTable, AttributesFollowThePlacard)
{
    Material m = material(QStringLiteral("1203"), QStringLiteral("Gasoline"), QStringLiteral(" 3 "));
    const StringMap a = model().getHmtAttributesForMaterial(m);
    EXPECT_EQ(a.value(QStringLiteral("packingGroup")), QStringLiteral("III Minor Danger"));  // first class 3 row
    EXPECT_EQ(a.value(QStringLiteral("bulkTitle")), QStringLiteral("49CFR § 173.242 Bulk packagings"));
    EXPECT_FALSE(m.qorAttributes.contains(QStringLiteral("PlacardName")));

    // No placard of its own: the placard table's 2.3 matches the class as a number.
    Material chlorine = material(QStringLiteral("1017"), QStringLiteral("Chlorine"));
    EXPECT_EQ(model().getHmtAttributesForMaterial(chlorine).value(QStringLiteral("loc")), QStringLiteral("Stowage category D: on deck"));
    EXPECT_EQ(chlorine.qorAttributes.value(QStringLiteral("PlacardName")), QStringLiteral("2.3"));

    // Neither: "blank" fails as a term, leaving only the attributes empty.
    Material blank = material(QStringLiteral("1203"), QStringLiteral("Gasoline"), QStringLiteral("  "));
    EXPECT_TRUE(model().getHmtAttributesForMaterial(blank).isEmpty());
    EXPECT_TRUE(blank.hmtAttributes.has_value());
    EXPECT_EQ(blank.qorAttributes.value(QStringLiteral("PlacardName")), QStringLiteral("blank"));
    EXPECT_EQ(model().getHmtEntriesForMaterial(blank).size(), 5);
}
