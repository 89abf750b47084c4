// The placard table: its rows, header and the guide each placard opens.
#include "FakePageView.h"
#include "FixturePack.h"

#include "PlacardViewController.h"
#include "model/QORModel.h"
#include "pages/GuideViewFactory.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace qor;
using qor::test::FixturePack;
using qor::test::ModelFixture;

namespace {
struct PlacardsTest : ::testing::Test {
    FixturePack pack;
    qor::test::FakePageViews views;
    std::unique_ptr<ModelFixture> fixture;
    PlacardViewController placards;
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

TEST_F(PlacardsTest, TwentyTwoRowsInTableOrder)
{
    ASSERT_EQ(placards.rowCount(), 22);
    EXPECT_EQ(placards.placardImages.size(), placards.guideRefs.size());
    auto at = [&](int row, int role) { return placards.data(placards.index(row), role).toString(); };
    EXPECT_EQ(at(0, PlacardViewController::ImageRole), "111.png");
    EXPECT_EQ(at(3, PlacardViewController::ImageRole), "112.c.png");
    EXPECT_EQ(at(18, PlacardViewController::ImageRole), "153.b.png");
    EXPECT_EQ(at(21, PlacardViewController::ImageRole), "171.png");
    EXPECT_EQ(at(21, PlacardViewController::GuideIdRole), "171");
    EXPECT_TRUE(at(0, PlacardViewController::ImageUrlRole).endsWith("/111.png"));
    EXPECT_TRUE(placards.data(placards.index(22), PlacardViewController::ImageRole).isNull());
    EXPECT_EQ(placards.rowHeight(), 85);
    EXPECT_TRUE(placards.sectionHeader().startsWith("Table of markings, labels and placards and initial response"));
    EXPECT_TRUE(placards.sectionHeader().endsWith("NUMBERED PLACARD, OR ORANGE PANEL NUMBER"));
}

TEST_F(PlacardsTest, EveryPlacardOfAGuideOpensThatGuide)
{
    QSignalSpy requested(&placards, &PlacardViewController::guideRequested);
    for (int row : { 1, 2, 3 })
        EXPECT_EQ(placards.selectRow(row), "112") << "row " << row;
    for (int row : { 17, 18 })
        EXPECT_EQ(placards.selectRow(row), "153") << "row " << row;
    ASSERT_EQ(requested.count(), 5);
    EXPECT_EQ(requested.at(0).at(0).toString(), "112");
    EXPECT_EQ(requested.at(4).at(0).toString(), "153");
    EXPECT_NE(GuideViewFactory::sharedInstance(false), nullptr) << "the guide page builder was asked to load it";
}

TEST_F(PlacardsTest, AGuideMissingFromThePackOpensNothing)
{
    QSignalSpy requested(&placards, &PlacardViewController::guideRequested);
    EXPECT_EQ(placards.selectRow(21), "");
    EXPECT_EQ(placards.selectRow(-1), "");
    EXPECT_EQ(placards.selectRow(22), "");
    EXPECT_EQ(requested.count(), 0);
}
