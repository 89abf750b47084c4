// The theme's colours and the zone figure's inks stay legible in both
// appearances, the user's choice of appearance overrides the system's, and
// the side index fits its height.
#include "GuideControllers.h"
#include "SideIndex.h"
#include "Theme.h"
#include "pages/ProtectiveZone.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace qor;

namespace {

TEST(Contrast, KnownRatios)
{
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::black), 21.0, 1e-9); // order does not matter
    EXPECT_NEAR(contrastRatio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(Theme, EveryPairIsLegibleInBothAppearances)
{
    for (const bool dark : { false, true }) {
        for (const ThemePair& pair : themePairs()) {
            const QColor text = themeColor(pair.text, dark);
            const QColor background = themeColor(pair.background, dark);
            ASSERT_TRUE(text.isValid()) << pair.text;
            ASSERT_TRUE(background.isValid()) << pair.background;
            const double needed = pair.large ? kMinLargeContrast : kMinContrast;
            EXPECT_GE(contrastRatio(text, background), needed)
                << pair.text << " on " << pair.background << (dark ? " (dark)" : " (light)");
        }
    }
}

TEST(Theme, ZoneFigureInksAreLegibleOnItsBackground)
{
    for (const bool dark : { false, true }) {
        const ZonePalette p = ZonePalette::forTheme(dark);
        for (const QColor& ink : { p.text, p.isolation, p.protective, p.wind })
            EXPECT_GE(contrastRatio(ink, p.background), kMinContrast) << ink.name().toStdString() << (dark ? " dark" : " light");
        ZoneOptions o;
        o.dark = dark;
        EXPECT_TRUE(ProtectiveZone::svg("x", ZoneDistances{ QStringLiteral("30"), QStringLiteral("0.1") }, o).contains(p.background.name()));
    }
}

// A text colour no pair checks could be drawn anywhere, unchecked.
TEST(Theme, EveryTextColourIsPairedAndEveryRoleUnique)
{
    QSet<QByteArray> names;
    QSet<QByteArray> paired;
    for (const ThemePair& pair : themePairs())
        paired.insert(pair.text);
    for (const ThemeRole& role : themeRoles()) {
        EXPECT_FALSE(names.contains(role.name)) << "twice: " << role.name;
        names.insert(role.name);
        const QByteArray name(role.name);
        if (name.endsWith("Text"))
            EXPECT_TRUE(paired.contains(name)) << name.constData() << " is on no background";
    }
}

struct AppearanceChoiceTest : ::testing::Test {
    void SetUp() override { Appearance::setChoice(QStringLiteral("system")); }
    void TearDown() override { Appearance::setChoice(QStringLiteral("system")); }
};

// The shortcut's switch is driven from QML; here, that the choice is stored and checked.
TEST_F(AppearanceChoiceTest, ChoiceIsStoredAndUnknownChoicesFallBack)
{
    QorTheme theme;
    const bool system = Appearance::systemDark();
    theme.toggle();
    EXPECT_EQ(QorTheme().dark(), !system) << "a theme made later (another window, the next start) agrees";
    theme.setChoice(QStringLiteral("nonsense"));
    EXPECT_EQ(theme.choice(), QStringLiteral("system"));
    EXPECT_EQ(theme.dark(), system);
}

QStringList keys(int n)
{
    QStringList list;
    for (int i = 0; i < n; ++i)
        list << QStringLiteral("K%1").arg(i);
    return list;
}

QStringList labels(const QList<SideIndexEntry>& entries)
{
    QStringList list;
    for (const SideIndexEntry& e : entries)
        list << e.label;
    return list;
}

TEST(SideIndex, AllKeysWhenTheyFit)
{
    const QStringList letters{ "A", "B", " 111 ", "GUIDE128" };
    EXPECT_EQ(labels(condenseSideIndex(letters, 4)), (QStringList{ "A", "B", "111", "GUID" }));
    EXPECT_TRUE(condenseSideIndex(letters, 0).isEmpty());
}

TEST(SideIndex, SubsetWithDotsFitsAndKeepsEnds)
{
    const QStringList many = keys(61);
    for (int capacity = 1; capacity < 61; ++capacity) {
        const auto entries = condenseSideIndex(many, capacity);
        ASSERT_FALSE(entries.isEmpty()) << capacity;
        EXPECT_LE(entries.size(), capacity) << capacity;
        EXPECT_EQ(entries.first().keyIndex, 0);
        if (capacity >= 3)
            EXPECT_EQ(entries.last().keyIndex, 60) << capacity;
        int last = -1;
        for (int i = 0; i < entries.size(); ++i) {
            // Keys and dots alternate, and every entry leads further down the list.
            EXPECT_EQ(entries[i].label == QStringLiteral("•"), i % 2 == 1) << capacity << " at " << i;
            EXPECT_GT(entries[i].keyIndex, last) << capacity << " at " << i;
            last = entries[i].keyIndex;
        }
    }
}

TEST(SideIndex, DragReachesEveryKey)
{
    EXPECT_EQ(sideIndexKeyAt(61, -0.3), 0);  // finger dragged above the index
    EXPECT_EQ(sideIndexKeyAt(61, 7.0), 60);  // and below it
    EXPECT_EQ(sideIndexKeyAt(0, 0.5), -1);
    EXPECT_EQ(sideIndexKeyAt(10, std::nan("")), -1);
    QSet<int> reached;
    for (int step = 0; step <= 1000; ++step)
        reached.insert(sideIndexKeyAt(61, step / 1000.0));
    EXPECT_EQ(reached.size(), 61);
}

} // namespace
