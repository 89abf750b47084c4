// Pocket guide, CAMEO, WISER, GHS and NFPA lookups and what they leave on the material.
#include "QueriesFixture.h"

#include "model/Resources.h"
#include "queries/GHS.h"

using namespace qor;

namespace {

struct Chemistry : test::QueriesTest {
    void SetUp() override
    {
        // UN 1005 maps to two guides; the first carries a mis-decoded degree sign.
        pack.sql("npg.db", QString::fromUtf8(
            "insert into unid_npgid values ('1005','10'), ('1005','20');"
            "insert into npg_guides (id, name, cas_no, formula, rtec_no, phys_desc, mw, flammability, icsc) values "
            "  ('10','AMMONIA','7664-41-7','NH3','BO0875000','Colorless gas.','17.0','Flash point 50\xC3\xA2\xCB\x86\xC5\xBE" "F','0414'),"
            "  ('20','AMMONIUM HYDROXIDE','1336-21-6','NH4OH','BQ9625000','Liquid.','35.1','','');"
            "insert into cameo values ('c1','AMMONIA, ANHYDROUS','7664-41-7x','1005','Cameo gas.','NH3',"
            "  '<p>Toxic by inhalation; ; Corrosive'),"
            "  ('c2','O''BRIEN''S SOLVENT','64-17-5','1993','Solvent.','C2H6O','');"
            "insert into wiser_text values ('1005','USE','Fertiliser; <p>refrigerant'), ('1005','TOX','first'),"
            "  ('1005','HEALTH','second');"
            "insert into ghs values ('7664-41-7','GHS04,GHS05','H221'), ('7664-41-7x','GHS06','H331');"
            "insert into nfpa values ('1005','Ammonia, Anhydrous','3','1','0',''), ('1005','Ammonia Solution','2','2','2','W');"));
    }
    void TearDown() override { Preferences::setLanguageOverride(QString()); }
};

} // namespace

TEST_F(Chemistry, UnicodeFormulaSubscriptsDigitsOnly)
{
    EXPECT_EQ(model().unicodeFormula(QStringLiteral("C6H12O6")), QStringLiteral(u"C\u2086H\u2081\u2082O\u2086"));
    EXPECT_EQ(model().unicodeFormula(QStringLiteral("NaCl")), QStringLiteral("NaCl"));
    EXPECT_EQ(model().unicodeFormula(QString()), QString());
}

TEST_F(Chemistry, PocketGuideUsesTheFirstRowAndMapsEveryCasNumber)
{
    Material m = material(QStringLiteral("1005"), QStringLiteral("Ammonia, Anhydrous"));
    const StringMap npg = model().getNPGAttributesForMaterial(m);
    EXPECT_EQ(npg.value(QStringLiteral("NPGName")), QStringLiteral("Ammonia"));
    EXPECT_EQ(npg.value(QStringLiteral("htmlFormula")), QStringLiteral(u"NH\u2083"));
    EXPECT_EQ(npg.value(QStringLiteral("physDesc")), QStringLiteral("Colorless gas."));
    EXPECT_EQ(npg.value(QStringLiteral("mw")), QStringLiteral("17.0"));
    EXPECT_EQ(npg.value(QStringLiteral("flamability")), QStringLiteral(u"Flash point 50\u00B0F"));
    EXPECT_FALSE(npg.contains(QStringLiteral("flammability")));
    EXPECT_EQ(m.npgIndex, 10);
    EXPECT_EQ(m.casNo, QStringLiteral("7664-41-7"));
    EXPECT_EQ(m.rtecNo, QStringLiteral("BO0875000"));
    EXPECT_EQ(m.otherResources,
              (QList<OtherResource>{ { "International Chemical Safety Card for Ammonia, Anhydrous", "file:///1.pdf", "ICSC" },
                                     { "NIOSH Pocket Guide for Ammonia, Anhydrous", "file:///1.pdf", "NPG" } }));

    const StringMap cas = model().getNPGCasNumbersForMaterial(m);
    EXPECT_EQ(cas, (StringMap{ { "7664-41-7", "AMMONIA" }, { "1336-21-6", "AMMONIUM HYDROXIDE" } }));
}

TEST_F(Chemistry, EmptyResultsAreCachedAndLeaveTheMaterialAlone)
{
    Material m = material(QStringLiteral("9999"), QStringLiteral("Nothing"));
    m.casNo = QStringLiteral("kept");
    m.otherResources = { { "old", "file:///old", "X" } };
    EXPECT_TRUE(model().getNPGAttributesForMaterial(m).isEmpty());
    EXPECT_TRUE(model().getCameoAttributesForMaterial(m).isEmpty());
    EXPECT_TRUE(model().getWiserAttributesForMaterial(m).isEmpty());
    EXPECT_TRUE(model().getNPGCasNumbersForMaterial(m).isEmpty());
    EXPECT_EQ(m.casNo, QStringLiteral("kept"));
    EXPECT_EQ(m.otherResources.size(), 1);
    EXPECT_TRUE(m.npgAttributes && m.cameoAttributes && m.wiserAttributes && m.casNumbers);
    // A later call answers from the cache, not the database.
    m.npgAttributes = StringMap{ { "from", "cache" } };
    EXPECT_EQ(model().getNPGAttributesForMaterial(m).value(QStringLiteral("from")), QStringLiteral("cache"));
}

TEST_F(Chemistry, CameoMatchesTheUpperCasedNameExactly)
{
    Material m = material(QStringLiteral("1005"), QStringLiteral("Ammonia, Anhydrous"));
    const StringMap cameo = model().getCameoAttributesForMaterial(m);
    EXPECT_EQ(cameo.value(QStringLiteral("CameoName")), QStringLiteral("Ammonia, Anhydrous"));
    EXPECT_EQ(cameo.value(QStringLiteral("CameoHazardText")), QStringLiteral("\n\nToxic by inhalation;\n\nCorrosive"));
    EXPECT_EQ(m.casNo, QStringLiteral("7664-41-7x"));

    Material quoted = material(QStringLiteral("1993"), QStringLiteral("O'Brien's Solvent"));
    EXPECT_EQ(model().getCameoAttributesForMaterial(quoted).value(QStringLiteral("htmlFormula")), QStringLiteral(u"C\u2082H\u2086O"));

    Material otherName = material(QStringLiteral("1005"), QStringLiteral("Ammonia"));
    EXPECT_TRUE(model().getCameoAttributesForMaterial(otherName).isEmpty());
}

TEST_F(Chemistry, WiserSplitsUseFromEverythingElse)
{
    Material m = material(QStringLiteral("1005"), QStringLiteral("Ammonia, Anhydrous"));
    EXPECT_EQ(model().getWiserAttributesForMaterial(m),
              (StringMap{ { "USE", "Fertiliser\n\n\n\nrefrigerant" }, { "EXP", "second" } }));
}

TEST_F(Chemistry, GhsKeysOnTheCasNumberLeftByEarlierLookups)
{
    Material cameoLast = material(QStringLiteral("1005"), QStringLiteral("Ammonia, Anhydrous"));
    model().getNPGAttributesForMaterial(cameoLast);
    model().getCameoAttributesForMaterial(cameoLast);
    EXPECT_EQ(model().getGHSAttributesForMaterial(cameoLast).value(QStringLiteral("GHSPictograms")), QStringLiteral("GHS06"));

    // The order attributeForKey walks: CAMEO, then NPG, then GHS.
    Material walked = material(QStringLiteral("1005"), QStringLiteral("Ammonia, Anhydrous"));
    EXPECT_EQ(walked.attributeForKey(QStringLiteral("GHSHazStatementsKey")), QStringLiteral("H221"));

    Material first = material(QStringLiteral("1005"), QStringLiteral("Ammonia, Anhydrous"));
    EXPECT_TRUE(model().getGHSAttributesForMaterial(first).isEmpty());
    model().getNPGAttributesForMaterial(first);
    EXPECT_TRUE(model().getGHSAttributesForMaterial(first).isEmpty()) << "an empty result stays cached";
}

TEST_F(Chemistry, AttributeForKeyPrefersCameoAndFallsBackToWiser)
{
    model();
    Material m = material(QStringLiteral("1005"), QStringLiteral("Ammonia, Anhydrous"));
    EXPECT_EQ(m.attributeForKey(QStringLiteral("physDesc")), QStringLiteral("Cameo gas."));
    EXPECT_EQ(m.attributeForKey(QStringLiteral("USE")), QStringLiteral("Fertiliser\n\n\n\nrefrigerant"));
    EXPECT_EQ(m.chemicalProperties().value(QStringLiteral("mw")), QStringLiteral("17.0"));
    EXPECT_EQ(model().descriptionForMaterial(m), QStringLiteral("Cameo gas."));

    // No CAMEO row: the hazard text comes from WISER and the description from NPG.
    Material noCameo = material(QStringLiteral("1005"), QStringLiteral("Ammonia"));
    EXPECT_EQ(noCameo.attributeForKey(QStringLiteral("CameoHazardText")), QStringLiteral("second"));
    EXPECT_EQ(model().descriptionForMaterial(noCameo), QStringLiteral("Colorless gas."));
    EXPECT_EQ(noCameo.attributeForKey(QStringLiteral("skinProtect")), std::nullopt);
}

TEST_F(Chemistry, NfpaMatchesByNameOnlyInEnglish)
{
    Material m = material(QStringLiteral("1005"), QStringLiteral("Ammonia, Anhydrous"));
    Preferences::setLanguageOverride(QStringLiteral("en-GB"));
    EXPECT_EQ(model().nfpaForMaterial(m), (StringMap{ { "health", "3" }, { "fire", "1" }, { "risk", "0" }, { "other", "" } }));
    Preferences::setLanguageOverride(QStringLiteral("de"));
    EXPECT_EQ(model().nfpaForMaterial(m)->value(QStringLiteral("other")), QStringLiteral("W")) << "last row wins";
    Material none = material(QStringLiteral("9999"), QStringLiteral("Nothing"));
    EXPECT_EQ(model().nfpaForMaterial(none), std::nullopt);
}

TEST(GhsTables, KeepTheShippedQuirks)
{
    const GHS& ghs = GHS::sharedInstance();
    EXPECT_EQ(ghs.gasCylinderPictogram, ghs.flameOverCirclePictogram);
    EXPECT_EQ(ghs.flamePictogram.value(QStringLiteral("self_reactive")),
              (QStringList{ "Type B", "Type C", "Type C", "Type E", "Type F" }));
    EXPECT_EQ(ghs.corrosionPictogram.value(QStringLiteral("skin_corrosion")),
              (QStringList{ "Category 1", "Category 1A", "Category 1B", "Category 1C" }));
    EXPECT_TRUE(GHS::getPictograms(QStringLiteral("flammable_gases")).isEmpty());
}
