// Listeners and sources for the suites of events and weak references.
//
//   Calls calls;
//   Pointer<IThing> source(new CSource);
//   Pointer<IThing> listener(new CListener(calls, "a"));
//   Source(source).Changed += Listener(listener).Handler();
//   Source(source).Changed.Fire(EventArgs::Empty());   // calls == {"a"}
#pragma once

#include "Quilon_/System/DestructionEvents.h"
#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventArgs.h"

#include "KernelDoubles.h"

#include <functional>
#include <string>
#include <vector>

namespace Quilon_::Tests::Events {

using Args = System::Pointer<System::IEventArgs, 1>;
using TestEvent = System::Event<Args>;
using Calls = std::vector<std::string>;

// An object that listens. Each call appends its name, with a ' for the
// second callback, then runs `onCall`.
class CListener : public System::Template::ObjectImpl<CListener, Kernel::IThing, System::EventTarget> {
public:
    CListener(Calls& calls, std::string name, int* destructions = nullptr)
        : m_calls(calls), m_name(std::move(name)), m_destructions(destructions)
    {
    }
    ~CListener() override
    {
        if (m_destructions)
            ++*m_destructions;
    }
    int Value() override { return 0; }
    void OnEventTargetReset() override {}

    void OnFired(System::Interface* sender, Args args) { Record(m_name, sender, args); }
    void OnOther(System::Interface* sender, Args args) { Record(m_name + "'", sender, args); }

    System::EventHandlerBase* Handler() { return System::NewEventHandler(this, &CListener::OnFired); }
    System::EventHandlerBase* OtherHandler() { return System::NewEventHandler(this, &CListener::OnOther); }

    std::function<void(System::Interface* sender, Args& args)> onCall;

private:
    void Record(const std::string& call, System::Interface* sender, Args& args)
    {
        m_calls.push_back(call);
        if (onCall)
            onCall(sender, args);
    }

    Calls& m_calls;
    std::string m_name;
    int* m_destructions;
};

// An object with an event of its own and destruction events.
class CSource
    : public System::Template::ObjectImpl<CSource, Kernel::IThing, System::Template::IDestructionEventsImpl> {
public:
    int Value() override { return 0; }
    TestEvent Changed{this};
};

inline CListener& Listener(const System::Pointer<Kernel::IThing, 1>& thing)
{
    return dynamic_cast<CListener&>(*thing);
}

inline CSource& Source(const System::Pointer<Kernel::IThing, 1>& thing)
{
    return dynamic_cast<CSource&>(*thing);
}

} // namespace Quilon_::Tests::Events
