#include "Quilon_/System/Threading/Lock.h"

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Threading/ScopedLock.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::System::Threading {

QUILON_DEFINE_INTERFACE_TYPE(ILock, L"Quilon_::System::Threading::ILock", Interface)

namespace {

class CLock : public System::Template::ObjectImpl<CLock, ILock> {
public:
    CLock(Pointer<ILockable> lockable, const char* file, std::int64_t line)
        : m_lockable(std::move(lockable)), m_lock(m_lockable->GetMutex(), file, static_cast<int>(line))
    {
    }
    Pointer<ILockable> Lockable() override { return m_lockable; }

private:
    // Declared first, so that it is let go of after the unlock.
    Pointer<ILockable> m_lockable;
    ScopedLock m_lock;
};

Pointer<ILock> NewLock(Pointer<ILockable> lockable, const char* file, std::int64_t line)
{
    return Pointer<ILock>(new CLock(std::move(lockable), file, line));
}

} // namespace

Functions::Template::Function<Pointer<ILock> (*)(Pointer<ILockable>, const char*, std::int64_t)>
    Lock::New(&NewLock);

} // namespace Quilon_::System::Threading
