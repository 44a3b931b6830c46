// Calendar values in UTC, with a millisecond difference type.
//
// A DateTime is the sixteen bytes of eight 16-bit fields that recordings
// store as they are. Arithmetic and ordering go through a count of 100 ns
// ticks since 1601-01-01, exact for the years 1601 to 30827:
//
//   DateTime start = DateTime::Now();
//   Millisecond elapsed = DateTime::Now() - start;
//   DateTime later = DateTime(2000, 1, 1, 0, 0, 0) + Millisecond(1500);   // 00:00:01.500, a Saturday
//
// operator== compares all sixteen bytes, the day of the week included, so a
// value built from fields (day of the week 0) and the same moment read from
// the clock are unequal, although neither is less than the other.
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>

namespace Quilon_::System {

enum DayOfWeekEnumTag : std::int32_t {
    dwSunday = 0,
    dwMonday = 1,
    dwTuesday = 2,
    dwWednesday = 3,
    dwThursday = 4,
    dwFriday = 5,
    dwSaturday = 6,
};
using DayOfWeekEnum = DayOfWeekEnumTag;

// The enumerator's name; empty for any other value.
QUILON_API std::wstring ToString(DayOfWeekEnum day);

// A signed span of milliseconds.
class QUILON_API Millisecond {
public:
    explicit constexpr Millisecond(std::int64_t count = 0) noexcept : m_count(count) {}
    constexpr std::int64_t Value() const noexcept { return m_count; }

private:
    std::int64_t m_count;
};

class QUILON_API DateTime {
public:
    // The present moment, in UTC.
    DateTime();
    DateTime(unsigned short year, unsigned char month, unsigned char day, unsigned char hour,
             unsigned char minute, unsigned char second);
    DateTime(unsigned short year, unsigned char month, unsigned char day, unsigned char hour,
             unsigned char minute, unsigned char second, unsigned short milliseconds);

    unsigned short Year() const noexcept { return m_year; }
    unsigned char Month() const noexcept { return static_cast<unsigned char>(m_month); }
    DayOfWeekEnum DayOfWeek() const noexcept { return static_cast<DayOfWeekEnum>(m_dayOfWeek); }
    unsigned char Day() const noexcept { return static_cast<unsigned char>(m_day); }
    unsigned char Hour() const noexcept { return static_cast<unsigned char>(m_hour); }
    unsigned char Minute() const noexcept { return static_cast<unsigned char>(m_minute); }
    unsigned char Second() const noexcept { return static_cast<unsigned char>(m_second); }
    unsigned short Millisecond() const noexcept { return m_milliseconds; }

    static DateTime Now();
    // The last write of the file; raises "Failed to get time information for
    // file '%1%'" when it cannot be opened or read.
    static DateTime LastModificationTime(const std::wstring& path);
    // Sets the system clock; raises "Failed to set system time (%1%)" with
    // the errno value when the system refuses.
    static void SetDateTime(const DateTime& value);

    // 100 ns ticks since 1601-01-01 00:00 UTC. The day of the week plays no
    // part; fields out of their ranges give an unspecified count.
    std::int64_t Ticks() const noexcept;
    // The moment `ticks` after 1601-01-01, with its day of the week.
    static DateTime FromTicks(std::int64_t ticks) noexcept;

private:
    DateTime(std::int64_t ticks, bool) noexcept;

    unsigned short m_year = 0;
    unsigned short m_month = 0;
    unsigned short m_dayOfWeek = 0;
    unsigned short m_day = 0;
    unsigned short m_hour = 0;
    unsigned short m_minute = 0;
    unsigned short m_second = 0;
    unsigned short m_milliseconds = 0;
};

// All sixteen bytes.
QUILON_API bool operator==(const DateTime& a, const DateTime& b) noexcept;
QUILON_API bool operator<(const DateTime& a, const DateTime& b) noexcept;
QUILON_API bool operator<=(const DateTime& a, const DateTime& b) noexcept;
QUILON_API bool operator>(const DateTime& a, const DateTime& b) noexcept;
QUILON_API bool operator>=(const DateTime& a, const DateTime& b) noexcept;
// a - b in milliseconds, rounded towards zero.
QUILON_API Millisecond operator-(const DateTime& a, const DateTime& b) noexcept;
QUILON_API DateTime operator+(const DateTime& value, Millisecond span) noexcept;

QUILON_API Any ToAny(const DateTime& value);

} // namespace Quilon_::System
