// Allocation once the library has started, when every block of the companion
// library is counted by the core's memory-pressure counters, against the same
// allocation with no hook: the counters should add one uncontended lock.

#include "Quilon_/Startup.h"
#include "Quilon_/System/MemoryManager.h"

#include <benchmark/benchmark.h>

namespace {

void AllocateAndFree(benchmark::State& state, void (*hook)(std::size_t))
{
    auto* saved = Quilon_::System::AddMemoryPressureFunction;
    Quilon_::System::AddMemoryPressureFunction = hook;
    for (auto _ : state) {
        void* block = Quilon_malloc(64);
        benchmark::DoNotOptimize(block);
        Quilon_free(block);
    }
    Quilon_::System::AddMemoryPressureFunction = saved;
}

void BM_Baseline_QuilonMallocFree(benchmark::State& state)
{
    AllocateAndFree(state, nullptr);
}
BENCHMARK(BM_Baseline_QuilonMallocFree);

void BM_QuilonMallocFree_CountedByTheCore(benchmark::State& state)
{
    AllocateAndFree(state, &Quilon_::System::AddMemoryPressure);
}
BENCHMARK(BM_QuilonMallocFree_CountedByTheCore);

} // namespace

BENCHMARK_MAIN();
