// Calendar values: civil-date arithmetic over the whole range, the
// byte-wise equality against tick-wise ordering, and the clock.
#include "Quilon_/System/DateTime.h"

#include "../Support/Raised.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

namespace Quilon_::Tests::DateTimes {

using namespace Quilon_::System;
using DateTimeTest = RaisingTest;

constexpr std::int64_t ticksPerDay = 864000000000;

TEST(DateTime, FieldsSpanTheDocumentedSixteenBytes)
{
    const DateTime value(2024, 2, 29, 23, 59, 58, 999);
    EXPECT_EQ(sizeof(DateTime), 16u);
    EXPECT_EQ(value.Year(), 2024);
    EXPECT_EQ(value.Month(), 2);
    EXPECT_EQ(value.Day(), 29);
    EXPECT_EQ(value.Hour(), 23);
    EXPECT_EQ(value.Minute(), 59);
    EXPECT_EQ(value.Second(), 58);
    EXPECT_EQ(value.Millisecond(), 999);
    EXPECT_EQ(value.DayOfWeek(), dwSunday) << "built from fields, the day of the week is 0";
    EXPECT_EQ(DateTime(2024, 2, 29, 1, 2, 3).Millisecond(), 0);
}

TEST(DateTime, TicksRoundTripFromSixteenHundredOneToTheLastYear)
{
    EXPECT_EQ(DateTime(1601, 1, 1, 0, 0, 0).Ticks(), 0);
    const std::int64_t last = DateTime(30827, 12, 31, 23, 59, 59, 999).Ticks();
    EXPECT_GT(last, 0) << "the last day must not overflow";
    // A prime step visits every day of the week, month and leap position.
    const std::int64_t step = 997 * ticksPerDay + 3600'0000'123;
    for (std::int64_t ticks = 0; ticks <= last - step; ticks += step) {
        const std::int64_t exact = ticks / 10000 * 10000;
        const DateTime value = DateTime::FromTicks(exact);
        ASSERT_EQ(value.Ticks(), exact) << value.Year() << "-" << int(value.Month()) << "-" << int(value.Day());
        ASSERT_EQ(value.DayOfWeek(), (exact / ticksPerDay + 1) % 7);
    }
    const DateTime end = DateTime::FromTicks(last);
    EXPECT_EQ(end.Year(), 30827);
    EXPECT_EQ(end.Millisecond(), 999);
}

TEST(DateTime, LeapYearsFollowTheGregorianRules)
{
    const auto daysOfFebruary = [](unsigned short year) {
        return (DateTime(year, 3, 1, 0, 0, 0) - DateTime(year, 2, 1, 0, 0, 0)).Value() / 86400000;
    };
    EXPECT_EQ(daysOfFebruary(1700), 28);
    EXPECT_EQ(daysOfFebruary(1900), 28);
    EXPECT_EQ(daysOfFebruary(2000), 29);
    EXPECT_EQ(daysOfFebruary(2023), 28);
    EXPECT_EQ(daysOfFebruary(2024), 29);
    EXPECT_EQ(daysOfFebruary(2400), 29);
    const DateTime leapDay = DateTime(2400, 2, 28, 12, 0, 0) + Millisecond(86400000);
    EXPECT_EQ(leapDay.Month(), 2);
    EXPECT_EQ(leapDay.Day(), 29);
}

TEST(DateTime, DifferenceRoundsTowardsZeroAndSumFillsTheDayOfWeek)
{
    EXPECT_EQ((DateTime(2000, 1, 1, 0, 0, 0) - DateTime(2000, 1, 1, 0, 0, 1)).Value(), -1000);
    EXPECT_EQ((DateTime(2000, 1, 1, 0, 0, 1) - DateTime(2000, 1, 1, 0, 0, 0)).Value(), 1000);
    // Ticks below a millisecond only arise from the clock or from FromTicks.
    EXPECT_EQ((DateTime::FromTicks(19999) - DateTime::FromTicks(0)).Value(), 1);
    EXPECT_EQ((DateTime::FromTicks(0) - DateTime::FromTicks(19999)).Value(), -1);

    const DateTime built(2000, 1, 1, 0, 0, 0);
    const DateTime same = built + Millisecond(0);
    EXPECT_EQ(same.DayOfWeek(), dwSaturday);
    EXPECT_FALSE(same == built) << "equality sees the day of the week";
    EXPECT_TRUE(same != built);
    EXPECT_FALSE(same < built);
    EXPECT_FALSE(same > built);
    EXPECT_TRUE(same <= built && same >= built);

    const DateTime later = DateTime(1999, 12, 31, 23, 59, 59, 500) + Millisecond(1500);
    EXPECT_TRUE(later == DateTime::FromTicks(DateTime(2000, 1, 1, 0, 0, 1).Ticks()));
    EXPECT_TRUE(later < DateTime(2000, 1, 1, 0, 0, 1, 1));
    EXPECT_EQ(ToString(later.DayOfWeek()), L"dwSaturday");
    EXPECT_EQ(ToString(static_cast<DayOfWeekEnum>(7)), L"");
}

TEST(DateTime, NowIsUtcAndBoxesAsItself)
{
    const std::time_t before = std::time(nullptr);
    const DateTime now = DateTime::Now();
    const std::time_t after = std::time(nullptr);
    const std::int64_t unixEpoch = DateTime(1970, 1, 1, 0, 0, 0).Ticks();
    const std::int64_t seconds = (now.Ticks() - unixEpoch) / 10000000;
    EXPECT_GE(seconds, before);
    EXPECT_LE(seconds, after);

    const Any boxed = ToAny(now);
    EXPECT_TRUE(boxed.CastTo<DateTime>() == now);
}

TEST_F(DateTimeTest, FileTimesAndTheSystemClockReportTheirFailures)
{
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "quilon-date-time-test";
    std::ofstream(file) << "x";
    const std::time_t written = std::time(nullptr);
    const DateTime modified = DateTime::LastModificationTime(file.wstring());
    std::filesystem::remove(file);
    EXPECT_LE(std::llabs((modified - DateTime(1970, 1, 1, 0, 0, 0)).Value() / 1000 - written), 2);

    // Neither a missing file nor a directory has a file time.
    for (const std::wstring& path : {file.wstring(), file.parent_path().wstring()})
        EXPECT_EQ(RaisedMessage([&] { DateTime::LastModificationTime(path); }),
                  L"Failed to get time information for file '" + path + L"'");
    // A moment before 1970 is refused by the system whatever the rights of
    // the caller, so the clock is never changed here.
    const std::wstring refused = RaisedMessage([] { DateTime::SetDateTime(DateTime(1601, 1, 1, 0, 0, 0)); });
    EXPECT_THAT(refused, ::testing::AnyOf(L"Failed to set system time (1)", L"Failed to set system time (22)"));
}

} // namespace Quilon_::Tests::DateTimes
