// The object behind the vector form of ScopedLock: holds a list of lockable
// objects, and their mutexes locked, for its whole life.
//
//   Pointer<Interface, 0> held(new Detail::CMultipleLock(lockables));   // all locked
//   held = nullptr;                                                    // all unlocked
#pragma once

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Threading/Lockable.h"

#include <vector>

namespace Quilon_::System::Threading::Detail {

class CMultipleLock : public System::Template::ObjectImpl<CMultipleLock> {
public:
    // Raises, before locking anything, when a mutex is not recursive.
    explicit CMultipleLock(std::vector<Pointer<ILockable>> lockables);
    ~CMultipleLock() override;

private:
    std::vector<Pointer<ILockable>> m_lockables;
    std::vector<MutexBase*> m_mutexes;
};

} // namespace Quilon_::System::Threading::Detail
