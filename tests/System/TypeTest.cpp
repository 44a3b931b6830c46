// Type descriptions: registration by name, equality, declared inheritance.
#include "Quilon_/System/Type.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/System/TypeDictionary.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace Quilon_::Tests::TypeTests {

using namespace Quilon_::System;

using Kernel::IOther;
using Kernel::IThing;

class IBoth : public IThing, public IOther {
    QUILON_INTERFACE(IBoth)
};

QUILON_DEFINE_INTERFACE_TYPE(IBoth, L"Quilon_::Tests::TypeTests::IBoth", IThing, IOther)

Type ValueType(const std::wstring& name)
{
    return Type(Type::ValueType(L"Quilon_::Tests::TypeTests::" + name));
}

TEST(TypeTest, TypesAreRegisteredByNameAndTheFirstDescriptionWins)
{
    Pointer<ITypeDictionary, 1> types = Type::Types();
    EXPECT_TRUE(types->Item(L"Quilon_::Tests::TypeTests::IBoth") == IBoth::GetType());
    EXPECT_TRUE(IBoth::GetType().IsReferenceType());

    const std::wstring name = L"Quilon_::Tests::TypeTests::Twice";
    Type first{Type::ValueType(name)};
    first.AddBase(IThing::GetType());
    Type second{Type::ReferenceType<IThing>(name)};
    // Each keeps its own description, equal by name...
    EXPECT_TRUE(second.BaseTypes().empty());
    EXPECT_TRUE(first == second);
    // ...and the dictionary shares the first one, bases added later included.
    Type registered = types->Item(name);
    EXPECT_FALSE(registered.IsReferenceType());
    ASSERT_EQ(registered.BaseTypes().size(), 1u);
    EXPECT_TRUE(registered.BaseTypes()[0] == IThing::GetType());
}

TEST(TypeTest, DefaultTypeIsUnequalToEveryNamedTypeAndIsSubclassOfFollowsBases)
{
    Type empty;
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_TRUE(empty == Type());
    EXPECT_TRUE(empty != Interface::GetType());
    EXPECT_TRUE(Interface::GetType() != empty);
    EXPECT_FALSE(empty.IsSubclassOf(Interface::GetType()));
    EXPECT_FALSE(Interface::GetType().IsSubclassOf(empty));

    const Type& both = IBoth::GetType();
    EXPECT_TRUE(both.IsSubclassOf(IOther::GetType()));
    EXPECT_TRUE(both.IsSubclassOf(Interface::GetType())); // transitively
    EXPECT_FALSE(both.IsSubclassOf(both));
    EXPECT_FALSE(IThing::GetType().IsSubclassOf(both));
    EXPECT_FALSE(IThing::GetType().IsSubclassOf(IOther::GetType()));
}

TEST(TypeTest, BaseThatWouldCloseALoopIsRefusedButOtherPathsAreNot)
{
    Type a = ValueType(L"ChainA"), b = ValueType(L"ChainB"), c = ValueType(L"ChainC");
    a.AddBase(b);
    b.AddBase(c);
    EXPECT_EQ(RaisedMessage([&] { c.AddBase(a); }), L"'Quilon_::Tests::TypeTests::ChainA' cannot be a base type of "
                                                    L"'Quilon_::Tests::TypeTests::ChainC' (circular inheritance)");
    EXPECT_TRUE(c.BaseTypes().empty());
    a.AddBase(c); // a second path to a base closes no loop
    EXPECT_EQ(a.BaseTypes().size(), 2u);
}

TEST(TypeTest, TypeAddedAsItsOwnBaseIsAcceptedAndQueriesStillEnd)
{
    // A type that is its own base holds itself and is never freed; a name of
    // its own for each run keeps it reachable from Types().
    static int run = 0;
    Type self = ValueType(L"Self" + std::to_wstring(++run));
    self.AddBase(self);
    EXPECT_TRUE(self.IsSubclassOf(self));
    Type other = ValueType(L"NotInLoop");
    EXPECT_FALSE(self.IsSubclassOf(other));
    other.AddBase(self);
    EXPECT_TRUE(other.IsSubclassOf(self));
}

// Types of templated interfaces are built on first use, which may be on any
// thread, while other threads look names up.
TEST(TypeTest, RegistersAndLooksUpFromManyThreadsAtOnce)
{
    auto name = [](int t, int i) { return L"Concurrent" + std::to_wstring(t) + L"_" + std::to_wstring(i); };
    std::atomic<bool> done{false};
    std::thread reader([&] {
        while (!done)
            EXPECT_TRUE(Type::Types()->ContainsKey(L"Quilon_::System::Interface"));
    });
    std::vector<std::thread> writers;
    for (int t = 0; t < 4; ++t)
        writers.emplace_back([&, t] {
            for (int i = 0; i < 500; ++i)
                ValueType(name(t, i));
        });
    for (std::thread& writer : writers)
        writer.join();
    done = true;
    reader.join();
    for (int t = 0; t < 4; ++t)
        for (int i = 0; i < 500; ++i)
            EXPECT_TRUE(Type::Types()->ContainsKey(L"Quilon_::Tests::TypeTests::" + name(t, i)));
}

} // namespace Quilon_::Tests::TypeTests
