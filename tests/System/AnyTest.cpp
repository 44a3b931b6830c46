// Boxed values: what CastTo accepts, and its failures.
#include "Quilon_/System/Any.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/NumericType.h"
#include "Quilon_/System/Type.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace Quilon_::Tests::AnyTests {

using namespace Kernel;
using namespace Quilon_::System;

enum ShadeEnumTag : std::int32_t { sLight = 1, sDark = 3 };

using AnyCast = RaisingTest;

TEST_F(AnyCast, ValuesComeOutAsTheirOwnTypeOnly)
{
    EXPECT_EQ(RaisedMessage([] { Any().CastTo<int>(); }), L"Cannot cast from an empty Any to 'int'");
    Any number = ToAny(42);
    EXPECT_EQ(number.CastTo<int>(), 42);
    EXPECT_EQ(RaisedMessage([&] { number.CastTo<double>(); }), L"Cannot cast from 'int' to 'double'");
    EXPECT_EQ(RaisedMessage([] { ToAny(std::vector<std::int64_t>{1}).CastTo<std::vector<int>>(); }),
              L"Cannot cast from 'std::vector<__int64>' to 'std::vector<int>'");
    EXPECT_EQ(ToAny(L"text").CastTo<std::wstring>(), L"text");
    EXPECT_TRUE(ToAny(IThing::GetType()).CastTo<Type>() == IThing::GetType());

    // An Any boxes as itself.
    Any boxed = ToAny(number);
    EXPECT_EQ(boxed.CastTo<int>(), 42);
    EXPECT_EQ(boxed.CastTo<Any>().CastTo<int>(), 42);
}

// long long and std::int64_t (long here) are two spellings of "__int64":
// boxed either way, a value is one integer type to every reader.
TEST_F(AnyCast, EverySpellingOfASixtyFourBitIntegerIsThatInteger)
{
    const Any values[] = {ToAny(-5LL), ToAny(5ULL), ToAny(std::vector<long long>{1, -2})};
    for (const Any& value : values)
        EXPECT_EQ(Helper::TypeName(value.TypeInfo()).find(L"long"), std::wstring::npos);
    EXPECT_TRUE(values[0] == ToAny(std::int64_t(-5)));
    EXPECT_EQ(values[0].CastTo<std::int64_t>(), -5);
    EXPECT_EQ(values[0].CastTo<long long>(), -5);
    EXPECT_EQ(ToAny(std::int64_t(7)).CastTo<long long>(), 7);
    EXPECT_EQ(values[1].CastTo<std::uint64_t>(), 5u);
    EXPECT_TRUE(Helper::IsInteger(values[0]) && Helper::IsScalar(values[1]));
    EXPECT_EQ(Helper::ScalarValue(values[0]), -5.0);
    EXPECT_EQ(values[2].CastTo<std::vector<std::int64_t>>(), (std::vector<std::int64_t>{1, -2}));
    EXPECT_EQ(values[2].CastTo<std::vector<long long>>(), (std::vector<long long>{1, -2}));
}

TEST_F(AnyCast, EnumerationsReadBackAsThemselvesOnly)
{
    Any shade = ToAny(sDark);
    EXPECT_EQ(shade.CastTo<ShadeEnumTag>(), sDark);
    EXPECT_TRUE(shade == ToAny(sDark));
    EXPECT_FALSE(shade == ToAny(sLight));
    EXPECT_FALSE(shade == ToAny(3));
    EXPECT_FALSE(Helper::IsScalar(shade));
    EXPECT_EQ(RaisedMessage([&] { shade.CastTo<NumericTypeEnum>(); }),
              L"Cannot cast from 'Tests::AnyTests::ShadeEnumTag' to 'System::NumericTypeEnumTag'");
}

TEST_F(AnyCast, InterfaceReferencesComeOutByTheInterfaceCast)
{
    Pointer<IThing, 1> both(new CBoth);
    Any boxed = ToAny(both);
    EXPECT_EQ((boxed.CastTo<Pointer<IThing, 1>>()->Value()), 1);
    Pointer<IOther, 1> other = boxed.CastTo<Pointer<IOther, 1>>();
    EXPECT_TRUE(other == both);

    EXPECT_FALSE((boxed.CastTo<Pointer<ICloneable, 0>>()));
    EXPECT_FALSE(RaisedMessage([&] { boxed.CastTo<Pointer<ICloneable, 1>>(); }).empty());
    // A null reference boxes and reads back as null.
    EXPECT_FALSE((ToAny(Pointer<IThing, 0>()).CastTo<Pointer<IOther, 0>>()));
    EXPECT_EQ(RaisedMessage([] { ToAny(1.5).CastTo<Pointer<IThing, 0>>(); }),
              L"Cannot cast from 'double' to 'System::Template::Pointer<Tests::Kernel::IThing,0>'");
}

} // namespace Quilon_::Tests::AnyTests
