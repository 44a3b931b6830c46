#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/System/Localization/Translator.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"
#include "Quilon_/System/TypeDictionary.h"

#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace Quilon_::Tests::TypeTests {

using namespace Quilon_::System;

class IShape : public virtual Interface {
    QUILON_INTERFACE(IShape)
public:
    virtual int Corners() = 0;
};

class IRound : public virtual Interface {
    QUILON_INTERFACE(IRound)
};

class ICircle : public IShape, public IRound {
    QUILON_INTERFACE(ICircle)
};

QUILON_DEFINE_INTERFACE_TYPE(IShape, L"Quilon_::Tests::TypeTests::IShape", Interface)
QUILON_DEFINE_INTERFACE_TYPE(IRound, L"Quilon_::Tests::TypeTests::IRound", Interface)
QUILON_DEFINE_INTERFACE_TYPE(ICircle, L"Quilon_::Tests::TypeTests::ICircle", IShape, IRound)

class CSquare : public Template::ObjectImpl<CSquare, IShape> {
public:
    int Corners() override { return 4; }
};

Type MakeValueType(const std::wstring& name)
{
    return Type(Type::ValueType(name));
}

// The message with which `type` refuses `base`.
std::wstring RefusedBase(Type& type, const Type& base)
{
    Pointer<IException, 0> e = Raised([&] { type.AddBase(base); });
    if (!e)
        return L"";
    EXPECT_EQ(e->File(), L"System/Type.cpp");
    return e->Message();
}

// ---------------------------------------------------------------------------
// Registration by name

TEST(TypeRegistration, InterfacesAreRegisteredUnderTheirFullyQualifiedNames)
{
    const std::vector<std::pair<const Type*, std::wstring>> expected = {
        {&Interface::GetType(), L"Quilon_::System::Interface"},
        {&IException::GetType(), L"Quilon_::System::IException"},
        {&ICancelException::GetType(), L"Quilon_::System::ICancelException"},
        {&ICloneable::GetType(), L"Quilon_::System::ICloneable"},
        {&Collections::ICloneable::GetType(), L"Quilon_::System::Collections::ICloneable"},
        {&Localization::ITranslator::GetType(), L"Quilon_::System::Localization::ITranslator"},
        {&ITypeDictionary::GetType(), L"Quilon_::System::ITypeDictionary"},
        {&ICircle::GetType(), L"Quilon_::Tests::TypeTests::ICircle"},
    };
    Pointer<ITypeDictionary, 1> types = Type::Types();
    for (const auto& [type, name] : expected) {
        SCOPED_TRACE(ToAnsi(name));
        EXPECT_EQ(type->Name(), name);
        EXPECT_TRUE(type->IsReferenceType());
        ASSERT_TRUE(types->ContainsKey(name));
        EXPECT_TRUE(types->Item(name) == *type);
    }
}

TEST(TypeRegistration, TypesIsOneProcessWideDictionary)
{
    EXPECT_TRUE(Type::Types() == Type::Types());
}

TEST(TypeRegistration, ValueTypesRegisterWhenConstructed)
{
    Type type = MakeValueType(L"Quilon_::Tests::TypeTests::Registered");
    EXPECT_FALSE(type.IsReferenceType());
    ASSERT_TRUE(Type::Types()->ContainsKey(L"Quilon_::Tests::TypeTests::Registered"));
    EXPECT_TRUE(Type::Types()->Item(L"Quilon_::Tests::TypeTests::Registered") == type);
}

TEST(TypeRegistration, SecondRegistrationOfANameKeepsTheFirstDescription)
{
    const std::wstring name = L"Quilon_::Tests::TypeTests::RegisteredTwice";
    Type first = MakeValueType(name);
    first.AddBase(IShape::GetType());
    Type second{Type::ReferenceType<IShape>(name)};

    // Each keeps its own description, equal by name...
    EXPECT_TRUE(second.BaseTypes().empty());
    EXPECT_TRUE(first == second);
    // ...and the dictionary shares the first one, bases added later included.
    Type registered = Type::Types()->Item(name);
    EXPECT_FALSE(registered.IsReferenceType());
    ASSERT_EQ(registered.BaseTypes().size(), 1u);
    EXPECT_TRUE(registered.BaseTypes()[0] == IShape::GetType());
}

// ---------------------------------------------------------------------------
// Equality

TEST(TypeEquality, DefaultTypeIsUnequalToEveryNamedType)
{
    Type empty;
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_EQ(empty.Name(), L"");
    EXPECT_TRUE(empty == Type());
    EXPECT_TRUE(empty != Interface::GetType());
    EXPECT_TRUE(Interface::GetType() != empty);
    EXPECT_TRUE(empty != MakeValueType(L"Quilon_::Tests::TypeTests::Named"));
    EXPECT_FALSE(empty.IsSubclassOf(Interface::GetType()));
    EXPECT_FALSE(Interface::GetType().IsSubclassOf(empty));
}

TEST(TypeEquality, TypesAreEqualByNameWhateverTheirDescription)
{
    Type value = MakeValueType(L"Quilon_::Tests::TypeTests::SameName");
    Type reference{Type::ReferenceType<IRound>(L"Quilon_::Tests::TypeTests::SameName")};
    Type copy = value;

    EXPECT_TRUE(value == reference);
    EXPECT_TRUE(copy == value);
    EXPECT_TRUE(value != MakeValueType(L"Quilon_::Tests::TypeTests::OtherName"));
    EXPECT_TRUE(IShape::GetType() != IRound::GetType());
}

// ---------------------------------------------------------------------------
// Declared inheritance

TEST(TypeInheritance, DeclaredBasesAreKeptInOrderOfDeclaration)
{
    const std::vector<Type>& bases = ICircle::GetType().BaseTypes();
    ASSERT_EQ(bases.size(), 2u);
    EXPECT_TRUE(bases[0] == IShape::GetType());
    EXPECT_TRUE(bases[1] == IRound::GetType());
    ASSERT_EQ(ICancelException::GetType().BaseTypes().size(), 1u);
    EXPECT_TRUE(ICancelException::GetType().BaseTypes()[0] == IException::GetType());
}

TEST(TypeInheritance, IsSubclassOfFollowsBasesTransitivelyButNotToItself)
{
    const Type& circle = ICircle::GetType();
    EXPECT_TRUE(circle.IsSubclassOf(IShape::GetType()));
    EXPECT_TRUE(circle.IsSubclassOf(IRound::GetType()));
    EXPECT_TRUE(circle.IsSubclassOf(Interface::GetType()));
    EXPECT_TRUE(ICancelException::GetType().IsSubclassOf(Interface::GetType()));

    EXPECT_FALSE(circle.IsSubclassOf(circle));
    EXPECT_FALSE(Interface::GetType().IsSubclassOf(Interface::GetType()));
    EXPECT_FALSE(IShape::GetType().IsSubclassOf(circle));
    EXPECT_FALSE(IShape::GetType().IsSubclassOf(IRound::GetType()));
}

TEST(TypeInheritance, BaseThatWouldCloseALoopIsRefusedNamingBoth)
{
    Type a = MakeValueType(L"Quilon_::Tests::TypeTests::LoopA");
    Type b = MakeValueType(L"Quilon_::Tests::TypeTests::LoopB");
    a.AddBase(b);

    EXPECT_EQ(RefusedBase(b, a), L"'Quilon_::Tests::TypeTests::LoopA' cannot be a base type of "
                                   L"'Quilon_::Tests::TypeTests::LoopB' (circular inheritance)");
    EXPECT_TRUE(b.BaseTypes().empty());
}

TEST(TypeInheritance, LongerLoopIsRefusedAndOtherPathsAreNot)
{
    Type a = MakeValueType(L"Quilon_::Tests::TypeTests::ChainA");
    Type b = MakeValueType(L"Quilon_::Tests::TypeTests::ChainB");
    Type c = MakeValueType(L"Quilon_::Tests::TypeTests::ChainC");
    a.AddBase(b);
    b.AddBase(c);

    EXPECT_EQ(RefusedBase(c, a), L"'Quilon_::Tests::TypeTests::ChainA' cannot be a base type of "
                                   L"'Quilon_::Tests::TypeTests::ChainC' (circular inheritance)");
    // A second path to a base, and a duplicate, close no loop.
    a.AddBase(c);
    a.AddBase(b);
    EXPECT_EQ(a.BaseTypes().size(), 3u);
    EXPECT_TRUE(a.IsSubclassOf(c));
}

TEST(TypeInheritance, TypeAddedAsItsOwnBaseIsAcceptedAndQueriesStillEnd)
{
    // A type that is its own base holds itself and is never freed; a name of
    // its own for each run keeps it reachable from Types().
    static int run = 0;
    Type self = MakeValueType(L"Quilon_::Tests::TypeTests::Self" + std::to_wstring(++run));
    self.AddBase(self);
    ASSERT_EQ(self.BaseTypes().size(), 1u);
    EXPECT_TRUE(self.IsSubclassOf(self));

    // The loop through the type itself must not send the walk round forever.
    Type other = MakeValueType(L"Quilon_::Tests::TypeTests::NotInLoop");
    EXPECT_FALSE(self.IsSubclassOf(other));
    other.AddBase(self);
    EXPECT_TRUE(other.IsSubclassOf(self));
}

// ---------------------------------------------------------------------------
// Objects

TEST(TypeObjects, IsImplementedByTellsWhetherTheInterfaceCastSucceeds)
{
    Pointer<IShape, 1> square(new CSquare);
    Pointer<Interface, 1> object(square);
    const std::int64_t count = static_cast<CSquare*>(square.Get())->ReferenceCount();

    EXPECT_TRUE(IShape::GetType().IsImplementedBy(object));
    EXPECT_TRUE(IShape::GetType().IsBaseOf(object));
    EXPECT_TRUE(Interface::GetType().IsImplementedBy(object));
    EXPECT_TRUE(Interop::IProxyContainer::GetType().IsImplementedBy(object));
    // Objects lacking the interface are told apart without raising.
    EXPECT_NO_THROW({
        EXPECT_FALSE(ICircle::GetType().IsImplementedBy(object));
        EXPECT_FALSE(IRound::GetType().IsBaseOf(object));
        EXPECT_FALSE(IException::GetType().IsImplementedBy(object));
    });
    // Neither value types nor the default type are implemented by objects.
    EXPECT_FALSE(MakeValueType(L"Quilon_::Tests::TypeTests::IShapeLookalike").IsImplementedBy(object));
    EXPECT_FALSE(Type().IsImplementedBy(object));
    // The casts took their references and gave them back.
    EXPECT_EQ(static_cast<CSquare*>(square.Get())->ReferenceCount(), count);
}

// Types of templated interfaces are built on first use, which may be on any
// thread, while other threads look names up.
TEST(TypeRegistration, RegistersAndLooksUpFromManyThreadsAtOnce)
{
    constexpr int threadCount = 4;
    constexpr int typesPerThread = 500;
    std::atomic<bool> done{false};
    std::thread reader([&] {
        Pointer<ITypeDictionary, 1> types = Type::Types();
        while (!done) {
            EXPECT_TRUE(types->ContainsKey(L"Quilon_::System::Interface"));
            EXPECT_GT(types->Count(), 0);
            types->Keys();
        }
    });
    std::vector<std::thread> writers;
    for (int t = 0; t < threadCount; ++t) {
        writers.emplace_back([t] {
            for (int i = 0; i < typesPerThread; ++i)
                MakeValueType(L"Quilon_::Tests::TypeTests::Concurrent" + std::to_wstring(t) + L"_" + std::to_wstring(i));
        });
    }
    for (std::thread& writer : writers)
        writer.join();
    done = true;
    reader.join();

    for (int t = 0; t < threadCount; ++t) {
        for (int i = 0; i < typesPerThread; ++i) {
            EXPECT_TRUE(Type::Types()->ContainsKey(L"Quilon_::Tests::TypeTests::Concurrent" + std::to_wstring(t) + L"_" +
                                                  std::to_wstring(i)));
        }
    }
}

} // namespace Quilon_::Tests::TypeTests
