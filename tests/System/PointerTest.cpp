// Pointer: the null and cast checks of each policy, casts through
// FindDelegate, and the cloning of value references (policy 2). Where a
// raised exception is located is checked once, by the raising sequence.
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace Quilon_::Tests::PointerTests {

using namespace Kernel;
using System::Interface;
using System::Pointer;

// Implements IOther and answers casts to IThing with another object, as a
// wrapper does: with `exact`, as an IThing* already; otherwise as the
// Interface* of the other object, to be cast further.
class CDelegating : public System::Template::ObjectImpl<CDelegating, IOther> {
public:
    CDelegating(Interface* answer, bool exact) : m_answer(answer), m_exact(exact) {}

    bool FindDelegate(const System::Type& type, void*& target, bool& exact) override
    {
        ++asked;
        if (!(type == IThing::GetType()) || !m_answer)
            return false;
        target = m_exact ? static_cast<void*>(dynamic_cast<IThing*>(m_answer)) : static_cast<void*>(m_answer);
        exact = m_exact;
        return true;
    }
    int Other() override { return 3; }

    int asked = 0;

private:
    Interface* m_answer;
    bool m_exact;
};

const std::wstring NullAssignment =
    L"Pointer <Quilon_::Tests::Kernel::IThing> : attempt to assign 0 to a reference";
const std::wstring NullAccess = L"Pointer <Quilon_::Tests::Kernel::IThing> : attempt to access a 0 pointer";

using PointerTest = RaisingTest;

TEST_F(PointerTest, OnlyTheNullablePolicyHoldsNullAndNoneAccessesIt)
{
    static_assert(sizeof(Pointer<IThing, 0>) == sizeof(void*) && sizeof(Pointer<IThing, 2>) == sizeof(void*));
    Pointer<IThing, 0> empty{Pointer<IOther, 0>()};
    EXPECT_FALSE(empty);
    EXPECT_EQ(RaisedMessage([&] { empty->Value(); }), NullAccess);
    EXPECT_EQ(RaisedMessage([] { Pointer<IThing, 1> p{Pointer<IOther, 0>()}; }), NullAssignment);
    EXPECT_EQ(RaisedMessage([] { Pointer<IThing, 2> p(nullptr); }), NullAssignment);

    // Moved-from and default references are null and say so when used.
    Pointer<IThing, 1> held(new CThing(nullptr, 7));
    Pointer<IThing, 1> moved(std::move(held));
    EXPECT_EQ(moved->Value(), 7);
    EXPECT_EQ(RaisedMessage([&] { held->Value(); }), NullAccess);
    EXPECT_EQ(RaisedMessage([&] { moved = static_cast<IThing*>(nullptr); }), NullAssignment);
    Pointer<IThing, 2> value;
    EXPECT_EQ(RaisedMessage([&] { (*value).Value(); }), NullAccess);
}

TEST_F(PointerTest, CastsCompareByObjectIdentityAndFailedCastsYieldNullOrRaise)
{
    auto* both = new CBoth;
    Pointer<IThing, 1> thing(both);
    Pointer<IOther, 1> other(thing);
    EXPECT_EQ(other->Other(), 2);
    EXPECT_EQ(both->ReferenceCount(), 2);
    // Whose raw pointers differ, but which are the same object.
    ASSERT_NE(static_cast<void*>(thing.Get()), static_cast<void*>(other.Get()));
    EXPECT_TRUE(thing == other);
    EXPECT_TRUE((thing != Pointer<IThing, 1>(new CBoth)));

    auto* plain = new CThing;
    Pointer<IThing, 1> held(plain);
    EXPECT_FALSE((Pointer<IOther, 0>(held)));
    EXPECT_EQ(RaisedMessage([&] { Pointer<IOther, 1> p(held); }),
              L"Pointer <Quilon_::Tests::Kernel::IOther> : Interface not supported by instance of "
              L"Quilon_::Tests::Kernel::CThing");
    EXPECT_EQ(plain->ReferenceCount(), 1) << "a failed cast must not keep a reference";
}

// Both interfaces in the other order, and state before them: its parts lie
// at other distances from its Interface part than those of CBoth.
class CReversed : public System::Template::ObjectImpl<CReversed, IOther, IThing> {
public:
    int Value() override { return 4; }
    int Other() override { return 5; }
    char state[24] = {};
};

// Casts are remembered per class: objects of classes whose interfaces lie at
// different places, cast in turns, each land on their own part, and a class
// that lacks the interface keeps failing.
TEST_F(PointerTest, RepeatedCastsLandOnEachClassOwnPart)
{
    std::vector<Pointer<Interface, 1>> objects;
    for (int i = 0; i < 3; ++i) {
        objects.emplace_back(static_cast<IThing*>(new CBoth));
        objects.emplace_back(static_cast<IThing*>(new CReversed));
        objects.emplace_back(static_cast<IThing*>(new CThing(nullptr, 7)));
    }
    for (int round = 0; round < 3; ++round) {
        for (const auto& object : objects) {
            Pointer<IOther, 0> other(object);
            Pointer<IThing, 1> thing(object);
            EXPECT_EQ(other.Get(), dynamic_cast<IOther*>(object.Get()));
            EXPECT_EQ(thing.Get(), dynamic_cast<IThing*>(object.Get()));
            if (other) {
                EXPECT_EQ(other->Other(), thing->Value() == 1 ? 2 : 5);
            }
        }
    }
}

TEST_F(PointerTest, DelegateAnswersExactlyOrWithAnObjectToCastFurther)
{
    for (bool exact : {false, true}) {
        SCOPED_TRACE(exact ? "exact" : "to cast further");
        auto* answer = new CThing(nullptr, 42);
        Pointer<IThing, 1> keepAnswer(answer);
        auto* delegating = new CDelegating(answer, exact);
        Pointer<IOther, 1> other(delegating);

        Pointer<Interface, 1> root(other); // an upcast asks nobody
        EXPECT_EQ(delegating->asked, 0);
        Pointer<IThing, 1> thing(other);
        EXPECT_EQ(delegating->asked, 1);
        EXPECT_EQ(thing.Get(), static_cast<IThing*>(answer));
        EXPECT_EQ(answer->ReferenceCount(), 2) << "the reference goes to the object answered with";
        EXPECT_EQ(delegating->ReferenceCount(), 2);
    }
    // An answer that lacks the interface fails as the source.
    Pointer<System::IException, 1> lacking = System::Exception::New(L"m", L"f()", L"x.cpp", 1);
    Pointer<IOther, 1> wrapper(new CDelegating(lacking.Get(), false));
    EXPECT_FALSE((Pointer<IThing, 0>(wrapper)));
    EXPECT_EQ(RaisedMessage([&] { Pointer<IThing, 2> p(wrapper); }),
              L"Pointer <Quilon_::Tests::Kernel::IThing> : Interface not supported by instance of "
              L"Quilon_::Tests::PointerTests::CDelegating");
}

TEST_F(PointerTest, ValueReferenceClonesOnCopyAndRefusesObjectsWithoutICloneable)
{
    int destructions = 0;
    Pointer<IThing, 2> first(new CCloneableThing(5, &destructions)); // adopted, not cloned
    Pointer<IThing, 2> second(first);
    EXPECT_FALSE(second == first);
    EXPECT_EQ(second->Value(), 5);
    second = first; // the previous clone goes
    EXPECT_EQ(destructions, 1);

    // Into a value reference from a shared one: cloned; the other way: shared.
    Pointer<IThing, 1> shared(first);
    EXPECT_TRUE(shared == first);
    EXPECT_FALSE((Pointer<IThing, 2>(shared) == shared));

    // A raw object may be held elsewhere, so it is cloned; one that nobody
    // holds must not be left behind.
    second = static_cast<IThing*>(new CCloneableThing(2, &destructions));
    EXPECT_EQ(second->Value(), 2);
    EXPECT_EQ(destructions, 4) << "the replaced and passing clones, and the unheld original";

    Pointer<IThing, 2> plain(new CThing); // adopting needs no clone
    EXPECT_EQ(RaisedMessage([&] { Pointer<IThing, 2> copy(plain); }),
              L"Pointer <Quilon_::Tests::Kernel::IThing> : ICloneable Interface not supported by instance of "
              L"Quilon_::Tests::Kernel::CThing");
}

} // namespace Quilon_::Tests::PointerTests
