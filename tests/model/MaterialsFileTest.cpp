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
        "ÉTHER DIÉTHYLIQUE^3^127P^1155^^^",
        "ıAB^3^127^1155^^^",
    });
    load();

    ASSERT_EQ(model->materials().size(), 10);
    EXPECT_TRUE(byName("AC") && byName("ıAB")) << "short names are kept as written";
    EXPECT_TRUE(byName("Acetic Acid, Glacial"));
    auto ether = byName("Éther Diéthylique");
    ASSERT_TRUE(ether) << "names beyond ASCII are capitalised too";
    EXPECT_EQ(ether->guideId, "127");
    EXPECT_TRUE(ether->mayPolymerize);

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

// Names and UN numbers are made from the file's bytes: each must behave as
// a text of its own, ended by a null and outliving the model.
TEST_F(MaterialsFile, NamesAndNumbersAreTextsOfTheirOwn)
{
    pack.setMaterials({ "ACETONE^3^127^1090^^^", "AC^6.1^117^1051^X^^Z", "ÉTHANOL^3^127^1170^^^", "ACETAL^3^127^1090^^^" });
    QString kept;
    {
        load();
        const MaterialList& materials = model->materials();
        ASSERT_EQ(materials.size(), 4);
        for (const auto& m : materials) {
            EXPECT_EQ(m->name.utf16()[m->name.size()], 0) << m->name.toStdString();
            EXPECT_EQ(m->unId.utf16()[m->unId.size()], 0) << m->name.toStdString();
        }
        kept = materials.at(1)->name;
        materials.at(0)->name.append(QStringLiteral(" Extra"));
        materials.at(0)->unId[0] = u'9';
        EXPECT_EQ(materials.at(0)->name, "Acetone Extra");
        EXPECT_EQ(materials.at(1)->name, "AC") << "changing a name leaves the next one";
        EXPECT_EQ(materials.at(2)->name, "Éthanol");
        EXPECT_EQ(materials.at(3)->unId, "1090") << "changing a number leaves the one it was shared with";
        fixture.reset();
    }
    EXPECT_EQ(kept, "AC") << "a name outlives the model";
    kept.append(QStringLiteral(" and more"));
    EXPECT_EQ(kept, "AC and more");
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
        "ZERO PADDED^3^127^01090^^^",
        "LONG NUMBER^3^127^NA1090-12^^^",
    });
    pack.sql("hazmat_incidents.dat",
             "insert into incidents (un_id) values ('1760'),('2810'),('2810'),('2810'),('1090'),"
             "('NA1090-12'),('NA1090-12'),('NA1090-12'),('NA1090-12');");
    load();
    auto count = [](const char* name) { return byName(name)->numIncidents(); };
    EXPECT_EQ(count("Corrosive Liquid, N.O.S."), 1);
    EXPECT_EQ(count("Corrosive Liquid, Acidic, N.O.S."), 0);
    EXPECT_EQ(count("Poisonous Liquid, Organic, N.O.S."), 3);
    EXPECT_EQ(count("No Number"), 0);
    EXPECT_EQ(count("Zero Padded"), 0) << "the number's text must match, not its value";
    EXPECT_EQ(count("Long Number"), 4);
    // The incidents order counts the same way, ties in file order.
    const QStringList byIncidents = names(model->allFilter->incidentsSortedArray);
    EXPECT_EQ(byIncidents.mid(0, 4), QStringList({ "Long Number", "Poisonous Liquid, Organic, N.O.S.", "Corrosive Liquid, N.O.S.", "Acetone" }));
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
    const QStringList given{ "ÉTHER DIÉTHYLIQUE", "ÉTHANOL", "İSOPRENE", "İS", "A", "ÆB", "AB", "ABCDEF", "", "ABCXYZ", "ABD" };
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
