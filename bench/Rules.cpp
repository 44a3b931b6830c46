// An operator of three Pointer arguments under a chain of three rules, one
// per moment before the call (check, make, pre-execute), against the same
// operator without rules. The rules are the kernel's own: the cost is that
// of boxing, of the chains and of the interface casts the rules make.

#include "Quilon_/System/Functions/Rules/CheckInterfaceSupported.h"
#include "Quilon_/System/Functions/Rules/DisableEvents.h"

#include "../tests/Support/RuleChainDoubles.h"
#include "BenchValue.h"

#include <benchmark/benchmark.h>

namespace Quilon_::Bench {

QUILON_DEFINE_INTERFACE_TYPE(IValue, L"Quilon_::Bench::IValue", System::Interface)

// A value whose events the make rule silences for the call.
class CSilenceableValue : public System::Template::ObjectImpl<CSilenceableValue, IValue, System::IDisableEvents> {
public:
    int Value() override { return 2; }
    bool EventsDisabled() override { return disabled; }
    void SetEventsDisabled(bool value) override { disabled = value; }

private:
    bool disabled = false;
};

} // namespace Quilon_::Bench

namespace {

using namespace Quilon_;
using namespace Quilon_::System;
using namespace Quilon_::System::Functions;
using Bench::IValue;
using Ref = Pointer<IValue, 1>;

[[gnu::noinline]] int Sum(Ref a, Ref b, Ref c)
{
    return a->Value() + b->Value() + c->Value();
}

Functions::Template::Function<int (*)(Ref, Ref, Ref)> Plain(&Sum);
Functions::Template::Function<int (*)(Ref, Ref, Ref)> Ruled(&Sum);

// Filled once, as a catalogue's initialiser fills an operator.
[[maybe_unused]] const bool filled = [] {
    const Type& value = IValue::GetType();
    Ruled.SetRules(RuleCollections{
        Tests::Chain({Rules::CheckInterfaceSupported::New(0, value)}),
        Tests::Chain({Rules::DisableEvents::New(1)}),
        Tests::Chain({Rules::CheckInterfaceSupported::New(2, value)}),
        nullptr,
    });
    return true;
}();

template <class Operator>
void Run(benchmark::State& state, Operator& op, Ref b)
{
    Ref a(new Bench::CValue(1)), c(new Bench::CValue(3));
    for (auto _ : state) {
        int result = op(a, b, c);
        benchmark::DoNotOptimize(result);
    }
}

void BM_Baseline_OperatorWithoutRules(benchmark::State& state)
{
    Run(state, Plain, Ref(new Bench::CValue(2)));
}
BENCHMARK(BM_Baseline_OperatorWithoutRules);

// The make rule finds nothing to silence.
void BM_ThreeRules(benchmark::State& state)
{
    Run(state, Ruled, Ref(new Bench::CValue(2)));
}
BENCHMARK(BM_ThreeRules);

// The make rule wraps argument 1, and the call reads it back through the
// wrapper.
void BM_ThreeRules_Silencing(benchmark::State& state)
{
    Run(state, Ruled, Ref(new Bench::CSilenceableValue));
}
BENCHMARK(BM_ThreeRules_Silencing);

} // namespace

BENCHMARK_MAIN();
