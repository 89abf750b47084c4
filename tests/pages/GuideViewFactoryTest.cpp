#include "FakePageView.h"
#include "PagesSupport.h"

#include "model/QORModel.h"
#include "pages/GuideViewFactory.h"

#include <QTimer>
#include <gtest/gtest.h>

using namespace qor;

namespace {

QByteArray guidePage(const char* id)
{
    return QByteArray("<html><head><link href=\"base.css\"></head><body style=\"background-color: #ffb045\">Guide ")
           + id + "</body></html>";
}

// Guides 111 and 112 have pages; 113 has none.
class GuideFactoryTest : public ::testing::Test {
protected:
    GuideFactoryTest()
    {
        pack.setGuides({ QStringLiteral("111^Gases - Compressed"), QStringLiteral("112^Explosives"),
                         QStringLiteral("113^Flammable Solids") });
        pack.writeFile(QStringLiteral("111.html"), guidePage("111"));
        pack.writeFile(QStringLiteral("112.html"), guidePage("112"));
        model = std::make_unique<test::ModelFixture>(false);
        factory = std::make_unique<GuideViewFactory>();
    }
    ~GuideFactoryTest() override { factory.reset(); }

    GuideView& view(const char* id) { return *factory->guideViews().value(QString::fromLatin1(id)); }
    test::FakePageView* shared() { return static_cast<test::FakePageView*>(GuideView::sharedWebView()); }

    test::FakePageViews views;
    test::UserDataDir data;
    test::FixturePack pack;
    std::unique_ptr<test::ModelFixture> model;
    std::unique_ptr<GuideViewFactory> factory;
};

} // namespace

TEST_F(GuideFactoryTest, CreationWarmsUpAndBuildsTheGuideListJustAfter)
{
    ASSERT_EQ(views.made.size(), 1);
    EXPECT_EQ(views.made[0]->loadCount, 1);
    EXPECT_TRUE(factory->guideViews().isEmpty());

    ASSERT_TRUE(test::waitUntil([&] { return factory->guideViews().count() == 3; }));
    EXPECT_EQ(factory->guideViews().keys(), (QStringList{ "111", "112", "113" }));
    EXPECT_TRUE(view("111").data.contains("-webkit-text-size-adjust: 100%"));
    EXPECT_TRUE(view("113").data.isEmpty());
    EXPECT_TRUE(test::waitUntil([&] { return factory->loadingCount() == 2; }, 5000)) << "the running timer drives the loads";
    EXPECT_TRUE(view("111").loading && view("112").loading);
    EXPECT_FALSE(view("113").loading) << "no page to load";
}

TEST_F(GuideFactoryTest, EveryGuideSharesOneViewLoadedAgainstThePackFolder)
{
    factory->loadGuideList();
    factory->loadGuide(*view("111").guide);
    factory->loadGuide(*view("112").guide);
    EXPECT_EQ(view("111").webView(), view("112").webView());
    EXPECT_EQ(shared()->loadCount, 2);
    EXPECT_EQ(shared()->lastData, view("112").data);
    EXPECT_EQ(shared()->lastBaseUrl, QUrl::fromLocalFile(pack.dir() + "/"));
}

TEST_F(GuideFactoryTest, SelectingAGuideStopsTheTimerAndLoadsItOnce)
{
    factory->loadGuideList();
    ASSERT_TRUE(factory->isLoadingTimerActive());
    factory->loadSelectedGuide(QStringLiteral("112"));
    EXPECT_FALSE(factory->isLoadingTimerActive());
    EXPECT_TRUE(view("112").loading);
    factory->loadSelectedGuide(QStringLiteral("112"));
    EXPECT_EQ(shared()->loadCount, 1);
    factory->loadSelectedGuide(QStringLiteral("999"));  // no such guide: nothing happens
    EXPECT_EQ(shared()->loadCount, 1);
}

TEST_F(GuideFactoryTest, PrioritisedListStopsOtherLoadsAndRestartsTimerForTwoOrMore)
{
    factory->loadGuideList();
    factory->invalidateLoadingTimer();
    factory->loadGuide(*view("111").guide);
    factory->loadGuide(*view("112").guide);

    factory->loadGuides({ view("113").guide });
    EXPECT_FALSE(view("111").loading);
    EXPECT_FALSE(factory->isLoadingTimerActive());

    factory->loadGuides({ view("111").guide, view("113").guide });
    EXPECT_TRUE(factory->isLoadingTimerActive());
}

TEST_F(GuideFactoryTest, ReloadInDarkMakesEveryPageUseTheDarkSheet)
{
    factory->loadGuideList();
    factory->reloadGuides(true);
    for (const char* id : { "111", "112" }) {
        EXPECT_TRUE(view(id).data.contains("dark.css")) << id;
        EXPECT_FALSE(view(id).data.contains("base.css")) << id;
        EXPECT_FALSE(view(id).loading) << id;  // rebuilt once more without loading
    }
    EXPECT_EQ(shared()->loadCount, 3);  // the release loaded every page once

    factory->reloadGuides(false);
    EXPECT_TRUE(view("111").data.contains("base.css"));
}

namespace {
// Answers scripts later, as the web engine does.
class DeferredScriptView : public test::FakePageView {
public:
    void evaluateJavaScript(const QString& script, ScriptCallback done) override
    {
        scripts.append(script);
        QTimer::singleShot(10, this, [script, done] {
            if (script.startsWith(QStringLiteral("throw")))
                done(QVariant(), QStringLiteral("ReferenceError"));
            else
                done(QVariant(42), QString());
        });
    }
};
} // namespace

TEST(GuideViewScript, EvaluationWaitsForTheAnswer)
{
    PageViewFactory::setCreator([] { return new DeferredScriptView(); });
    DeferredScriptView view;
    EXPECT_EQ(evaluateScriptSync(&view, QStringLiteral("6*7")), QStringLiteral("42"));
    EXPECT_EQ(evaluateScriptSync(&view, QStringLiteral("throw 1")), std::nullopt);
    EXPECT_EQ(evaluateScriptSync(nullptr, QStringLiteral("1")), std::nullopt);

    GuideView guideView;
    EXPECT_EQ(guideView.stringByEvaluatingJavaScriptFromString(QStringLiteral("1")), QStringLiteral("42"));
    GuideView::releaseSharedWebView();
    PageViewFactory::setCreator({});
}

TEST(PageViewPool, HandsOutWarmViewsAndRefillsToFive)
{
    test::FakePageViews views;
    std::unique_ptr<PageView> view(PageViewPool::take());
    EXPECT_EQ(PageViewPool::count(), PageViewPool::kSize);
    EXPECT_EQ(views.made.size(), PageViewPool::kSize + 1);
    EXPECT_EQ(static_cast<test::FakePageView*>(view.get())->loadCount, 1);
}
