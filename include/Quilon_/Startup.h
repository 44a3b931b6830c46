// The companion library, Quilon_.Startup: what must exist before the core's
// first static constructor runs and after its last static destructor.
//
// It is loaded before the core and unloaded after it, and holds three things:
// the allocator from which all dynamic memory of the toolkit comes, the
// initialisation state of the core (0 or more while alive, negative once
// finalised), and the general critical section, the process-wide recursive
// lock that guards object deletion, event handler lists and per-thread stores.
// It sets no state of its own accord; the core is the only writer.
//
//   System::EnterGeneralCriticalSection();   // may nest on the same thread
//   ... touch handler lists ...
//   System::LeaveGeneralCriticalSection();   // once per Enter
//
//   void* block = Quilon_malloc(size);       // reports `size` to the pressure hook
//   Quilon_free(block);
#pragma once

#include "Quilon_/Config.h"

#include <cstddef>

namespace Quilon_::System {

// The core's initialisation state; see Library for the numbers.
QUILON_API int InitializationState();
QUILON_API void SetInitializationState(int state);

// Takes the general critical section; recursive, so a thread that holds it
// may take it again and must leave it as often as it entered.
QUILON_API void EnterGeneralCriticalSection();
QUILON_API void LeaveGeneralCriticalSection();

// Called by Quilon_malloc, after a successful allocation, with the requested
// size, when not null. Installed by Library::Initialize.
extern QUILON_API void (*AddMemoryPressureFunction)(std::size_t);

} // namespace Quilon_::System

extern "C" {

// Allocates `size` bytes, suitably aligned for any fundamental type. A size of
// 0 still gives a unique block. Returns null when memory is exhausted.
QUILON_API void* Quilon_malloc(std::size_t size);

// Frees a block of Quilon_malloc; null is ignored.
QUILON_API void Quilon_free(void* block);
}
