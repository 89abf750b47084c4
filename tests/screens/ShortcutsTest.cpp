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

TEST(Shortcuts, EachScreenListsItsOwnKeysThenTheKeysThatWorkEverywhere)
{
    const QStringList global = keysOf({}, false);
    ASSERT_FALSE(global.isEmpty());
    for (const char* screen : { "materialList", "materialDetail", "guidePage", "isolationPage", "infoPage", "shippingEntry", "provisionsPage" }) {
        const QStringList keys = keysOf({ screen }, false);
        EXPECT_GT(keys.size(), global.size()) << screen << " has keys of its own";
        EXPECT_EQ(keys.mid(keys.size() - global.size()), global) << screen;
        for (const KeyboardShortcut& s : KeyboardShortcuts::forScreens({ screen }, false))
            EXPECT_FALSE(s.action.isEmpty()) << s.keys.toStdString();
    }
    EXPECT_EQ(keysOf({ "placardsPage" }, false), global) << "a screen without keys of its own still gets the sheet and Back";
}

TEST(Shortcuts, ScreensSideBySideListEachKeyOnce)
{
    const QStringList keys = keysOf({ "materialList", "materialDetail" }, true);
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), keys.size()) << keys.join(" | ").toStdString();
    // The list's Enter opens its first result; the detail's rows take Enter or Space.
    EXPECT_TRUE(keys.contains("Enter") && keys.contains("Enter or Space"));
    // The wide layout has no tabs, but the distances and their units.
    EXPECT_FALSE(keysOf({ "materialDetail" }, false).contains("U"));
    EXPECT_TRUE(keysOf({ "materialDetail" }, true).contains("U"));
}

} // namespace
