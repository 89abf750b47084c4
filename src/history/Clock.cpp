#include "Clock.h"

#include <QTimeZone>
#include <cmath>

namespace qor {

namespace {
std::function<Clock::TimePoint()>& source()
{
    static std::function<Clock::TimePoint()> fn;
    return fn;
}
} // namespace

Clock::TimePoint Clock::now()
{
    if (source())
        return source()();
    return std::chrono::time_point_cast<std::chrono::microseconds>(std::chrono::system_clock::now());
}

QDateTime Clock::currentDateTime()
{
    return toDateTime(now());
}

double Clock::timeIntervalSinceReferenceDate()
{
    const auto us = now().time_since_epoch().count() - kReferenceDateMsecs * 1000;
    return double(us) / 1e6;
}

void Clock::setSource(std::function<TimePoint()> fn)
{
    source() = std::move(fn);
}

void Clock::setFixed(const QDateTime& when)
{
    const TimePoint t = fromDateTime(when);
    source() = [t] { return t; };
}

Clock::TimePoint Clock::fromDateTime(const QDateTime& when)
{
    return TimePoint(std::chrono::microseconds(when.toMSecsSinceEpoch() * 1000));
}

QDateTime Clock::toDateTime(TimePoint when)
{
    const auto us = when.time_since_epoch().count();
    // Floor division keeps instants before 1970 on the right millisecond.
    const qint64 ms = us >= 0 ? us / 1000 : -((-us + 999) / 1000);
    // UTC: comparing and saving local-time values looks the zone up every time.
    return QDateTime::fromMSecsSinceEpoch(ms, QTimeZone::utc());
}

QDateTime Clock::referenceDate()
{
    return QDateTime::fromMSecsSinceEpoch(kReferenceDateMsecs, QTimeZone::utc());
}

double Clock::secondsSinceReferenceDate(const QDateTime& date)
{
    return double(date.toMSecsSinceEpoch() - kReferenceDateMsecs) / 1000.0;
}

QDateTime Clock::fromSecondsSinceReferenceDate(double seconds)
{
    return QDateTime::fromMSecsSinceEpoch(kReferenceDateMsecs + qint64(std::llround(seconds * 1000.0)), QTimeZone::utc());
}

} // namespace qor
