// Reading the materials file: names, marks, captions, sections and the prefix index.
#include "PackTest.h"

#include <gtest/gtest.h>

using namespace qor;
using qor::test::FixturePack;
using qor::test::ModelFixture;
using qor::test::names;
using MaterialsFile = qor::test::PackTest;

namespace {

MaterialPtr byName(const QString& name)
{
    for (const auto& m : QORModel::sharedInstance()->materials())
        if (m->name == name)
            return m;
    return nullptr;
}

} // namespace

TEST_F(MaterialsFile, NamesMarksAndCaptions)
{
    pack.setMaterials({
        "AC^6.1^117^1051^X^^Z",
        "ACETONE^3^127^1090^^^",
        "acetic acid, glacial^8^132^2789^^^",
        "ACROLEIN, STABILIZED^6.1^131P^1092^1092^^",
        "RED PHOSPHORUS^4.1^133^1338^^^M",
        "MUSTARD^6.1^153^2810^^^X",
        "LEWISITE^6.1^153^2810^^^ ",
        "SODIUM^4.3^138^1428^^W^",
    });
    load();

    ASSERT_EQ(model->materials().size(), 8);
    EXPECT_TRUE(byName("AC")) << "short names are kept as written";
    EXPECT_TRUE(byName("Acetic Acid, Glacial"));

    auto acrolein = byName("Acrolein, Stabilized");
    ASSERT_TRUE(acrolein);
    EXPECT_EQ(acrolein->guideId, "131");
    EXPECT_TRUE(acrolein->mayPolymerize);
    // The caption deliberately stays false even though the guide says P.
    EXPECT_EQ(acrolein->qorAttributes.value("mayPolymerize"), QVariant(false));


    auto ac = byName("AC");
    EXPECT_EQ(ac->chemicalWarefareAgent.value_or(""), "Z");
    // "X" and a lone blank are stored as marks but carry no caption.
    EXPECT_EQ(byName("Mustard")->chemicalWarefareAgent.value_or(""), "X");
    EXPECT_FALSE(byName("Mustard")->qorAttributes.contains("chemicalWarefareAgent"));
    EXPECT_FALSE(byName("Lewisite")->qorAttributes.contains("chemicalWarefareAgent"));

}

TEST_F(MaterialsFile, ShortLinesAreSkippedAndMissingFileGivesNoMaterials)
{
    pack.setMaterials({ "TOO^FEW^FIELDS", "", "ACETONE^3^127^1090^^^" });
    load();
    EXPECT_EQ(model->materials().size(), 1);
    QFile::remove(pack.path("chemicals_2024.csv"));
    load();
    EXPECT_TRUE(model->materials().isEmpty());
    EXPECT_FALSE(model->isLoading()) << "loading completes without the file";
}

TEST(MaterialsFileDeathTest, SixFieldLineAbortsNamingTheLine)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    FixturePack pack;
    pack.setMaterials({ "ACETONE^3^127^1090^^^", "BROKEN^3^127^1091^^" });
    EXPECT_DEATH({ ModelFixture model; }, "materials file line 2 has 6 fields");
}

// A number's n.o.s. entry and a trade name of it: see the UN1993 goldens.
TEST_F(MaterialsFile, IncidentCountsFollowTheGenericNameRules)
{
    pack.setMaterials({
        "CORROSIVE LIQUID, N.O.S.^8^154^1760^^^",
        "CORROSIVE LIQUID, ACIDIC, N.O.S.^8^154^1760^^^",
        "POISONOUS LIQUID, ORGANIC, N.O.S.^6.1^153^2810^^^",
        "ACETONE^3^127^1090^^^",
        "NO NUMBER^3^127^^^^",
    });
    pack.sql("hazmat_incidents.dat",
             "insert into incidents (un_id) values ('1760'),('2810'),('2810'),('2810'),('1090');");
    load();
    auto count = [](const char* name) { return byName(name)->numIncidents(); };
    EXPECT_EQ(count("Corrosive Liquid, N.O.S."), 1);
    EXPECT_EQ(count("Corrosive Liquid, Acidic, N.O.S."), 0);
    EXPECT_EQ(count("Poisonous Liquid, Organic, N.O.S."), 3);
    EXPECT_EQ(count("No Number"), 0);
}

TEST_F(MaterialsFile, ClassAndDescriptionFromTheChemistryDatabase)
{
    pack.setMaterials({ "ACETONE^3^127^1090^^^", "ODD^1^112^0001^^^" });
    pack.sql("npg.db", "insert into dot_classes values ('1090','3'), ('0001','1');");
    pack.writeFile("wikipedia_descriptions_by_un_number.csv", "1090^first\n1090^second\nshort\n");
    load();
    EXPECT_EQ(model->classDescriptionForMaterial(*byName("Acetone")).value_or(""), "Flammable Liquids");
    // An explosive's id keeps its leading zeros; the lookup must still find it.
    EXPECT_EQ(model->classForMaterial(*byName("ODD")), "1");
    EXPECT_FALSE(model->classDescriptionForMaterial(*byName("ODD")).has_value()) << "no description for a plain 1";
    EXPECT_TRUE(model->descriptions.isEmpty()) << "descriptions load only when asked";
    model->loadWikipediaDescriptions();
    EXPECT_EQ(model->descriptions.value("1090"), "second");
}

TEST_F(MaterialsFile, PrefixKeysAreThoseOfTheWholeNameInLowerCase)
{
    // Names whose lower case differs from letter-by-letter ASCII, is longer
    // than the name, or is short; neighbours share keys, then stop sharing.
    const QStringList given{ "ÉTHER DIÉTHYLIQUE", "ÉTHANOL", "İSOPRENE", "İS", "ÆB", "AB", "ABCDEF", "ABCXYZ", "ABD" };
    QStringList lines;
    for (const QString& n : given)
        lines << n + "^3^127^1090^^^";
    pack.setMaterials(lines);
    load();
    QHash<QString, QStringList> expected;
    for (const auto& material : model->materials()) {
        const QString lower = material->name.toLower();
        for (int k = 0; k <= 3; ++k)
            expected[lower.left(std::max<qsizetype>(lower.size() <= k ? lower.size() - 1 : k, 0))] << material->name;
    }
    const auto& index = model->allFilter->alphaIndex;
    EXPECT_EQ(index.size(), expected.size());
    for (auto it = expected.constBegin(); it != expected.constEnd(); ++it)
        EXPECT_EQ(qor::test::names(index.value(it.key())), it.value()) << it.key().toStdString();
}
