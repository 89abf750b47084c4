// Links into the app, the UN-number search and the filter screens.
#include "CheckedModel.h"
#include "ScreensSupport.h"
#include "../history/HistoryTestSupport.h"

#include "AppDelegate.h"
#include "AppLinks.h"
#include "FilterController.h"
#include "SearchByIdController.h"
#include "history/HistoryManager.h"
#include "history/PropertyList.h"
#include "history/UserPaths.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QWindow>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;

namespace {
struct ShellTest : ScreenTest {
    void SetUp() override
    {
        pack.setMaterials({ "AMMONIA SOLUTION^8^154^1005^^^", "AMMONIA, ANHYDROUS^2.3^125^1005^X^^",
                            "CHLORINE^2.3^124^1017^X^^", "ACETONE^3^127^1090^^^" });
        pack.sql("hazmat_incidents.dat", "insert into incidents (un_id) values ('1017');");
        load();
    }
};
} // namespace

TEST(AppLinks, OnlyWellFormedLinksAreFollowed)
{
    EXPECT_EQ(parseAppLink("qor://CHEMICAL?un=9998").unId, 9998);
    for (const char* ignored : { "qor://chemical?un=0", "qor://chemical?un=9999", "qor://chemical?un=abc",
                                 "qor://chemical?un", "qor://chemical?un=1=2", "qor://chemical", "qor://other?x=1005" })
        EXPECT_EQ(parseAppLink(QString::fromLatin1(ignored)).kind, AppLink::None) << ignored;

    EXPECT_EQ(parseAppLink("qor://search?q=sulfuric%20acid").text, "sulfuric acid");
    EXPECT_EQ(parseAppLink("qor://search?sulfuric").kind, AppLink::None) << "no =";
    EXPECT_EQ(parseAppLink("qor://search?q=a%3Db").kind, AppLink::None) << "decoded before splitting";
}

TEST_F(ShellTest, ChemicalLinkOpensTheFirstMaterialThenScrolls)
{
    QORAppDelegate* app = QORAppDelegate::sharedInstance();
    app->setFormFactorOverride("phone");
    QSignalSpy opened(app, &QORAppDelegate::materialRequested);
    QSignalSpy scrolled(app, &QORAppDelegate::scrollToMaterialRequested);
    EXPECT_TRUE(app->openUrl("qor://chemical?un=1005"));
    EXPECT_TRUE(scrolled.wait(2000)) << "scrolls once the page is shown";
    EXPECT_TRUE(app->openUrl("qor://chemical?un=4444")) << "unknown numbers are handled by doing nothing";
    EXPECT_EQ(opened.count(), 1);

    app->setFormFactorOverride("tablet");
    app->openUrl("qor://chemical?un=1017");
    EXPECT_EQ(app->detailMaterial().name(), "Chlorine") << "the tablet shows it in the detail area";
    app->setFormFactorOverride("phone");
}

TEST_F(ShellTest, UnNumberSearchTakesFourDigits)
{
    SearchByIdController search;
    search.setText("100");
    EXPECT_FALSE(search.material().valid());
    search.setText("10052");
    EXPECT_EQ(search.text(), "1005") << "a fifth digit leaves the first four";
    EXPECT_EQ(search.name(), "Ammonia Solution") << "the first material with the number";
    search.setText("9999");
    EXPECT_FALSE(search.material().valid());
    EXPECT_EQ(search.name(), "");
}

// The index lists explosives by division only: their numbers lead to that row.
TEST(SearchById, ExplosiveNumberLeadsToItsDivisionsRow)
{
    FixturePack pack;
    pack.setMaterials({ "CHLORINE^2.3^124^1017^X^^", "EXPLOSIVES, DIVISION 1.4 OR 1.6^^114^^^^" });
    pack.sql("npg.db", "insert into hmt (un_id, name, class) values ('0012','Cartridges, small arms','1.4S'),"
                       "('0190','Samples, explosive','');"
                       "insert into dot_classes values ('0012','1.4');");
    ModelFixture fixture;
    SearchByIdController search;
    search.setText("0012");
    EXPECT_EQ(search.name(), "Cartridges, small arms") << "the card names what was typed";
    // No division row for it: nothing to open, as before.
    search.setText("0190");
    EXPECT_FALSE(search.material().valid());
    EXPECT_TRUE(search.note().isEmpty());
}

TEST_F(ShellTest, FilterScreenSwitchDoneAndCategories)
{
    FilterController filter;
    QSignalSpy spy(model, &QORModel::filterChanged);
    filter.setIncidentsOnly(true);
    EXPECT_EQ(model->currentFilter()->sortType, SortIncidents);
    filter.done();
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<const Filter*>(), model->currentFilter());
    EXPECT_EQ(model->getNumMaterials(), 1) << "rebuilt with incidents only";

    CategoriesController categories;
    CheckedModel categoriesChecks(&categories);
    EXPECT_EQ(categories.data(categories.index(0), CategoriesController::TextRole).toString(), "All Materials (1 found)");
    const Filter* before = model->currentFilter();
    categories.select(1);
    EXPECT_EQ(model->currentFilter(), before) << "the same filter object, with another letter";
    EXPECT_EQ(model->currentFilter()->categoryAbbrev, "M");
}

// The shell's save on hide and quit, before and after the history has loaded.
TEST(SaveWhenHidden, NothingReplacesTheHistoryFileUntilItHasLoaded)
{
    FixturePack pack;
    pack.setMaterials({ "AMMONIA, ANHYDROUS^2.3^125^1005^X^^" });
    UserFolder user;
    const QString file = user.library("viewedHistory.dat");
    const QByteArray saved = *plist::serialize(QVariantList{ QVariantMap{ { "unId", "1017" }, { "name", "Chlorine" } } });
    writeBytes(file, saved);
    delete HistoryManager::sharedInstance(false);
    ModelFixture model(false);  // created; its loading is still scheduled
    QORAppDelegate* app = QORAppDelegate::sharedInstance();
    QWindow window;
    app->saveWhenHiddenOrQuitting(qGuiApp, &window);

    emit qGuiApp->applicationStateChanged(Qt::ApplicationHidden);
    emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    emit window.visibilityChanged(QWindow::Minimized);
    QMetaObject::invokeMethod(qGuiApp, "aboutToQuit");
    EXPECT_EQ(readBytes(file), saved) << "a save before loading leaves the user's file alone";

    QORModel::sharedInstance()->loadData();
    HistoryManager::sharedInstance()->addToHistory(QORModel::sharedInstance()->materials().first());
    emit window.visibilityChanged(QWindow::Hidden);
    EXPECT_EQ(plist::parse(readBytes(file))->toList().size(), 2) << "once loaded, hiding saves old and new views";
    HistoryManager::sharedInstance()->addToHistory(makeMaterial("1090", "Acetone"));
    QMetaObject::invokeMethod(qGuiApp, "aboutToQuit");
    EXPECT_EQ(plist::parse(readBytes(file))->toList().size(), 3) << "and so does quitting";

    QObject::disconnect(qGuiApp, nullptr, app, nullptr);
    delete HistoryManager::sharedInstance(false);
}
