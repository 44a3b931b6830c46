// The companion library. Nothing here may depend on static construction order:
// the core and every other library call into it from their own static
// constructors and destructors, in whatever order the loader chooses.

#include "Quilon_/Startup.h"
#include "Quilon_/System/Threading/GeneralCriticalSection.h"

#include <linux/futex.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>

namespace Quilon_::System {

namespace {

// Constant-initialised, so valid before any constructor of any library runs.
std::atomic<int> g_initializationState{0};

int* FutexWord()
{
    static_assert(sizeof(std::atomic<int>) == sizeof(int));
    return reinterpret_cast<int*>(&Detail::g_generalSection.word);
}

// Holders keep the section for a few hundred instructions at most, so a
// short spin saves most waits their two system calls.
bool SpinUntilFree()
{
    for (int i = 0; i < 100; ++i) {
        if (Detail::g_generalSection.word.load(std::memory_order_relaxed) == 0)
            return true;
#if defined(__x86_64__) || defined(__i386__)
        __builtin_ia32_pause();
#endif
    }
    return false;
}

} // namespace

// Constant-initialised and trivially destructible: valid before the first
// constructor of any library and after the last destructor.
constinit Detail::GeneralSection Detail::g_generalSection{};

// The classic three-state futex lock: whoever finds the word taken marks it
// 2 before sleeping, so the holder knows to wake somebody when it leaves.
void Detail::WaitForGeneralSection() noexcept
{
    int expected = 0;
    if (SpinUntilFree() &&
        g_generalSection.word.compare_exchange_strong(expected, 1, std::memory_order_acquire))
        return;
    while (g_generalSection.word.exchange(2, std::memory_order_acquire) != 0)
        syscall(SYS_futex, FutexWord(), FUTEX_WAIT_PRIVATE, 2, nullptr, nullptr, 0);
}

void Detail::WakeGeneralSectionWaiter() noexcept
{
    syscall(SYS_futex, FutexWord(), FUTEX_WAKE_PRIVATE, 1, nullptr, nullptr, 0);
}

int InitializationState()
{
    return g_initializationState.load();
}

void SetInitializationState(int state)
{
    g_initializationState.store(state);
}

void EnterGeneralCriticalSection()
{
    Detail::EnterGeneralSection();
}

void LeaveGeneralCriticalSection()
{
    Detail::LeaveGeneralSection();
}

void (*AddMemoryPressureFunction)(std::size_t) = nullptr;

} // namespace Quilon_::System

extern "C" {

void* Quilon_malloc(std::size_t size)
{
    // malloc(0) may return null, which callers would take for exhaustion.
    // Large blocks (image samples) start on a cache line, the width of the
    // widest vector: kernels then never split a load or store across two
    // lines. std::free releases both kinds.
    constexpr std::size_t kLineAlignedFrom = 4096, kCacheLine = 64;
    void* block = nullptr;
    if (size < kLineAlignedFrom)
        block = std::malloc(size != 0 ? size : 1);
    else if (posix_memalign(&block, kCacheLine, size) != 0)
        block = nullptr;
    if (block) {
        if (auto report = Quilon_::System::AddMemoryPressureFunction)
            report(size);
    }
    return block;
}

void Quilon_free(void* block)
{
    std::free(block);
}
}
