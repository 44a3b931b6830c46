#include "Quilon_/System/Functions/Factory.h"

#include <gtest/gtest.h>

#include <string>

using namespace Quilon_::System;

namespace {

using Factory = Functions::Template::Factory<std::wstring(), std::wstring(std::int64_t),
                                             std::wstring(const std::wstring&)>;

std::wstring MakeEmpty()
{
    return L"empty";
}
std::wstring MakeSized(std::int64_t size)
{
    return L"sized " + std::to_wstring(size);
}
std::wstring MakeNamed(const std::wstring& name)
{
    return L"named " + name;
}
std::wstring MakeSizedAgain(std::int64_t)
{
    return L"again";
}

} // namespace

TEST(FactoryTest, CallsPickTheOverloadByArgumentsAndEachOverloadIsAnOperatorNamedNew)
{
    Factory factory;
    factory.Register(L"Empty", &MakeEmpty);
    factory.Register(L"Sized", &MakeSized);
    factory.Register(L"Named", &MakeNamed);

    EXPECT_EQ(factory(), L"empty");
    EXPECT_EQ(factory(std::int64_t(3)), L"sized 3");
    EXPECT_EQ(factory(std::wstring(L"x")), L"named x");
    EXPECT_EQ(factory.Overload<std::wstring(std::int64_t)>().Name(), L"New");

    // The overload keeps the dispatch of an operator: last registered first.
    factory.Register(L"Again", &MakeSizedAgain);
    EXPECT_EQ(factory(std::int64_t(3)), L"again");
    factory.Unregister(&MakeSizedAgain);
    EXPECT_EQ(factory(std::int64_t(3)), L"sized 3");
    EXPECT_EQ(factory.Overload<std::wstring()>().ImplementationCount(), 1u);
}
