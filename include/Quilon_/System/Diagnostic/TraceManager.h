// Diagnostic trace: messages with a category and their source location,
// sent to the listeners of the trace manager.
//
//   Library::TraceManager()->Trace(L"Delete failed (...)", L"Allocation");
#pragma once

#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Function.h"

#include <cstdint>
#include <string>

namespace Quilon_::System::Diagnostic {

class QUILON_API ITracingEventArgs : public virtual IEventArgs {
    QUILON_INTERFACE(ITracingEventArgs)
public:
    virtual std::wstring Message() = 0;
    virtual std::wstring Category() = 0;
    virtual std::wstring Function() = 0;
    virtual std::wstring File() = 0;
    virtual std::int64_t Line() = 0;
};

class QUILON_API ITraceManager : public virtual Interface {
    QUILON_INTERFACE(ITraceManager)
public:
    virtual void Trace(const std::wstring& message, const std::wstring& category, const std::wstring& function,
                       const std::wstring& file, std::int64_t line) = 0;
    virtual void Trace(const std::wstring& message, const std::wstring& category) = 0;
    // Fired by each Trace, on the tracing thread.
    virtual Event<Pointer<ITracingEventArgs, 1>>& Traced() = 0;
};

namespace TracingEventArgs {
QUILON_API Pointer<ITracingEventArgs, 1> New(const std::wstring& message, const std::wstring& category,
                                             const std::wstring& function, const std::wstring& file,
                                             std::int64_t line);
} // namespace TracingEventArgs

namespace TraceManager {
// Makes the default trace manager.
extern QUILON_API Functions::Template::Function<Pointer<ITraceManager, 1> (*)()> New;
} // namespace TraceManager

// The debugger output: by default a UTF-8 line on standard error. The sink
// can be replaced; SetDebugOutputSink returns the one it replaces.
using DebugOutputSink = void (*)(const std::wstring& text);
QUILON_API void OutputDebugString(const std::wstring& text);
QUILON_API DebugOutputSink SetDebugOutputSink(DebugOutputSink sink);

} // namespace Quilon_::System::Diagnostic
