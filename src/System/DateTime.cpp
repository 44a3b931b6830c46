#include "Quilon_/System/DateTime.h"

#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <ctime>

namespace Quilon_::System {

static_assert(sizeof(DateTime) == 16, "recordings store DateTime as its sixteen bytes");

namespace {

constexpr std::int64_t ticksPerMillisecond = 10000;
constexpr std::int64_t ticksPerSecond = 1000 * ticksPerMillisecond;
constexpr std::int64_t ticksPerDay = 86400 * ticksPerSecond;
// From 1601-01-01 to 1970-01-01.
constexpr std::int64_t unixEpochSeconds = 11644473600;
// Days from 0000-03-01 to 1601-01-01 in the proleptic Gregorian calendar.
constexpr std::int64_t daysBefore1601 = 584694;

// Days since 1601-01-01. Counting years from March puts the leap day at the
// end of the year, so that a year's days before a month do not depend on
// whether it is a leap year.
std::int64_t DaysFromCivil(std::int64_t year, unsigned month, unsigned day)
{
    year -= month <= 2;
    const std::int64_t era = year / 400;
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - daysBefore1601;
}

struct CivilDate {
    std::int64_t year;
    unsigned month;
    unsigned day;
};

// The inverse of DaysFromCivil, for days >= 0.
CivilDate CivilFromDays(std::int64_t days)
{
    days += daysBefore1601;
    const std::int64_t era = days / 146097;
    const std::int64_t dayOfEra = days - era * 146097;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const auto day = static_cast<unsigned>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    const auto month = static_cast<unsigned>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    return {yearOfEra + era * 400 + (month <= 2), month, day};
}

std::int64_t TicksFromTimespec(const timespec& time)
{
    return (static_cast<std::int64_t>(time.tv_sec) + unixEpochSeconds) * ticksPerSecond + time.tv_nsec / 100;
}

} // namespace

DateTime::DateTime() : DateTime(Now()) {}

DateTime::DateTime(unsigned short year, unsigned char month, unsigned char day, unsigned char hour,
                   unsigned char minute, unsigned char second)
    : DateTime(year, month, day, hour, minute, second, 0)
{
}

DateTime::DateTime(unsigned short year, unsigned char month, unsigned char day, unsigned char hour,
                   unsigned char minute, unsigned char second, unsigned short milliseconds)
    : m_year(year), m_month(month), m_day(day), m_hour(hour), m_minute(minute), m_second(second),
      m_milliseconds(milliseconds)
{
}

DateTime::DateTime(std::int64_t ticks, bool) noexcept
{
    const std::int64_t days = ticks / ticksPerDay;
    std::int64_t rest = ticks % ticksPerDay / ticksPerMillisecond;
    const CivilDate date = CivilFromDays(days);
    m_year = static_cast<unsigned short>(date.year);
    m_month = static_cast<unsigned short>(date.month);
    m_day = static_cast<unsigned short>(date.day);
    // 1601-01-01 was a Monday.
    m_dayOfWeek = static_cast<unsigned short>((days + 1) % 7);
    m_milliseconds = static_cast<unsigned short>(rest % 1000);
    rest /= 1000;
    m_second = static_cast<unsigned short>(rest % 60);
    rest /= 60;
    m_minute = static_cast<unsigned short>(rest % 60);
    m_hour = static_cast<unsigned short>(rest / 60);
}

std::int64_t DateTime::Ticks() const noexcept
{
    const std::int64_t days = DaysFromCivil(m_year, m_month, m_day);
    const std::int64_t seconds = ((days * 24 + m_hour) * 60 + m_minute) * 60 + m_second;
    return seconds * ticksPerSecond + m_milliseconds * ticksPerMillisecond;
}

DateTime DateTime::FromTicks(std::int64_t ticks) noexcept
{
    return DateTime(ticks, true);
}

DateTime DateTime::Now()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return FromTicks(TicksFromTimespec(now));
}

DateTime DateTime::LastModificationTime(const std::wstring& path)
{
    const int file = ::open(ToAnsi(path).c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status {};
    // A directory opens for reading here, but is no file.
    const bool read = file != -1 && ::fstat(file, &status) == 0 && !S_ISDIR(status.st_mode);
    if (file != -1)
        ::close(file);
    if (!read)
        QUILON_RAISE(L"Failed to get time information for file '%1%'", path);
    return FromTicks(TicksFromTimespec(status.st_mtim));
}

void DateTime::SetDateTime(const DateTime& value)
{
    const std::int64_t ticks = value.Ticks();
    timespec time{};
    // Floor division, so that moments before 1970 keep a positive fraction.
    std::int64_t seconds = ticks / ticksPerSecond;
    std::int64_t fraction = ticks % ticksPerSecond;
    if (fraction < 0) {
        --seconds;
        fraction += ticksPerSecond;
    }
    time.tv_sec = static_cast<time_t>(seconds - unixEpochSeconds);
    time.tv_nsec = static_cast<long>(fraction * 100);
    if (clock_settime(CLOCK_REALTIME, &time) != 0)
        QUILON_RAISE(L"Failed to set system time (%1%)", errno);
}

bool operator==(const DateTime& a, const DateTime& b) noexcept
{
    return std::memcmp(&a, &b, sizeof(DateTime)) == 0;
}

bool operator<(const DateTime& a, const DateTime& b) noexcept
{
    return a.Ticks() - b.Ticks() < 0;
}

bool operator<=(const DateTime& a, const DateTime& b) noexcept
{
    return a.Ticks() - b.Ticks() <= 0;
}

bool operator>(const DateTime& a, const DateTime& b) noexcept
{
    return a.Ticks() - b.Ticks() > 0;
}

bool operator>=(const DateTime& a, const DateTime& b) noexcept
{
    return a.Ticks() - b.Ticks() >= 0;
}

Millisecond operator-(const DateTime& a, const DateTime& b) noexcept
{
    // Integer division rounds towards zero, as the difference must.
    return Millisecond((a.Ticks() - b.Ticks()) / ticksPerMillisecond);
}

DateTime operator+(const DateTime& value, Millisecond span) noexcept
{
    return DateTime::FromTicks(value.Ticks() + span.Value() * ticksPerMillisecond);
}

Any ToAny(const DateTime& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System

QUILON_DEFINE_ENUM_TEXT(System::DayOfWeekEnum, Empty, {System::dwSunday, L"dwSunday"},
                        {System::dwMonday, L"dwMonday"}, {System::dwTuesday, L"dwTuesday"},
                        {System::dwWednesday, L"dwWednesday"}, {System::dwThursday, L"dwThursday"},
                        {System::dwFriday, L"dwFriday"}, {System::dwSaturday, L"dwSaturday"})
