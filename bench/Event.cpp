// Firing an event with 0, 1 and 8 handlers against boost::signals2 and a
// vector of std::function, and against one uncontended lock and unlock of
// the general critical section, which is all that a firing without handlers
// may cost; connecting and disconnecting one handler on an event that has 8.
//
// The event's protocol leaves the lock around every handler call and holds
// references on the sender, the target and the args; the baselines take no
// lock and pass the args by reference, so they are the cheaper side.

#include "Quilon_/Startup.h"
#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/ObjectImpl.h"

#include "BenchValue.h"

#include <benchmark/benchmark.h>
#include <boost/signals2/signal.hpp>

#include <functional>
#include <memory>
#include <vector>

namespace Quilon_::Bench {

QUILON_DEFINE_INTERFACE_TYPE(IValue, L"Quilon_::Bench::IValue", System::Interface)

} // namespace Quilon_::Bench

namespace {

using Quilon_::Bench::IValue;
using Quilon_::System::Interface;
using Args = Quilon_::System::Pointer<Quilon_::System::IEventArgs, 1>;
using Quilon_::System::EventTarget;
using Quilon_::System::NewEventHandler;
using Quilon_::System::Pointer;

class CListener : public Quilon_::System::Template::ObjectImpl<CListener, IValue, EventTarget> {
public:
    int Value() override { return static_cast<int>(calls); }
    void OnEventTargetReset() override {}
    void OnFired(Interface*, Args) { ++calls; }
    void Count(Interface*, const Args&) { ++calls; }

    std::int64_t calls = 0;
};

// The sender that owns the event, and the listeners, alive for the run.
struct Fixture {
    Pointer<IValue, 1> sender{new Quilon_::Bench::CValue};
    Quilon_::System::Event<Args> event{sender.Get()};
    std::vector<Pointer<IValue, 1>> held;
    std::vector<CListener*> listeners;
    Args args = Quilon_::System::EventArgs::Empty();

    explicit Fixture(std::int64_t count)
    {
        for (std::int64_t i = 0; i < count + 1; ++i) {
            listeners.push_back(new CListener);
            held.emplace_back(listeners.back());
        }
        // The last listener is kept free for connecting.
        for (std::int64_t i = 0; i < count; ++i)
            event += NewEventHandler(listeners[i], &CListener::OnFired);
    }
    CListener* Spare() const { return listeners.back(); }
};

void BM_GeneralCriticalSection(benchmark::State& state)
{
    for (auto _ : state) {
        Quilon_::System::EnterGeneralCriticalSection();
        Quilon_::System::LeaveGeneralCriticalSection();
    }
}
BENCHMARK(BM_GeneralCriticalSection);

void BM_Event_Fire(benchmark::State& state)
{
    Fixture fixture(state.range(0));
    for (auto _ : state)
        fixture.event.Fire(fixture.args);
    benchmark::DoNotOptimize(fixture.listeners.front()->calls);
}
BENCHMARK(BM_Event_Fire)->Arg(0)->Arg(1)->Arg(8);

void BM_Signals2_Emit(benchmark::State& state)
{
    Fixture fixture(0);
    boost::signals2::signal<void(Interface*, const Args&)> signal;
    std::vector<std::unique_ptr<CListener>> listeners;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        CListener* listener = listeners.emplace_back(new CListener).get();
        signal.connect([listener](Interface* sender, const Args& args) { listener->Count(sender, args); });
    }
    for (auto _ : state)
        signal(fixture.sender.Get(), fixture.args);
}
BENCHMARK(BM_Signals2_Emit)->Arg(0)->Arg(1)->Arg(8);

void BM_FunctionVector_Call(benchmark::State& state)
{
    Fixture fixture(0);
    std::vector<std::function<void(Interface*, const Args&)>> functions;
    std::vector<std::unique_ptr<CListener>> listeners;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        CListener* listener = listeners.emplace_back(new CListener).get();
        functions.emplace_back([listener](Interface* sender, const Args& args) { listener->Count(sender, args); });
    }
    for (auto _ : state) {
        for (const auto& function : functions)
            function(fixture.sender.Get(), fixture.args);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_FunctionVector_Call)->Arg(0)->Arg(1)->Arg(8);

void BM_Event_ConnectDisconnect(benchmark::State& state)
{
    Fixture fixture(8);
    CListener* spare = fixture.Spare();
    for (auto _ : state) {
        fixture.event += NewEventHandler(spare, &CListener::OnFired);
        fixture.event -= NewEventHandler(spare, &CListener::OnFired);
    }
}
BENCHMARK(BM_Event_ConnectDisconnect);

void BM_Signals2_ConnectDisconnect(benchmark::State& state)
{
    boost::signals2::signal<void(Interface*, const Args&)> signal;
    std::vector<std::unique_ptr<CListener>> listeners;
    for (int i = 0; i < 9; ++i)
        listeners.emplace_back(new CListener);
    for (int i = 0; i < 8; ++i)
        signal.connect([listener = listeners[i].get()](Interface* s, const Args& a) { listener->Count(s, a); });
    CListener* spare = listeners.back().get();
    for (auto _ : state) {
        boost::signals2::connection connection =
            signal.connect([spare](Interface* s, const Args& a) { spare->Count(s, a); });
        connection.disconnect();
    }
}
BENCHMARK(BM_Signals2_ConnectDisconnect);

} // namespace

BENCHMARK_MAIN();
