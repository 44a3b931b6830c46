// Listeners and sources for the suites of events and weak references.
//
//   Calls calls;
//   Thing source(new CSource), listener(new CListener(&calls, "a"));
//   Source(source).Changed += Listener(listener).Handler();
//   Source(source).Changed.Fire(EventArgs::Empty());   // calls == {"a"}
#pragma once

#include "Quilon_/System/DestructionEvents.h"
#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventArgs.h"

#include "KernelDoubles.h"

#include <atomic>
#include <functional>
#include <string>
#include <vector>

namespace Quilon_::Tests::Events {

using Args = System::Pointer<System::IEventArgs, 1>;
using TestEvent = System::Event<Args>;
using Calls = std::vector<std::string>;
using Thing = System::Pointer<Kernel::IThing, 1>;

// An object that listens. Each call is counted, appends the name to
// `calls` when given (with a ' for the second callback), then runs
// `onCall`; a call that arrives after the destructor began is counted in
// `callsIntoDead`.
class CListener : public System::Template::ObjectImpl<CListener, Kernel::IThing, System::EventTarget> {
public:
    explicit CListener(Calls* calls = nullptr, std::string name = {},
                       std::atomic<int>* callsIntoDead = nullptr)
        : m_calls(calls), m_name(std::move(name)), m_callsIntoDead(callsIntoDead)
    {
    }
    ~CListener() override { m_alive.store(false); }
    int Value() override { return 0; }
    void OnEventTargetReset() override {}

    void OnFired(System::Interface* sender, Args args) { Record(m_name, sender, args); }
    void OnOther(System::Interface* sender, Args args) { Record(m_name + "'", sender, args); }

    System::EventHandlerBase* Handler() { return System::NewEventHandler(this, &CListener::OnFired); }
    System::EventHandlerBase* OtherHandler() { return System::NewEventHandler(this, &CListener::OnOther); }

    std::function<void(System::Interface* sender, Args& args)> onCall;
    std::atomic<int> count{0};

private:
    void Record(const std::string& call, System::Interface* sender, Args& args)
    {
        if (!m_alive.load() && m_callsIntoDead)
            ++*m_callsIntoDead;
        ++count;
        if (m_calls)
            m_calls->push_back(call);
        if (onCall)
            onCall(sender, args);
    }

    Calls* m_calls;
    std::string m_name;
    std::atomic<int>* m_callsIntoDead;
    std::atomic<bool> m_alive{true};
};

// An object with an event of its own and destruction events.
class CSource
    : public System::Template::ObjectImpl<CSource, Kernel::IThing, System::Template::IDestructionEventsImpl> {
public:
    int Value() override { return 0; }
    TestEvent Changed{this};
};

// A listener of any event that keeps the args it was given, and runs
// `onCall` on each.
//
//   auto* warnings = new CArgsRecorder<Pointer<IWarningEventArgs, 1>>;
//   Thing held(warnings);
//   manager->WarningRaised() += warnings->Handler();
template <class EventArgs>
class CArgsRecorder
    : public System::Template::ObjectImpl<CArgsRecorder<EventArgs>, Kernel::IThing, System::EventTarget> {
public:
    int Value() override { return static_cast<int>(received.size()); }
    void OnEventTargetReset() override {}
    void OnEvent(System::Interface*, EventArgs args)
    {
        received.push_back(args);
        if (onCall)
            onCall(args);
    }
    System::EventHandlerBase* Handler() { return System::NewEventHandler(this, &CArgsRecorder::OnEvent); }

    std::vector<EventArgs> received;
    std::function<void(EventArgs& args)> onCall;
};

inline CListener& Listener(const Thing& thing)
{
    return dynamic_cast<CListener&>(*thing);
}

inline CSource& Source(const Thing& thing)
{
    return dynamic_cast<CSource&>(*thing);
}

} // namespace Quilon_::Tests::Events
