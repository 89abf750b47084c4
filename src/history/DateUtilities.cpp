#include "DateUtilities.h"

#include "Clock.h"
#include "model/Resources.h"

#include <QMutexLocker>
#include <QRecursiveMutex>
#include <QRegularExpression>
#include <memory>

namespace qor {

namespace {

constexpr double kYear = 31536000.0;   // 365 days
constexpr double kMonth = 2635200.0;   // 30.5 days
constexpr double kWeek = 604800.0;

struct State {
    QTimeZone zone;
    QLocale locale;
    QDateTime referenceNoon;
    bool use24Hour = false;
    QHash<qint64, QString> relativeCache;
    QHash<int, QString> yearsCache, monthsCache, weeksCache;
    DateFormatter shortDate{ DateFormatter::Short };
    DateFormatter mediumDate{ DateFormatter::Medium };
    DateFormatter longDate{ DateFormatter::Long };
    DateFormatter fullDate{ DateFormatter::Full };
    DateFormatter year{ DateFormatter::Pattern, QStringLiteral("YYYY") };
};

QRecursiveMutex& formatterLock()
{
    static QRecursiveMutex lock;
    return lock;
}

std::unique_ptr<State>& stateSlot()
{
    static std::unique_ptr<State> slot;
    return slot;
}

std::unique_ptr<State> makeState(const QTimeZone& zone, const QLocale& locale)
{
    auto s = std::make_unique<State>();
    s->zone = zone.isValid() ? zone : QTimeZone::systemTimeZone();
    s->locale = locale;
    const QDate day = Clock::currentDateTime().toTimeZone(s->zone).date();
    s->referenceNoon = QDateTime(day, QTime(12, 0), s->zone);
    s->use24Hour = locale.timeFormat(QLocale::LongFormat).contains(QLatin1Char('H'));
    return s;
}

State& state()
{
    QMutexLocker locker(&formatterLock());
    auto& slot = stateSlot();
    if (!slot)
        slot = makeState(QTimeZone::systemTimeZone(), QLocale());
    return *slot;
}

// Year of the week a date falls in. The locale gives the first weekday; a
// week starting on Monday needs four days in the new year to count as its
// first week (ISO), otherwise one day does.
int weekBasedYear(const QDate& date, const QLocale& locale)
{
    const int firstDay = int(locale.firstDayOfWeek());
    const int minDays = firstDay == Qt::Monday ? 4 : 1;
    auto firstWeekStart = [&](int year) {
        const QDate jan1(year, 1, 1);
        const int offset = (jan1.dayOfWeek() - firstDay + 7) % 7;
        const QDate weekStart = jan1.addDays(-offset);
        return 7 - offset >= minDays ? weekStart : weekStart.addDays(7);
    };
    const int y = date.year();
    if (date >= firstWeekStart(y + 1))
        return y + 1;
    if (date < firstWeekStart(y))
        return y - 1;
    return y;
}

QString withoutWeekday(QString pattern)
{
    static const QRegularExpression weekday(QStringLiteral("d{4}[,.\\s]*|[,.\\s]*d{4}"));
    return pattern.remove(weekday).trimmed();
}

} // namespace

QString DateFormatter::format(const QDateTime& date, const QLocale& locale, const QTimeZone& zone) const
{
    const QDate day = date.toTimeZone(zone).date();
    QString pattern;
    switch (m_style) {
    case Short:
        pattern = locale.dateFormat(QLocale::ShortFormat);
        break;
    case Medium:
        pattern = withoutWeekday(locale.dateFormat(QLocale::LongFormat)).replace(QStringLiteral("MMMM"), QStringLiteral("MMM"));
        break;
    case Long:
        pattern = withoutWeekday(locale.dateFormat(QLocale::LongFormat));
        break;
    case Full:
        pattern = locale.dateFormat(QLocale::LongFormat);
        break;
    case Pattern:
        pattern = m_pattern;
        if (pattern.contains(QStringLiteral("YYYY"))) {
            const QString year = QStringLiteral("%1").arg(weekBasedYear(day, locale), 4, 10, QLatin1Char('0'));
            pattern.replace(QStringLiteral("YYYY"), QLatin1Char('\'') + year + QLatin1Char('\''));
        }
        break;
    }
    return locale.toString(day, pattern);
}

void DateUtilities::setUp(const QTimeZone& zone, const QLocale& locale)
{
    QMutexLocker locker(&formatterLock());
    stateSlot() = makeState(zone, locale);
}

void DateUtilities::reset()
{
    QMutexLocker locker(&formatterLock());
    stateSlot().reset();
}

QTimeZone DateUtilities::timeZone()
{
    return state().zone;
}

QLocale DateUtilities::locale()
{
    return state().locale;
}

QString DateUtilities::timeSinceNow(const QDateTime& date)
{
    State& s = state();
    const qint64 key = date.isValid() ? date.toMSecsSinceEpoch() : std::numeric_limits<qint64>::min();
    auto it = s.relativeCache.constFind(key);
    if (it != s.relativeCache.constEnd())
        return *it;
    const QString text = timeSinceNowWorker(date);
    s.relativeCache.insert(key, text);
    return text;
}

QString DateUtilities::timeSinceNowWorker(const QDateTime& date)
{
    const State& s = state();
    if (!date.isValid())
        return L::tr("Today");
    const double d = double(date.msecsTo(s.referenceNoon)) / 1000.0;
    if (d > kYear)
        return yearsAgoString(int(d / kYear));
    if (d > kMonth)
        return monthsAgoString(int(d / kMonth));
    if (d > kWeek)
        return weeksAgoString(int(d / kWeek));
    if (d <= 0)
        return L::tr("Today");

    // Whole calendar days up to the reference noon; the week unit takes seven
    // of them, so exactly a week ago reads "Today".
    const QDateTime local = date.toTimeZone(s.zone);
    int days = 0;
    while (days < 8 && local.addDays(days + 1) <= s.referenceNoon)
        ++days;
    switch (days % 7) {
    case 0:
        return L::tr("Today");
    case 1:
        return L::tr("Yesterday");
    default:
        break;
    }
    switch (local.date().dayOfWeek()) {
    case Qt::Sunday:
        return L::tr("Last Sunday");
    case Qt::Monday:
        return L::tr("Last Monday");
    case Qt::Tuesday:
        return L::tr("Last Tuesday");
    case Qt::Wednesday:
        return L::tr("Last Wednesday");
    case Qt::Thursday:
        return L::tr("Last Thursday");
    case Qt::Friday:
        return L::tr("Last Friday");
    default:
        return L::tr("Last Saturday");
    }
}

QString DateUtilities::yearsAgoString(int years)
{
    return agoString(years, state().yearsCache, L::tr("1 year ago"), L::tr("%d years ago"));
}

QString DateUtilities::monthsAgoString(int months)
{
    return agoString(months, state().monthsCache, L::tr("1 month ago"), L::tr("%d months ago"));
}

QString DateUtilities::weeksAgoString(int weeks)
{
    return agoString(weeks, state().weeksCache, L::tr("1 week ago"), L::tr("%d weeks ago"));
}

QString DateUtilities::agoString(int number, QHash<int, QString>& map, const QString& singular, const QString& plural)
{
    if (number == 1)
        return singular;
    auto it = map.constFind(number);
    if (it != map.constEnd())
        return *it;
    QString text = plural;
    text.replace(QLatin1String("%d"), QString::number(number));
    map.insert(number, text);
    return text;
}

QString DateUtilities::formatShortTime(const QDateTime& date)
{
    QMutexLocker locker(&formatterLock());
    return formatShortTimeWorker(date);
}

QString DateUtilities::formatShortTimeWorker(const QDateTime& date)
{
    const State& s = state();
    const QTime t = date.toTimeZone(s.zone).time();
    const int h = t.hour();
    const int m = t.minute();
    if (s.use24Hour)
        return QString::asprintf("%02d:%02d", h, m);
    if (h == 0)
        return QString::asprintf("12:%02dam", m);
    if (h == 12)
        return QString::asprintf("12:%02dpm", m);
    if (h < 12)
        return QString::asprintf("%d:%02dam", h, m);
    return QString::asprintf("%d:%02dpm", h - 12, m);
}

QString DateUtilities::format(const QDateTime& date, const DateFormatter& formatter)
{
    QMutexLocker locker(&formatterLock());
    const State& s = state();
    return formatter.format(date, s.locale, s.zone);
}

QString DateUtilities::formatShortDate(const QDateTime& date)
{
    return format(date, state().shortDate);
}

QString DateUtilities::formatMediumDate(const QDateTime& date)
{
    return format(date, state().mediumDate);
}

QString DateUtilities::formatLongDate(const QDateTime& date)
{
    return format(date, state().longDate);
}

QString DateUtilities::formatFullDate(const QDateTime& date)
{
    return format(date, state().fullDate);
}

QString DateUtilities::formatYear(const QDateTime& date)
{
    return format(date, state().year);
}

QDateTime DateUtilities::today()
{
    return state().referenceNoon;
}

QDateTime DateUtilities::tomorrow()
{
    return state().referenceNoon.addDays(1);
}

bool DateUtilities::isSameDay(const QDateTime& a, const QDateTime& b)
{
    if (!a.isValid() || !b.isValid())
        return false;
    const QTimeZone zone = state().zone;
    return a.toTimeZone(zone).date() == b.toTimeZone(zone).date();
}

bool DateUtilities::isToday(const QDateTime& date)
{
    return isSameDay(date, today());
}

std::optional<QDateTime> DateUtilities::parseIS08601Date(const QString& text)
{
    const qsizetype length = text.size();
    if (length != 25 && length != 10)
        return std::nullopt;
    auto field = [&](int pos, int len) { return leadingInt(text.mid(pos, len)); };
    const int year = field(0, 4);
    const int month = field(5, 2);
    const int day = field(8, 2);
    qint64 seconds = 0;
    if (length == 25)
        seconds = qint64(field(11, 2)) * 3600 + qint64(field(14, 2)) * 60 + field(17, 2);
    // Out-of-range fields roll over into the next unit, as calendars do.
    qint64 extraDays = seconds / 86400;
    seconds %= 86400;
    if (seconds < 0) {
        seconds += 86400;
        --extraDays;
    }
    // There is no year 0 in QDate: year 0 is 1 BC.
    const QDate date = QDate(year > 0 ? year : year - 1, 1, 1).addMonths(month - 1).addDays(day - 1 + extraDays);
    if (!date.isValid())
        return std::nullopt;
    return QDateTime(date, QTime(0, 0).addSecs(int(seconds)), state().zone);
}

bool DateUtilities::use24HourTime()
{
    return state().use24Hour;
}

QDateTime DateUtilities::currentTime()
{
    QMutexLocker locker(&formatterLock());
    return currentTimeWorker();
}

QDateTime DateUtilities::currentTimeWorker()
{
    const QTimeZone zone = state().zone;
    const QTime now = Clock::currentDateTime().toTimeZone(zone).time();
    return QDateTime(QDate(1, 1, 1), QTime(now.hour(), now.minute()), zone);
}

} // namespace qor
