#include "Quilon_/System/Diagnostic/TraceManager.h"

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"


namespace Quilon_::System::Diagnostic {

QUILON_DEFINE_INTERFACE_TYPE(ITracingEventArgs, L"Quilon_::System::Diagnostic::ITracingEventArgs", IEventArgs)
QUILON_DEFINE_INTERFACE_TYPE(ITraceManager, L"Quilon_::System::Diagnostic::ITraceManager", Interface)

namespace {

class CTracingEventArgs : public Template::ObjectImpl<CTracingEventArgs, ITracingEventArgs> {
public:
    CTracingEventArgs(std::wstring message, std::wstring category, std::wstring function, std::wstring file,
                      std::int64_t line)
        : m_message(std::move(message)), m_category(std::move(category)), m_function(std::move(function)),
          m_file(std::move(file)), m_line(line)
    {
    }
    std::wstring Message() override { return m_message; }
    std::wstring Category() override { return m_category; }
    std::wstring Function() override { return m_function; }
    std::wstring File() override { return m_file; }
    std::int64_t Line() override { return m_line; }

private:
    std::wstring m_message;
    std::wstring m_category;
    std::wstring m_function;
    std::wstring m_file;
    std::int64_t m_line;
};

// Each trace becomes event arguments for the listeners of the manager.
class CTraceManager : public Template::ObjectImpl<CTraceManager, ITraceManager> {
public:
    void Trace(const std::wstring& message, const std::wstring& category, const std::wstring& function,
               const std::wstring& file, std::int64_t line) override
    {
        // Nothing to build when nobody listens: tracing is called on paths
        // that must stay cheap.
        if (m_traced)
            m_traced.Fire(TracingEventArgs::New(message, category, function, file, line));
    }
    void Trace(const std::wstring& message, const std::wstring& category) override
    {
        Trace(message, category, std::wstring(), std::wstring(), 0);
    }
    Event<Pointer<ITracingEventArgs, 1>>& Traced() override { return m_traced; }

private:
    Event<Pointer<ITracingEventArgs, 1>> m_traced{this};
};

Pointer<ITraceManager, 1> NewTraceManager()
{
    return Pointer<ITraceManager, 1>(new CTraceManager);
}

} // namespace

Pointer<ITracingEventArgs, 1> TracingEventArgs::New(const std::wstring& message, const std::wstring& category,
                                                    const std::wstring& function, const std::wstring& file,
                                                    std::int64_t line)
{
    return Pointer<ITracingEventArgs, 1>(new CTracingEventArgs(message, category, function, file, line));
}

__attribute__((init_priority(101)))
Functions::Template::Function<Pointer<ITraceManager, 1> (*)()> TraceManager::New(&NewTraceManager);

} // namespace Quilon_::System::Diagnostic
