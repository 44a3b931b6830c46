// Weak references: listening to the object's destruction, and refusing
// objects that cannot tell.
#include "Quilon_/System/WeakReference.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Type.h"

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
    Pointer<IThing, 0> first(node);
    Thing second(new CSource);
    WeakReference<IThing> weak(first.Get());
    EXPECT_EQ(weak.Target(), first);
    EXPECT_EQ(node->ReferenceCount(), 1) << "a weak reference does not count";

    WeakReference<IThing> copy(weak), moved(weak);
    moved.SetTarget(second.Get());
    EXPECT_EQ(node->Destroyed().HandlerCount(), 2) << "each copy listens on its own";
    first = nullptr;
    EXPECT_FALSE(weak.Target());
    EXPECT_FALSE(copy.Target());
    EXPECT_EQ(moved.Target(), second);
    {
        WeakReference<IThing> dying(second.Get());
    }
    EXPECT_EQ(Source(second).Destroyed().HandlerCount(), 1) << "a dying weak reference stops listening";
}

TEST(WeakReferenceTest, BoxedInAnAnyItStillReadsNullOnceTheObjectIsGone)
{
    Pointer<IThing, 0> thing(new CSource);
    System::Any boxed = System::ToAny(WeakReference<System::Interface>(thing.Get()));
    EXPECT_EQ(dynamic_cast<CSource&>(*thing).Destroyed().HandlerCount(), 1)
        << "the Any holds a weak reference of its own";
    EXPECT_TRUE(boxed.CastTo<WeakReference<System::Interface>>().Target() == thing);
    thing = nullptr;
    EXPECT_FALSE(boxed.CastTo<WeakReference<System::Interface>>().Target());
}

TEST(WeakReferenceTest, AnObjectWithoutDestructionEventsIsRefusedAndNothingIsHeld)
{
    Thing source(new CSource), plain(new Kernel::CThing);
    const std::wstring message =
        L"WeakReference<> requisite: " + IThing::GetType().Name() + L" should implement IDestructionEvents";
    WeakReference<IThing> weak(source.Get());
    EXPECT_EQ(RaisedMessage([&] { weak.SetTarget(plain.Get()); }), message);
    EXPECT_FALSE(weak.Target());
    EXPECT_EQ(Source(source).Destroyed().HandlerCount(), 0) << "detached from the former object";
    Library::ErrorManager()->TakeLastError();
}

} // namespace Quilon_::Tests::WeakReferenceTests
