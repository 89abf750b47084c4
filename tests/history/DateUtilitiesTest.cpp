// Relative date texts, clock times and date styles against a pinned clock,
// zone and locale.
#include "HistoryTestSupport.h"

#include "history/DateUtilities.h"

using namespace qor;

namespace {

const QTimeZone kBerlin("Europe/Berlin");

struct DateTest : ::testing::Test {
    // Saturday 15 June 2024, 08:00 in Berlin: the reference noon is 12:00 that day.
    void SetUp() override { setUp(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void TearDown() override
    {
        Clock::setSource({});
        DateUtilities::reset();
    }
    void setUp(const QLocale& locale)
    {
        Clock::setFixed(QDateTime(QDate(2024, 6, 15), QTime(8, 0), kBerlin));
        DateUtilities::setUp(kBerlin, locale);
    }
    static QDateTime noon() { return QDateTime(QDate(2024, 6, 15), QTime(12, 0), kBerlin); }
    static QString ago(qint64 seconds) { return DateUtilities::timeSinceNowWorker(noon().addSecs(-seconds)); }
    static QDateTime local(int y, int m, int d, int h = 0, int min = 0) { return QDateTime(QDate(y, m, d), QTime(h, min), kBerlin); }
};

constexpr qint64 kDay = 86400;

} // namespace

TEST_F(DateTest, AgoTextsCountFromTheReferenceNoonWithStrictBoundaries)
{
    const struct {
        qint64 seconds;
        const char* text;
    } cases[] = {
        { 366 * kDay, "1 year ago" }, { 365 * kDay, "11 months ago" },  // 365 days is not more than a year
        { 31 * kDay, "1 month ago" }, { 30 * kDay, "4 weeks ago" }, { 7 * kDay + 1, "1 week ago" },
        { 7 * kDay, "Today" },  // the week unit takes all seven days
        { 0, "Today" }, { kDay - 1, "Today" },  // after yesterday's noon
        { kDay, "Yesterday" }, { 2 * kDay - 1, "Yesterday" }, { 2 * kDay, "Last Thursday" }, { 7 * kDay - 1, "Last Saturday" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(ago(c.seconds), c.text) << c.seconds << " s before noon";
}

TEST_F(DateTest, ReferenceNoonAndTextsStayFromFirstUse)
{
    const QDateTime threeDaysAgo = noon().addDays(-3);
    EXPECT_EQ(DateUtilities::timeSinceNow(threeDaysAgo), "Last Wednesday");
    EXPECT_EQ(DateUtilities::today(), noon());

    Clock::setFixed(local(2024, 6, 18, 9));  // the process runs on for days
    EXPECT_EQ(DateUtilities::today(), noon());
    EXPECT_EQ(DateUtilities::timeSinceNow(threeDaysAgo), "Last Wednesday");

    QHash<int, QString> cache;
    EXPECT_EQ(DateUtilities::agoString(1, cache, "one", "%d many"), "one");
    EXPECT_EQ(DateUtilities::agoString(5, cache, "one", "%d many"), "5 many");
    EXPECT_EQ(DateUtilities::agoString(5, cache, "one", "changed %d"), "5 many") << "cached per number";
}

TEST_F(DateTest, ClockTimesIn12And24HourForm)
{
    EXPECT_FALSE(DateUtilities::use24HourTime());
    EXPECT_EQ(DateUtilities::formatShortTime(local(2024, 6, 15, 0, 5)), "12:05am");
    EXPECT_EQ(DateUtilities::formatShortTime(local(2024, 6, 15, 12, 30)), "12:30pm");
    EXPECT_EQ(DateUtilities::formatShortTime(local(2024, 6, 15, 18, 9)), "6:09pm");
    EXPECT_EQ(DateUtilities::formatShortTime(QDateTime(QDate(2024, 6, 15), QTime(16, 9), QTimeZone::utc())), "6:09pm")
        << "shown in the service's zone";

    setUp(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_TRUE(DateUtilities::use24HourTime());
    EXPECT_EQ(DateUtilities::formatShortTime(local(2024, 6, 15, 7, 3)), "07:03");
}

TEST_F(DateTest, DateStylesAndTheWeekBasedYear)
{
    const QDateTime d = local(2024, 3, 5, 14);
    EXPECT_EQ(DateUtilities::formatShortDate(d), "3/5/24");
    EXPECT_EQ(DateUtilities::formatFullDate(d), "Tuesday, March 5, 2024");
    // Weeks start on Sunday here, and the week of 1 January is the first.
    EXPECT_EQ(DateUtilities::formatYear(local(2024, 12, 29)), "2025");
    EXPECT_EQ(DateUtilities::formatYear(local(2021, 1, 1)), "2021");

    setUp(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(DateUtilities::formatLongDate(d), "5. März 2024");
    EXPECT_EQ(DateUtilities::formatYear(local(2024, 12, 29)), "2024");
    EXPECT_EQ(DateUtilities::formatYear(local(2021, 1, 3)), "2020");
}

TEST_F(DateTest, DayHelpersWorkInTheServiceZone)
{
    EXPECT_TRUE(DateUtilities::isToday(local(2024, 6, 15, 0, 0)));
    EXPECT_FALSE(DateUtilities::isToday(local(2024, 6, 16, 0, 0)));
    // 22:30 UTC on the 14th is already the 15th in Berlin.
    EXPECT_TRUE(DateUtilities::isToday(QDateTime(QDate(2024, 6, 14), QTime(22, 30), QTimeZone::utc())));
    EXPECT_FALSE(DateUtilities::isSameDay(QDateTime(), QDateTime()));
}

TEST_F(DateTest, Iso8601AcceptsOnlyTheTwoLengthsAndReadsFieldsLeniently)
{
    EXPECT_EQ(DateUtilities::parseIS08601Date("2024-03-05"), local(2024, 3, 5));
    EXPECT_EQ(DateUtilities::parseIS08601Date("2024-03-05T14:07:09+01:00"), local(2024, 3, 5, 14, 7).addSecs(9))
        << "the zone suffix is ignored";
    for (const char* bad : { "2024-3-5", "", "2024-03-05T14:07:09Z", "2024-03-05 " })
        EXPECT_FALSE(DateUtilities::parseIS08601Date(QString::fromLatin1(bad))) << bad;
    EXPECT_EQ(DateUtilities::parseIS08601Date("2024-13-01"), local(2025, 1, 1)) << "months roll over";
    EXPECT_EQ(DateUtilities::parseIS08601Date("2024-03-00"), local(2024, 2, 29)) << "day 0 is the day before";
    EXPECT_EQ(DateUtilities::parseIS08601Date("2024/03/05X25:61:00+01:00"), local(2024, 3, 6, 2, 1))
        << "separators unchecked, hours and minutes roll over";
}
