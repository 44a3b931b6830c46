// The companion library's allocator and general critical section against the
// plain C library allocator and a bare std::recursive_mutex: the wrappers should
// cost no more than one indirect call and one test of the pressure hook.

#include "Quilon_/Startup.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <mutex>

namespace {

void BM_Baseline_MallocFree(benchmark::State& state)
{
    const auto size = static_cast<std::size_t>(state.range(0));
    for (auto _ : state) {
        void* block = std::malloc(size);
        benchmark::DoNotOptimize(block);
        std::free(block);
    }
}
BENCHMARK(BM_Baseline_MallocFree)->Arg(16)->Arg(4096);

void BM_QuilonMallocFree(benchmark::State& state)
{
    const auto size = static_cast<std::size_t>(state.range(0));
    for (auto _ : state) {
        void* block = Quilon_malloc(size);
        benchmark::DoNotOptimize(block);
        Quilon_free(block);
    }
}
BENCHMARK(BM_QuilonMallocFree)->Arg(16)->Arg(4096);

void CountPressure(std::size_t size)
{
    static std::size_t total = 0;
    total += size;
    benchmark::DoNotOptimize(total);
}

void BM_QuilonMallocFree_WithPressureHook(benchmark::State& state)
{
    const auto size = static_cast<std::size_t>(state.range(0));
    auto* saved = Quilon_::System::AddMemoryPressureFunction;
    Quilon_::System::AddMemoryPressureFunction = &CountPressure;
    for (auto _ : state) {
        void* block = Quilon_malloc(size);
        benchmark::DoNotOptimize(block);
        Quilon_free(block);
    }
    Quilon_::System::AddMemoryPressureFunction = saved;
}
BENCHMARK(BM_QuilonMallocFree_WithPressureHook)->Arg(16)->Arg(4096);

void BM_Baseline_RecursiveMutex(benchmark::State& state)
{
    static std::recursive_mutex mutex;
    for (auto _ : state) {
        mutex.lock();
        mutex.unlock();
    }
}
BENCHMARK(BM_Baseline_RecursiveMutex);

void BM_GeneralCriticalSection(benchmark::State& state)
{
    for (auto _ : state) {
        Quilon_::System::EnterGeneralCriticalSection();
        Quilon_::System::LeaveGeneralCriticalSection();
    }
}
BENCHMARK(BM_GeneralCriticalSection);

void BM_GeneralCriticalSection_Nested(benchmark::State& state)
{
    Quilon_::System::EnterGeneralCriticalSection();
    for (auto _ : state) {
        Quilon_::System::EnterGeneralCriticalSection();
        Quilon_::System::LeaveGeneralCriticalSection();
    }
    Quilon_::System::LeaveGeneralCriticalSection();
}
BENCHMARK(BM_GeneralCriticalSection_Nested);

} // namespace

BENCHMARK_MAIN();
