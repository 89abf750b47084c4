// qor-cli history, run in-process; each run starts like a new process.
#include "CliRun.h"
#include "HistoryTestSupport.h"

#include "history/HistoryManager.h"
#include "history/PropertyList.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace qor;
using namespace qor::test;

namespace {

struct HistoryCli : ::testing::Test {
    FixturePack pack;
    UserFolder user;

    void SetUp() override
    {
        pack.setMaterials({ "CHLORINE^2.3^124^1017^1017^^", "AMMONIA, ANHYDROUS^2.3^125^1005^1005^^",
                            "AMMONIA SOLUTION^8^154^2672^^^" });
    }

    int run(const QStringList& args, QJsonArray* json = nullptr)
    {
        delete HistoryManager::sharedInstance(false);
        const CliResult r = runCli(QStringList{ "--data-dir", user.root.path() } + args);
        delete HistoryManager::sharedInstance(false);
        if (json)
            *json = r.json().array();
        return r.code;
    }
};

} // namespace

// Counting and ordering are the history's own (HistoryTest); here, that the
// commands reach them and that a bad request leaves the file as it was.
TEST_F(HistoryCli, ViewsListClearAndBadRequestsChangeNothing)
{
    ASSERT_EQ(run({ "history", "view", "chlorine" }), 0);
    EXPECT_EQ(run({ "history", "view", "9999" }), 1);
    EXPECT_EQ(run({ "history", "view" }), 2);
    EXPECT_EQ(run({ "history", "sideways" }), 2);
    QJsonArray most;
    ASSERT_EQ(run({ "--json", "history", "most-viewed" }, &most), 0);
    ASSERT_EQ(most.size(), 1);
    EXPECT_EQ(most.at(0).toObject().value("unId").toString(), "1017");

    EXPECT_EQ(run({ "history", "clear" }), 0);
    EXPECT_EQ(plist::parse(readBytes(user.library("viewedHistory.dat")))->toList(), QVariantList());
    QJsonArray recent;
    EXPECT_EQ(run({ "--json", "history", "recent" }, &recent), 1);
    EXPECT_TRUE(recent.isEmpty());
}

// Under a number with two names, a view is one view of the first material shown.
TEST_F(HistoryCli, AViewUnderANumberWithTwoNames)
{
    pack.setMaterials({ "AMMONIA SOLUTION^8^154^1005^^^", "AMMONIA, ANHYDROUS^2.3^125^1005^X^^", "CHLORINE^2.3^124^1017^X^^" });
    QJsonArray shown;
    ASSERT_EQ(run({ "--json", "history", "view", "1005" }, &shown), 0);
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown.at(0).toObject().value("name").toString(), "Ammonia Solution");
    EXPECT_EQ(shown.at(0).toObject().value("viewCount").toInt(), 1) << "one view per command, not one per material";
    ASSERT_EQ(run({ "--json", "history", "view", "1005" }, &shown), 0);
    EXPECT_EQ(shown.at(0).toObject().value("viewCount").toInt(), 2);

    // --name picks which material under the number is viewed.
    QFile::remove(user.library("viewedHistory.dat"));
    ASSERT_EQ(run({ "--json", "history", "view", "1005", "--name", "ammonia, anhydrous" }, &shown), 0);
    EXPECT_EQ(shown.at(0).toObject().value("name").toString(), "Ammonia, Anhydrous");
    EXPECT_EQ(run({ "history", "view", "1005", "--name", "chlorine" }), 1) << "the name must be one of those shown";
    EXPECT_EQ(run({ "history", "view", "1005", "--name" }), 2);
}
