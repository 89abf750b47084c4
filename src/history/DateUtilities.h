#pragma once
// Short date texts: how long ago, clock times, date styles, and a few date
// helpers. Process-wide state (zone, locale, reference noon, text caches) is
// set up on first use and kept; tests set it up for a zone and locale of
// their choosing after pinning Clock.
#include <QDateTime>
#include <QHash>
#include <QLocale>
#include <QString>
#include <QTimeZone>
#include <optional>

namespace qor {

// A date-only style of the locale, or a fixed pattern. Patterns use Qt's
// letters, plus "YYYY" for the week-based year.
class DateFormatter {
public:
    enum Style { Short, Medium, Long, Full, Pattern };
    explicit DateFormatter(Style style = Short, const QString& pattern = QString()) : m_style(style), m_pattern(pattern) {}
    QString format(const QDateTime& date, const QLocale& locale, const QTimeZone& zone) const;

private:
    Style m_style;
    QString m_pattern;
};

class DateUtilities {
public:
    // Relative text ("Today", "Last Monday", "3 weeks ago", ...) measured to
    // the reference noon; cached per date for the life of the process.
    static QString timeSinceNow(const QDateTime& date);
    static QString timeSinceNowWorker(const QDateTime& date);

    static QString yearsAgoString(int years);
    static QString monthsAgoString(int months);
    static QString weeksAgoString(int weeks);
    // singular for 1; otherwise plural with "%d" filled in, cached in map.
    static QString agoString(int number, QHash<int, QString>& map, const QString& singular, const QString& plural);

    // "6:09pm" or "18:09", as the locale's time format says.
    static QString formatShortTime(const QDateTime& date);
    static QString formatShortTimeWorker(const QDateTime& date);

    static QString formatShortDate(const QDateTime& date);
    static QString formatMediumDate(const QDateTime& date);
    static QString formatLongDate(const QDateTime& date);
    static QString formatFullDate(const QDateTime& date);
    // Week-based year ("YYYY"): the last days of December can read as the next year.
    static QString formatYear(const QDateTime& date);
    static QString format(const QDateTime& date, const DateFormatter& formatter);

    // Noon of the day of first use; never moves afterwards.
    static QDateTime today();
    static QDateTime tomorrow();
    static bool isSameDay(const QDateTime& a, const QDateTime& b);
    static bool isToday(const QDateTime& date);
    // "2024-03-05T14:07:09+01:00" or "2024-03-05"; other lengths give none.
    // Fields are read leniently and the zone suffix is ignored.
    static std::optional<QDateTime> parseIS08601Date(const QString& text);
    static bool use24HourTime();
    // The current hour and minute on the calendar's first day (0001-01-01).
    static QDateTime currentTime();
    static QDateTime currentTimeWorker();

    // Sets the state up afresh for this zone and locale, the reference noon
    // taken from Clock now.
    static void setUp(const QTimeZone& zone, const QLocale& locale);
    // Drops the state; the next use sets it up from the system's zone and locale.
    static void reset();
    static QTimeZone timeZone();
    static QLocale locale();
};

} // namespace qor
