#pragma once
// The current time for everything in the history area, so that tests can
// pin it. Microsecond resolution: file names are made from fractions of a
// millisecond.
#include <QDateTime>
#include <chrono>
#include <functional>

namespace qor {

class Clock {
public:
    using TimePoint = std::chrono::time_point<std::chrono::system_clock, std::chrono::microseconds>;

    static TimePoint now();
    // now() as a date (millisecond resolution).
    static QDateTime currentDateTime();
    // Seconds since 1 January 2001 00:00 UTC, the property-list date origin.
    static double timeIntervalSinceReferenceDate();

    // Replaces the clock; an empty function restores the system clock.
    static void setSource(std::function<TimePoint()> source);
    // Pins the clock at one instant (tests).
    static void setFixed(const QDateTime& when);

    static TimePoint fromDateTime(const QDateTime& when);
    static QDateTime toDateTime(TimePoint when);
    // 2001-01-01T00:00:00Z, where property-list and archive dates count from.
    static constexpr qint64 kReferenceDateMsecs = 978307200000LL;
    static QDateTime referenceDate();
    static double secondsSinceReferenceDate(const QDateTime& date);
    // UTC, to the nearest millisecond.
    static QDateTime fromSecondsSinceReferenceDate(double seconds);
};

} // namespace qor
