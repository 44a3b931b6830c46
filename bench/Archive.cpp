// A vector of 1 Mi doubles written to and read from an archive in memory,
// against memcpy of the same 8 MiB. Both directions take the bulk path of
// the vector operators, so the streams should cost little more than the
// copy and the allocation of their buffer.

#include "Quilon_/Library.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"
#include "Quilon_/System/String.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <numeric>
#include <vector>

namespace {

using namespace Quilon_::System;
using namespace Quilon_::System::Serialization::Binary;

constexpr std::size_t Count = 1 << 20;
constexpr std::int64_t Bytes = static_cast<std::int64_t>(Count * sizeof(double));

const std::vector<double>& Values()
{
    static const std::vector<double> values = [] {
        std::vector<double> filled(Count);
        std::iota(filled.begin(), filled.end(), 0.5);
        return filled;
    }();
    return values;
}

void BM_Baseline_Memcpy(benchmark::State& state)
{
    std::vector<double> target(Count);
    for (auto _ : state) {
        std::memcpy(target.data(), Values().data(), static_cast<std::size_t>(Bytes));
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * Bytes);
}
BENCHMARK(BM_Baseline_Memcpy);

// The copy into a new buffer, as the streams must make one.
void BM_Baseline_CopyIntoNewVector(benchmark::State& state)
{
    for (auto _ : state) {
        std::vector<double> copy(Values());
        benchmark::DoNotOptimize(copy.data());
    }
    state.SetBytesProcessed(state.iterations() * Bytes);
}
BENCHMARK(BM_Baseline_CopyIntoNewVector);

void BM_ArchiveWriteVectorOfDoubles(benchmark::State& state)
{
    for (auto _ : state) {
        WriterRef writer = Writer::New(true, false);
        writer << Values();
        benchmark::DoNotOptimize(writer.Get());
    }
    state.SetBytesProcessed(state.iterations() * Bytes);
}
BENCHMARK(BM_ArchiveWriteVectorOfDoubles);

void BM_ArchiveReadVectorOfDoubles(benchmark::State& state)
{
    WriterRef writer = Writer::New(true, false);
    writer << Values();
    Pointer<IMemory, 1> archive = writer->Contents();
    for (auto _ : state) {
        ReaderRef reader = Reader::New(archive);
        std::vector<double> read;
        reader >> read;
        benchmark::DoNotOptimize(read.data());
    }
    state.SetBytesProcessed(state.iterations() * Bytes);
}
BENCHMARK(BM_ArchiveReadVectorOfDoubles);

} // namespace

int main(int argc, char** argv)
{
    // The concrete streams come from the reference library.
    Quilon_::Library::SetInitializationFileName(ToString(QUILON_FIXTURES_DIR "/Basic.xml"));
    Quilon_::Library::Initialize();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
