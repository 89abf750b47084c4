// The reference screen: sections, row texts and colours, and where rows lead.
#include "CheckedModel.h"
#include "FakePageView.h"
#include "ScreensSupport.h"

#include "AppDelegate.h"
#include "MaterialListController.h"
#include "ReferenceViewController.h"
#include "model/Translations.h"
#include "pages/InfoViewFactory.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace qor;
using namespace qor::test;
using R = ReferenceViewController;

namespace {
struct ReferenceTest : ScreenTest {
    FakePageViews views;
    void SetUp() override
    {
        pack.setMaterials({ "CHLORINE^2.3^124^1017^X^^", "ACETONE^3^127^1090^^^" });
        load();
    }
    void TearDown() override
    {
        delete InfoViewFactory::sharedInstance(false);
        QORAppDelegate::sharedInstance()->setFormFactorOverride("phone");
    }
    int rowOfPage(const R& ref, const QString& page)
    {
        for (int row = 0; row < ref.rowCount(); ++row)
            if (ref.data(ref.index(row), R::PageRole).toString() == page)
                return row;
        return -1;
    }
};
} // namespace

TEST_F(ReferenceTest, PageRowsAskForTheirPageWithTheRightButtons)
{
    R ref;
    CheckedModel refChecks(&ref);
    QSignalSpy requested(&ref, &R::pageRequested);
    ref.selectRow(rowOfPage(ref, "howto"));
    ASSERT_EQ(requested.count(), 1);
    EXPECT_FALSE(requested.at(0).at(3).toBool()) << "phone: pushed, not in a detail area";
    EXPECT_TRUE(InfoViewFactory::sharedInstance()->infoViews().contains("howto")) << "the page builder was asked to load it";

    QORAppDelegate::sharedInstance()->setFormFactorOverride("tablet");
    ref.selectRow(rowOfPage(ref, "battery"));
    EXPECT_TRUE(requested.at(1).at(3).toBool()) << "tablet: the detail area";
}

TEST_F(ReferenceTest, AFrenchRunIsFrenchFromTheFirstScreen)
{
    Preferences::setLanguageOverride("fr-CA");
    ASSERT_TRUE(Translations::installPreferred());
    ModelFixture loading(false);
    {
        R ref;
        CheckedModel refChecks(&ref);
        EXPECT_EQ(ref.title(), "Référence");
        EXPECT_EQ(ref.data(ref.index(2), R::SubtitleRole).toString(), "[Tableau 1]");

        MaterialListController list;
        CheckedModel listChecks(&list);
        ASSERT_TRUE(list.loading());
        ASSERT_GT(list.rowCount(), 1);
        EXPECT_EQ(list.data(list.index(1), MaterialListController::NameRole).toString(), "Accumulateurs au sodium");
    }
    Preferences::setLanguageOverride(QString());
    EXPECT_FALSE(Translations::install("en"));
    EXPECT_EQ(R().title(), "Reference") << "English again once the catalog is gone";
}

TEST(Translations, CatalogsByLanguage)
{
    EXPECT_EQ(Translations::catalogFor("es-MX"), "es");
    EXPECT_EQ(Translations::catalogFor("fr_BE"), "fr");
    EXPECT_EQ(Translations::catalogFor("en-US"), "");
    EXPECT_EQ(Translations::catalogFor(""), "");
}
