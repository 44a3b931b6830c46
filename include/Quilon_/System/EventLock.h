// The lock of every event, handler list and weak reference: the general
// critical section of the companion library, taken for a scope.
//
// It is recursive, so code that already holds it (a deletion, a handler
// list being walked) may call into other lists. A firing leaves it around
// each handler call, however deep it was taken, only once:
//
//   Detail::EventLock lock;            // Enter now, Leave at scope end
//   ... walk a list ...
//   {
//       Detail::EventUnlock unlocked;  // Leave now, Enter again at scope end
//       call();                        // also when call() throws
//   }
#pragma once

#include "Quilon_/Startup.h"
#include "Quilon_/System/Threading/CriticalSection.h"

namespace Quilon_::System::Detail {

using EventLock = Threading::GeneralCriticalSectionScope;

class EventUnlock {
public:
    EventUnlock() noexcept { LeaveGeneralSection(); }
    ~EventUnlock() { EnterGeneralSection(); }
    EventUnlock(const EventUnlock&) = delete;
    EventUnlock& operator=(const EventUnlock&) = delete;
};

} // namespace Quilon_::System::Detail
