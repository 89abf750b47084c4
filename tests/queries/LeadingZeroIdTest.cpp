// Explosives carry UN ids with leading zeros ("0004"). The lookups put the id
// into their SQL unquoted, so every one of them must still find such a row,
// whether the pack stored it as '0004' or as 4.
#include "QueriesFixture.h"

#include "model/PackSchema.h"
#include "model/Sqlite.h"

using namespace qor;

namespace {

struct LeadingZeroIds : test::QueriesTest {
    void SetUp() override
    {
        pack.setMaterials({ "AMMONIUM PICRATE^1.1D^112^0004^^^", "ACETONE^3^127^1090^^^" });
        pack.sql("npg.db",
                 "insert into dot_classes values ('0004','1.1'), ('1090','3');"
                 "insert into dot_placards values ('0004','1.1');"
                 "insert into hmt values ('0004','Ammonium picrate','','1.1','II','1.1D','','None','62','None','Forbidden','Forbidden','10','',''),"
                 " ('0004','Ammonium picrate, wetted','','1.1','I','1.1D','','None','62','None','Forbidden','Forbidden','10','','');"
                 "insert into iso_distances values ('0004','When Spilled on Land','30','100','0.1','0.1','0.2','0.1','','','','','','');"
                 "insert into unid_npgid values ('0004','7');"
                 "insert into npg_guides (id, name, cas_no) values ('7','AMMONIUM PICRATE','131-74-8');"
                 "insert into cameo values ('c4','AMMONIUM PICRATE','131-74-8','0004','Yellow crystals.','C6H6N4O7','');"
                 // Stored as a bare number: the same row under the other spelling.
                 "insert into wiser_text values (0004,'USE','Explosive');"
                 "insert into nfpa values ('0004','Ammonium Picrate','2','4','4','');");
    }
    Material picrate() { return material(QStringLiteral("0004"), QStringLiteral("Ammonium Picrate")); }
};

} // namespace

TEST_F(LeadingZeroIds, EveryUnquotedLookupFindsTheRow)
{
    Material m = picrate();
    EXPECT_EQ(model().classForMaterial(m), QStringLiteral("1.1"));
    EXPECT_EQ(model().placardNameForMaterial(m), QStringLiteral("1.1"));
    EXPECT_EQ(model().getHmtEntriesForMaterial(m).size(), 2);
    EXPECT_EQ(model().getHmtAttributesForMaterial(m).value(QStringLiteral("packingGroup")), QStringLiteral("II Medium Danger"));
    EXPECT_EQ(model().isolationDistancesForMaterial(m).keys(), QStringList({ "When Spilled on Land" }));
    EXPECT_EQ(model().getNPGCasNumbersForMaterial(m).value(QStringLiteral("131-74-8")), QStringLiteral("AMMONIUM PICRATE"));
    EXPECT_EQ(model().getCameoAttributesForMaterial(m).value(QStringLiteral("physDesc")), QStringLiteral("Yellow crystals."));
    EXPECT_EQ(model().getWiserAttributesForMaterial(m).value(QStringLiteral("USE")), QStringLiteral("Explosive"));
    // The quoted lookups keep working on the same columns.
    EXPECT_EQ(model().nfpaForMaterial(m).value_or(StringMap()).value(QStringLiteral("fire")), QStringLiteral("4"));

    // 4 is not 0040 (ids without zeros are every other query test's).
    EXPECT_EQ(model().classForMaterial(material(QStringLiteral("0040"), QStringLiteral("Other"))), QString());

    // An id that is not a number reaches no row, however it is spelled.
    Material odd = material(QStringLiteral("0 or 1=1"), QStringLiteral("Ammonium Picrate"));
    EXPECT_TRUE(model().getHmtEntriesForMaterial(odd).isEmpty());
    EXPECT_EQ(model().placardNameForMaterial(odd), QStringLiteral("blank"));
    EXPECT_TRUE(model().getCameoAttributesForMaterial(odd).isEmpty());
    EXPECT_TRUE(model().getWiserAttributesForMaterial(odd).isEmpty());
    EXPECT_TRUE(model().getNPGCasNumbersForMaterial(odd).isEmpty());
}

TEST_F(LeadingZeroIds, IdColumnsReadBackWithTheirZerosAndLettersKept)
{
    pack.sql("npg.db", "insert into hmt (un_id, name) values ('NA1993', 'Diesel fuel');");
    const Database db = Database::openReadOnly(pack.path(QStringLiteral("npg.db")));
    QStringList ids;
    for (Statement st(db, QStringLiteral("select %1 from hmt order by rowid").arg(packUnIdColumnText(QStringLiteral("un_id")))); st.step();)
        ids << st.text(0);
    EXPECT_EQ(ids, (QStringList{ "0004", "0004", "NA1993" }));
}
