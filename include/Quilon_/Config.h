// Build-wide definitions shared by every public header of the toolkit.
//
// The libraries are built with hidden visibility: only what carries
// QUILON_API is exported. Every interface, Pointer, the exception types,
// Any's holders and the operator templates must be exported, or catch,
// dynamic_cast and typeid would silently fail across library boundaries.
//
//   class QUILON_API IThing : public virtual System::Interface { ... };
#pragma once

#define QUILON_API __attribute__((visibility("default")))

// The textual signature of the current function, as the compiler gives it.
#define QUILON_FUNCTION __PRETTY_FUNCTION__

// The location of the current line, for out-of-line raising helpers.
#define QUILON_HERE {QUILON_FUNCTION, __FILE__, __LINE__}
