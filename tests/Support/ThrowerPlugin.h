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
// Makes a greeter that is also ICloneable. The result carries one reference
// for the caller.
using MakeGreeter = System::Interface* (*)(const wchar_t* greeting);
// IGreeter::GetType() as the plug-in has it.
using GreeterType = const System::Type* (*)();
// Boxes, in this order: the __int64 7, ntInt16 and
// std::pair<int, std::wstring>{2, L"two"}.
using BoxValues = std::vector<System::Any> (*)();
// Reads an Any made elsewhere as std::pair<int, std::wstring> and returns
// its number.
using UnboxPair = int (*)(const System::Any& value);
} // namespace ThrowerPlugin

} // namespace Quilon_::Tests
