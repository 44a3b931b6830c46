#include "System/Threading/MultipleLock.h"

#include "Quilon_/System/Raise.h"

#include <thread>

namespace Quilon_::System::Threading::Detail {

namespace {

std::vector<MutexBase*> RecursiveMutexesOf(const std::vector<Pointer<ILockable>>& lockables)
{
    std::vector<MutexBase*> mutexes;
    mutexes.reserve(lockables.size());
    for (const Pointer<ILockable>& lockable : lockables) {
        MutexBase& mutex = lockable->GetMutex();
        if (mutex.Type() != mtRecursiveMutex)
            QUILON_RAISE(L"Multiple lock can only be used with mtRecursiveMutex mutexes");
        mutexes.push_back(&mutex);
    }
    return mutexes;
}

// Blocks on one mutex only, and only while holding none: it waits for
// `first`, tries the others in turn from there, wrapping around, and when
// one is taken elsewhere it lets go of all and waits for that one instead.
// The mutexes are recursive, so the same one twice in the list is harmless.
void LockWithoutDeadlock(const std::vector<MutexBase*>& mutexes)
{
    const std::size_t count = mutexes.size();
    std::size_t first = 0;
    while (count > 0) {
        mutexes[first]->Lock();
        std::size_t held = 1;
        while (held < count && mutexes[(first + held) % count]->TryLock())
            ++held;
        if (held == count)
            return;
        const std::size_t busy = (first + held) % count;
        while (held > 0)
            mutexes[(first + --held) % count]->Unlock();
        std::this_thread::yield();
        first = busy;
    }
}

} // namespace

CMultipleLock::CMultipleLock(std::vector<Pointer<ILockable>> lockables)
    : m_lockables(std::move(lockables)), m_mutexes(RecursiveMutexesOf(m_lockables))
{
    LockWithoutDeadlock(m_mutexes);
}

CMultipleLock::~CMultipleLock()
{
    for (auto mutex = m_mutexes.rbegin(); mutex != m_mutexes.rend(); ++mutex)
        (*mutex)->Unlock();
}

} // namespace Quilon_::System::Threading::Detail
