// The placard table: its rows and header, and that no row claims a guide the pack does not give.
#include "FakePageView.h"
#include "CheckedModel.h"
#include "FixturePack.h"

#include "PlacardViewController.h"
#include "model/QORModel.h"
#include "pages/GuideViewFactory.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace qor;
using qor::test::FixturePack;
using qor::test::CheckedModel;
using qor::test::ModelFixture;

namespace {
struct PlacardsTest : ::testing::Test {
    FixturePack pack;
    qor::test::FakePageViews views;
    std::unique_ptr<ModelFixture> fixture;
    PlacardViewController placards;
    CheckedModel placardsChecks{ &placards };
    void SetUp() override
    {
        pack.setMaterials({ "ACETONE^3^127^1090^^^" });
        // No 171: a placard whose guide the pack lacks.
        pack.setGuides({ "111^Mixed load", "112^Explosives - division 1.1, 1.2, 1.3, 1.5", "153^Toxic and/or corrosive" });
        fixture = std::make_unique<ModelFixture>();
    }
    void TearDown() override { delete GuideViewFactory::sharedInstance(false); }
};
} // namespace

TEST_F(PlacardsTest, TwentyTwoRowsInTableOrderEachNamed)
{
    ASSERT_EQ(placards.rowCount(), 22);
    EXPECT_EQ(placards.placardImages.size(), placards.placardNames.size());
    auto at = [&](int row, int role) { return placards.data(placards.index(row), role).toString(); };
    EXPECT_EQ(at(0, PlacardViewController::ImageRole), "111.png");
    EXPECT_EQ(at(3, PlacardViewController::ImageRole), "112.c.png");
    EXPECT_EQ(at(18, PlacardViewController::ImageRole), "153.b.png");
    EXPECT_EQ(at(21, PlacardViewController::ImageRole), "171.png");
    EXPECT_EQ(at(0, PlacardViewController::NameRole), "Dangerous");
    EXPECT_EQ(at(3, PlacardViewController::NameRole), "Divisions 1.3, 1.5");
    EXPECT_EQ(at(18, PlacardViewController::NameRole), "Class 8");
    EXPECT_EQ(at(21, PlacardViewController::NameRole), "Class 9");
    EXPECT_TRUE(at(0, PlacardViewController::ImageUrlRole).endsWith("/111.png"));
    EXPECT_TRUE(placards.data(placards.index(22), PlacardViewController::ImageRole).isNull());
    EXPECT_EQ(placards.rowHeight(), 85);
}

TEST_F(PlacardsTest, NoRowClaimsAGuideAndTheScreenSaysWhy)
{
    // The guidebook's placard chart is not among the pack's sources.
    EXPECT_TRUE(placards.guideRefs.isEmpty());
    for (int row = 0; row < placards.rowCount(); ++row)
        EXPECT_EQ(placards.data(placards.index(row), PlacardViewController::GuideIdRole).toString(), "") << "row " << row;
    EXPECT_FALSE(placards.sectionHeader().contains("guide", Qt::CaseInsensitive));
    EXPECT_TRUE(placards.chartNotice().contains("not in this data pack"));
}

TEST_F(PlacardsTest, ChoosingARowOpensNothing)
{
    QSignalSpy requested(&placards, &PlacardViewController::guideRequested);
    for (int row : { -1, 0, 1, 17, 21, 22 })
        EXPECT_EQ(placards.selectRow(row), "") << "row " << row;
    EXPECT_EQ(requested.count(), 0);
    EXPECT_EQ(GuideViewFactory::sharedInstance(false), nullptr) << "no guide was loaded";
}
