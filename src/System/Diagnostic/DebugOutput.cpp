#include "Quilon_/System/Diagnostic/TraceManager.h"

#include <atomic>
#include <cstdio>

namespace Quilon_::System::Diagnostic {

namespace {

void WriteToStandardError(const std::wstring& text)
{
    std::string line;
    try {
        line = ToAnsi(text);
    } catch (...) {
        line = "(debugger output that is no valid text)";
    }
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
}

constinit std::atomic<DebugOutputSink> sink{&WriteToStandardError};

} // namespace

void OutputDebugString(const std::wstring& text)
{
    sink.load(std::memory_order_acquire)(text);
}

DebugOutputSink SetDebugOutputSink(DebugOutputSink replacement)
{
    return sink.exchange(replacement ? replacement : &WriteToStandardError, std::memory_order_acq_rel);
}

} // namespace Quilon_::System::Diagnostic
