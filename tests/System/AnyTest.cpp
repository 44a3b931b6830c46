// Boxed values: what CastTo accepts, and its failures.
#include "Quilon_/System/Any.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/NumericType.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Tests::AnyTests {

using namespace Kernel;
using namespace Quilon_::System;

enum ShadeEnumTag : std::int32_t { sLight = 1, sDark = 3 };

class AnyCast : public ::testing::Test {
protected:
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }
};

TEST_F(AnyCast, ValuesComeOutAsTheirOwnTypeOnly)
{
    EXPECT_EQ(RaisedMessage([] { Any().CastTo<int>(); }), L"Cannot cast from an empty Any to 'int'");
    Any number = ToAny(42);
    EXPECT_EQ(number.CastTo<int>(), 42);
    EXPECT_EQ(RaisedMessage([&] { number.CastTo<double>(); }), L"Cannot cast from 'int' to 'double'");
    EXPECT_EQ(RaisedMessage([&] { number.CastTo<std::int64_t>(); }), L"Cannot cast from 'int' to '__int64'");
    EXPECT_EQ(RaisedMessage([] { ToAny(std::vector<std::int64_t>{1}).CastTo<std::vector<int>>(); }),
              L"Cannot cast from 'std::vector<__int64>' to 'std::vector<int>'");

    EXPECT_EQ(ToAny("text").CastTo<std::string>(), "text");
    EXPECT_EQ(ToAny(L"text").CastTo<std::wstring>(), L"text");
    EXPECT_TRUE(ToAny(LIString(L"Key", false)).CastTo<LIString>() == LIString(L"Key", false));
    EXPECT_EQ(ToAny(std::vector<std::wstring>{L"a", L"b"}).CastTo<std::vector<std::wstring>>().size(), 2u);
    EXPECT_TRUE(ToAny(IThing::GetType()).CastTo<Type>() == IThing::GetType());
}

TEST_F(AnyCast, EnumerationsAreStoredAsInt64AndReadBackAsThemselves)
{
    Any shade = ToAny(sDark);
    EXPECT_EQ(shade.CastTo<ShadeEnumTag>(), sDark);
    EXPECT_TRUE(shade == ToAny(sDark));
    EXPECT_FALSE(shade == ToAny(sLight));
    EXPECT_FALSE(shade == ToAny(3));
    EXPECT_FALSE(Helper::IsScalar(shade));
    EXPECT_EQ(ToAny(ntUInt16).CastTo<NumericTypeEnum>(), ntUInt16);
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
    EXPECT_TRUE(boxed == ToAny(Pointer<Interface, 0>(both))) << "stored as Pointer<Interface,0>";

    EXPECT_FALSE((boxed.CastTo<Pointer<ICloneable, 0>>()));
    EXPECT_FALSE(RaisedMessage([&] { boxed.CastTo<Pointer<ICloneable, 1>>(); }).empty());
    // A null reference boxes and reads back as null.
    EXPECT_FALSE((ToAny(Pointer<IThing, 0>()).CastTo<Pointer<IOther, 0>>()));
    EXPECT_EQ(RaisedMessage([] { ToAny(1.5).CastTo<Pointer<IThing, 0>>(); }),
              L"Cannot cast from 'double' to 'System::Template::Pointer<Tests::Kernel::IThing,0>'");
}

TEST_F(AnyCast, AnAnyBoxesAsItselfAndCopiesOwnTheirValue)
{
    Any inner = ToAny(7);
    Any boxed = ToAny(inner);
    EXPECT_EQ(boxed.CastTo<int>(), 7);
    EXPECT_EQ(boxed.CastTo<Any>().CastTo<int>(), 7);
    EXPECT_TRUE(Any().CastTo<Any>().IsEmpty());

    Any copy = boxed;
    boxed = ToAny(8);
    EXPECT_EQ(copy.CastTo<int>(), 7);
    copy.Swap(boxed);
    EXPECT_EQ(copy.CastTo<int>(), 8);
    EXPECT_TRUE(Any() == Any());
    EXPECT_FALSE(Any() == copy);
}

} // namespace Quilon_::Tests::AnyTests
