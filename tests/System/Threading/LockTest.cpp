// Locks as objects: held for the life of the last reference, keeping the
// lockable alive, and unlocking before letting go of it.
#include "Quilon_/System/Threading/Lock.h"

#include "LockDoubles.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::Threading {

using System::Pointer;
using System::Threading::ILockable;

TEST(LockTest, HoldsTheLockableLockedAndAliveUntilTheLastReference)
{
    bool heldAtDeath = true;
    auto* lockable = new CLockable(&heldAtDeath);
    {
        Pointer<System::Threading::ILock> lock =
            System::Threading::Lock::New(Pointer<ILockable>(lockable), __FILE__, __LINE__);
        EXPECT_TRUE(lock->Lockable() == Pointer<ILockable>(lockable));
        // A second lock on the same thread nests.
        System::Threading::Lock::New(lock->Lockable(), __FILE__, __LINE__);
        EXPECT_TRUE(HeldElsewhere(lockable->GetMutex()));
    }
    EXPECT_FALSE(heldAtDeath);
}

} // namespace Quilon_::Tests::Threading
