#include "Progress.h"

#include "Quilon_/System/DestructionEvents.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/ProgressContext.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <mutex>
#include <unistd.h>

namespace Quilon_::Tool {

namespace {

using namespace Quilon_::System;
using Clock = std::chrono::steady_clock;

// Set by the SIGINT handler, read by the reports. A lock-free atomic is
// safe to touch from a signal handler.
std::atomic<bool> interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free);

struct sigaction previousHandler;

extern "C" void OnInterrupt(int)
{
    // The second Ctrl-C does not wait for a report: the default action ends
    // the process.
    if (interrupted.exchange(true)) {
        std::signal(SIGINT, SIG_DFL);
        std::raise(SIGINT);
    }
}

// Scopes may nest (a step inside a command): the outermost one installs
// the handler and puts the previous one back, so that an interruption seen
// by an inner scope stays seen by the outer one.
int scopeDepth = 0;

void InstallInterruptHandler()
{
    if (scopeDepth++ > 0)
        return;
    interrupted.store(false);
    struct sigaction action {};
    action.sa_handler = &OnInterrupt;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &previousHandler);
}

void RestoreInterruptHandler()
{
    if (--scopeDepth == 0)
        sigaction(SIGINT, &previousHandler, nullptr);
}

// The root of the tree while the tool runs an operator: it adds up what the
// children pass on and draws the bar, at most ten times a second and on
// each whole percent.
class CBarContext : public System::Template::ObjectImpl<CBarContext, IProgressContext,
                                                        System::Template::IDestructionEventsImpl> {
public:
    CBarContext(const std::wstring& title, std::FILE* out)
        : m_text(title), m_out(isatty(fileno(out)) ? out : nullptr)
    {
    }

    ~CBarContext() override
    {
        if (m_drawn)
            std::fputs("\r\033[K", m_out);
    }

    Pointer<IProgressContext, 0> Parent() override { return nullptr; }
    void SetParent(Pointer<IProgressContext, 0>) override {}
    boost::rational<std::int64_t> Share() override { return 1; }
    double Value() override
    {
        std::lock_guard<std::mutex> lock(m_lock);
        return m_value;
    }
    void SetValue(double value) override { Add(value - Value()); }

    void Add(double amount) override
    {
        if (IsCancelled())
            QUILON_RAISE_CANCELLED();
        std::lock_guard<std::mutex> lock(m_lock);
        m_value = std::clamp(m_value + amount, 0.0, 1.0);
        Draw();
    }

    std::wstring Text() override
    {
        std::lock_guard<std::mutex> lock(m_lock);
        return m_text;
    }
    void SetText(const std::wstring& text) override
    {
        std::lock_guard<std::mutex> lock(m_lock);
        m_text = text;
    }

    void Cancel() override { m_cancelled.store(true); }
    bool IsCancelled() override { return m_cancelled.load() || interrupted.load(); }

private:
    void Draw()
    {
        if (!m_out)
            return;
        const int percent = static_cast<int>(m_value * 100.0);
        const auto now = Clock::now();
        if (m_drawn && percent == m_percent && now - m_drawnAt < std::chrono::milliseconds(100))
            return;
        constexpr int width = 30;
        const int filled = static_cast<int>(m_value * width);
        char bar[width + 1];
        for (int i = 0; i < width; ++i)
            bar[i] = i < filled ? '#' : '.';
        bar[width] = '\0';
        std::fprintf(m_out, "\r[%s] %3d%%  %ls\033[K", bar, percent, m_text.c_str());
        std::fflush(m_out);
        m_drawn = true;
        m_percent = percent;
        m_drawnAt = now;
    }

    std::mutex m_lock;
    double m_value = 0.0;
    std::wstring m_text;
    std::FILE* const m_out;
    bool m_drawn = false;
    int m_percent = -1;
    Clock::time_point m_drawnAt;
    std::atomic<bool> m_cancelled{false};
};

} // namespace

ProgressScope::ProgressScope(const std::wstring& title, std::FILE* out)
    : m_root(new CBarContext(title, out)), m_previous(ProgressContext::CurrentProgressContext())
{
    InstallInterruptHandler();
    ProgressContext::SetCurrentProgressContext(m_root);
}

ProgressScope::~ProgressScope()
{
    ProgressContext::SetCurrentProgressContext(m_previous);
    RestoreInterruptHandler();
}

bool ProgressScope::Cancelled() const
{
    return m_root->IsCancelled();
}

void ProgressScope::Checkpoint() const
{
    if (Cancelled())
        QUILON_RAISE_CANCELLED();
}

IProgressContext& ProgressScope::Context() const
{
    return *m_root;
}

bool IsCancellation(const Pointer<IException, 1>& failure)
{
    return static_cast<bool>(Pointer<ICancelException, 0>(failure));
}

} // namespace Quilon_::Tool
