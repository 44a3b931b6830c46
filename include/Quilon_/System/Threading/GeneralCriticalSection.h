// The general critical section itself: a recursive lock whose state lives in
// the companion library and whose uncontended paths are inline, so that the
// lock taken and left around every handler of every firing costs one atomic
// operation each way and no call.
//
//   Detail::EnterGeneralSection();   // what EnterGeneralCriticalSection() does
//   Detail::LeaveGeneralSection();
//
// It behaves as the recursive mutex it replaces: a holder may enter again and
// leaves as often as it entered. It is built on one futex word because the
// pthread recursive mutex, reached through a call into the companion library,
// cost three times the two atomic operations that are the lock's real work.
#pragma once

#include "Quilon_/Config.h"

#include <atomic>
#include <cstdint>

namespace Quilon_::System::Detail {

struct GeneralSection {
    // 0 free, 1 held, 2 held while another thread may be asleep on it.
    std::atomic<int> word;
    // The holder's thread pointer, 0 when free. Only the holder writes its
    // own tag, and clears it before it lets go, so a thread that reads its
    // own tag here holds the section, whatever it reads otherwise.
    std::atomic<std::uintptr_t> owner;
    // How often the holder has entered; touched by the holder only.
    unsigned depth;
};

// In the companion library, constant-initialised and never destroyed.
extern QUILON_API GeneralSection g_generalSection;

// The contended paths, out of line.
QUILON_API void WaitForGeneralSection() noexcept;
QUILON_API void WakeGeneralSectionWaiter() noexcept;

// Unique among the live threads, and one instruction to read.
inline std::uintptr_t CurrentThreadTag() noexcept
{
    return reinterpret_cast<std::uintptr_t>(__builtin_thread_pointer());
}

inline void EnterGeneralSection() noexcept
{
    GeneralSection& section = g_generalSection;
    const std::uintptr_t self = CurrentThreadTag();
    if (section.owner.load(std::memory_order_relaxed) == self) {
        ++section.depth;
        return;
    }
    int expected = 0;
    if (!section.word.compare_exchange_strong(expected, 1, std::memory_order_acquire,
                                              std::memory_order_relaxed)) [[unlikely]]
        WaitForGeneralSection();
    section.owner.store(self, std::memory_order_relaxed);
    section.depth = 1;
}

inline void LeaveGeneralSection() noexcept
{
    GeneralSection& section = g_generalSection;
    if (--section.depth != 0)
        return;
    section.owner.store(0, std::memory_order_relaxed);
    if (section.word.exchange(0, std::memory_order_release) == 2) [[unlikely]]
        WakeGeneralSectionWaiter();
}

} // namespace Quilon_::System::Detail
