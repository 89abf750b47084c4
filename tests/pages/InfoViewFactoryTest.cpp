#include "FakePageView.h"
#include "PagesSupport.h"

#include "model/Device.h"
#include "model/QORModel.h"
#include "pages/GuideViewFactory.h"
#include "pages/InfoViewFactory.h"

#include <gtest/gtest.h>

using namespace qor;

namespace {

class InfoFactoryTest : public ::testing::Test {
protected:
    InfoFactoryTest()
    {
        pack.writeFile(QStringLiteral("emergency.html"),
                       "<head><link href=\"base.css\"><meta content=\"width = device-width\"></head>"
                       "<body style=\"background-color: #ffb045\">Call</body>");
        pack.writeFile(QStringLiteral("decon.html"), "<body style=\"background-color: #ffb045\">Decon</body>");
        model = std::make_unique<test::ModelFixture>(false);
    }
    ~InfoFactoryTest() override
    {
        factory.reset();
        Device::setTablet(false);
    }
    void make() { factory = std::make_unique<InfoViewFactory>(); }
    test::FakePageView* viewOf(const QString& page)
    {
        return static_cast<test::FakePageView*>(factory->infoViews().value(page)->webView());
    }

    test::FakePageViews views;
    test::UserDataDir data;
    test::FixturePack pack;
    std::unique_ptr<test::ModelFixture> model;
    std::unique_ptr<InfoViewFactory> factory;
};

} // namespace

TEST_F(InfoFactoryTest, ListedPagesArePreparedButNotLoaded)
{
    Device::setTablet(true);
    QSettings().setValue(QStringLiteral("textFontSize"), 90);
    make();
    const InfoViewPtr page = factory->infoViews().value(QStringLiteral("emergency"));
    EXPECT_TRUE(page->data.contains("-webkit-text-size-adjust: 90%"));
    EXPECT_TRUE(page->data.contains("width = 500"));
    EXPECT_EQ(page->webView()->size().width(), 320);
    EXPECT_TRUE(factory->infoViews().value(QStringLiteral("control"))->data.isEmpty());  // not in the pack
}

TEST_F(InfoFactoryTest, InfoPagesNeverTakeTheDarkSheet)
{
    GuideViewFactory guides;
    guides.reloadGuides(true);
    ASSERT_TRUE(GuideViewFactory::darkAppearance());
    make();
    const QByteArray data = factory->infoViews().value(QStringLiteral("emergency"))->data;
    guides.reloadGuides(false);
    EXPECT_TRUE(data.contains("base.css"));
}

// viewForPage reloads on every call; loadPage makes an unlisted page's view once.
TEST_F(InfoFactoryTest, PagesLoadOnDemand)
{
    make();
    factory->viewForPage(QStringLiteral("emergency"));
    factory->viewForPage(QStringLiteral("emergency"));
    EXPECT_EQ(viewOf(QStringLiteral("emergency"))->loadCount, 2);
    EXPECT_EQ(factory->viewForPage(QStringLiteral("nosuchpage")), nullptr);

    EXPECT_FALSE(factory->infoViews().contains(QStringLiteral("decon")));
    factory->loadPage(QStringLiteral("decon"));
    factory->loadPage(QStringLiteral("decon"));  // already loading: not again
    ASSERT_TRUE(factory->infoViews().contains(QStringLiteral("decon")));
    EXPECT_EQ(viewOf(QStringLiteral("decon"))->size(), QSize(500, 500));
    EXPECT_EQ(viewOf(QStringLiteral("decon"))->loadCount, 1);
}

TEST_F(InfoFactoryTest, BackgroundAndListLoadingKeepToTheirLimits)
{
    make();
    factory->loadPages({ QStringLiteral("emergency"), QStringLiteral("control") });
    EXPECT_TRUE(factory->isLoadingTimerActive());
    factory->processUnloadedPages();
    EXPECT_EQ(factory->loadingCount(), 2);  // the two listed ones, none more

    factory->loadSelectedPage(QStringLiteral("glossary"));
    EXPECT_FALSE(factory->isLoadingTimerActive());
    EXPECT_EQ(factory->loadingCount(), 3);
}

TEST_F(InfoFactoryTest, AboutViewIsMadeOnceAndReframedOnEachCall)
{
    Device::setTablet(true);
    make();
    PageView* about = factory->getAboutWebView(QRect(0, 0, 300, 400));
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(factory->getAboutWebView(QRect(10, 20, 600, 700)), about);
    EXPECT_EQ(about->frame(), QRect(10, 20, 600, 700));
    EXPECT_EQ(static_cast<test::FakePageView*>(about)->lastUrl, QUrl::fromLocalFile(pack.path(QStringLiteral("about-ipad.html"))));
}

TEST(InfoFactoryWithoutPageViews, HasNoAboutView)
{
    test::FixturePack pack;
    test::ModelFixture model(false);
    InfoViewFactory factory;
    EXPECT_EQ(factory.getAboutWebView(QRect(0, 0, 10, 10)), nullptr);
    factory.loadPage(QStringLiteral("emergency"));  // prepared and "loaded" into a null view
    EXPECT_EQ(factory.loadingCount(), 1);
}
