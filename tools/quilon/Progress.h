// The tool's progress bar and its Ctrl-C, around one long call:
//
//   {
//       ProgressScope progress(L"OtsuThreshold");   // root context, installed as the current one
//       operatorCall(...);                          // raises ICancelException after Ctrl-C
//       progress.Checkpoint();                      // also raises when the call never reported
//       writeOutputs(...);
//   }                                               // bar erased, Ctrl-C kills again
//
// The bar is drawn on standard error, and only when standard error is a
// terminal: redirected or piped output stays free of it. Ctrl-C (SIGINT)
// sets a flag and nothing else; the work sees it at its next progress
// report, where the report raises an ICancelException. A second Ctrl-C
// while the first waits for a report ends the process as usual.
#pragma once

#include "Quilon_/System/Exception.h"

#include <cstdio>
#include <string>

namespace Quilon_::System {
class IProgressContext;
}

namespace Quilon_::Tool {

class ProgressScope {
public:
    explicit ProgressScope(const std::wstring& title, std::FILE* out = stderr);
    ~ProgressScope();
    ProgressScope(const ProgressScope&) = delete;
    ProgressScope& operator=(const ProgressScope&) = delete;

    // Whether Ctrl-C was pressed since the scope began.
    bool Cancelled() const;
    // Raises the cancellation if Ctrl-C was pressed: call it before writing
    // anything that a cancelled run must not leave behind.
    void Checkpoint() const;
    // The root context, for work that reports to it directly.
    System::IProgressContext& Context() const;

private:
    System::Pointer<System::IProgressContext, 1> m_root;
    System::Pointer<System::IProgressContext, 0> m_previous;
};

// Whether `failure` is a cancellation rather than an error.
bool IsCancellation(const System::Pointer<System::IException, 1>& failure);

} // namespace Quilon_::Tool
