// The arithmetic view on boxed values, the 32-bit narrowing checks, and
// type names that read the same on every platform.
#include "Quilon_/System/Helper.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Any.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"

#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Quilon_::Tests::HelperTests {

using namespace Quilon_::System;

class Helpers : public ::testing::Test {
protected:
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }
};

TEST_F(Helpers, ScalarsAreTheIntegerAndFloatingPointTypesOnly)
{
    for (const Any& integer : {ToAny('a'), ToAny(std::uint8_t(1)), ToAny(short(1)), ToAny(1u), ToAny(std::int64_t(1)),
                               ToAny(std::uint64_t(1))}) {
        EXPECT_TRUE(Helper::IsInteger(integer));
        EXPECT_FALSE(Helper::IsFloatingPoint(integer));
    }
    EXPECT_TRUE(Helper::IsFloatingPoint(ToAny(1.5f)));
    EXPECT_TRUE(Helper::IsScalar(ToAny(1.5)));
    for (const Any& other : {Any(), ToAny(true), ToAny(L"1"), ToAny(static_cast<signed char>(1))})
        EXPECT_FALSE(Helper::IsScalar(other));
}

TEST_F(Helpers, ScalarValueReadsNumbersAndNumericTextOnly)
{
    EXPECT_EQ(Helper::ScalarValue(ToAny(42)), 42.0);
    EXPECT_EQ(Helper::ScalarValue(ToAny(std::uint64_t(1) << 40)), 0x1p40);
    EXPECT_EQ(Helper::ScalarValue(ToAny(std::wstring(L"2.5e3"))), 2500.0);
    double out = 7;
    EXPECT_TRUE(Helper::ScalarValue(ToAny(std::wstring(L"not a number")), out)) << "text counts, whatever it says";
    EXPECT_EQ(out, 7);
    EXPECT_FALSE(Helper::ScalarValue(ToAny(true), out));
    EXPECT_FALSE(Helper::ScalarValue(Any(), out));

    EXPECT_EQ(RaisedMessage([] { Helper::ScalarValue(Any()); }), L"Value is not a scalar (void)");
    EXPECT_EQ(RaisedMessage([] { Helper::ScalarValue(ToAny(LIString(L"x"))); }),
              L"Value is not a scalar (System::LIString)");

    EXPECT_EQ(Helper::ComplexValue(ToAny(std::complex<double>(1, 2))), std::complex<double>(1, 2));
    EXPECT_EQ(Helper::ComplexValue(ToAny(3)), std::complex<double>(3, 0));
    EXPECT_EQ(RaisedMessage([] { Helper::ComplexValue(ToAny(std::complex<float>(1, 2))); }),
              L"Value is not a scalar (std::complex<float>)");
}

TEST_F(Helpers, DoubleToAnyKeepsTheTypeOfTheTarget)
{
    Any level = ToAny(static_cast<unsigned short>(0));
    Helper::DoubleToAny(300.7, level);
    EXPECT_EQ(level.CastTo<unsigned short>(), 300);
    Any offset = ToAny(0);
    Helper::DoubleToAny(-2.9, offset);
    EXPECT_EQ(offset.CastTo<int>(), -2) << "truncated toward zero";
    Any ratio = ToAny(0.0f);
    Helper::DoubleToAny(0.25, ratio);
    EXPECT_EQ(ratio.CastTo<float>(), 0.25f);

    // Outside the type's range the value is limited to it.
    Any byte = ToAny(static_cast<unsigned char>(9));
    Helper::DoubleToAny(-5, byte);
    EXPECT_EQ(byte.CastTo<unsigned char>(), 0);
    Helper::DoubleToAny(1e10, byte);
    EXPECT_EQ(byte.CastTo<unsigned char>(), 255);
    Any wide = ToAny(std::int64_t(0));
    Helper::DoubleToAny(1e300, wide);
    EXPECT_EQ(wide.CastTo<std::int64_t>(), std::numeric_limits<std::int64_t>::max());
    Helper::DoubleToAny(std::nan(""), offset);
    EXPECT_EQ(offset.CastTo<int>(), 0);

    Any text = ToAny(std::wstring(L"12"));
    EXPECT_EQ(RaisedMessage([&] { Helper::DoubleToAny(1, text); }), L"Any must contain a scalar value");
    EXPECT_EQ(text.CastTo<std::wstring>(), L"12") << "left alone";
    Any empty;
    EXPECT_EQ(RaisedMessage([&] { Helper::DoubleToAny(1, empty); }), L"Any must contain a scalar value");
}

TEST_F(Helpers, NarrowingTo32BitsRaisesWhenTheValueDoesNotSurvive)
{
    EXPECT_EQ(Helper::NarrowToInt32(-2147483648LL), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Helper::NarrowToUInt32(4294967295ULL), 4294967295U);
    EXPECT_EQ(RaisedMessage([] { Helper::NarrowToInt32(2147483648LL); }),
              L"Int value exceeds 32 bits storage: '2147483648'");
    EXPECT_EQ(RaisedMessage([] { Helper::NarrowToUInt32(4294967296ULL); }),
              L"UInt value exceeds 32 bits storage: '4294967296'");
}

enum class ModeEnumTag { mOne };
struct Record {};

TEST(TypeName, ReadsTheSameOnEveryPlatformAlsoInsideTemplates)
{
    EXPECT_EQ(Helper::TypeName(typeid(std::int64_t)), L"__int64");
    EXPECT_EQ(Helper::TypeName(typeid(long long)), L"__int64");
    EXPECT_EQ(Helper::TypeName(typeid(unsigned long long)), L"unsigned __int64");
    EXPECT_EQ(Helper::TypeName(typeid(long double)), L"long double");
    EXPECT_EQ(Helper::TypeName(typeid(void)), L"void");
    EXPECT_EQ(Helper::TypeName(typeid(std::wstring)), L"std::wstring");
    EXPECT_EQ(Helper::TypeName(typeid(std::vector<std::int64_t>)), L"std::vector<__int64>");
    EXPECT_EQ(Helper::TypeName(typeid(std::vector<std::vector<double>>)), L"std::vector<std::vector<double>>");
    EXPECT_EQ(Helper::TypeName(typeid(std::pair<std::vector<std::int64_t>, std::int64_t>)),
              L"std::pair<std::vector<__int64>,__int64>");
    EXPECT_EQ(Helper::TypeName(typeid(std::vector<std::string>)), L"std::vector<std::string>");
    EXPECT_EQ(Helper::TypeName(typeid(std::map<int, unsigned long>)), L"std::map<int,unsigned __int64>");
    EXPECT_EQ(Helper::TypeName(typeid(System::Type)), L"System::Type");
    EXPECT_EQ(Helper::TypeName(typeid(ModeEnumTag)), L"Tests::HelperTests::ModeEnumTag");

    // The language's names, readable or mangled.
    EXPECT_EQ(Helper::TypeName(std::string(typeid(Record).name())), L"Tests::HelperTests::Record");
    EXPECT_EQ(Helper::TypeName(L"class Quilon_::System::Type"), L"System::Type");
    EXPECT_EQ(Helper::TypeName(L"struct Subclass"), L"Subclass");
    EXPECT_EQ(Helper::TypeName(L"class std::vector<__int64,class std::allocator<__int64> >"),
              L"std::vector<__int64>");
}

} // namespace Quilon_::Tests::HelperTests
