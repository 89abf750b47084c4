// The history screen: the three orders, the row texts, the Clear History
// button and opening a material.
#include "CheckedModel.h"
#include "FixturePack.h"
#include "../history/HistoryTestSupport.h"

#include "AppDelegate.h"
#include "MaterialHistoryListViewController.h"
#include "model/QORModel.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace qor;
using qor::test::FixturePack;
using qor::test::CheckedModel;
using qor::test::makeMaterial;
using qor::test::ModelFixture;
using H = MaterialHistoryListViewController;

namespace {
struct HistoryScreenTest : ::testing::Test {
    qor::test::UserFolder user;
    FixturePack pack;
    std::unique_ptr<ModelFixture> fixture;
    // A Tuesday, mid-morning, local time.
    const QDateTime now{ QDate(2025, 3, 4), QTime(10, 0) };

    void SetUp() override
    {
        pack.setMaterials({ "CHLORINE^2.3^124^1017^X^^" });
        fixture = std::make_unique<ModelFixture>();
        history().clearHistory();
        Clock::setFixed(now);
    }
    void TearDown() override { QORAppDelegate::sharedInstance()->setFormFactorOverride("phone"); }
    static ViewedHistory& history() { return HistoryManager::sharedInstance()->viewedHistory(); }
    static void addEntries(int n)
    {
        for (int i = 0; i < n; ++i)
            HistoryManager::sharedInstance()->addToHistory(makeMaterial(QString::number(2000 + i), QString("Material %1").arg(i)));
    }
    static QStringList verboseTexts(const H& h)
    {
        QStringList out;
        for (int row = 0; row < h.rowCount(); ++row)
            out << h.data(h.index(row), H::VerboseTextRole).toString();
        return out;
    }
};
} // namespace

TEST_F(HistoryScreenTest, RecentRowsSayHowLongAgo)
{
    // Newest first: 23 hours back is before midnight; one whole day (47 hours)
    // reads yesterday even two calendar days back.
    for (int hours : { 2, 23, 47, 50, 240 })
        HistoryManager::sharedInstance()->addToHistory(makeMaterial(QString::number(1000 + hours), "M"), now.addSecs(-3600 * hours));
    H h;
    CheckedModel hChecks(&h);
    EXPECT_EQ(verboseTexts(h), QStringList({ "today", "yesterday", "yesterday", "2 days ago", "10 days ago" }));
}

TEST_F(HistoryScreenTest, MostViewedRowsSayHowOften)
{
    auto* manager = HistoryManager::sharedInstance();
    const int counts[] = { 5, 2, 1, 0 };
    for (int i = 0; i < 4; ++i) {
        MaterialPtr m = makeMaterial(QString::number(1100 + i), QString("M%1").arg(i));
        manager->addToHistory(m);
        // Hand-edited files can hold any count, 0 included.
        manager->historyObjectForKey(m->unId)->properties["viewCount"] = counts[i];
    }
    H h;
    CheckedModel hChecks(&h);
    h.setSegment(H::MostViewedSegment);
    EXPECT_EQ(verboseTexts(h), QStringList({ "5 times", "twice", "once", "0 time" }));
}

TEST_F(HistoryScreenTest, ListsAreCappedExceptAllAndClearShowsAboveFive)
{
    addEntries(5);
    H h;
    CheckedModel hChecks(&h);
    EXPECT_FALSE(h.clearButtonVisible()) << "5 entries";
    addEntries(20);
    h.reload();
    EXPECT_TRUE(h.clearButtonVisible());
    EXPECT_EQ(h.rowCount(), 12);
    h.setSegment(H::AllSegment);
    EXPECT_EQ(h.rowCount(), 20);
    h.setSegment(7);
    EXPECT_EQ(h.rowCount(), 0) << "an unknown segment shows nothing";
    h.clearHistory();
    EXPECT_TRUE(history().allAlpha().isEmpty());
    // The model finishing its load makes the screen read the history again.
    h.setSegment(H::AllSegment);
    addEntries(2);
    emit QORModel::sharedInstance()->modelLoadingStateChanged();
    EXPECT_EQ(h.rowCount(), 2);
}

TEST_F(HistoryScreenTest, ChoosingARowOpensTheMaterial)
{
    addEntries(1);
    H h;
    CheckedModel hChecks(&h);
    QSignalSpy requested(&h, &H::materialRequested);
    h.selectRow(0);
    ASSERT_EQ(requested.count(), 1);
    EXPECT_EQ(requested.at(0).at(0).value<MaterialRef>().unId(), "2000");
    h.selectRow(5);
    EXPECT_EQ(requested.count(), 1) << "no such row";

    QORAppDelegate* app = QORAppDelegate::sharedInstance();
    app->setFormFactorOverride("tablet");
    h.selectRow(0);
    EXPECT_EQ(app->detailMaterial().unId(), "2000") << "the tablet shows it in the detail area";
    app->showDetailForMaterial(MaterialRef());
}
