// Pocket guide, CAMEO, WISER, GHS and NFPA lookups and what they leave on the material.
#include "QueriesFixture.h"

#include "model/Resources.h"

using namespace qor;

namespace {

struct Chemistry : test::QueriesTest {
    void SetUp() override
    {
        // UN 1005 maps to two guides; the first carries a mis-decoded degree sign.
        pack.sql("npg.db", QString::fromUtf8(
            "insert into unid_npgid values ('1005','10'), ('1005','20');"
            "insert into npg_guides (id, name, cas_no, formula, rtec_no, phys_desc, mw, flammability, icsc) values "
            "  ('10','AMMONIA','npg-cas','NH3','BO0875000','Colorless gas.','17.0','Fl.P. 50\xC3\xA2\xCB\x86\xC5\xBE" "F','0414'),"
            "  ('20','AMMONIUM HYDROXIDE','1336-21-6','NH4OH','BQ9625000','Liquid.','35.1','','');"
            "insert into cameo values ('c1','AMMONIA, ANHYDROUS','cameo-cas','1005','Cameo gas.','NH3','<p>Toxic; ; Corrosive'),"
            "  ('c2','O''BRIEN''S SOLVENT','64-17-5','1993','Solvent.','C2H6O','');"
            "insert into wiser_text values ('1005','USE','Fertiliser; <p>coolant'), ('1005','TOX','first'), ('1005','HEALTH','second');"
            "insert into ghs values ('npg-cas','GHS04','H221'), ('cameo-cas','GHS06','H331');"
            "insert into nfpa values ('1005','Ammonia, Anhydrous','3','1','0',''), ('1005','Ammonia Solution','2','2','2','W');"));
    }
    void TearDown() override { Preferences::setLanguageOverride(QString()); }
    Material ammonia(const char* name = "Ammonia, Anhydrous")
    {
        model();  // attributeForKey needs the shared model
        return material(QStringLiteral("1005"), QLatin1String(name));
    }
};

} // namespace

TEST_F(Chemistry, PocketGuideUsesTheFirstRowAndMapsEveryCasNumber)
{
    Material m = ammonia();
    const StringMap npg = model().getNPGAttributesForMaterial(m);
    EXPECT_EQ(npg.value(QStringLiteral("NPGName")), QStringLiteral("Ammonia"));
    EXPECT_EQ(npg.value(QStringLiteral("flamability")), QStringLiteral(u"Fl.P. 50\u00B0F"));
    EXPECT_EQ(m.npgIndex, 10);
    EXPECT_EQ(m.casNo + m.rtecNo, QStringLiteral("npg-casBO0875000"));
    EXPECT_EQ(m.otherResources,
              (QList<OtherResource>{ { "International Chemical Safety Card for Ammonia, Anhydrous", "file:///1.pdf", "ICSC" },
                                     { "NIOSH Pocket Guide for Ammonia, Anhydrous", "file:///1.pdf", "NPG" } }));
    EXPECT_EQ(model().getNPGCasNumbersForMaterial(m), (StringMap{ { "npg-cas", "AMMONIA" }, { "1336-21-6", "AMMONIUM HYDROXIDE" } }));
}

TEST_F(Chemistry, PocketGuideResponseCellsForTheProtectionTab)
{
    pack.sql("npg.db", "update npg_guides set exposure_routes = 'inhalation, skin', "
                       "personal_protection = 'Skin: Prevent skin contact' || char(10) || 'Eyes: Prevent eye contact' || char(10) || 'Provide: Eyewash', "
                       "first_aid = 'Eye: Irrigate immediately' || char(10) || 'Skin: Water flush' || char(10) || 'no label here' "
                       "where id = '10'");
    Material m = ammonia();
    const StringMap npg = model().getNPGAttributesForMaterial(m);
    // "Skin:" means protection in one cell and first aid in the other.
    EXPECT_EQ(m.protectionProperties(), (StringMap{ { "skinProtect", "Prevent skin contact" },
                                                    { "eyeProtect", "Prevent eye contact" },
                                                    { "provideProtect", "Eyewash" } }));
    EXPECT_EQ(m.firstAidProperties(), (StringMap{ { "eyeFA", "Irrigate immediately" }, { "skinFA", "Water flush" } }));
    // Empty cells give no key, so the tab shows no empty row.
    EXPECT_FALSE(npg.contains(QStringLiteral("symptoms")));
}

TEST_F(Chemistry, EmptyResultsAreCachedAndLeaveTheMaterialAlone)
{
    Material m = material(QStringLiteral("9999"), QStringLiteral("Nothing"));
    m.casNo = QStringLiteral("kept");
    m.otherResources = { { "old", "file:///old", "X" } };
    EXPECT_TRUE(model().getNPGAttributesForMaterial(m).isEmpty());
    EXPECT_TRUE(model().getCameoAttributesForMaterial(m).isEmpty());
    EXPECT_EQ(m.casNo + QString::number(m.otherResources.size()), QStringLiteral("kept1"));
    EXPECT_TRUE(m.npgAttributes && m.cameoAttributes);
}

TEST_F(Chemistry, CameoAndWiserTexts)
{
    Material m = ammonia();
    const StringMap cameo = model().getCameoAttributesForMaterial(m);
    EXPECT_EQ(cameo.value(QStringLiteral("CameoHazardText")), QStringLiteral("\n\nToxic;\n\nCorrosive"));
    EXPECT_EQ(m.casNo, QStringLiteral("cameo-cas"));
    EXPECT_EQ(model().getWiserAttributesForMaterial(m), (StringMap{ { "USE", "Fertiliser\n\n\n\ncoolant" }, { "EXP", "second" } }));

    // Matched on the upper-cased name, so an apostrophe must survive the quoting.
    Material quoted = material(QStringLiteral("1993"), QStringLiteral("O'Brien's Solvent"));
    EXPECT_EQ(model().getCameoAttributesForMaterial(quoted).value(QStringLiteral("physDesc")), QStringLiteral("Solvent."));
    Material otherName = ammonia("Ammonia");
    EXPECT_TRUE(model().getCameoAttributesForMaterial(otherName).isEmpty());
}

TEST_F(Chemistry, AttributeForKeyWalksCameoNpgGhsThenWiser)
{
    Material m = ammonia();  // CAMEO, then NPG (whose CAS number GHS uses), then GHS
    EXPECT_EQ(m.attributeForKey(QStringLiteral("GHSHazStatementsKey")), QStringLiteral("H221"));
    EXPECT_EQ(m.attributeForKey(QStringLiteral("physDesc")), QStringLiteral("Cameo gas."));
    EXPECT_EQ(m.chemicalProperties().value(QStringLiteral("mw")), QStringLiteral("17.0"));

    Material noCameo = ammonia("Ammonia");
    EXPECT_EQ(noCameo.attributeForKey(QStringLiteral("CameoHazardText")), QStringLiteral("second"));
    EXPECT_EQ(model().descriptionForMaterial(noCameo), QStringLiteral("Colorless gas."));

    Material ghsFirst = ammonia();
    EXPECT_TRUE(model().getGHSAttributesForMaterial(ghsFirst).isEmpty());
    model().getNPGAttributesForMaterial(ghsFirst);
    EXPECT_TRUE(model().getGHSAttributesForMaterial(ghsFirst).isEmpty()) << "an empty result stays cached";
}

TEST_F(Chemistry, NfpaMatchesByNameOnlyInEnglish)
{
    Material m = ammonia();
    Preferences::setLanguageOverride(QStringLiteral("en-GB"));
    EXPECT_EQ(model().nfpaForMaterial(m), (StringMap{ { "health", "3" }, { "fire", "1" }, { "risk", "0" }, { "other", "" } }));
    Preferences::setLanguageOverride(QStringLiteral("de"));
    EXPECT_EQ(model().nfpaForMaterial(m)->value(QStringLiteral("other")), QStringLiteral("W")) << "last row wins";
    Material none = material(QStringLiteral("9999"), QStringLiteral("Nothing"));
    EXPECT_EQ(model().nfpaForMaterial(none), std::nullopt);
}
