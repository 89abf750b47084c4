#include "PagesSupport.h"

#include "pages/PagePreparation.h"

#include <gtest/gtest.h>

using namespace qor;

namespace {
const QString kBody = QStringLiteral("<body style=\"background-color: #ffb045\">");
const QString kPage = QStringLiteral("<html><head><meta name=\"viewport\" content=\"width = device-width\">"
                                     "<link rel=\"stylesheet\" href=\"base.css\"></head>")
                      + kBody + QStringLiteral("<p>see base.css</p></body></html>");
} // namespace

TEST(PagePreparation, TextSizeComesFromSettingWithDefault100)
{
    test::UserDataDir data;
    const QString unset = preparePageText(kPage, currentPageOptions(false));
    EXPECT_TRUE(unset.contains(QStringLiteral(
        "<body style='background-color: #ffb045; -webkit-text-size-adjust: 100%;'>")));

    QSettings().setValue(QStringLiteral("textFontSize"), 120.7);
    EXPECT_EQ(storedTextFontSize(), 120);
    const QString set = preparePageText(kPage, currentPageOptions(false));
    EXPECT_TRUE(set.contains(QStringLiteral("-webkit-text-size-adjust: 120%;'>")));
}

TEST(PagePreparation, OnlyTheExactOrangeDoubleQuotedBodyTakesTheSize)
{
    for (const QString& body : { QStringLiteral("<body style='background-color: #ffb045'>"),
                                 QStringLiteral("<body style=\"background-color: #ffffff\">"),
                                 QStringLiteral("<body style=\"background-color:#ffb045\">") }) {
        const QString out = preparePageText(body, PageOptions{ 130, false, false });
        EXPECT_EQ(out, body);
    }
}

TEST(PagePreparation, DarkSwapsEveryStyleSheetMention)
{
    const QString dark = preparePageText(kPage, PageOptions{ 100, true, false });
    EXPECT_FALSE(dark.contains(QStringLiteral("base.css")));
    EXPECT_EQ(dark.count(QStringLiteral("dark.css")), 2);
}

TEST(PagePreparation, TabletFixesOnlyTheViewportWithBlanks)
{
    const QString both = QStringLiteral("a width = device-width b width=device-width");
    EXPECT_EQ(preparePageText(both, PageOptions{ 100, false, true }), QStringLiteral("a width = 500 b width=device-width"));
    EXPECT_EQ(preparePageText(both, PageOptions{ 100, false, false }), both);
}
