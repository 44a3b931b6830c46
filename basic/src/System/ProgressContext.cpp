// The reference library's progress context, made through
// ProgressContext::NewInstance.
//
// Reports come from any thread: the value and what is still to pass on are
// atomics, so that a report costs a few atomic operations and a clock read,
// and the parent hears of it at most once per interval.

#include "Quilon_/System/ProgressContext.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/DestructionEvents.h"
#include "Quilon_/System/Initializer.h"
#include "Quilon_/System/ObjectImpl.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <utility>

namespace Quilon_::Basic {

namespace {

using System::IProgressContext;
using System::Pointer;
using Fraction = System::ProgressContext::Share;
using Clock = std::chrono::steady_clock;

class CProgressContext : public System::Template::ObjectImpl<CProgressContext, IProgressContext,
                                                             System::Template::IDestructionEventsImpl> {
public:
    CProgressContext(Fraction share, bool completeWhenReleased)
        : m_share(share), m_scale(boost::rational_cast<double>(share)),
          m_completeWhenReleased(completeWhenReleased),
          m_interval(std::chrono::milliseconds(System::ProgressContext::DefaultInterval())),
          m_lastPassed(Clock::now().time_since_epoch().count())
    {
    }

    // What was reported but not yet passed on reaches the parent now, and,
    // with the flag, the rest of the share too. A cancelled parent raises
    // on that report, which a destructor must not pass on.
    ~CProgressContext() override
    {
        if (m_completeWhenReleased)
            m_pending.fetch_add(1.0 - m_value.exchange(1.0));
        try {
            PassOn();
        } catch (...) {
        }
    }

    Pointer<IProgressContext, 0> Parent() override
    {
        std::lock_guard<std::mutex> lock(m_lock);
        return m_parent;
    }

    void SetParent(Pointer<IProgressContext, 0> parent) override
    {
        m_pending.store(0.0);
        std::lock_guard<std::mutex> lock(m_lock);
        std::swap(m_parent, parent);
        // The previous parent is released after the lock, by `parent`.
    }

    Fraction Share() override { return m_share; }
    double Value() override { return m_value.load(std::memory_order_relaxed); }
    void SetValue(double value) override { Add(value - Value()); }

    void Add(double amount) override
    {
        if (IsCancelled())
            QUILON_RAISE_CANCELLED();
        const double value = Advance(amount);
        const auto now = Clock::now().time_since_epoch().count();
        if (value < 1.0 && now - m_lastPassed.load(std::memory_order_relaxed) < m_interval.count())
            return;
        m_lastPassed.store(now, std::memory_order_relaxed);
        PassOn();
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

    bool IsCancelled() override
    {
        if (m_cancelled.load(std::memory_order_relaxed))
            return true;
        Pointer<IProgressContext, 0> parent = Parent();
        return parent && parent->IsCancelled();
    }

private:
    // Adds `amount` within [0, 1], keeps what was really added to pass on,
    // and returns the new value.
    double Advance(double amount)
    {
        double previous = m_value.load(std::memory_order_relaxed);
        double next;
        do
            next = std::clamp(previous + amount, 0.0, 1.0);
        while (!m_value.compare_exchange_weak(previous, next, std::memory_order_relaxed));
        m_pending.fetch_add(next - previous, std::memory_order_relaxed);
        return next;
    }

    void PassOn()
    {
        Pointer<IProgressContext, 0> parent = Parent();
        const double pending = m_pending.exchange(0.0, std::memory_order_relaxed);
        if (parent && pending != 0.0)
            parent->Add(pending * m_scale);
    }

    const Fraction m_share;
    const double m_scale;
    const bool m_completeWhenReleased;
    const Clock::duration m_interval;
    std::atomic<double> m_value{0.0};
    std::atomic<double> m_pending{0.0};
    std::atomic<Clock::rep> m_lastPassed;
    std::atomic<bool> m_cancelled{false};
    std::mutex m_lock;
    Pointer<IProgressContext, 0> m_parent;
    std::wstring m_text;
};

Pointer<IProgressContext, 1> NewProgressContext(Fraction share, bool completeWhenReleased)
{
    return Pointer<IProgressContext, 1>(new CProgressContext(share, completeWhenReleased));
}

void RegisterProgressContext()
{
    System::ProgressContext::SetNewInstanceFunction1(&NewProgressContext);
}

const System::Template::Initializer<::Library> progress(&RegisterProgressContext, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic
