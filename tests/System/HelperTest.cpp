// The arithmetic view on boxed values, the 32-bit narrowing checks, and
// type names that read the same on every platform.
#include "Quilon_/System/Helper.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Any.h"
#include "Quilon_/System/String.h"

#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Quilon_::Tests::HelperTests {

using namespace Quilon_::System;

using Helpers = RaisingTest;

TEST_F(Helpers, ScalarsAreNumbersOnlyThoughScalarValueAlsoReadsText)
{
    EXPECT_TRUE(Helper::IsInteger(ToAny('a')) && Helper::IsInteger(ToAny(std::uint64_t(1))));
    EXPECT_TRUE(Helper::IsFloatingPoint(ToAny(1.5f)));
    for (const Any& other : {Any(), ToAny(true), ToAny(L"1"), ToAny(static_cast<signed char>(1))})
        EXPECT_FALSE(Helper::IsScalar(other));

    EXPECT_EQ(Helper::ScalarValue(ToAny(std::uint64_t(1) << 40)), 0x1p40);
    EXPECT_EQ(Helper::ScalarValue(ToAny(L"2.5e3")), 2500.0);
    EXPECT_EQ(RaisedMessage([] { Helper::ScalarValue(Any()); }), L"Value is not a scalar (void)");
    EXPECT_EQ(RaisedMessage([] { Helper::ScalarValue(ToAny(LIString(L"x"))); }),
              L"Value is not a scalar (System::LIString)");
    EXPECT_EQ(Helper::ComplexValue(ToAny(3)), std::complex<double>(3, 0));
}

TEST_F(Helpers, DoubleToAnyKeepsTheTypeOfTheTarget)
{
    Any level = ToAny(static_cast<unsigned short>(0));
    Helper::DoubleToAny(300.7, level);
    EXPECT_EQ(level.CastTo<unsigned short>(), 300);
    Any offset = ToAny(0);
    Helper::DoubleToAny(-2.9, offset);
    EXPECT_EQ(offset.CastTo<int>(), -2) << "truncated toward zero";
    // Outside the type's range the value is limited to it.
    Any byte = ToAny(static_cast<unsigned char>(9));
    Helper::DoubleToAny(-5, byte);
    EXPECT_EQ(byte.CastTo<unsigned char>(), 0);

    Any text = ToAny(L"12");
    EXPECT_EQ(RaisedMessage([&] { Helper::DoubleToAny(1, text); }), L"Any must contain a scalar value");
    EXPECT_EQ(text.CastTo<std::wstring>(), L"12") << "left alone";

    EXPECT_EQ(RaisedMessage([] { Helper::NarrowToInt32(2147483648LL); }),
              L"Int value exceeds 32 bits storage: '2147483648'");
    EXPECT_EQ(RaisedMessage([] { Helper::NarrowToUInt32(4294967296ULL); }),
              L"UInt value exceeds 32 bits storage: '4294967296'");
}

enum class ModeEnumTag { mOne };

TEST(TypeName, ReadsTheSameOnEveryPlatformAlsoInsideTemplates)
{
    EXPECT_EQ(Helper::TypeName(typeid(long long)), L"__int64");
    EXPECT_EQ(Helper::TypeName(typeid(std::vector<std::vector<double>>)), L"std::vector<std::vector<double>>");
    EXPECT_EQ(Helper::TypeName(typeid(std::pair<std::vector<std::int64_t>, std::int64_t>)),
              L"std::pair<std::vector<__int64>,__int64>");
    EXPECT_EQ(Helper::TypeName(typeid(std::map<std::wstring, std::string>)), L"std::map<std::wstring,std::string>");
    EXPECT_EQ(Helper::TypeName(std::string(typeid(ModeEnumTag).name())), L"Tests::HelperTests::ModeEnumTag");
    EXPECT_EQ(Helper::TypeName(L"class std::vector<__int64,class std::allocator<__int64> >"), L"std::vector<__int64>");
}

} // namespace Quilon_::Tests::HelperTests
