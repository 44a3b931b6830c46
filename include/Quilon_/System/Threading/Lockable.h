// An object that can be locked from outside: it exposes its mutex.
//
//   class CCollection : public Template::ObjectImpl<CCollection, ICollection, Threading::ILockable> {
//       Threading::MutexBase& GetMutex() override { return m_mutex; }
//       Threading::Mutex m_mutex;
//   };
//   Threading::ScopedLock lock(collection->GetMutex(), __FILE__, __LINE__);
#pragma once

#include "Quilon_/System/Interface.h"
#include "Quilon_/System/Threading/Mutex.h"

namespace Quilon_::System::Threading {

class QUILON_API ILockable : public virtual Interface {
    QUILON_INTERFACE(ILockable)
public:
    // The mutex that guards the object; it lives as long as the object.
    virtual MutexBase& GetMutex() = 0;
};

} // namespace Quilon_::System::Threading
