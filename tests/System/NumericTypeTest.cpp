// Numeric types: the bit layout behind the classifiers, the type that holds
// two others or a value, and ranges.
#include "Quilon_/System/NumericType.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/ObjectImpl.h"

#include "../Support/Raised.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace Quilon_::Tests::NumericTypeTests {

using namespace Quilon_::System;
using ::testing::StartsWith;

class NumericType : public ::testing::Test {
protected:
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }
};

TEST_F(NumericType, ClassifiersReadWidthSignAndFamilyFromTheValue)
{
    struct Expected {
        NumericTypeEnum type;
        std::int64_t bits;
        bool isSigned, integer, floatingPoint, complex;
    };
    const Expected table[] = {
        {ntUInt1, 1, false, true, false, false},    {ntUInt4, 4, false, true, false, false},
        {ntInt8, 8, true, true, false, false},      {ntUInt8, 8, false, true, false, false},
        {ntInt64, 64, true, true, false, false},    {ntUInt64, 64, false, true, false, false},
        {ntFloat, 32, true, false, true, false},    {ntDouble, 64, true, false, true, false},
        {ntComplexF, 64, true, false, false, true}, {ntComplexD, 128, true, false, false, true},
    };
    for (const Expected& e : table) {
        SCOPED_TRACE(ToString(e.type));
        EXPECT_EQ(BitSize(e.type), e.bits);
        EXPECT_EQ(IsSigned(e.type), e.isSigned);
        EXPECT_EQ(IsInteger(e.type), e.integer);
        EXPECT_EQ(IsFloatingPoint(e.type), e.floatingPoint);
        EXPECT_EQ(IsComplex(e.type), e.complex);
    }
    EXPECT_EQ(ToString(ntComplexD), L"ntComplexD");
    EXPECT_EQ(ToString(static_cast<NumericTypeEnum>(3)), L"");
}

TEST_F(NumericType, ContainingTypeDoublesTheUnsignedSideWhenSignsMix)
{
    EXPECT_TRUE(Contains(ntInt16, ntUInt8));
    EXPECT_FALSE(Contains(ntInt8, ntUInt8));
    EXPECT_EQ(ContainingNumericType(ntUInt8, ntInt8), ntInt16);
    EXPECT_EQ(ContainingNumericType(ntInt16, ntUInt32), ntInt64);
    EXPECT_EQ(ContainingNumericType(ntInt64, ntUInt64), ntFloat);
    EXPECT_EQ(ContainingNumericType(ntInt8, ntInt8), ntInt8);
    EXPECT_EQ(ContainingNumericType(ntUInt1, ntInt8), ntInt8);
    EXPECT_EQ(ContainingNumericType(ntInt64, ntFloat), ntFloat);
    EXPECT_EQ(ContainingNumericType(ntComplexF, ntFloat), ntComplexF);

    EXPECT_EQ(ContainingNumericType(std::vector<NumericTypeEnum>{}), 0);
    EXPECT_EQ(ContainingNumericType(std::vector<NumericTypeEnum>{ntUInt8, ntInt8, ntUInt16}), ntInt32);
}

TEST_F(NumericType, ContainingTypeOfAValueIgnoresItsFraction)
{
    const std::pair<double, NumericTypeEnum> cases[] = {
        {0.5, ntUInt1},    {3, ntUInt2},         {255, ntUInt8},      {-1, ntInt8},        {1000.5, ntUInt16},
        {-129, ntInt16},   {65536, ntUInt32},    {-40000, ntInt32},   {5e9, ntInt64},      {-0x1p63, ntInt64},
        {1e20, ntFloat},   {-1e40, ntDouble},    {1e39, ntDouble},    {-0x1p64, ntDouble},
        {std::numeric_limits<double>::quiet_NaN(), ntDouble},
    };
    for (const auto& [value, type] : cases) {
        SCOPED_TRACE(value);
        EXPECT_EQ(ContainingNumericType(value), type);
    }
}

TEST_F(NumericType, SuperTypesWidenAndFailOnValuesThatAreNoType)
{
    EXPECT_EQ(SuperNumericType(ntUInt4), ntUInt8);
    EXPECT_EQ(SuperNumericType(ntInt8), ntInt16);
    EXPECT_EQ(SuperNumericType(ntUInt64), ntFloat);
    EXPECT_EQ(SuperNumericType(ntDouble), ntDouble);
    EXPECT_EQ(SuperNumericType(ntComplexF), ntComplexD);
    EXPECT_EQ(RaisedMessage([] { SuperNumericType(static_cast<NumericTypeEnum>(9)); }),
              L"Invalid numeric type: '9'");
}

class CRange : public Template::ObjectImpl<CRange, Math::IRangeD> {
public:
    CRange(double minimum, double maximum) : m_minimum(minimum), m_maximum(maximum) {}
    double Minimum() override { return m_minimum; }
    void SetMinimum(double value) override { m_minimum = value; }
    double Maximum() override { return m_maximum; }
    void SetMaximum(double value) override { m_maximum = value; }

private:
    double m_minimum, m_maximum;
};

Pointer<Math::IRangeD, 1> MakeRange(double minimum, double maximum)
{
    return Pointer<Math::IRangeD, 1>(new CRange(minimum, maximum));
}

TEST_F(NumericType, RangesAreMadeByTheRegisteredRangeClass)
{
    EXPECT_THAT(RaisedMessage([] { NumericTypeRange(ntInt8); }),
                StartsWith(L"No implementation available for function 'New' ("));

    Math::RangeD::New.New2.Register(&MakeRange);
    Pointer<Math::IRangeD, 1> int8 = NumericTypeRange(ntInt8);
    Pointer<Math::IRangeD, 1> uint64 = NumericTypeRange(ntUInt64);
    Pointer<Math::IRangeD, 1> complexF = NumericTypeRange(ntComplexF);
    std::wstring invalid = RaisedMessage([] { NumericTypeRange(static_cast<NumericTypeEnum>(0x1000)); });
    Math::RangeD::New.New2.Unregister(&MakeRange);

    EXPECT_EQ(int8->Minimum(), -128);
    EXPECT_EQ(int8->Maximum(), 127);
    EXPECT_EQ(uint64->Minimum(), 0);
    EXPECT_EQ(uint64->Maximum(), 0x1p64);
    EXPECT_EQ(complexF->Maximum(), static_cast<double>(std::numeric_limits<float>::max()));
    EXPECT_EQ(invalid, L"Range cannot be computed on numeric type: ''");
}

} // namespace Quilon_::Tests::NumericTypeTests
