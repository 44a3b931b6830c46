// Operator calls against a plain call through a function pointer: an
// operator without rules should cost one size check and one indirect call
// more than the baseline. The path with rules (boxing into Anys, the rule
// chains) is measured for information.

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include "../tests/Support/RuleChainDoubles.h"
#include "BenchValue.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace Quilon_::Bench {

QUILON_DEFINE_INTERFACE_TYPE(IValue, L"Quilon_::Bench::IValue", System::Interface)

// Always satisfied: the cost of a rule chain itself.
class CAccept : public System::Template::ObjectImpl<CAccept, System::Functions::Rules::IRule> {
public:
    bool Apply(std::vector<System::Any>&, System::Functions::Rules::RuleFailures&) override { return true; }
};

} // namespace Quilon_::Bench

namespace {

using namespace Quilon_;
using namespace Quilon_::System;
using Bench::IValue;
using Functions::Template::Function;
using Ref = Pointer<IValue, 1>;

[[gnu::noinline]] int Add(int a, int b)
{
    return a + b;
}

[[gnu::noinline]] int Sum(Ref a, Ref b, Ref c)
{
    return a->Value() + b->Value() + c->Value();
}

// Operators are static objects, as in the library.
Function<int (*)(int, int)> AddOperator(&Add);
Function<int (*)(Ref, Ref, Ref)> SumOperator(&Sum);
Function<int (*)(Ref, Ref, Ref)> SumOperatorWithRule(&Sum);

void BM_Baseline_FunctionPointer(benchmark::State& state)
{
    int (*function)(int, int) = &Add;
    int a = 1;
    int b = 2;
    for (auto _ : state) {
        // Opaque to the compiler: the call is neither inlined nor folded.
        benchmark::DoNotOptimize(function);
        benchmark::DoNotOptimize(a);
        int result = function(a, b);
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(BM_Baseline_FunctionPointer);

void BM_Operator_NoRules(benchmark::State& state)
{
    int a = 1;
    int b = 2;
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        int result = AddOperator(a, b);
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(BM_Operator_NoRules);

void BM_Baseline_FunctionPointer_ThreePointers(benchmark::State& state)
{
    int (*function)(Ref, Ref, Ref) = &Sum;
    Ref a(new Bench::CValue(1)), b(new Bench::CValue(2)), c(new Bench::CValue(3));
    for (auto _ : state) {
        benchmark::DoNotOptimize(function);
        int result = function(a, b, c);
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(BM_Baseline_FunctionPointer_ThreePointers);

void BM_Operator_NoRules_ThreePointers(benchmark::State& state)
{
    Ref a(new Bench::CValue(1)), b(new Bench::CValue(2)), c(new Bench::CValue(3));
    for (auto _ : state) {
        int result = SumOperator(a, b, c);
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(BM_Operator_NoRules_ThreePointers);

void BM_Operator_OneRule_ThreePointers(benchmark::State& state)
{
    // One collection of one rule at Check, which runs twice per call.
    Pointer<Functions::Rules::IRuleCollection, 1> rules = Functions::Rules::RuleCollection::NewInstance();
    rules->Add(Pointer<Functions::Rules::IRule, 1>(new Bench::CAccept));
    SumOperatorWithRule.SetRules(Functions::rtCheck, rules);
    Ref a(new Bench::CValue(1)), b(new Bench::CValue(2)), c(new Bench::CValue(3));
    for (auto _ : state) {
        int result = SumOperatorWithRule(a, b, c);
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(BM_Operator_OneRule_ThreePointers);

} // namespace

BENCHMARK_MAIN();
