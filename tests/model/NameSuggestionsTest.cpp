// "Did you mean": close names for a search that found nothing.
#include "PackTest.h"

#include "model/MaterialSearch.h"
#include "model/NameSuggestions.h"

#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;

namespace {

struct SuggestionTest : PackTest {
    void SetUp() override
    {
        // Official names, with near neighbours that compete for each misspelling.
        pack.setMaterials({
            "Chlorine^2.3^124^1017^^^",
            "Chlorine trifluoride^2.3^124^1749^^^",
            "Chloroform^6.1^151^1888^^^",
            "Ammonia, anhydrous^2.3^125^1005^^^",
            "Ammonia solution^8^154^2672^^^",
            "Ammonium nitrate^5.1^140^1942^^^",
            "Hydrogen sulfide^2.3^117^1053^^^",
            "Hydrogen selenide, anhydrous^2.3^117^2202^^^",
            "Hydrogen^2.1^115^1049^^^",
            "Gasoline^3^128^1203^^^",
            "Gasohol^3^128^1203^^^",
            "Xenon^2.2^120^2036^^^",
        });
        load();
    }
    QStringList suggestedIds(const QString& text)
    {
        QStringList ids;
        for (const auto& m : NameSuggestions().suggestMaterials(text, model->materials()))
            ids << m->unId;
        return ids;
    }
};

} // namespace

TEST_F(SuggestionTest, EachMisspellingFindsItsMaterialFirst)
{
    const struct { const char* typed; const char* unId; } cases[] = {
        { "clorine", "1017" },
        { "hydrogen sulfde", "1053" },
        { "gasolene", "1203" },
    };
    for (const auto& c : cases) {
        MaterialSearch search;
        search.search(c.typed, model->allFilter.get(), model->materials(), 0);
        EXPECT_TRUE(search.results().isEmpty()) << c.typed << " must be a search that finds nothing";
        const QStringList ids = suggestedIds(c.typed);
        ASSERT_FALSE(ids.isEmpty()) << c.typed;
        EXPECT_EQ(ids.first(), c.unId) << c.typed;
    }
    // The misspelt word is found inside a longer name.
    EXPECT_EQ(suggestedIds("selenid").value(0), "2202");
    // "amonia" is as close to both ammonia names; 1005 is looked up far more often.
    EXPECT_DOUBLE_EQ(NameSuggestions::similarity("amonia", "Ammonia, anhydrous"), NameSuggestions::similarity("amonia", "Ammonia solution"));
    EXPECT_EQ(suggestedIds("amonia").mid(0, 2), QStringList({ "1005", "2672" }));
}

TEST_F(SuggestionTest, AtMostFiveBestFirstAndNothingForUnrelatedText)
{
    const auto list = NameSuggestions().suggest("hydrogen sulfde", model->materials());
    ASSERT_GE(list.size(), 2u);
    EXPECT_LE(list.size(), size_t(NameSuggestions::kMaxSuggestions));
    for (size_t i = 1; i < list.size(); ++i)
        EXPECT_GE(list[i - 1].similarity, list[i].similarity);
    for (const auto& s : list)
        EXPECT_GE(s.similarity, NameSuggestions::kMinSimilarity);

    EXPECT_TRUE(suggestedIds("qwzzkv").isEmpty()) << "nothing close: no guesses";
    EXPECT_TRUE(suggestedIds("cl").isEmpty()) << "too short to judge";
    EXPECT_TRUE(suggestedIds("10177").isEmpty()) << "numbers are not names";
}

TEST(NameSuggestionOrder, AmongEqualMatchesTheShorterNameComesFirst)
{
    // Same similarity (the word "chlorine"), same weight (neither is looked up often).
    MaterialList list;
    for (const char* name : { "Calcium hypochlorite mixture, with available chlorine", "Liquid chlorine", "Chlorine" }) {
        auto m = std::make_shared<Material>();
        m->name = name;
        m->unId = "9999";
        list.append(m);
    }
    const MaterialList found = NameSuggestions().suggestMaterials("clorine", list);
    ASSERT_FALSE(found.isEmpty());
    EXPECT_EQ(found[0]->name, "Chlorine");
}

TEST(NameSimilarity, ScoresWholeWordsAndIgnoresCaseAndPunctuation)
{
    EXPECT_DOUBLE_EQ(NameSuggestions::similarity("chlorine", "CHLORINE"), 1.0);
    EXPECT_DOUBLE_EQ(NameSuggestions::similarity("ammonia anhydrous", "Ammonia, anhydrous"), 1.0);
    EXPECT_GT(NameSuggestions::similarity("clorine", "Chlorine"), NameSuggestions::similarity("clorine", "Chloroform"));
}

TEST_F(SuggestionTest, NewListIsReindexed)
{
    NameSuggestions s;
    EXPECT_EQ(s.suggestMaterials("clorine", model->materials()).value(0)->unId, "1017");
    MaterialList other;
    auto xenon = std::make_shared<Material>();
    xenon->name = "Xenon";
    xenon->unId = "2036";
    other.append(xenon);
    const MaterialList again = s.suggestMaterials("xenom", other);
    ASSERT_EQ(again.size(), 1);
    EXPECT_EQ(again.first()->unId, "2036");
}
