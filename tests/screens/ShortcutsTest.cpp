// The keyboard shortcut sheet lists what the screens on show answer to.
#include "KeyboardShortcuts.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace qor;

namespace {

QStringList keysOf(const QStringList& screens, bool wide)
{
    QStringList keys;
    for (const KeyboardShortcut& s : KeyboardShortcuts::forScreens(screens, wide))
        keys << s.keys;
    return keys;
}

QString actionFor(const QStringList& screens, bool wide, const QString& keys)
{
    for (const KeyboardShortcut& s : KeyboardShortcuts::forScreens(screens, wide)) {
        if (s.keys == keys)
            return s.action;
    }
    return {};
}

TEST(Shortcuts, EachScreenListsItsOwnKeysThenTheKeysThatWorkEverywhere)
{
    const QStringList global = keysOf({}, false);
    ASSERT_TRUE(global.contains("F1 or ?"));
    ASSERT_TRUE(global.contains("Esc or Alt+Left"));
    ASSERT_TRUE(global.contains("Ctrl+Shift+D"));
    const QList<QStringList> screens = { { "materialList" }, { "materialDetail" }, { "guidePage" }, { "isolationPage" },
                                         { "infoPage" }, { "shippingEntry" }, { "provisionsPage" } };
    for (const QStringList& screen : screens) {
        const QStringList keys = keysOf(screen, false);
        EXPECT_GT(keys.size(), global.size()) << screen.join(',').toStdString() << " has keys of its own";
        EXPECT_EQ(keys.mid(keys.size() - global.size()), global) << screen.join(',').toStdString();
        for (const KeyboardShortcut& s : KeyboardShortcuts::forScreens(screen, false))
            EXPECT_FALSE(s.action.isEmpty()) << s.keys.toStdString();
    }
    // A screen without keys of its own still gets the sheet and Back.
    EXPECT_EQ(keysOf({ "placardsPage" }, false), global);
}

TEST(Shortcuts, ScreensSideBySideListEachKeyOnce)
{
    const QStringList keys = keysOf({ "materialList", "materialDetail" }, true);
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), keys.size()) << keys.join(" | ").toStdString();
    EXPECT_TRUE(keys.contains("Type, Ctrl+F or /"));
    EXPECT_TRUE(keys.contains("Enter or Space"));
    // The list's Enter opens its first result; the detail's rows take Enter or Space.
    EXPECT_EQ(actionFor({ "materialList", "materialDetail" }, true, "Enter"), "Open the first result");
}

TEST(Shortcuts, TheDetailKeysFollowTheLayout)
{
    // A phone switches tabs; the wide layout has no tabs, but the distances and their units.
    EXPECT_EQ(actionFor({ "materialDetail" }, false, "Ctrl+1, Ctrl+2, Ctrl+3"), "Show the Summary, Shipping or Protection tab");
    EXPECT_FALSE(keysOf({ "materialDetail" }, false).contains("U"));
    EXPECT_EQ(actionFor({ "materialDetail" }, true, "Ctrl+1, Ctrl+2, Ctrl+3"), "Go to the summary, shipping or protection column");
    EXPECT_TRUE(keysOf({ "materialDetail" }, true).contains("U"));
    EXPECT_TRUE(keysOf({ "isolationPage" }, false).contains("U"));
}

TEST(Shortcuts, ReadingScreensOfferTextSizeAndTheGuidePrint)
{
    for (const char* screen : { "guidePage", "infoPage" }) {
        const QStringList keys = keysOf({ screen }, false);
        EXPECT_TRUE(keys.contains("Ctrl+Plus") && keys.contains("Ctrl+Minus")) << screen;
    }
    EXPECT_TRUE(keysOf({ "guidePage" }, false).contains("Ctrl+P"));
    EXPECT_FALSE(keysOf({ "infoPage" }, false).contains("Ctrl+P"));
    EXPECT_EQ(actionFor({ "guidePage" }, false, "Esc"), "Leave full screen, then go back");
}

} // namespace
