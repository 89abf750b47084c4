// The guide page, guide list and information screens, and the page view the
// app shows pages in.
#include "CheckedModel.h"
#include "ScreensSupport.h"

#include "AppLinks.h"
#include "GuideControllers.h"
#include "WebEnginePageView.h"

#include <QSettings>
#include <QSignalSpy>
#include <QDesktopServices>
#include "history/DialogService.h"
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;

namespace {

struct GuideScreensTest : ScreenTest {
    void SetUp() override
    {
        pack.setMaterials({ "AMMONIA, ANHYDROUS^2.2^125^1005^X^^", "ACETONE^3^127^1090^^^" });
        pack.setGuides({ "125^Gases - Corrosive", "127^Flammable Liquids", "128^Flammable Liquids (Water-Immiscible)" });
        pack.sql("npg.db", "insert into iso_distances values ('1005',NULL,'30','100','0.1','0.1','0.2','0.1','','','','','','');");
        load();
        model->loadGuideList();
        QSettings settings;
        settings.remove(GuideViewController::kTextFontSizeKey);
        settings.remove(GuideViewController::kRotatePromptKey);
    }
};

} // namespace

TEST_F(GuideScreensTest, RotatePromptUntilSeenInLandscape)
{
    GuideViewController guide;
    guide.setGuide("125");
    guide.viewWillAppear(800, 400);
    EXPECT_TRUE(QSettings().value("kUserHasSeenGuideViewRotatePrompt").toBool());
    QSignalSpy shown(&guide, &GuideViewController::rotatePromptVisibleChanged);
    EXPECT_FALSE(shown.wait(GuideViewController::kPromptDelayMs + 300));

    QSettings().remove(GuideViewController::kRotatePromptKey);
    GuideViewController portrait;
    portrait.setGuide("125");
    QSignalSpy prompt(&portrait, &GuideViewController::rotatePromptVisibleChanged);
    portrait.viewWillAppear(400, 800);
    EXPECT_FALSE(portrait.rotatePromptVisible()) << "shown after a delay";
    ASSERT_TRUE(prompt.wait(3000));
    EXPECT_TRUE(portrait.rotatePromptVisible());
}

TEST_F(GuideScreensTest, IsolationPanelOnlyForAMaterialWithDistances)
{
    // Opened from the guide list (no material), then from two materials.
    GuideViewController guide;
    guide.setGuide("125");
    for (const auto& [unId, shown] : std::initializer_list<std::pair<const char*, bool>>{ { "", false }, { "1005", true }, { "1090", false } }) {
        if (*unId)
            guide.setMaterial(material(unId));
        guide.prepareViewsForSize(900, 400);
        EXPECT_EQ(guide.isolationVisible(), shown) << unId;
    }
}

TEST_F(GuideScreensTest, InfoPageLinks)
{
    InfoViewController info;
    QSignalSpy guides(&info, &InfoViewController::guideRequested);
    QSignalSpy outside(&info, &InfoViewController::externalUrlRequested);
    info.decidePolicyForNavigation("showguide://128");
    ASSERT_EQ(guides.count(), 1);
    EXPECT_EQ(guides.at(0).at(0).toString(), "128");
    info.decidePolicyForNavigation("showguide://999");
    info.decidePolicyForNavigation("file:///pack/other.html");
    EXPECT_EQ(guides.count(), 1) << "unknown guides and page links do nothing more";
    EXPECT_TRUE(outside.isEmpty());
    info.decidePolicyForNavigation("https://example.org/app");
    EXPECT_EQ(outside.count(), 1);
}

TEST_F(GuideScreensTest, GuideListFollowsAReloadedGuideList)
{
    GuideListViewController list;
    CheckedModel listChecks(&list);
    ASSERT_EQ(list.rowCount(), 3);
    QSignalSpy reset(&list, &QAbstractItemModel::modelReset);
    pack.setGuides({ "111^Mixed Load/Unidentified Cargo", "125^Gases - Corrosive" });
    model->loadGuideList();
    EXPECT_EQ(reset.count(), 1) << "the rows are replaced in a reset, not behind the view's back";
    ASSERT_EQ(list.rowCount(), 2);
    EXPECT_EQ(list.selectGuide(1), "125");
    EXPECT_EQ(list.selectGuide(2), "") << "the old third row is gone";
}

TEST(WebEnginePageView, ScriptsAreAnsweredOnceWithOrWithoutAHost)
{
    WebEnginePageView view;
    int answers = 0;
    view.evaluateJavaScript("1+1", [&](const QVariant& v, const QString&) { answers += v.isNull() ? 1 : 100; });
    EXPECT_EQ(answers, 1) << "no host: answered empty at once";

    QObject host;
    view.attachHost(&host);
    QSignalSpy requested(&view, &WebEnginePageView::scriptRequested);
    QVariant result;
    view.evaluateJavaScript("1+1", [&](const QVariant& v, const QString&) { result = v; ++answers; });
    ASSERT_EQ(requested.count(), 1);
    view.scriptFinished(requested.at(0).at(0).toInt(), 2);
    view.scriptFinished(requested.at(0).at(0).toInt(), 3);
    EXPECT_EQ(result.toInt(), 2);
    EXPECT_EQ(answers, 2) << "a late duplicate answer is ignored";

    view.evaluateJavaScript("x", [&](const QVariant&, const QString&) { ++answers; });
    view.detachHost(&host);
    EXPECT_EQ(answers, 3) << "leaving the screen answers what was pending";

}

namespace {
// Stands in for the desktop: records what would have been opened.
class UrlRecorder : public QObject {
    Q_OBJECT
public:
    QList<QUrl> opened;
public slots:
    void open(const QUrl& url) { opened << url; }
};
} // namespace

TEST_F(GuideScreensTest, PrintingAlwaysEndsInSomethingTheUserSees)
{
    UrlRecorder desktop;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &desktop, "open");
    DialogRecorder dialogs;
    GuideViewController c;
    const QString pdf = pack.path(QStringLiteral("Guide 125.pdf"));

    // Saved: the PDF opens in the viewer (which prints), and the user is told where it is.
    c.printFinished(pdf, true);
    ASSERT_EQ(desktop.opened, QList<QUrl>{ QUrl::fromLocalFile(pdf) });
    ASSERT_EQ(dialogs.dialogs().size(), 1);
    EXPECT_TRUE(dialogs.dialogs().first().message.contains(pdf)) << qPrintable(dialogs.dialogs().first().message);

    // Not saved: nothing to open, but the user is told.
    dialogs.clear();
    c.printFinished(pdf, false);
    EXPECT_EQ(desktop.opened.size(), 1);
    ASSERT_EQ(dialogs.dialogs().size(), 1);
    EXPECT_TRUE(dialogs.dialogs().first().message.contains(QStringLiteral("could not"))) << qPrintable(dialogs.dialogs().first().message);
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

#include "GuideScreensTest.moc"
