// The companion library. Nothing here may depend on static construction order:
// the core and every other library call into it from their own static
// constructors and destructors, in whatever order the loader chooses.

#include "Quilon_/Startup.h"

#include <atomic>
#include <cstdlib>
#include <mutex>
#include <new>

namespace Quilon_::System {

namespace {

// Constant-initialised, so valid before any constructor of any library runs.
std::atomic<int> g_initializationState{0};

// Built on first use and never destroyed: a static destructor of another
// library may still enter the section after this library's destructors ran.
std::recursive_mutex& GeneralCriticalSection()
{
    alignas(std::recursive_mutex) static unsigned char storage[sizeof(std::recursive_mutex)];
    static std::recursive_mutex* const section = new (storage) std::recursive_mutex;
    return *section;
}

} // namespace

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
    GeneralCriticalSection().lock();
}

void LeaveGeneralCriticalSection()
{
    GeneralCriticalSection().unlock();
}

void (*AddMemoryPressureFunction)(std::size_t) = nullptr;

} // namespace Quilon_::System

extern "C" {

void* Quilon_malloc(std::size_t size)
{
    // malloc(0) may return null, which callers would take for exhaustion.
    void* block = std::malloc(size != 0 ? size : 1);
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
