// A lock as an object: the lockable object is locked from the making of the
// ILock to the release of its last reference, and kept alive meanwhile.
// This is how a lock is held across calls of an interface-level API.
//
//   Pointer<Threading::ILock> lock = Threading::Lock::New(collection, __FILE__, __LINE__);
//   ...                     // collection's mutex held by this thread
//   lock = nullptr;         // ... until here (also at scope end)
//
// The lock belongs to the thread that made it: let go of the last reference
// on that thread.
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Threading/Lockable.h"

#include <cstdint>

namespace Quilon_::System::Threading {

class QUILON_API ILock : public virtual Interface {
    QUILON_INTERFACE(ILock)
public:
    // The object that is held locked.
    virtual Pointer<ILockable> Lockable() = 0;
};

namespace Lock {
// Locks `lockable` and returns the lock. The file and line name the place
// of the lock for diagnostic builds.
extern QUILON_API
    Functions::Template::Function<Pointer<ILock> (*)(Pointer<ILockable>, const char* file, std::int64_t line)>
        New;
} // namespace Lock

} // namespace Quilon_::System::Threading
