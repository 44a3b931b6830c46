// A plain, non-recursive lock of the toolkit's own.
//
// Three such sections matter process-wide: the general critical section of
// the companion library (recursive; see Quilon_/Startup.h), the object
// critical section that guards reference counts at the edges between 0 and 1
// (System::ObjectCriticalSection()), and the memory section of the pressure
// counters.
//
//   CriticalSection::Scope scope(section);   // Enter now, Leave at scope end
//   GeneralCriticalSectionScope general;     // the same for the general section
#pragma once

#include "Quilon_/Config.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Threading/GeneralCriticalSection.h"

#include <mutex>

namespace Quilon_::System::Threading {

class QUILON_API CriticalSection {
public:
    CriticalSection() = default;
    CriticalSection(const CriticalSection&) = delete;
    CriticalSection& operator=(const CriticalSection&) = delete;

    void Enter() { m_mutex.lock(); }
    void Leave() { m_mutex.unlock(); }
    bool TryEnter() { return m_mutex.try_lock(); }

    // Holds the section for the lifetime of the scope.
    class Scope {
    public:
        explicit Scope(CriticalSection& section) : m_section(section) { m_section.Enter(); }
        ~Scope() { m_section.Leave(); }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        CriticalSection& m_section;
    };

private:
    std::mutex m_mutex;
};

inline void EnterCriticalSection(CriticalSection& section) { section.Enter(); }
inline void LeaveCriticalSection(CriticalSection& section) { section.Leave(); }

// Holds the general critical section of the companion library for the
// lifetime of the scope. It is recursive, so scopes may nest on a thread.
class GeneralCriticalSectionScope {
public:
    GeneralCriticalSectionScope() noexcept { System::Detail::EnterGeneralSection(); }
    ~GeneralCriticalSectionScope() { System::Detail::LeaveGeneralSection(); }
    GeneralCriticalSectionScope(const GeneralCriticalSectionScope&) = delete;
    GeneralCriticalSectionScope& operator=(const GeneralCriticalSectionScope&) = delete;
};

} // namespace Quilon_::System::Threading
