// Locks as objects: held for the life of the last reference, keeping the
// lockable alive, and unlocking before letting go of it.
#include "Quilon_/System/Threading/Lock.h"

#include "LockDoubles.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::Threading {

using System::Pointer;
using System::Threading::ILock;
using System::Threading::ILockable;
using System::Threading::Lock::New;

TEST(LockTest, HoldsTheLockableLockedAndAliveUntilTheLastReference)
{
    int destructions = 0;
    bool heldAtDestruction = true;
    auto* lockable = new CLockable(&destructions);
    lockable->onDestroy = [&](System::Threading::Mutex& mutex) { heldAtDestruction = mutex.Owner() != 0; };
    MutexBase& mutex = lockable->GetMutex();

    {
        Pointer<ILock> lock = New(Pointer<ILockable>(lockable), __FILE__, __LINE__);
        EXPECT_TRUE(lock->Lockable() == Pointer<ILockable>(lockable));
        EXPECT_TRUE(HeldElsewhere(mutex));

        // A second lock on the same thread nests.
        New(lock->Lockable(), __FILE__, __LINE__);
        EXPECT_TRUE(HeldElsewhere(mutex));
        EXPECT_EQ(destructions, 0);
    }
    EXPECT_EQ(destructions, 1);
    EXPECT_FALSE(heldAtDestruction);
}

} // namespace Quilon_::Tests::Threading
