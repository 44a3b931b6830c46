#include "Quilon_/Library.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

namespace Quilon_::Tests::PointerTests {

using namespace Kernel;
using System::Interface;
using System::Pointer;

// Implements IThing and IOther.
class CBoth : public System::Template::ObjectImpl<CBoth, IThing, IOther> {
public:
    explicit CBoth(int* destructions = nullptr) : m_destructions(destructions) {}
    ~CBoth() override
    {
        if (m_destructions)
            ++*m_destructions;
    }
    int Value() override { return 1; }
    int Other() override { return 2; }

private:
    int* m_destructions;
};

// Implements IOther only.
class COnlyOther : public System::Template::ObjectImpl<COnlyOther, IOther> {
public:
    int Other() override { return 4; }
};

// Implements IOther and answers casts to IThing with another object, as a
// wrapper does: with `exact`, as an IThing* already; otherwise as the
// Interface* of the other object, to be cast further.
class CDelegating : public System::Template::ObjectImpl<CDelegating, IOther> {
public:
    CDelegating(Interface* answer, bool exact) : m_answer(answer), m_exact(exact) {}

    bool FindDelegate(const System::Type& type, void*& target, bool& exact) override
    {
        ++asked;
        outParametersWereReset = target == nullptr && !exact;
        if (onAsked)
            onAsked();
        if (!(type == IThing::GetType()))
            return false;
        if (m_exact)
            target = dynamic_cast<IThing*>(m_answer);
        else
            target = m_answer;
        exact = m_exact;
        return true;
    }
    int Other() override { return 3; }

    int asked = 0;
    bool outParametersWereReset = false;
    std::function<void()> onAsked;

private:
    Interface* m_answer;
    bool m_exact;
};

// Checks what every failed check of a Pointer shares: the message, the
// location in Pointer.h, and that the exception is the thread's last error.
template <class Code>
void ExpectPointerFailure(Code&& code, const std::wstring& message)
{
    Library::ErrorManager()->TakeLastError();
    Pointer<System::IException, 0> raised = Raised(std::forward<Code>(code));
    ASSERT_TRUE(raised);
    EXPECT_EQ(raised->Message(), message);
    EXPECT_EQ(raised->File(), L"System/Pointer.h");
    EXPECT_GT(raised->Line(), 0);
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == raised) << "not recorded as the last error";
}

const std::wstring NullThingAssignment = L"Pointer <Quilon_::Tests::Kernel::IThing> : attempt to assign 0 to a reference";
const std::wstring NullThingAccess = L"Pointer <Quilon_::Tests::Kernel::IThing> : attempt to access a 0 pointer";

TEST(PointerLayoutTest, IsOneMachinePointerInEveryPolicy)
{
    static_assert(sizeof(Pointer<IThing, 0>) == sizeof(void*));
    static_assert(sizeof(Pointer<IThing, 1>) == sizeof(void*));
    static_assert(sizeof(Pointer<IThing, 2>) == sizeof(void*));
    static_assert(sizeof(Pointer<Interface, 1>) == sizeof(void*));
}

TEST(PointerNullTest, NullableReferenceHoldsNullButRefusesAccess)
{
    Pointer<IThing, 0> fromNull(nullptr);
    Pointer<IThing, 0> fromRaw(static_cast<IThing*>(nullptr));
    Pointer<IThing, 0> fromOther{Pointer<IOther, 0>()};
    EXPECT_FALSE(fromNull);
    EXPECT_FALSE(fromRaw);
    EXPECT_FALSE(fromOther);

    ExpectPointerFailure([&] { fromNull->Value(); }, NullThingAccess);
    ExpectPointerFailure([&] { (*fromRaw).Value(); }, NullThingAccess);
}

TEST(PointerNullTest, ReferenceRefusesNullFromRawPointerOrOtherPointer)
{
    ExpectPointerFailure([] { Pointer<IThing, 1> p(static_cast<IThing*>(nullptr)); }, NullThingAssignment);
    ExpectPointerFailure([] { Pointer<IThing, 1> p(nullptr); }, NullThingAssignment);
    // Another policy of the same interface, an upcast, an interface cast.
    ExpectPointerFailure([] { Pointer<IThing, 1> p{Pointer<IThing, 0>()}; }, NullThingAssignment);
    ExpectPointerFailure([] { Pointer<Interface, 1> p{Pointer<IThing, 0>()}; },
                         L"Pointer <Quilon_::System::Interface> : attempt to assign 0 to a reference");
    ExpectPointerFailure([] { Pointer<IThing, 1> p{Pointer<IOther, 0>()}; }, NullThingAssignment);
    ExpectPointerFailure([] { Pointer<IThing, 2> p(nullptr); }, NullThingAssignment);

    Pointer<IThing, 1> held(new CThing);
    ExpectPointerFailure([&] { held = static_cast<IThing*>(nullptr); }, NullThingAssignment);
    ExpectPointerFailure([&] { held = Pointer<IOther, 0>(); }, NullThingAssignment);
}

TEST(PointerNullTest, ReferenceRefusesAccessWhenMovedFrom)
{
    Pointer<IThing, 1> first(new CThing(nullptr, 7));
    Pointer<IThing, 1> second(std::move(first));
    EXPECT_EQ(second->Value(), 7);
    ExpectPointerFailure([&] { first->Value(); }, NullThingAccess);
}

TEST(PointerCastTest, FailedCastYieldsNullForNullableAndRaisesForReference)
{
    auto* thing = new CThing;
    Pointer<IThing, 1> held(thing);

    Pointer<IOther, 0> other(held);
    EXPECT_FALSE(other);
    ExpectPointerFailure([&] { Pointer<IOther, 1> p(held); },
                         L"Pointer <Quilon_::Tests::Kernel::IOther> : Interface not supported by instance of "
                         L"Quilon_::Tests::Kernel::CThing");
    EXPECT_EQ(thing->ReferenceCount(), 1) << "a failed cast must not keep a reference";
}

TEST(PointerCastTest, CastTakesReferenceAndComparesByObjectIdentity)
{
    int destructions = 0;
    auto* both = new CBoth(&destructions);
    {
        Pointer<IThing, 1> thing(both);
        Pointer<IOther, 1> other(thing);
        EXPECT_EQ(other->Other(), 2);
        EXPECT_EQ(both->ReferenceCount(), 2);

        // The same object held through different interfaces, whose raw
        // pointers differ, is the same.
        ASSERT_NE(static_cast<void*>(thing.Get()), static_cast<void*>(other.Get()));
        EXPECT_TRUE(thing == other);
        EXPECT_TRUE(other == thing);
        EXPECT_TRUE((Pointer<Interface, 0>(other) == thing));

        Pointer<IThing, 1> another(new CBoth);
        EXPECT_FALSE(thing == another);
        EXPECT_TRUE(thing != another);
        EXPECT_FALSE((Pointer<IOther, 0>(another) == other));
    }
    EXPECT_EQ(destructions, 1);
}

TEST(PointerCastTest, UpcastDoesNotAskForDelegate)
{
    auto* answer = new CThing;
    Pointer<IThing, 1> keepAnswer(answer);
    auto* delegating = new CDelegating(answer, false);
    Pointer<IOther, 1> other(delegating);

    Pointer<Interface, 1> root(other);
    EXPECT_EQ(delegating->asked, 0);
    EXPECT_TRUE(root == other);
}

TEST(PointerCastTest, DelegateAnswersWithObjectToCastFurther)
{
    auto* answer = new CThing(nullptr, 42);
    Pointer<IThing, 1> keepAnswer(answer);
    // The cast must convert the Interface* it is given, which is not the
    // address of the IThing part.
    ASSERT_NE(static_cast<void*>(static_cast<Interface*>(answer)), static_cast<void*>(static_cast<IThing*>(answer)));
    auto* delegating = new CDelegating(answer, false);
    Pointer<IOther, 1> other(delegating);

    Pointer<IThing, 1> thing(other);
    EXPECT_EQ(delegating->asked, 1);
    EXPECT_TRUE(delegating->outParametersWereReset);
    EXPECT_EQ(thing.Get(), static_cast<IThing*>(answer));
    EXPECT_EQ(thing->Value(), 42);
    EXPECT_EQ(answer->ReferenceCount(), 2) << "the reference goes to the object answered with";
    EXPECT_EQ(delegating->ReferenceCount(), 1);
}

TEST(PointerCastTest, DelegateAnswersWithExactInterface)
{
    auto* answer = new CThing(nullptr, 43);
    Pointer<IThing, 1> keepAnswer(answer);
    auto* delegating = new CDelegating(answer, true);
    Pointer<IOther, 1> other(delegating);

    Pointer<IThing, 0> thing(other);
    EXPECT_TRUE(delegating->outParametersWereReset);
    EXPECT_EQ(thing.Get(), static_cast<IThing*>(answer));
    EXPECT_EQ(thing->Value(), 43);
    EXPECT_EQ(answer->ReferenceCount(), 2);
}

TEST(PointerCastTest, DeclinedDelegateLeavesCastToLanguage)
{
    auto* delegating = new CDelegating(nullptr, false);
    Pointer<Interface, 1> root(delegating);

    Pointer<IOther, 1> other(root);
    EXPECT_EQ(delegating->asked, 1);
    EXPECT_EQ(other.Get(), static_cast<IOther*>(delegating));
}

TEST(PointerCastTest, DelegateWithoutTheInterfaceFailsAsTheSource)
{
    auto* answer = new COnlyOther;
    Pointer<IOther, 1> keepAnswer(answer);
    Pointer<IOther, 1> wrapper(new CDelegating(answer, false));

    EXPECT_FALSE((Pointer<IThing, 0>(wrapper)));
    ExpectPointerFailure([&] { Pointer<IThing, 1> p(wrapper); },
                         L"Pointer <Quilon_::Tests::Kernel::IThing> : Interface not supported by instance of "
                         L"Quilon_::Tests::PointerTests::CDelegating");
    EXPECT_EQ(answer->ReferenceCount(), 1);
}

TEST(PointerCastTest, AssignmentAcrossInterfacesReleasesOldValueBeforeCast)
{
    int destructions = 0;
    Pointer<IThing, 0> thing(new CThing(&destructions));

    auto* answer = new CThing;
    Pointer<IThing, 1> keepAnswer(answer);
    auto* delegating = new CDelegating(answer, false);
    Pointer<IOther, 1> other(delegating);
    int destructionsWhenAsked = -1;
    delegating->onAsked = [&] { destructionsWhenAsked = destructions; };

    thing = other;
    EXPECT_EQ(destructionsWhenAsked, 1);
    EXPECT_EQ(thing.Get(), static_cast<IThing*>(answer));
}

TEST(PointerValueTest, CopyClonesIntoDifferentObject)
{
    int clones = 0;
    int destructions = 0;
    auto* original = new CCloneableThing(5, &clones, &destructions);
    Pointer<IThing, 2> first(original); // adopted, not cloned
    EXPECT_EQ(clones, 0);
    EXPECT_EQ(first.Get(), static_cast<IThing*>(original));

    Pointer<IThing, 2> second(first);
    EXPECT_EQ(clones, 1);
    EXPECT_FALSE(second == first);
    EXPECT_EQ(second->Value(), 5);
    EXPECT_EQ(original->ReferenceCount(), 1);

    second = first; // the previous clone goes
    EXPECT_EQ(clones, 2);
    EXPECT_EQ(destructions, 1);
    EXPECT_FALSE(second == first);

    // Into a value reference from a shared one: cloned; the other way: shared.
    Pointer<IThing, 1> shared(first);
    EXPECT_TRUE(shared == first);
    Pointer<IThing, 2> third(shared);
    EXPECT_EQ(clones, 3);
    EXPECT_FALSE(third == shared);
}

TEST(PointerValueTest, AssigningRawObjectClonesItWithoutLeakingIt)
{
    int clones = 0;
    int destructions = 0;
    Pointer<IThing, 2> value(new CCloneableThing(1, &clones, &destructions));

    // A raw object may be held elsewhere, so it is cloned; one that nobody
    // holds must not be left behind.
    auto* fresh = new CCloneableThing(2, &clones, &destructions);
    value = static_cast<IThing*>(fresh);
    EXPECT_EQ(clones, 1);
    EXPECT_EQ(value->Value(), 2);
    EXPECT_EQ(destructions, 2) << "the replaced value and the unheld original";

    Pointer<IThing, 1> held(new CCloneableThing(3, &clones, &destructions));
    value = held.Get();
    EXPECT_FALSE(value == held);
    EXPECT_EQ(held->Value(), 3);
    EXPECT_EQ(value->Value(), 3);
}

TEST(PointerValueTest, SourceWithoutICloneableIsRefused)
{
    Pointer<IThing, 2> value(new CThing); // adopting needs no clone
    ExpectPointerFailure([&] { Pointer<IThing, 2> copy(value); },
                         L"Pointer <Quilon_::Tests::Kernel::IThing> : ICloneable Interface not supported by instance of "
                         L"Quilon_::Tests::Kernel::CThing");

    Pointer<IThing, 2> empty;
    ExpectPointerFailure([&] { Pointer<IThing, 2> copy(empty); }, NullThingAssignment);
}

} // namespace Quilon_::Tests::PointerTests
