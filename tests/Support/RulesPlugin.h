// What the test plug-in tests/plugins/Rules and the suites that load it
// share.
//
// The plug-in exports four sibling operators of one signature. An
// implementation tells whether the events of its arguments were off while
// it ran, "Eager: silent/loud" for target and source ("none" for a null
// source); with a positive depth it calls Probe again, one level less deep,
// and appends that call's answer after "; "; with a negative depth it raises
// "Probe refused at depth %1%".
//
// Probe has "Careful" and then "Eager" registered, so "Eager" is tried
// first; Echo, Listed and ListedToo have "Echo", and Echo has "Lenient"
// registered after it, which ignores the function's rules. The plug-in fills the chains
// of Listed and ListedToo with one vector of collections, as a catalogue
// does; the suites fill those of Probe and Echo themselves.
#pragma once

#include "Quilon_/System/DisableEvents.h"
#include "Quilon_/System/Functions/Function.h"

#include <cstdint>
#include <string>

namespace Quilon_::Tests::RulesPlugin {

using ProbeOperator = System::Functions::Template::Function<std::wstring (*)(
    System::Pointer<System::IDisableEvents, 1> target, System::Pointer<System::Interface, 0> source,
    std::int64_t depth)>;

inline constexpr const char* Library = "libQuilon_.TestRules.so";
inline constexpr const wchar_t* ListedName = L"Quilon_::Tests::RulesPlugin::Listed";

// The operators by their exported accessors (extern "C", for dlsym).
using Accessor = ProbeOperator& (*)();
inline constexpr const char* ProbeAccessor = "QuilonTestRules_Probe";
inline constexpr const char* EchoAccessor = "QuilonTestRules_Echo";
inline constexpr const char* ListedAccessor = "QuilonTestRules_Listed";
inline constexpr const char* ListedTooAccessor = "QuilonTestRules_ListedToo";

} // namespace Quilon_::Tests::RulesPlugin
