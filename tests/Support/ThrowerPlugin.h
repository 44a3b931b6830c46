// What the test plug-in Quilon_.TestThrower (tests/plugins/Thrower) and the
// tests that load it share: one interface, whose Type is defined in the
// plug-in, and the signatures of the plug-in's exported functions.
//
// The test program does not link the plug-in: it finds the functions with
// dlsym, and reaches IGreeter's Type only through QuilonTestThrower_GreeterType.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Pointer.h"

#include <string>

namespace Quilon_::Tests {

class QUILON_API IGreeter : public virtual System::Interface {
    QUILON_INTERFACE(IGreeter)
public:
    virtual std::wstring Greet(const std::wstring& name) = 0;
};

namespace ThrowerPlugin {
// Raises "Plug-in failure: '%1%'" with `value`, by the raising sequence.
using Raise = void (*)(const wchar_t* value);
// Throws a cancellation, as Pointer<IException,1>.
using Cancel = void (*)();
// Makes a greeter that is also ICloneable and IEquatable. The result carries
// one reference for the caller.
using MakeGreeter = System::Interface* (*)(const wchar_t* greeting);
// IGreeter::GetType() as the plug-in has it.
using GreeterType = const System::Type* (*)();
// Whether the plug-in's interface cast finds ICloneable on `object`.
using IsCloneable = bool (*)(System::Interface* object);
// Boxes `value` and a new greeter into `number` and `object`.
using Box = void (*)(std::int64_t value, System::Any* number, System::Any* object);
// Converts invalid UTF-8 in the core and returns the message it caught.
using CatchFromCore = void (*)(std::wstring* message);
} // namespace ThrowerPlugin

} // namespace Quilon_::Tests
