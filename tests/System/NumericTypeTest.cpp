// Numeric types: the bit layout behind the classifiers, the type that holds
// two others or a value, and ranges.
#include "Quilon_/System/NumericType.h"
#include "Quilon_/Library.h"

#include "../Support/Raised.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace Quilon_::Tests::NumericTypeTests {

using namespace Quilon_::System;

using NumericType = RaisingTest;

TEST_F(NumericType, ClassifiersAndContainingTypesFollowTheBitLayout)
{
    EXPECT_FALSE(IsSigned(ntUInt1)) << "odd, yet unsigned";
    EXPECT_EQ(BitSize(ntUInt1), 1);
    EXPECT_EQ(BitSize(ntComplexD), 128);
    EXPECT_TRUE(IsFloatingPoint(ntDouble) && !IsInteger(ntDouble) && IsComplex(ntComplexF));

    EXPECT_TRUE(Contains(ntInt16, ntUInt8));
    EXPECT_FALSE(Contains(ntInt8, ntUInt8));
    EXPECT_EQ(ContainingNumericType(ntInt16, ntUInt32), ntInt64);
    EXPECT_EQ(ContainingNumericType(ntInt64, ntUInt64), ntFloat);
    EXPECT_EQ(ContainingNumericType(ntUInt1, ntInt8), ntInt8);
    EXPECT_EQ(ContainingNumericType(std::vector<NumericTypeEnum>{ntUInt8, ntInt8, ntUInt16}), ntInt32);

    const std::pair<double, NumericTypeEnum> values[] = {
        {0.5, ntUInt1},  {1000.5, ntUInt16}, {-129, ntInt16},  {-40000, ntInt32},   {-0x1p63, ntInt64},
        {1e20, ntFloat}, {-1e40, ntDouble},  {1e39, ntDouble}, {std::nan(""), ntDouble},
    };
    for (const auto& [value, type] : values)
        EXPECT_EQ(ContainingNumericType(value), type) << value;
}

TEST_F(NumericType, SuperTypesAndRangesFailOnValuesThatAreNoType)
{
    EXPECT_EQ(SuperNumericType(ntUInt64), ntFloat);
    EXPECT_EQ(RaisedMessage([] { SuperNumericType(static_cast<NumericTypeEnum>(9)); }),
              L"Invalid numeric type: '9'");

    // The range class comes from an implementation library.
    EXPECT_THAT(RaisedMessage([] { NumericTypeRange(ntInt8); }),
                ::testing::StartsWith(L"No implementation available for function 'New' ("));
    EXPECT_EQ(RaisedMessage([] { NumericTypeRange(static_cast<NumericTypeEnum>(0x1000)); }),
              L"Range cannot be computed on numeric type: ''");
}

} // namespace Quilon_::Tests::NumericTypeTests
