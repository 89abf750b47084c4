// Shipping table rows and attributes, stowage texts and the placard fallback.
#include "QueriesFixture.h"

using namespace qor;

namespace {

struct ShippingTable : test::QueriesTest {
    void SetUp() override
    {
        pack.sql("npg.db",
                 "insert into hmt values"
                 " ('1203','B Gasoline mix','','3','III','3','144','150','203','242','60 L','220 L','B','','x'),"
                 " ('1203','A Gasoline','G','3','I','3','','150','202','','Forbidden','30 L','A','40','x'),"
                 " ('1203','C Gasoline blend','','3','II','3','IB2, T4','150','202','242','5 L','60 L','','',''),"
                 " ('1203','D Gasoline, ungraded','','3','','3','','','','','','','E','',''),"
                 " ('1203','C Gasoline blend','','3','II','3','IB2, T4','150','202','242','5 L','60 L','','',''),"
                 " ('1203','E Gasoline odd','','3','IV','3','','','','','','','','',''),"
                 " ('1017','Chlorine','','2.3','','2.3','2, B9','','304','314','Forbidden','Forbidden','D','40','');"
                 "insert into hmt_sections values ('202','Non-bulk packagings for liquids'), ('242','Bulk packagings');"
                 "insert into vessel_stowage values ('A','Stowage category A: on or under deck'), ('B','Under deck only'),"
                 " ('D','Stowage category D: on deck only');"
                 "insert into dot_placards values ('1017','2.3');");
    }
    QStringList names(const QList<StringMap>& entries)
    {
        QStringList out;
        for (const StringMap& e : entries)
            out << e.value(QStringLiteral("name"));
        return out;
    }
};

} // namespace

TEST_F(ShippingTable, EntriesSortByPackingGroupAndCollapseDuplicates)
{
    Material m = material(QStringLiteral("1203"), QStringLiteral("Gasoline"), QStringLiteral("3"));
    const QList<StringMap> entries = model().getHmtEntriesForMaterial(m);
    // Ranks I, none and IV come first in name order, then II, then III.
    EXPECT_EQ(names(entries), (QStringList{ "A Gasoline", "D Gasoline, ungraded", "E Gasoline odd", "C Gasoline blend",
                                            "B Gasoline mix" }));
    EXPECT_EQ(entries[0].value(QStringLiteral("packingGroup")), QStringLiteral("I Great Danger"));
    EXPECT_FALSE(entries[1].contains(QStringLiteral("packingGroup")));
    EXPECT_FALSE(entries[2].contains(QStringLiteral("packingGroup")));
    EXPECT_EQ(entries[3].value(QStringLiteral("packingGroup")), QStringLiteral("II Medium Danger"));
    EXPECT_EQ(entries[4].value(QStringLiteral("packingGroup")), QStringLiteral("III Minor Danger"));

    const StringMap& c = entries[3];
    EXPECT_EQ(c.value(QStringLiteral("specialProvisions")), QStringLiteral("IB2, T4"));
    EXPECT_EQ(c.value(QStringLiteral("nonBulkTitle")), QStringLiteral("49CFR § 173.202 Non-bulk packagings for liquids"));
    EXPECT_EQ(c.value(QStringLiteral("bulk")), QStringLiteral("242"));
    EXPECT_FALSE(c.contains(QStringLiteral("bulkTitle")));
    EXPECT_EQ(entries[1].value(QStringLiteral("nonBulkTitle")), QStringLiteral("49CFR § 173. "));

    // Stowage: described as it stands, wrapped, unknown, or absent when empty.
    EXPECT_EQ(entries[0].value(QStringLiteral("loc")), QStringLiteral("Stowage category A: on or under deck"));
    EXPECT_EQ(entries[4].value(QStringLiteral("loc")), QStringLiteral("Stowage category \"B\" - Under deck only"));
    EXPECT_EQ(entries[1].value(QStringLiteral("loc")), QStringLiteral("Stowage category \"E\" - E"));
    EXPECT_EQ(c.value(QStringLiteral("loc")), QString());
    EXPECT_EQ(m.hmtEntries, entries);
}

TEST_F(ShippingTable, AttributesFollowTheMaterialsPlacard)
{
    Material m = material(QStringLiteral("1203"), QStringLiteral("Gasoline"), QStringLiteral(" 3 "));
    const StringMap a = model().getHmtAttributesForMaterial(m);
    // The first row of class 3 in table order.
    EXPECT_EQ(a.value(QStringLiteral("symbols")), QString());
    EXPECT_EQ(a.value(QStringLiteral("packingGroup")), QStringLiteral("III Minor Danger"));
    EXPECT_EQ(a.value(QStringLiteral("exceptions")), QStringLiteral("150"));
    EXPECT_EQ(a.value(QStringLiteral("bulkTitle")), QStringLiteral("49CFR § 173.242 Bulk packagings"));
    EXPECT_EQ(a.value(QStringLiteral("passAirRail")), QStringLiteral("60 L"));
    EXPECT_EQ(a.value(QStringLiteral("loc")), QStringLiteral("Stowage category \"B\" - Under deck only"));
    EXPECT_FALSE(m.qorAttributes.contains(QStringLiteral("PlacardName"))) << "the material's own placard needs no lookup";

    // No placard of its own: the placard table supplies 2.3, matched as a number.
    Material chlorine = material(QStringLiteral("1017"), QStringLiteral("Chlorine"));
    EXPECT_EQ(model().getHmtAttributesForMaterial(chlorine).value(QStringLiteral("loc")),
              QStringLiteral("Stowage category D: on deck only"));
    EXPECT_EQ(chlorine.qorAttributes.value(QStringLiteral("PlacardName")), QStringLiteral("2.3"));
}

TEST_F(ShippingTable, BlankPlacardLeavesOnlyTheAttributesEmpty)
{
    Material m = material(QStringLiteral("1203"), QStringLiteral("Gasoline"), QStringLiteral("  "));
    EXPECT_TRUE(model().getHmtAttributesForMaterial(m).isEmpty());
    EXPECT_TRUE(m.hmtAttributes.has_value());
    EXPECT_EQ(model().placardNameForMaterial(m), QStringLiteral("blank"));
    EXPECT_EQ(m.qorAttributes.value(QStringLiteral("PlacardName")), QStringLiteral("blank"));
    EXPECT_EQ(model().getHmtEntriesForMaterial(m).size(), 5);
}

TEST_F(ShippingTable, SmallLookupsFallBack)
{
    EXPECT_EQ(model().titleForHMTRegSection(QStringLiteral("242")), QStringLiteral("Bulk packagings"));
    EXPECT_EQ(model().titleForHMTRegSection(QStringLiteral("999")), QString());
    EXPECT_EQ(model().vesselStowageDescForCategory(QStringLiteral("Z")), QStringLiteral("Z"));
    EXPECT_EQ(model().vesselStowageDescForCategory(QStringLiteral("O'Neil")), QStringLiteral("O'Neil"));
}
