// The material list controller: search paths, ranking, sections and loading state.
#include "CheckedModel.h"
#include "ScreensSupport.h"

#include "MaterialListController.h"
#include "model/MaterialSearch.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;

namespace {

struct ListControllerTest : ScreenTest {
    void SetUp() override
    {
        pack.setMaterials({
            "ACETONE^3^127^1090^^^",
            "AC^6.1^117^1051^X^^Z",
            "ACETAL^3^127^1088^^^",
            "CHLORINE^2.3^124^1017^X^^",
            "AMMONIA, ANHYDROUS^2.3^125^1005^X^^",
            "ZIRCONIUM SCRAP^4.2^135^1932^^^",
            "XENON^2.2^120^2036^^^",
            "BENZENE^3^130^1114^^^",
            "1,1-DIFLUOROETHANE^2.1^115^1030^^^",
        });
        pack.setGuides({ "115^Gases - flammable", "124^Gases - toxic and/or corrosive - oxidizing", "127^Flammable liquids" });
        load();
        model->loadGuideList();
    }
};

} // namespace

TEST_F(ListControllerTest, ShortWordsUseThePrefixIndexNumbersScan)
{
    MaterialSearch search;
    // "AC" is lower-cased and found through the prefix index "ac".
    ASSERT_TRUE(search.search("AC", model->allFilter.get(), model->materials(), SortAlpha));
    // The two-letter "AC" is indexed under "a", not "ac"; 1090 (weight 254) outranks 1088 (171).
    EXPECT_EQ(names(search.results()), QStringList({ "Acetone", "Acetal" }));

    // "1" starts with a number: no prefix index; the scan matches UN ids and names.
    ASSERT_TRUE(search.search("1", model->allFilter.get(), model->materials(), SortAlpha));
    EXPECT_EQ(search.results().size(), 8) << "every id but 2036 starts with 1, and one name contains 1";
    EXPECT_EQ(search.results().first()->unId, "1005") << "heaviest first";

    // In the UN-number sort names are not searched.
    ASSERT_TRUE(search.search("DIFLUORO", model->allFilter.get(), model->materials(), SortUnId));
    EXPECT_TRUE(search.results().isEmpty()) << "the UN-number sort searches no names";
    search.reset();
    ASSERT_TRUE(search.search("DIFLUORO", model->allFilter.get(), model->materials(), SortAlpha));
    EXPECT_EQ(names(search.results()), QStringList({ "1,1-Difluoroethane" })) << "4+ characters keep their case";
}

TEST_F(ListControllerTest, ScanStopsAfter151Matches)
{
    QStringList lines;
    for (int i = 0; i < 400; ++i)
        lines << QStringLiteral("SAMPLE %1^3^127^%2^^^").arg(i).arg(3000 + i);
    pack.setMaterials(lines);
    ModelFixture reload;
    MaterialSearch search;
    search.search("sample", nullptr, QORModel::sharedInstance()->materials(), SortAlpha);
    EXPECT_EQ(search.results().size(), 151);
}

TEST_F(ListControllerTest, RankingWeightsViewedMaterialsAndNameOrder)
{
    const MaterialPtr ammonia = material(1005).ptr, chlorine = material(1017).ptr, xenon = material(2036).ptr,
                      zirconium = material(1932).ptr, benzene = material(1114).ptr;
    MaterialSearch plain;
    MaterialList list = { chlorine, zirconium, ammonia, xenon };
    plain.rank(list);
    EXPECT_EQ(names(list), QStringList({ "Ammonia, Anhydrous", "Chlorine", "Xenon", "Zirconium Scrap" })) << "outside the table: name order";

    // A viewed material in the table beats every unviewed one; one outside the
    // table gains nothing against another outside it.
    MaterialSearch viewed([&](const Material& m) { return m.unId == "1114" || m.unId == "2036"; });
    list = { ammonia, chlorine, benzene };
    viewed.rank(list);
    EXPECT_EQ(names(list), QStringList({ "Benzene", "Ammonia, Anhydrous", "Chlorine" }));
    list = { zirconium, xenon };
    viewed.rank(list);
    EXPECT_EQ(names(list), QStringList({ "Xenon", "Zirconium Scrap" }));
}

TEST_F(ListControllerTest, QuickKeystrokesRunOneSearch)
{
    MaterialListController list;
    QSignalSpy rebuilt(&list, &MaterialListController::listChanged);
    for (const char* typed : { "c", "ch", "chl" })
        list.setSearchText(QString::fromLatin1(typed));
    EXPECT_EQ(rebuilt.count(), 0) << "no search while the keys are still coming";
    ASSERT_TRUE(rebuilt.wait(2000));
    QTest::qWait(3 * MaterialListController::kSearchDelayMs);
    EXPECT_EQ(rebuilt.count(), 1) << "one search, for the last text";
    EXPECT_EQ(list.title(), "1 search results");
}

TEST_F(ListControllerTest, SectionsTitlesAndScrollTargets)
{
    MaterialListController list;
    CheckedModel listChecks(&list);
    EXPECT_EQ(list.sectionIndex(), QStringList({ "A", "B", "C", "X", "Z" }));
    EXPECT_EQ(list.rowForSectionKey("A"), -1) << "A scrolls to the very top";
    EXPECT_EQ(list.rowForSectionKey("C"), 6);
    const MaterialRef chlorine = list.materialAt(6);
    EXPECT_EQ(list.rowForMaterial(chlorine), 6);

    model->changeFilter("A", SortGuide);
    EXPECT_EQ(list.sectionTitle("135"), "135") << "a guide missing from the list shows its number";
    EXPECT_EQ(list.rowForMaterial(chlorine), -1) << "only the alphabetical sort scrolls to a material";

    model->changeFilter("A", SortIncidents);
    EXPECT_TRUE(list.sectionIndex().isEmpty());
}

TEST_F(ListControllerTest, GuideSectionTitlesFollowAReloadedGuideList)
{
    MaterialListController list;
    CheckedModel listChecks(&list);
    model->changeFilter("A", SortGuide);
    auto sectionOf = [&](const QString& unId) {
        for (int row = 0; row < list.rowCount(); ++row)
            if (list.data(list.index(row), MaterialListController::UnIdRole) == unId)
                return list.data(list.index(row), MaterialListController::SectionRole).toString();
        return QString();
    };
    EXPECT_EQ(sectionOf("1017"), "Guide 124 - Gases - Toxic And/Or Corrosive - Oxidizing");
    pack.setGuides({ "124^Gases - toxic" });
    model->loadGuideList();
    EXPECT_EQ(sectionOf("1017"), "Guide 124 - Gases - Toxic") << "rows built before the guides came are titled anew";
}

TEST(ListControllerLoading, PlaceholderSectionsWhileLoading)
{
    FixturePack pack;
    ModelFixture fixture(false);
    MaterialListController list;
    CheckedModel listChecks(&list);
    EXPECT_TRUE(list.loading());
    const int placeholder = int(QORModel::sharedInstance()->getLoadingMaterials().size());
    EXPECT_EQ(list.rowCount(), 26 * placeholder) << "26 sections of the placeholder list";
    EXPECT_FALSE(list.data(list.index(0), MaterialListController::EnabledRole).toBool());
}
