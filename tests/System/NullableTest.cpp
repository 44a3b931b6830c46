#include "Quilon_/System/Nullable.h"

#include "../Support/Raised.h"

#include <gtest/gtest.h>

using namespace Quilon_::System;

using NullableTest = Quilon_::Tests::RaisingTest;

TEST_F(NullableTest, AnEmptyValueRaisesWithTheTypeNameAndASetOneReads)
{
    Nullable<double> value;
    EXPECT_FALSE(value.HasValue());
    auto raised = Quilon_::Tests::Raised([&] { value.Value(); });
    ASSERT_TRUE(raised);
    EXPECT_EQ(raised->Message(), L"Object has no value ('double')");
    EXPECT_EQ(raised->File(), L"System/Nullable.h");
    value.SetValue(2.5);
    EXPECT_EQ(value.Value(), 2.5);
    EXPECT_NE(value, Nullable<double>());
}
