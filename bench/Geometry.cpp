// Geometry through the registered functions and the core's helpers, each
// against the plain C++ it stands for, in the same run:
// - Coordinates::Add of two 3-axis coordinates against a std::make_shared
//   of a three-value struct with the same additions: the price of the
//   registered call, the interfaces and the library's allocator;
// - Helper::Index against the same index arithmetic on plain arrays;
// - the typed pixel view of a bitmap against the same loop over a
//   std::vector<uint8_t>: the sum of every sample of 4096 x 4096 bytes.
// The concrete classes come from the reference library, started once in
// main. Further benchmarks go in sections of their own above main.

#include "Quilon_/Geometry/Helper.h"
#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/String.h"

#include "../basic/include/Quilon_/Basic/Images/BitmapView.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace {

using namespace Quilon_;
using namespace Quilon_::Geometry;
using Int = std::int64_t;

// --- Coordinate arithmetic ------------------------------------------------

void BM_Coordinates_Add(benchmark::State& state)
{
    System::Ref<ICoordinates> a = Coordinates::New(1, 2, 3, Axes::aXYZ);
    System::Ref<ICoordinates> b = Coordinates::New(4, 5, 6, Axes::aXYZ);
    for (auto _ : state) {
        System::Ref<ICoordinates> sum = Coordinates::Add(a, b);
        benchmark::DoNotOptimize(sum.Get());
    }
}
BENCHMARK(BM_Coordinates_Add);

struct Values3 {
    Int x;
    Int y;
    Int z;
};

void BM_Baseline_MakeSharedAdd(benchmark::State& state)
{
    auto a = std::make_shared<Values3>(Values3{1, 2, 3});
    auto b = std::make_shared<Values3>(Values3{4, 5, 6});
    for (auto _ : state) {
        benchmark::DoNotOptimize(a.get());
        benchmark::DoNotOptimize(b.get());
        auto sum = std::make_shared<Values3>(Values3{a->x + b->x, a->y + b->y, a->z + b->z});
        benchmark::DoNotOptimize(sum.get());
    }
}
BENCHMARK(BM_Baseline_MakeSharedAdd);

// --- Flat indexes ---------------------------------------------------------

void BM_Helper_Index(benchmark::State& state)
{
    System::Ref<IBox> box = Box::New(0, 0, 0, 64, 48, 32, Axes::aXYZ);
    System::Ref<ICoordinates> strides = Helper::CumulatedSize(box);
    System::Ref<ICoordinates> location = Coordinates::New(17, 23, 5, Axes::aXYZ);
    for (auto _ : state) {
        Int index = Helper::Index(location, box, strides);
        benchmark::DoNotOptimize(index);
    }
}
BENCHMARK(BM_Helper_Index);

[[gnu::noinline]] Int PlainIndex(const std::array<Int, 3>& location, const std::array<Int, 3>& lower,
                                 const std::array<Int, 3>& upper, const std::array<Int, 3>& strides)
{
    Int index = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        if (location[i] < lower[i] || location[i] >= upper[i])
            return -1;
        index += strides[i] * (location[i] - lower[i]);
    }
    return index;
}

void BM_Baseline_PlainIndex(benchmark::State& state)
{
    const std::array<Int, 3> lower{0, 0, 0};
    const std::array<Int, 3> upper{64, 48, 32};
    const std::array<Int, 3> strides{1, 64, 64 * 48};
    std::array<Int, 3> location{17, 23, 5};
    for (auto _ : state) {
        benchmark::DoNotOptimize(location.data());
        Int index = PlainIndex(location, lower, upper, strides);
        benchmark::DoNotOptimize(index);
    }
}
BENCHMARK(BM_Baseline_PlainIndex);

// --- Pixel loops ----------------------------------------------------------
// Both loops read the width at run time, as image code does, and keep a
// local total per line: a store through a byte pointer may alias anything,
// so a running total behind a reference would stay in memory. Both stream
// 16 MB from memory; on a busy machine compare them with
// --benchmark_enable_random_interleaving=true.

constexpr Int pixelSide = 4096;

std::uint8_t Pattern(Int index)
{
    return static_cast<std::uint8_t>(index * 7 + (index >> 12));
}

void BM_Baseline_VectorSum(benchmark::State& state)
{
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(pixelSide * pixelSide));
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = Pattern(static_cast<Int>(i));
    Int width = pixelSide;
    benchmark::DoNotOptimize(width);
    const Int height = static_cast<Int>(pixels.size()) / width;
    for (auto _ : state) {
        std::uint64_t sum = 0;
        for (Int y = 0; y < height; ++y) {
            const std::uint8_t* row = pixels.data() + y * width;
            std::uint64_t total = 0;
            for (Int x = 0; x < width; ++x)
                total += row[x];
            sum += total;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetBytesProcessed(state.iterations() * pixelSide * pixelSide);
}
BENCHMARK(BM_Baseline_VectorSum)->Unit(benchmark::kMillisecond);

void BM_BitmapView_Sum(benchmark::State& state)
{
    System::Ref<Images::IBitmap> bitmap =
        Images::Bitmap::New(Coordinates::New(pixelSide, pixelSide, Axes::aXY));
    auto* bytes = static_cast<std::uint8_t*>(bitmap->Memory()->Data());
    for (Int i = 0; i < pixelSide * pixelSide; ++i)
        bytes[i] = Pattern(i);
    const auto view = Basic::Images::BitmapView<std::uint8_t>::Of(bitmap);
    for (auto _ : state) {
        std::uint64_t sum = 0;
        Basic::Images::ForEachLine(view, [&sum](const std::uint8_t* line, Int count, Int step) {
            std::uint64_t total = 0;
            if (step == 1) {
                for (Int x = 0; x < count; ++x)
                    total += line[x];
            } else {
                for (Int x = 0; x < count; ++x)
                    total += line[x * step];
            }
            sum += total;
        });
        benchmark::DoNotOptimize(sum);
    }
    state.SetBytesProcessed(state.iterations() * pixelSide * pixelSide);
}
BENCHMARK(BM_BitmapView_Sum)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    // The concrete classes and the registered functions come from the
    // reference library.
    Quilon_::Library::SetInitializationFileName(Quilon_::System::ToString(QUILON_FIXTURES_DIR "/Basic.xml"));
    Quilon_::Library::Initialize();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
