// Copying and destroying a Pointer against std::shared_ptr and against a
// count kept under one global std::mutex, on one thread and on two threads
// that share one object or have one object each. The Pointer's object is a
// concrete class behind an interface, so each copy calls AddReference and
// ReleaseReference through the interface's table, as in the library.

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include "BenchValue.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace Quilon_::Bench {

QUILON_DEFINE_INTERFACE_TYPE(IValue, L"Quilon_::Bench::IValue", System::Interface)

} // namespace Quilon_::Bench

namespace {

using Quilon_::Bench::IValue;
using Ref = Quilon_::System::Pointer<IValue, 1>;

// The baseline that a plain lock gives: every count change under one lock
// for the whole process.
std::mutex countMutex;

struct MutexCounted {
    std::int64_t count = 1;
    int value = 1;
};

class MutexHandle {
public:
    MutexHandle() : m_object(new MutexCounted) {}
    MutexHandle(const MutexHandle& other) : m_object(other.m_object)
    {
        std::lock_guard<std::mutex> lock(countMutex);
        ++m_object->count;
    }
    MutexHandle& operator=(const MutexHandle&) = delete;
    ~MutexHandle()
    {
        bool last;
        {
            std::lock_guard<std::mutex> lock(countMutex);
            last = --m_object->count == 0;
        }
        if (last)
            delete m_object;
    }

private:
    MutexCounted* m_object;
};

// One object for both threads, and one object per thread. The objects of
// the threads are made several allocations apart, so that they do not share
// a cache line.
constexpr int Spread = 8;

struct Objects {
    std::vector<Ref> pointers;
    std::vector<std::shared_ptr<int>> shared;
    std::vector<MutexHandle> handles;

    Objects()
    {
        for (int i = 0; i <= 2 * Spread; ++i) {
            pointers.emplace_back(new Quilon_::Bench::CValue);
            shared.push_back(std::make_shared<int>(1));
            handles.emplace_back();
        }
    }
    // Object 0 is the shared one; thread t has object (t + 1) * Spread.
    static std::size_t Own(const benchmark::State& state)
    {
        return static_cast<std::size_t>(state.thread_index() + 1) * Spread;
    }
};
Objects* objects = nullptr;

template <class T>
void CopyAndDestroy(benchmark::State& state, const T& source)
{
    for (auto _ : state) {
        T copy(source);
        benchmark::DoNotOptimize(copy);
    }
}

void BM_Pointer_OneObject(benchmark::State& state)
{
    CopyAndDestroy(state, objects->pointers[0]);
}
void BM_SharedPtr_OneObject(benchmark::State& state)
{
    CopyAndDestroy(state, objects->shared[0]);
}
void BM_GlobalMutex_OneObject(benchmark::State& state)
{
    CopyAndDestroy(state, objects->handles[0]);
}
void BM_Pointer_OwnObject(benchmark::State& state)
{
    CopyAndDestroy(state, objects->pointers[Objects::Own(state)]);
}
void BM_SharedPtr_OwnObject(benchmark::State& state)
{
    CopyAndDestroy(state, objects->shared[Objects::Own(state)]);
}
void BM_GlobalMutex_OwnObject(benchmark::State& state)
{
    CopyAndDestroy(state, objects->handles[Objects::Own(state)]);
}

BENCHMARK(BM_Pointer_OneObject)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(BM_SharedPtr_OneObject)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(BM_GlobalMutex_OneObject)->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(BM_Pointer_OwnObject)->Threads(2)->UseRealTime();
BENCHMARK(BM_SharedPtr_OwnObject)->Threads(2)->UseRealTime();
BENCHMARK(BM_GlobalMutex_OwnObject)->Threads(2)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    // Once a thread has existed, libstdc++ counts shared_ptr references with
    // atomic operations, as it does in any program with threads.
    std::thread([] {}).join();

    Objects all;
    objects = &all;
    const auto* first = reinterpret_cast<const char*>(all.pointers[Spread].Get());
    const auto* second = reinterpret_cast<const char*>(all.pointers[2 * Spread].Get());
    if (std::abs(first - second) < 128)
        std::fprintf(stderr, "warning: the objects of the two threads are %td bytes apart\n", second - first);

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    objects = nullptr;
    return 0;
}
