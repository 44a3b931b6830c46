#include "Quilon_/System/Threading/ScopedLock.h"

#include "System/Threading/MultipleLock.h"

namespace Quilon_::System::Threading {

namespace {

// What the vector form's Lock and Unlock call: the real work is the
// multiple lock's, from construction to destruction.
class InertMutex final : public MutexBase {
public:
    constexpr InertMutex() = default;
    MutexTypeEnum Type() const override { return mtRecursiveMutex; }
    void Lock() override {}
    void Unlock() override {}
    bool TryLock() override { return true; }
};

constinit InertMutex sharedInertMutex;

} // namespace

ScopedLock::ScopedLock(const std::vector<Pointer<ILockable>>& lockables)
    : m_mutex(&sharedInertMutex), m_multipleLock(new Detail::CMultipleLock(lockables)), m_locked(true)
{
}

} // namespace Quilon_::System::Threading
