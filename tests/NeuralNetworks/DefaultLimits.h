// One row per limited default of the learning classes, checked the same
// way: the documented initial value, values on both sides of each bound,
// the message of a refusal, and the value unchanged after it.
//
//   CheckLimitRow({"TestRatio", [] { return TestRatio(); }, [](double v) { SetTestRatio(v); }, 0.25,
//                  {0, 1}, {-0.0001, 1.5}, L"Invalid test ratio."});
#pragma once

#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace Quilon_::Tests::Learning {

struct LimitRow {
    const char* setting;
    std::function<double()> get;
    std::function<void(double)> set;
    double initial;
    std::vector<double> accepted;
    std::vector<double> refused;
    // With %1% where the refused value is printed.
    std::wstring message;
};

// The message as the formatter prints it: %1% is the value as a stream
// writes it.
inline std::wstring Refusal(const std::wstring& message, double value)
{
    std::wostringstream text;
    text << value;
    std::wstring filled = message;
    if (const auto at = filled.find(L"%1%"); at != std::wstring::npos)
        filled.replace(at, 3, text.str());
    return filled;
}

inline void CheckLimitRow(const LimitRow& row)
{
    SCOPED_TRACE(row.setting);
    EXPECT_EQ(row.get(), row.initial);
    for (double value : row.accepted) {
        row.set(value);
        EXPECT_EQ(row.get(), value);
    }
    row.set(row.initial);
    for (double value : row.refused) {
        EXPECT_EQ(RaisedMessage([&] { row.set(value); }), Refusal(row.message, value)) << value;
        EXPECT_EQ(row.get(), row.initial) << value;
    }
}

} // namespace Quilon_::Tests::Learning
