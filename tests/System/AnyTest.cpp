// Boxed values: what CastTo accepts, and its failures.
#include "Quilon_/System/Any.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace Quilon_::Tests::AnyValues {

class IShape : public virtual System::Interface {
    QUILON_INTERFACE(IShape)
public:
    virtual int Corners() = 0;
};

class IColoured : public virtual System::Interface {
    QUILON_INTERFACE(IColoured)
public:
    virtual int Colour() = 0;
};

class IUnrelated : public virtual System::Interface {
    QUILON_INTERFACE(IUnrelated)
};

QUILON_DEFINE_INTERFACE_TYPE(IShape, L"Quilon_::Tests::AnyValues::IShape", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IColoured, L"Quilon_::Tests::AnyValues::IColoured", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IUnrelated, L"Quilon_::Tests::AnyValues::IUnrelated", System::Interface)

class CSquare : public System::Template::ObjectImpl<CSquare, IShape, IColoured> {
public:
    int Corners() override { return 4; }
    int Colour() override { return 7; }
};

enum ShadeEnumTag : std::int32_t { sLight = 1, sDark = 3 };

} // namespace Quilon_::Tests::AnyValues

namespace {

using namespace Quilon_;
using namespace Quilon_::System;
using namespace Quilon_::Tests::AnyValues;
using Tests::RaisedMessage;

class AnyCast : public ::testing::Test {
protected:
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }
};

TEST_F(AnyCast, FailuresNameTheTypes)
{
    EXPECT_EQ(RaisedMessage([] { Any().CastTo<int>(); }), L"Cannot cast from an empty Any to 'int'");
    Any number = ToAny(42);
    EXPECT_EQ(number.CastTo<int>(), 42);
    EXPECT_EQ(RaisedMessage([&] { number.CastTo<double>(); }), L"Cannot cast from 'int' to 'double'");
}

TEST_F(AnyCast, EnumerationRoundTrips)
{
    Any shade = ToAny(sDark);
    EXPECT_EQ(shade.CastTo<ShadeEnumTag>(), sDark);
    EXPECT_TRUE(shade == ToAny(sDark));
    EXPECT_FALSE(shade == ToAny(sLight));
}

TEST_F(AnyCast, InterfaceReferencesComeOutByTheInterfaceCast)
{
    Pointer<IShape, 1> square(new CSquare);
    Any boxed = ToAny(square);

    EXPECT_EQ((boxed.CastTo<Pointer<IShape, 1>>()->Corners()), 4);
    Pointer<IColoured, 1> coloured = boxed.CastTo<Pointer<IColoured, 1>>();
    EXPECT_EQ(coloured->Colour(), 7);
    EXPECT_TRUE(coloured == square);

    EXPECT_FALSE((boxed.CastTo<Pointer<IUnrelated, 0>>()));
    EXPECT_FALSE(RaisedMessage([&] { boxed.CastTo<Pointer<IUnrelated, 1>>(); }).empty());

    // A null reference boxes and reads back as null.
    EXPECT_FALSE((ToAny(Pointer<IShape, 0>()).CastTo<Pointer<IColoured, 0>>()));
}

} // namespace
