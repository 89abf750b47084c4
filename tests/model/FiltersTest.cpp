// Categories, sort orders, sections and the loading placeholder list.
#include "PackTest.h"

#include "model/Resources.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;

namespace {

const QStringList kMaterials = {
    "CHLORINE^2.3^124^1017^1017^^",
    "AMMONIA, ANHYDROUS^2.3^125^1005^1005^^",
    "ACROLEIN, STABILIZED^6.1^131P^1092^1092^^",
    "SODIUM^4.3^138^1428^^W^",
    "PHOSGENE^2.3^125^1076^1076^^",
    "RED PHOSPHORUS^4.1^133^1338^^^M",
    "SARIN^6.1^153^2810^^^Z",
    "MYSTERY^3^128^N/A^^^",
    "ACETONE^3^127^1090^^^",
};

struct Filters : PackTest {
    void SetUp() override
    {
        pack.setMaterials(kMaterials);
        pack.sql("hazmat_incidents.dat", "insert into incidents (un_id) values ('1017'),('1017'),('1005'),('1090'),('1090'),('1090');");
        load();
    }
};

} // namespace

TEST_F(Filters, CategoriesSelectTheirMaterials)
{
    EXPECT_EQ(names(*model->tihFilter->filteredArray),
              QStringList({ "Chlorine", "Ammonia, Anhydrous", "Acrolein, Stabilized", "Phosgene" }));
    EXPECT_EQ(names(*model->tihCommonFilter->filteredArray), QStringList({ "Chlorine", "Ammonia, Anhydrous" }));
    EXPECT_EQ(names(*model->polyFilter->filteredArray), QStringList({ "Acrolein, Stabilized" }));
    EXPECT_EQ(names(*model->waterReactiveFilter->filteredArray), QStringList({ "Sodium" }));
    EXPECT_EQ(names(*model->methFilter->filteredArray), QStringList({ "Red Phosphorus" }));
    EXPECT_FALSE(model->chemicalWarfareFilter) << "the warfare category is not a standing filter";

    Filter& tih = *model->tihFilter;
    tih.hasIncidents = true;
    model->loadFilterWithData(tih);
    EXPECT_EQ(names(*tih.filteredArray), QStringList({ "Chlorine", "Ammonia, Anhydrous" }));
}

TEST_F(Filters, SortOrdersAndSections)
{
    EXPECT_EQ(names(model->allFilter->unIdSortedArray).first(), "Mystery") << "a non-numeric id sorts as 0";

    model->changeFilter("A", SortUnId);
    // A warfare agent and a non-numeric id both land in " No Id", which sorts first.
    EXPECT_EQ(model->getSections(), QStringList({ " No Id", "1000", "1300", "1400" }));
    EXPECT_EQ(names(model->materialsForSection(0)), QStringList({ "Mystery", "Sarin" }));
    EXPECT_EQ(names(model->materialsForSection(99)), QStringList({ "Sodium" })) << "a section past the end is clamped";

    model->changeFilter("A", SortIncidents);
    EXPECT_TRUE(model->getSections().isEmpty()) << "the incidents sort is one list without sections";

    model->changeFilter("A", SortGuide);
    EXPECT_EQ(model->getSections().first(), "124");
    EXPECT_EQ(model->materialAtIndex(0, 0)->name, "Chlorine");
    EXPECT_FALSE(model->materialAtIndex(0, 1)) << "a row past the end answers none";
}

TEST_F(Filters, ChangingCategoryCarriesTheSortButNotItsImage)
{
    QSignalSpy spy(model, &QORModel::filterChanged);
    model->allFilter->changeSortType(SortGuide);
    model->changeFilter("T");
    EXPECT_EQ(model->tihFilter->sortType, SortGuide);
    EXPECT_EQ(model->tihFilter->sortImage, "Sort-Alphabetically.pdf") << "the plain setter leaves the image";
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<const Filter*>(), model->tihFilter.get());

    model->changeFilter("Q");
    EXPECT_FALSE(model->currentFilter()) << "an unknown category leaves no current filter";
    EXPECT_EQ(spy.at(1).at(0).value<const Filter*>(), nullptr);
}

// A placeholder list until the data has loaded; then one announcement, then the filter.
TEST(FiltersLoading, PlaceholderUntilLoadedThenAnnouncedOnce)
{
    FixturePack pack;
    pack.setMaterials(kMaterials);
    ModelFixture fixture(false);
    QORModel* model = QORModel::sharedInstance();
    EXPECT_TRUE(model->isLoading());
    EXPECT_EQ(model->allFilter->getFilterText(), " Loading...");
    EXPECT_FALSE(model->materialsForSection(7).isEmpty());

    QStringList order;
    QObject::connect(model, &QORModel::modelLoadingStateChanged, [&] { order << QORModel::kModelLoadingStateChanged; });
    QObject::connect(model, &QORModel::filterChanged, [&](const Filter* f) {
        order << QORModel::kFilterChanged;
        EXPECT_EQ(f, model->allFilter.get());
    });
    // The load is scheduled 0.1 s after creation on the event loop.
    QSignalSpy spy(model, &QORModel::modelLoadingStateChanged);
    ASSERT_TRUE(spy.wait(2000));
    EXPECT_EQ(order, QStringList({ "ModelLoadingStateChanged", "filterchanged" }));
    EXPECT_EQ(model->materials().size(), kMaterials.size());
}

TEST(SharedInstanceDeathTest, MissingDatabaseAbortsNamingTheFile)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    FixturePack pack;
    QFile::remove(pack.path("npg.db"));
    pack.writeFile("cfr49.db", "this is not a database");
    EXPECT_DEATH({ ModelFixture f(false); }, "cannot open database .*cfr49.db");
}

// Every filter's three orders are the stable sorts of its own members, ties
// in file order, whether the filter has all materials or a few.
TEST_F(Filters, EveryFilterSortsItsOwnMembersStably)
{
    const auto stableBy = [](MaterialList list, auto key, bool descending) {
        std::stable_sort(list.begin(), list.end(), [&](const MaterialPtr& a, const MaterialPtr& b) {
            return descending ? key(*a) > key(*b) : key(*a) < key(*b);
        });
        return names(list);
    };
    const auto guide = [](const Material& m) { return leadingInt(m.guideId); };
    const auto incidents = [](const Material& m) { return m.numIncidents(); };
    const auto unId = [](const Material& m) { return leadingInt(m.unId); };
    model->tihFilter->hasIncidents = true;
    model->loadFilterWithData(*model->tihFilter);
    for (const auto& filter : std::as_const(model->filters())) {
        SCOPED_TRACE(filter->categoryAbbrev.toStdString());
        const MaterialList& members = *filter->filteredArray;
        EXPECT_EQ(names(filter->guideSortedArray), stableBy(members, guide, false));
        EXPECT_EQ(names(filter->incidentsSortedArray), stableBy(members, incidents, true));
        EXPECT_EQ(names(filter->unIdSortedArray), stableBy(members, unId, false));
    }
    EXPECT_EQ(names(model->tihFilter->incidentsSortedArray), QStringList({ "Chlorine", "Ammonia, Anhydrous" }));
}

// Sections follow the lists whatever the file's order: a member goes under
// the upper-cased first letter of its name (a name without one under the
// letter of the member before), its guide, and its hundred of UN numbers.
TEST(FilterSections, HoldEveryMemberInListOrderWhateverTheFileOrder)
{
    FixturePack pack;
    pack.setMaterials({
        "BENZENE^3^130^1114^^^",
        "ACETONE^3^127^1090^^^",
        "2-BUTANONE^3^127^1193^^^",
        "BROMINE^8^154^1744^1744^^",
        "ÉTHANOL^3^127^1170^^^",
        "ıAB^3^130^1218^^^",
        "ab^2.3^125^1005^1005^^",
        "ISOPRENE^3^130P^1218^^^",
        "1,2-DIBROMOETHANE^6.1^154^1605^^^",
        "AMMONIA, ANHYDROUS^2.3^125^1005^1005^^",
        "SARIN^6.1^153^2810^^^Z",
        "ÉTHER^3^127^1155^1155^^",
        "CHLORINE^2.3^124^1017^1017^^",
        "ZINC ASHES^4.3^138^1435^^W^",
    });
    ModelFixture fixture;
    QORModel* model = QORModel::sharedInstance();
    QMap<QString, QStringList> all;
    for (auto it = model->allFilter->alphaSections.cbegin(); it != model->allFilter->alphaSections.cend(); ++it)
        all.insert(it.key(), names(it.value()));
    EXPECT_EQ(all.keys(), QStringList({ "A", "B", "C", "I", "S", "Z", "É" }));
    EXPECT_EQ(all.value("A"), QStringList({ "Acetone", "2-Butanone", "ab", "Ammonia, Anhydrous" }));
    EXPECT_EQ(all.value("I"), QStringList({ "ıAB", "Isoprene", "1,2-Dibromoethane" }));
    EXPECT_EQ(all.value("É"), QStringList({ "Éthanol", "Éther" }));
}
