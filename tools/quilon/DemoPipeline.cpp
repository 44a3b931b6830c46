// The pipeline of `quilon demo`: a synthetic grey image of bright blobs,
// some of them rings, on a noisy background, written as PNG and read back,
// then smoothed, thresholded, opened and hole-filled, and written again;
// the blobs are then labelled as objects and measured, and the largest
// listed. Each step prints its time.
//
// The operators are called through their headers, as an application calls
// them; a step whose operator no loaded library implements is skipped, and
// the next one goes on with the image as it is.
#include "Commands.h"
#include "Progress.h"

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Filtering/Functions.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/IO/Functions.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/Morphology/Geodesy/Functions.h"
#include "Quilon_/Images/Morphology/OpeningClosing/Functions.h"
#include "Quilon_/Images/Segmentation/Functions.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/Bitmaps/Generation/Functions.h"
#include "Quilon_/ObjectSets/Globals.h"
#include "Quilon_/ObjectSets/Measurements/Functions.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/System/ProgressContext.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <system_error>
#include <vector>

namespace Quilon_::Tool {

namespace {

using namespace Quilon_::Images;
using System::Ref;

using ImageRef = Ref<IImage>;

constexpr std::int64_t sampleSide = 256;

// Where the demo writes: `demo` beside the build's bin folder, so that a
// run from the source tree leaves nothing in it.
std::filesystem::path OutputFolder()
{
    std::error_code error;
    std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    std::filesystem::path folder = error ? std::filesystem::temp_directory_path() / "quilon-demo"
                                         : executable.parent_path().parent_path() / "demo";
    std::filesystem::create_directories(folder, error);
    return folder;
}

// A few hundred grey levels of noise from a fixed seed, so that every run
// draws the same image.
class Noise {
public:
    double Next()
    {
        m_state = m_state * 6364136223846793005ull + 1442695040888963407ull;
        return static_cast<double>(m_state >> 40) / static_cast<double>(1ull << 24) - 0.5;
    }

private:
    std::uint64_t m_state = 42;
};

struct Blob {
    double x, y, radius;
    bool ring;
};

ImageRef MakeSample()
{
    Ref<IFormat> format = UniformFormat::New(StorageOrder::New(L"XY"));
    ImageRef image =
        Image::New(Geometry::Coordinates::New(sampleSide, sampleSide, Geometry::Axes::aXY), format);
    Image::SetCategory(image, picGrey, false);
    const Blob blobs[] = {{50, 50, 22, true},   {130, 60, 16, false}, {200, 45, 25, true},
                          {60, 140, 14, false}, {140, 150, 30, true}, {215, 140, 12, false},
                          {45, 215, 18, false}, {130, 220, 20, true}, {210, 210, 15, false}};
    Ref<IBitmap> bitmap = image->Bitmap();
    const std::vector<std::int64_t> strides = bitmap->Strides();
    auto* samples = static_cast<std::uint8_t*>(bitmap->Memory()->Data()) + bitmap->Origin();
    Noise noise;
    // Drawing reports line by line, as an operator of the library would.
    System::Pointer<System::IProgressContext, 0> progress = System::ProgressContext::CreateChild(1);
    for (std::int64_t y = 0; y < sampleSide; ++y) {
        for (std::int64_t x = 0; x < sampleSide; ++x) {
            double value = 60.0;
            for (const Blob& blob : blobs) {
                const double distance = std::hypot(x - blob.x, y - blob.y);
                const bool inside = distance < blob.radius && !(blob.ring && distance < blob.radius * 0.5);
                if (inside)
                    value = 170.0;
            }
            // Single bright specks, for the opening to remove.
            if ((x * 7 + y * 13) % 409 == 0)
                value = 200.0;
            value += 50.0 * noise.Next();
            samples[x * strides[0] + y * strides[1]] =
                static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
        }
        if (progress)
            progress->SetValue(static_cast<double>(y + 1) / sampleSide);
    }
    return image;
}

std::int64_t CountSet(const ImageRef& image)
{
    if (image->Format()->DataType() != System::ntUInt8 || image->Dimension() != 2)
        return -1;
    Ref<IBitmap> bitmap = image->Bitmap();
    const std::vector<std::int64_t> strides = bitmap->Strides();
    Ref<Geometry::ICoordinates> size = image->Size();
    const std::int64_t width = size->X(), height = size->Y();
    const auto* samples = static_cast<const std::uint8_t*>(bitmap->Memory()->Data()) + bitmap->Origin();
    std::int64_t count = 0;
    for (std::int64_t y = 0; y < height; ++y)
        for (std::int64_t x = 0; x < width; ++x)
            count += samples[x * strides[0] + y * strides[1]] != 0;
    return count;
}

// Runs one step under a progress bar; false when it was cancelled or
// failed, which ends the pipeline.
bool RunStep(const char* title, const std::string& detail, const std::function<void(ProgressScope&)>& work)
{
    const auto start = std::chrono::steady_clock::now();
    try {
        ProgressScope progress(System::Detail::ToStringLenient(title));
        work(progress);
        progress.Checkpoint();
    } catch (const System::Pointer<System::IException, 1>& failure) {
        if (IsCancellation(failure)) {
            std::printf("  %-14s cancelled\n", title);
            return false;
        }
        std::printf("  %-14s failed: %ls\n", title, failure->Message().c_str());
        return false;
    }
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    std::printf("  %-14s %-40s %8.2f ms\n", title, detail.c_str(), took.count());
    return true;
}

void Skip(const char* title, const char* why)
{
    std::printf("  %-14s skipped: %s\n", title, why);
}

// A step from `current` to a fresh image through an (input, output, ...)
// operator; the result becomes the current image.
template <class Operator, class... Rest>
bool Transform(const char* title, const Operator& step, const std::string& detail, ImageRef& current,
               const Rest&... rest)
{
    if (!step.CheckImplemented(false)) {
        Skip(title, "no implementation");
        return true;
    }
    ImageRef output = Image::New();
    if (!RunStep(title, detail, [&](ProgressScope&) { step(current, output, rest...); }))
        return false;
    current = output;
    return true;
}

// The cells of one measurement of every object, in the set's order.
std::vector<double> MeasurementColumn(const Ref<ObjectSets::IObjectSet>& set, const wchar_t* measurement)
{
    std::wstring name = measurement;
    if (ObjectSets::Globals::PrefixMeasurementAttributes())
        name = L"StandardShapeMeasurements." + name;
    System::Pointer<ObjectSets::IScalarAttribute, 1> cells = set->Attributes()->Find(name);
    Ref<ObjectSets::IObjectDictionary> objects = set->Objects();
    std::vector<double> values;
    for (std::int64_t index = 0; index < objects->Count(); ++index)
        values.push_back(cells->ScalarValue(objects->KeyAt(index)));
    return values;
}

// Labels the foreground of a binary image as objects, measures their shapes
// and lists the ten largest.
void MeasureObjects(const ImageRef& binary)
{
    namespace Generation = ObjectSets::Bitmaps::Generation::Functions;
    namespace Measure = ObjectSets::Measurements;
    if (!Generation::Clusters.Overload<3>().CheckImplemented(false) ||
        !Measure::Functions::StandardShapeMeasurements.Overload<1>().CheckImplemented(false)) {
        Skip("Clusters", "no implementation");
        return;
    }
    Ref<ObjectSets::IObjectSet> set;
    if (!RunStep("Clusters", "8-connected objects", [&](ProgressScope&) {
            set = ObjectSets::ObjectSet::New();
            Generation::Clusters(binary, set, Geometry::pngSquare8);
        }))
        return;
    if (!RunStep("Measure", "standard shape measurements", [&](ProgressScope&) {
            Measure::Functions::StandardShapeMeasurements(
                set, std::vector<Measure::StandardShapeMeasurementEnum>{});
        }))
        return;
    const std::vector<double> area = MeasurementColumn(set, L"Area");
    const std::vector<double> x = MeasurementColumn(set, L"CentroidX"),
                              y = MeasurementColumn(set, L"CentroidY");
    const std::vector<double> left = MeasurementColumn(set, L"BoundingBoxLeft");
    const std::vector<double> top = MeasurementColumn(set, L"BoundingBoxTop");
    const std::vector<double> width = MeasurementColumn(set, L"BoundingBoxWidth");
    const std::vector<double> height = MeasurementColumn(set, L"BoundingBoxHeight");
    const std::vector<double> diameter = MeasurementColumn(set, L"EquivalentDiameter");
    std::vector<std::size_t> order(area.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    // Largest first; equal areas by key.
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return area[a] > area[b]; });
    order.resize(std::min<std::size_t>(order.size(), 10));
    std::printf("  objects: %lld; the largest:\n", static_cast<long long>(set->Count()));
    std::printf("  %6s %7s %16s %22s %9s\n", "key", "area", "centroid", "box (x, y, w, h)", "diameter");
    Ref<ObjectSets::IObjectDictionary> objects = set->Objects();
    for (std::size_t i : order) {
        char centroid[40], box[48];
        std::snprintf(centroid, sizeof centroid, "(%.1f, %.1f)", x[i], y[i]);
        std::snprintf(box, sizeof box, "(%.0f, %.0f, %.0f, %.0f)", left[i], top[i], width[i], height[i]);
        std::printf("  %6lld %7.0f %16s %22s %9.2f\n",
                    static_cast<long long>(objects->KeyAt(std::int64_t(i)).Value()), area[i], centroid, box,
                    diameter[i]);
    }
}

} // namespace

void RunPipeline()
{
    const std::filesystem::path folder = OutputFolder();
    const std::wstring samplePath = (folder / "sample.png").wstring();
    const std::wstring resultPath = (folder / "result.png").wstring();
    std::printf("\npipeline on a %lld x %lld sample, files in %s:\n", static_cast<long long>(sampleSide),
                static_cast<long long>(sampleSide), folder.c_str());

    ImageRef image;
    if (!RunStep("sample", "grey blobs and rings with noise", [&](ProgressScope&) { image = MakeSample(); }))
        return;
    const bool files =
        IO::Functions::Write.CheckImplemented(false) && IO::Functions::Read.CheckImplemented(false);
    if (files) {
        if (!RunStep("write sample", "sample.png",
                     [&](ProgressScope&) { IO::Functions::Write(image, samplePath); }))
            return;
        ImageRef loaded = Image::New();
        if (!RunStep("read", "sample.png", [&](ProgressScope&) { IO::Functions::Read(loaded, samplePath); }))
            return;
        image = loaded;
    } else {
        Skip("write, read", "no PNG reader and writer; the sample stays in memory");
    }

    using Element = Ref<Geometry::IStructuringElement>;
    if (!Transform("Gaussian", Filtering::Functions::Gaussian.Overload<0>(), "sigma 2", image, 2.0))
        return;
    if (!Transform("OtsuThreshold", Segmentation::Functions::OtsuThreshold.Overload<0>(), "whole image",
                   image, System::Pointer<IImage, 0>()))
        return;
    const std::int64_t thresholded = CountSet(image);
    const Element disk = Geometry::StructuringElement::New(Geometry::pseDisk, 2.0);
    if (!Transform("Open", Morphology::OpeningClosing::Functions::Open.Overload<0>(), "disk of radius 2",
                   image, disk))
        return;
    if (!Transform("HoleFill", Morphology::Geodesy::Functions::HoleFill.Overload<0>(), "", image))
        return;
    const std::int64_t filled = CountSet(image);
    if (thresholded >= 0 && filled >= 0)
        std::printf("  foreground: %lld samples after the threshold, %lld after opening and filling\n",
                    static_cast<long long>(thresholded), static_cast<long long>(filled));
    if (files &&
        !RunStep("write", "result.png", [&](ProgressScope&) { IO::Functions::Write(image, resultPath); }))
        return;
    MeasureObjects(image);
}

} // namespace Quilon_::Tool
