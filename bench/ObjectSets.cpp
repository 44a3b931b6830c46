// Labelling and measuring objects: the reference library's Clusters (8-connectivity)
// and StandardShapeMeasurements on a 4096 x 4096 8-bit image of random blobs,
// against OpenCV's connectedComponentsWithStats on the same pixels in the same
// run. OpenCV gives per component its box, area and centroid; the operators
// give those and more, and build an object set with a bitmap shape per object,
// so the comparison is of the whole job a caller wants done.
//
// Before timing, both must find the same number of objects, or the program
// stops. Counters: "objects", and for the measuring alone "per object", the
// time per measured object.

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/Library.h"
#include "Quilon_/ObjectSets/Bitmaps/Generation/Functions.h"
#include "Quilon_/ObjectSets/Measurements/Functions.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/System/Memory.h"
#include "Quilon_/System/String.h"

#include <benchmark/benchmark.h>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <random>
#include <vector>

namespace {

using namespace Quilon_;
using ImageRef = System::Ref<Images::IImage>;
using SetRef = System::Ref<ObjectSets::IObjectSet>;
namespace Gen = ObjectSets::Bitmaps::Generation::Functions;
namespace Measure = ObjectSets::Measurements;

constexpr int side = 4096;

// White noise smoothed by a box of 9 x 9 and cut at its mean: blobs of a
// few to a few hundred pixels, about half the image set (0 and 255).
std::vector<std::uint8_t> RandomBlobs()
{
    constexpr int radius = 4;
    std::mt19937 random(2026);
    std::uniform_int_distribution<int> noise(0, 255);
    std::vector<int> pixels(std::size_t(side) * side), rows(pixels.size());
    for (int& p : pixels)
        p = noise(random);
    auto at = [](int x, int y) { return std::size_t(y) * side + std::size_t(x); };
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            int sum = 0;
            for (int d = -radius; d <= radius; ++d)
                sum += pixels[at(std::clamp(x + d, 0, side - 1), y)];
            rows[at(x, y)] = sum;
        }
    std::vector<std::uint8_t> blobs(pixels.size());
    const int threshold = 255 * (2 * radius + 1) * (2 * radius + 1) / 2;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            int sum = 0;
            for (int d = -radius; d <= radius; ++d)
                sum += rows[at(x, std::clamp(y + d, 0, side - 1))];
            blobs[at(x, y)] = sum > threshold ? 255 : 0;
        }
    return blobs;
}

const std::vector<std::uint8_t>& Blobs()
{
    static const std::vector<std::uint8_t> blobs = RandomBlobs();
    return blobs;
}

ImageRef BlobImage()
{
    auto format = Images::UniformFormat::New(Images::StorageOrder::New(L"XY"));
    ImageRef image = Images::Image::New(Geometry::Coordinates::New(side, side, Geometry::Axes::aXY), format);
    System::Ref<Images::IBitmap> bitmap = image->Bitmap();
    auto* first = static_cast<std::uint8_t*>(bitmap->Memory()->Data()) + bitmap->Origin();
    const std::int64_t rowStride = bitmap->Strides()[1];
    for (int y = 0; y < side; ++y)
        std::copy_n(Blobs().data() + std::size_t(y) * side, side, first + y * rowStride);
    return image;
}

cv::Mat BlobMat()
{
    return cv::Mat(side, side, CV_8U, const_cast<std::uint8_t*>(Blobs().data()));
}

int OpenCVCount()
{
    cv::Mat labels, stats, centroids;
    return cv::connectedComponentsWithStats(BlobMat(), labels, stats, centroids, 8, CV_32S) - 1;
}

// Argument: the number of OpenCV threads (its labelling runs in parallel
// strips when allowed more than one); the reference operators use one.
void BM_Baseline_OpenCVConnectedComponentsWithStats(benchmark::State& state)
{
    cv::setNumThreads(int(state.range(0)));
    const cv::Mat image = BlobMat();
    cv::Mat labels, stats, centroids;
    int count = 0;
    for (auto _ : state)
        count = cv::connectedComponentsWithStats(image, labels, stats, centroids, 8, CV_32S) - 1;
    state.counters["objects"] = count;
}
BENCHMARK(BM_Baseline_OpenCVConnectedComponentsWithStats)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void BM_ClustersOnly(benchmark::State& state)
{
    const ImageRef image = BlobImage();
    for (auto _ : state) {
        SetRef set = ObjectSets::ObjectSet::New();
        Gen::Clusters(image, set, Geometry::pngSquare8);
        state.counters["objects"] = double(set->Count());
    }
}
BENCHMARK(BM_ClustersOnly)->Unit(benchmark::kMillisecond);

void BM_ClustersAndStandardMeasurements(benchmark::State& state)
{
    const ImageRef image = BlobImage();
    const std::vector<Measure::StandardShapeMeasurementEnum> all;
    for (auto _ : state) {
        SetRef set = ObjectSets::ObjectSet::New();
        Gen::Clusters(image, set, Geometry::pngSquare8);
        Measure::Functions::StandardShapeMeasurements(set, all);
        state.counters["objects"] = double(set->Count());
    }
}
BENCHMARK(BM_ClustersAndStandardMeasurements)->Unit(benchmark::kMillisecond);

// Measuring into the set alone, on objects labelled once.
void BM_StandardMeasurementsPerObject(benchmark::State& state)
{
    SetRef set = ObjectSets::ObjectSet::New();
    Gen::Clusters(BlobImage(), set, Geometry::pngSquare8);
    const std::vector<Measure::StandardShapeMeasurementEnum> all;
    for (auto _ : state)
        Measure::Functions::StandardShapeMeasurements(set, all);
    state.counters["objects"] = double(set->Count());
    state.counters["per object"] = benchmark::Counter(
        double(set->Count()), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_StandardMeasurementsPerObject)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    // The concrete sets, images and operators come from the reference library.
    Library::SetInitializationFileName(System::ToString(QUILON_FIXTURES_DIR "/Basic.xml"));
    Library::Initialize();
    SetRef set = ObjectSets::ObjectSet::New();
    Gen::Clusters(BlobImage(), set, Geometry::pngSquare8);
    const int expected = OpenCVCount();
    if (set->Count() != expected) {
        std::fprintf(stderr, "object counts differ: Clusters %lld, OpenCV %d\n",
                     static_cast<long long>(set->Count()), expected);
        return 1;
    }
    std::printf("%d objects in a %d x %d image of random blobs\n", expected, side, side);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
