// What the start-up test plug-ins (tests/plugins/Recorder and
// tests/plugins/Failing) and the tests that load them share.
//
// The plug-ins record each initialiser and finaliser that runs through the
// trace manager of the core, under one category, so that a test that sets a
// recording trace manager sees the order across libraries:
//
//   "Recorder: initialize global 0.3 in state 3"
#pragma once

#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"

#include <string>
#include <vector>

namespace Quilon_::Tests::StartupPlugins {

inline constexpr const wchar_t* Category = L"Start-up order";

// The Recorder exports the operator Quilon_::Tests::RecorderPlugin::Decorate,
// a Function<std::wstring (*)(const std::wstring&)>, with no implementation
// of its own; its initialisers register "Bracket" (rank 0.2) and then
// "Quote" (rank 0.5).
inline constexpr const wchar_t* DecorateName = L"Quilon_::Tests::RecorderPlugin::Decorate";
// It also registers a translator on Localization::Translator::New that
// knows one key.
inline constexpr const wchar_t* GreetingKey = L"Recorder.Greeting";
inline constexpr const wchar_t* GreetingText = L"Hello from the recorder";

// The ranks a shut-down reports to its progress callback, RecordProgress.
inline std::vector<float> progressCalls;
inline void RecordProgress(float rank)
{
    progressCalls.push_back(rank);
}

inline void Record(const std::wstring& step)
{
    Library::TraceManager()->Trace(step + L" in state " + std::to_wstring(System::InitializationState()),
                                   Category);
}

} // namespace Quilon_::Tests::StartupPlugins
