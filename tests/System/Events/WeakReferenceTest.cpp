// Weak references: listening to the object's destruction, and refusing
// objects that cannot tell.
#include "Quilon_/Library.h"
#include "Quilon_/System/Type.h"
#include "Quilon_/System/WeakReference.h"

#include "../../Support/EventDoubles.h"
#include "../../Support/Raised.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::WeakReferenceTests {

using namespace Events;
using Kernel::IThing;
using System::Pointer;
using System::WeakReference;

TEST(WeakReferenceTest, ReadsTheObjectWhileItLivesAndNullOnceItIsGone)
{
    auto* node = new CSource;
    Pointer<IThing, 0> held(node);
    WeakReference<IThing> weak(node);
    {
        Pointer<IThing, 0> alive = weak.Target();
        EXPECT_EQ(alive.Get(), held.Get());
        EXPECT_EQ(node->ReferenceCount(), 2);
    }
    EXPECT_EQ(node->ReferenceCount(), 1) << "a weak reference does not count";

    WeakReference<IThing> copy(weak);
    WeakReference<IThing> assigned;
    assigned = weak;
    EXPECT_EQ(node->Destroyed().HandlerCount(), 3) << "each copy listens on its own";
    held = nullptr;
    EXPECT_FALSE(weak.Target());
    EXPECT_FALSE(copy.Target());
    EXPECT_FALSE(assigned.Target());
}

TEST(WeakReferenceTest, RetargetingMovesTheListenerAndADyingReferenceLetsGo)
{
    Pointer<IThing, 1> first(new CSource), second(new CSource);
    {
        WeakReference<IThing> weak(first.Get());
        weak.SetTarget(first.Get());
        EXPECT_EQ(Source(first).Destroyed().HandlerCount(), 1);
        weak.SetTarget(second.Get());
        EXPECT_EQ(Source(first).Destroyed().HandlerCount(), 0);
        EXPECT_EQ(Source(second).Destroyed().HandlerCount(), 1);
        EXPECT_EQ(weak.Target().Get(), second.Get());
        weak = WeakReference<IThing>(second.Get());
        EXPECT_EQ(Source(second).Destroyed().HandlerCount(), 1);
    }
    EXPECT_EQ(Source(second).Destroyed().HandlerCount(), 0);
}

TEST(WeakReferenceTest, AnObjectWithoutDestructionEventsIsRefusedAndNothingIsHeld)
{
    Pointer<IThing, 1> source(new CSource), plain(new Kernel::CThing);
    const std::wstring message =
        L"WeakReference<> requisite: " + IThing::GetType().Name() + L" should implement IDestructionEvents";
    WeakReference<IThing> weak(source.Get());
    EXPECT_EQ(RaisedMessage([&] { weak.SetTarget(plain.Get()); }), message);
    EXPECT_FALSE(weak.Target());
    EXPECT_EQ(Source(source).Destroyed().HandlerCount(), 0) << "detached from the former object";
    EXPECT_EQ(RaisedMessage([&] { WeakReference<IThing> direct(plain.Get()); }), message);
    Library::ErrorManager()->TakeLastError();
}

} // namespace Quilon_::Tests::WeakReferenceTests
