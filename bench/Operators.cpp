// The hot image operators of the reference library against OpenCV, on the
// same pixels in the same run: erosion (square, disk, lines), thresholds,
// saturated addition, Gaussian and median filters, the Euclidean distance
// transform and the 256-bin histogram, on a 4096 x 4096 8-bit image of
// uniform random samples (fixed seed; float where the row says). The
// toolkit's side always calls the operator object, so its rule chain is
// paid for on every call, as an application pays it.
//
// Benchmarks pair up by name: BM_<row>/T<threads>/Quilon and
// BM_<row>/T<threads>/OpenCV (the 3-D rows pair with ITK where it is
// installed). OpenCV runs with cv::setNumThreads(n), the toolkit with a
// processing pool of n threads (none for one thread).
//
// Before any timing, every row runs once on each side and the two results
// are compared; the table "row: equal / differs (why)" is printed first,
// and the ratios toolkit / peer (medians with --benchmark_repetitions) last:
//
//   bench_Operators --benchmark_repetitions=3 --benchmark_report_aggregates_only=true
//   bench_Operators --benchmark_filter='Erode3x3/'      # one row
//   bench_Operators --check_only                          # the table of results alone

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Arithmetic/Functions.h"
#include "Quilon_/Images/Filtering/Functions.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/Measurements/Functions.h"
#include "Quilon_/Images/Morphology/Basic/Functions.h"
#include "Quilon_/Images/Morphology/Distance/Functions.h"
#include "Quilon_/Images/Segmentation/Functions.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/Library.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/Measurements/Histogram.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/System/Memory.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Threading/ThreadPool.h"

#include <benchmark/benchmark.h>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#ifdef QUILON_BENCH_WITH_ITK
#include <itkFlatStructuringElement.h>
#include <itkGrayscaleErodeImageFilter.h>
#include <itkImage.h>
#include <itkMultiThreaderBase.h>
#endif

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace Quilon_;
using ImageRef = System::Ref<Images::IImage>;
using ElementRef = System::Ref<Geometry::IStructuringElement>;
namespace Morphology = ::Quilon_::Images::Morphology::Basic::Functions;
namespace Arithmetic = ::Quilon_::Images::Arithmetic::Functions;
namespace Filtering = ::Quilon_::Images::Filtering::Functions;
namespace Segmentation = ::Quilon_::Images::Segmentation::Functions;
namespace Measure = ::Quilon_::Images::Measurements::Functions;
namespace Distance = ::Quilon_::Images::Morphology::Distance::Functions;

constexpr int side = 4096;
constexpr int volumeSide = 256;

// ---------------------------------------------------------------------------
// Inputs, built once: OpenCV matrices, and toolkit images holding a copy.

cv::Mat RandomMat(int rows, int cols, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> byte(0, 255);
    cv::Mat mat(rows, cols, CV_8U);
    for (int y = 0; y < rows; ++y)
        for (std::uint8_t *p = mat.ptr<std::uint8_t>(y), *end = p + cols; p != end; ++p)
            *p = static_cast<std::uint8_t>(byte(random));
    return mat;
}

System::NumericTypeEnum DataTypeOf(int cvType)
{
    return cvType == CV_32F ? System::ntFloat : cvType == CV_16U ? System::ntUInt16 : System::ntUInt8;
}

ImageRef NewImage(int width, int height, System::NumericTypeEnum type)
{
    auto format = Images::UniformFormat::New(Images::StorageOrder::New(L"XY"));
    format->SetDataType(type);
    return Images::Image::New(Geometry::Coordinates::New(width, height, Geometry::Axes::aXY), format);
}

// The samples of a 2-D toolkit image as a matrix header on its memory (no
// copy): rows are the image's Y lines, whatever their stride.
cv::Mat View(const ImageRef& image)
{
    System::Ref<Images::IBitmap> bitmap = image->Bitmap();
    const auto size = bitmap->Size();
    const System::NumericTypeEnum type = bitmap->Format()->DataType();
    const int cvType = type == System::ntFloat    ? CV_32F
                       : type == System::ntUInt16 ? CV_16U
                       : type == System::ntUInt8  ? CV_8U
                                                  : -1;
    const std::vector<std::int64_t> strides = bitmap->Strides();
    if (cvType < 0 || strides[0] != bitmap->Format()->BytesPerSample()) {
        std::fprintf(stderr, "unexpected image layout: %ls\n", bitmap->Format()->ToString().c_str());
        std::exit(1);
    }
    auto* first = static_cast<std::uint8_t*>(bitmap->Memory()->Data()) + bitmap->Origin();
    return cv::Mat(int(size->Value(1)), int(size->Value(0)), cvType, first, std::size_t(strides[1]));
}

ImageRef ImageOf(const cv::Mat& mat)
{
    ImageRef image = NewImage(mat.cols, mat.rows, DataTypeOf(mat.type()));
    cv::Mat view = View(image);
    mat.copyTo(view);
    return image;
}

// An element's offsets as an OpenCV kernel with its anchor, so that both
// sides erode by exactly the same set of offsets.
struct CvKernel {
    cv::Mat mask;
    cv::Point anchor;
};

CvKernel KernelOf(const ElementRef& element)
{
    const auto bounds = element->Bounds();
    const auto lower = bounds->Lower();
    const auto size = bounds->Size();
    const int width = int(size->Value(0)), height = int(size->Value(1));
    const std::vector<unsigned char> mask = element->Mask();
    CvKernel kernel{cv::Mat(height, width, CV_8U), cv::Point(int(-lower->Value(0)), int(-lower->Value(1)))};
    std::memcpy(kernel.mask.data, mask.data(), mask.size());
    return kernel;
}

const cv::Mat& Grey()
{
    static const cv::Mat grey = RandomMat(side, side, 2026);
    return grey;
}

const cv::Mat& SecondGrey()
{
    static const cv::Mat grey = RandomMat(side, side, 2027);
    return grey;
}

const ImageRef& GreyImage()
{
    // Held to the end of the process, past the static destructors.
    static const ImageRef& image = *new ImageRef(ImageOf(Grey()));
    return image;
}

// ---------------------------------------------------------------------------
// Comparing results.

std::string Describe(const cv::Mat& difference, double tolerance, const char* agreement)
{
    double largest = 0;
    cv::minMaxLoc(difference, nullptr, &largest);
    const int off = cv::countNonZero(difference > 0);
    const int beyond = cv::countNonZero(difference > tolerance);
    char text[200];
    if (largest == 0)
        std::snprintf(text, sizeof text, "equal");
    else if (beyond == 0)
        std::snprintf(text, sizeof text, "%s; %d samples off, by %g at most", agreement, off, largest);
    else
        std::snprintf(text, sizeof text, "DIFFERS: %d samples beyond %g, largest difference %g", beyond,
                      tolerance, largest);
    return text;
}

std::string Compare(const cv::Mat& ours, const cv::Mat& theirs, double tolerance = 0,
                    const char* agreement = "equal")
{
    if (ours.size() != theirs.size())
        return "DIFFERS: sizes";
    cv::Mat a, b, difference;
    ours.convertTo(a, CV_64F);
    theirs.convertTo(b, CV_64F);
    cv::absdiff(a, b, difference);
    return Describe(difference, tolerance, agreement);
}

// ---------------------------------------------------------------------------
// Threads.

System::Pointer<System::Threading::IThreadPool, 0> TwoThreadPool()
{
    static System::Pointer<System::Threading::IThreadPool, 0> pool = [] {
        System::Pointer<System::Threading::IThreadPool, 0> made;
        if (System::Threading::ThreadPool::New.CheckImplemented(false))
            made = System::Threading::ThreadPool::New(2);
        return made;
    }();
    return pool;
}

bool ToolkitCanThread()
{
    return bool(TwoThreadPool());
}

void UseThreads(int threads)
{
    cv::setNumThreads(threads);
    if (threads > 1 && ToolkitCanThread())
        System::Threading::Globals::SetProcessingThreadPool(TwoThreadPool());
    else
        System::Threading::Globals::ClearProcessingThreadPool();
}

// ---------------------------------------------------------------------------
// The rows.

struct Row {
    std::string name;
    std::function<void()> toolkit;
    std::function<void()> peer; // empty: no peer for this row
    // Called after one run of each side: "equal", or how they differ.
    std::function<std::string()> compare;
    double pixels = double(side) * side;
    bool twoThreads = false;    // also timed with two threads
    double target = 1.0;        // toolkit / peer at one thread, 0: none
    double twoThreadTarget = 0; // the same at two threads, 0: none
    const char* peerName = "OpenCV";
    benchmark::TimeUnit unit = benchmark::kMillisecond;
    double timeLimit = 0; // the toolkit's time to stay under, in `unit`; 0: none
};

std::vector<Row>& Rows()
{
    // The rows' closures hold toolkit objects: kept to the end of the
    // process rather than released by static destructors.
    static std::vector<Row>& rows = *new std::vector<Row>;
    return rows;
}

// State shared by a row's closures: the inputs and outputs of both sides,
// made once, so that the timed loops only compute.
struct Buffers {
    ImageRef input, second, output;
    cv::Mat src, src2, dst;
};

std::shared_ptr<Buffers> Make(const cv::Mat& src, const ImageRef& input)
{
    auto buffers = std::make_shared<Buffers>();
    buffers->src = src;
    buffers->input = input;
    buffers->output = Images::Image::New();
    return buffers;
}

void AddErosion(const std::string& name, const cv::Mat& src, const ImageRef& input, const ElementRef& element,
                bool twoThreads, double twoThreadTarget = 0.6)
{
    auto b = Make(src, input);
    const CvKernel kernel = KernelOf(element);
    Row row;
    row.name = name;
    row.pixels = double(src.total());
    row.toolkit = [b, element] { Morphology::Erode(b->input, b->output, element); };
    row.peer = [b, kernel] { cv::erode(b->src, b->dst, kernel.mask, kernel.anchor); };
    row.compare = [b] { return Compare(View(b->output), b->dst); };
    row.twoThreads = twoThreads;
    row.twoThreadTarget = twoThreadTarget;
    Rows().push_back(row);
}

void AddThreshold(const std::string& name, const cv::Mat& src, const ImageRef& input, bool twoThreads)
{
    auto b = Make(src, input);
    Row row;
    row.name = name;
    row.pixels = double(src.total());
    // Set at or above 128 is, in 8 bits, OpenCV's "above 127".
    row.toolkit = [b] { Segmentation::Threshold(b->input, b->output, 128.0); };
    row.peer = [b] { cv::threshold(b->src, b->dst, 127, 255, cv::THRESH_BINARY); };
    row.compare = [b] { return Compare(View(b->output), b->dst); };
    row.twoThreads = twoThreads;
    row.twoThreadTarget = 1.0;
    Rows().push_back(row);
}

void AddMainRows()
{
    const cv::Mat& grey = Grey();
    const ImageRef& image = GreyImage();

    AddErosion("Erode3x3", grey, image, Geometry::StructuringElement::New(Geometry::pseSquare, 1.0), true);
    // The toolkit's disk of radius 2 holds the 13 offsets within distance
    // 2; OpenCV's 5 x 5 MORPH_ELLIPSE holds 17 (its rows at +-1 are full).
    // Both sides erode by the toolkit's disk, given to OpenCV as its mask:
    // the same work, the same result.
    AddErosion("ErodeDisk2", grey, image, Geometry::StructuringElement::New(Geometry::pseDisk, 2.0), true);
    AddThreshold("Threshold128", grey, image, true);

    {
        // Both take the level that maximises the between-class variance and
        // set the samples above it; when two levels tie, both keep the first.
        auto b = Make(grey, image);
        auto levels = std::make_shared<std::pair<double, double>>();
        Row row;
        row.name = "Otsu";
        row.toolkit = [b] { Segmentation::OtsuThreshold(b->input, b->output, Segmentation::Mask()); };
        row.peer = [b, levels] {
            levels->second = cv::threshold(b->src, b->dst, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU);
        };
        row.compare = [b, levels] {
            Segmentation::OtsuThreshold(b->input, b->output, Segmentation::Mask(), levels->first);
            std::string result = Compare(View(b->output), b->dst);
            char text[96];
            std::snprintf(text, sizeof text, " (levels %g and %g)", levels->first, levels->second);
            return result + text;
        };
        row.twoThreads = true;
        Rows().push_back(row);
    }
    {
        auto b = Make(grey, image);
        b->src2 = SecondGrey();
        b->second = ImageOf(b->src2);
        Row row;
        row.name = "AddSaturated";
        row.toolkit = [b] { Arithmetic::Add(b->input, b->second, b->output); };
        row.peer = [b] { cv::add(b->src, b->src2, b->dst); };
        row.compare = [b] { return Compare(View(b->output), b->dst); };
        row.twoThreads = true;
        row.twoThreadTarget = 1.0;
        Rows().push_back(row);
    }
    {
        // Sigma 2 reaches 3 sigma: a kernel of 13, replicated borders on
        // both sides. OpenCV smooths 8-bit images in fixed point, its
        // weights rounded to 1/256 and its row sums to 8.8 bits, so a few
        // samples round the other way, rarely by 2 where both passes err
        // the same way: 8-bit agrees within 2 grey levels.
        auto b = Make(grey, image);
        Row row;
        row.name = "Gaussian2_8bit";
        row.toolkit = [b] { Filtering::Gaussian(b->input, b->output, 2.0); };
        row.peer = [b] {
            cv::GaussianBlur(b->src, b->dst, cv::Size(13, 13), 2.0, 2.0, cv::BORDER_REPLICATE);
        };
        // The exact result for reference: OpenCV's float Gaussian, rounded.
        row.compare = [b] {
            cv::Mat floats, exact, rounded;
            b->src.convertTo(floats, CV_32F);
            cv::GaussianBlur(floats, exact, cv::Size(13, 13), 2.0, 2.0, cv::BORDER_REPLICATE);
            exact.convertTo(rounded, CV_8U);
            return Compare(View(b->output), b->dst, 2.0, "within 2 grey levels (fixed point)") +
                   "; against the float result rounded: " +
                   Compare(View(b->output), rounded, 1.0, "within 1 (ties decided in float)");
        };
        row.twoThreads = true;
        Rows().push_back(row);
    }
    {
        cv::Mat floats;
        Grey().convertTo(floats, CV_32F);
        auto b = Make(floats, ImageOf(floats));
        Row row;
        row.name = "Gaussian2_float";
        row.toolkit = [b] { Filtering::Gaussian(b->input, b->output, 2.0); };
        row.peer = [b] {
            cv::GaussianBlur(b->src, b->dst, cv::Size(13, 13), 2.0, 2.0, cv::BORDER_REPLICATE);
        };
        // Sums of 13 float products in another order: a few units in the
        // last place of values up to 255.
        row.compare = [b] { return Compare(View(b->output), b->dst, 1e-3, "within 1e-3 (float rounding)"); };
        row.twoThreads = true;
        Rows().push_back(row);
    }
    for (const int window : {3, 5}) {
        auto b = Make(grey, image);
        Row row;
        row.name = "Median" + std::to_string(window) + "x" + std::to_string(window);
        row.toolkit = [b, window] { Filtering::Median(b->input, b->output, std::int64_t(window)); };
        row.peer = [b, window] { cv::medianBlur(b->src, b->dst, window); };
        row.compare = [b] { return Compare(View(b->output), b->dst); };
        row.twoThreads = true;
        Rows().push_back(row);
    }
    {
        // 16-bit samples spread over the whole range (OpenCV takes them for
        // windows of 3 and 5).
        cv::Mat words;
        Grey().convertTo(words, CV_16U, 257.0);
        auto b = Make(words, ImageOf(words));
        Row row;
        row.name = "Median3x3_16bit";
        row.toolkit = [b] { Filtering::Median(b->input, b->output, std::int64_t(3)); };
        row.peer = [b] { cv::medianBlur(b->src, b->dst, 3); };
        row.compare = [b] { return Compare(View(b->output), b->dst); };
        Rows().push_back(row);
    }
    {
        // Objects where the grey value is at least 4: about 1.6 % background
        // spread at random, distances up to about 10. The output is float on
        // both sides; OpenCV's precise mask is the exact Euclidean distance.
        auto b = Make(grey, image);
        b->second = Images::Image::New();
        Segmentation::Threshold(image, b->second, 4.0);
        cv::threshold(grey, b->src2, 3, 255, cv::THRESH_BINARY);
        b->output = NewImage(side, side, System::ntFloat);
        Row row;
        row.name = "DistanceEuclidean";
        row.toolkit = [b] { Distance::Distance(b->second, b->output); };
        row.peer = [b] {
            cv::distanceTransform(b->src2, b->dst, cv::DIST_L2, cv::DIST_MASK_PRECISE, CV_32F);
        };
        row.compare = [b] {
            return Compare(View(b->output), b->dst, 1e-4, "within 1e-4 (square roots in float)");
        };
        row.twoThreads = true;
        Rows().push_back(row);
    }
    {
        auto b = Make(grey, image);
        auto counts = std::make_shared<std::vector<std::int64_t>>();
        Row row;
        row.name = "Histogram256";
        row.toolkit = [b, counts] { *counts = Measure::Histogram(b->input)->Counts(); };
        row.peer = [b] {
            const int channels[] = {0};
            const int bins[] = {256};
            const float range[] = {0, 256};
            const float* ranges[] = {range};
            cv::calcHist(&b->src, 1, channels, cv::Mat(), b->dst, 1, bins, ranges);
        };
        row.compare = [b, counts] {
            if (counts->size() != 256)
                return std::string("DIFFERS: ") + std::to_string(counts->size()) + " bins";
            cv::Mat ours(256, 1, CV_64F);
            for (int i = 0; i < 256; ++i)
                ours.at<double>(i) = double((*counts)[std::size_t(i)]);
            return Compare(ours, b->dst);
        };
        row.twoThreads = true;
        Rows().push_back(row);
    }
    {
        // 16-bit samples spread over the whole range. The toolkit writes an
        // 8-bit binary image; OpenCV keeps the source's type and writes 255
        // into 16-bit samples.
        cv::Mat words;
        Grey().convertTo(words, CV_16U, 257.0);
        auto b = Make(words, ImageOf(words));
        Row row;
        row.name = "Threshold16bit";
        row.toolkit = [b] { Segmentation::Threshold(b->input, b->output, 32768.0); };
        row.peer = [b] { cv::threshold(b->src, b->dst, 32767, 255, cv::THRESH_BINARY); };
        row.compare = [b] { return Compare(View(b->output), b->dst); };
        Rows().push_back(row);
    }
    {
        cv::Mat floats, others;
        Grey().convertTo(floats, CV_32F, 1.0 / 7);
        SecondGrey().convertTo(others, CV_32F, 1.0 / 3);
        auto b = Make(floats, ImageOf(floats));
        b->src2 = others;
        b->second = ImageOf(others);
        Row row;
        row.name = "AddFloat";
        row.toolkit = [b] { Arithmetic::Add(b->input, b->second, b->output); };
        row.peer = [b] { cv::add(b->src, b->src2, b->dst); };
        row.compare = [b] { return Compare(View(b->output), b->dst); };
        Rows().push_back(row);
    }
    {
        // Least and greatest sample under a mask of about half the image.
        auto b = Make(Grey(), GreyImage());
        b->src2 = SecondGrey() > 127;
        b->second = ImageOf(b->src2);
        auto ranges = std::make_shared<std::array<double, 4>>();
        Row row;
        row.name = "RangeMasked";
        row.toolkit = [b, ranges] {
            const auto range = Measure::Range(b->input, b->second);
            (*ranges)[0] = range->Minimum();
            (*ranges)[1] = range->Maximum();
        };
        row.peer = [b, ranges] {
            cv::minMaxLoc(b->src, &(*ranges)[2], &(*ranges)[3], nullptr, nullptr, b->src2);
        };
        row.compare = [ranges] {
            const auto& r = *ranges;
            return r[0] == r[2] && r[1] == r[3]
                       ? std::string("equal")
                       : "DIFFERS: [" + std::to_string(r[0]) + ", " + std::to_string(r[1]) + "] and [" +
                             std::to_string(r[2]) + ", " + std::to_string(r[3]) + "]";
        };
        Rows().push_back(row);
    }
}

// How the cost grows: with the length of a line, the radius of a disk, and
// the size of the image (the 4096 x 4096 case is the main row).
void AddScalingRows()
{
    const cv::Mat& grey = Grey();
    const ImageRef& image = GreyImage();
    for (const int length : {3, 15, 63})
        AddErosion("ErodeLine" + std::to_string(length), grey, image,
                   Geometry::StructuringElement::New(Geometry::pseHorizontalLine, double(length / 2)), false);
    for (const int length : {3, 15, 63})
        AddErosion("ErodeVLine" + std::to_string(length), grey, image,
                   Geometry::StructuringElement::New(Geometry::pseVerticalLine, double(length / 2)), false);
    for (int radius = 1; radius <= 8; ++radius)
        AddErosion("ErodeDisk_r" + std::to_string(radius), grey, image,
                   Geometry::StructuringElement::New(Geometry::pseDisk, double(radius)), false);
    for (const int size : {256, 1024}) {
        const cv::Mat part = grey(cv::Rect(0, 0, size, size)).clone();
        const ImageRef partImage = ImageOf(part);
        AddErosion("Erode3x3_" + std::to_string(size), part, partImage,
                   Geometry::StructuringElement::New(Geometry::pseSquare, 1.0), false);
        AddThreshold("Threshold128_" + std::to_string(size), part, partImage, false);
    }
    // The whole call on a tiny image: the operator's rules, its dispatch
    // and the erosion together, in microseconds.
    const cv::Mat tiny = grey(cv::Rect(0, 0, 8, 8)).clone();
    AddErosion("Erode3x3_8", tiny, ImageOf(tiny), Geometry::StructuringElement::New(Geometry::pseSquare, 1.0),
               false);
    Rows().back().unit = benchmark::kMicrosecond;
    Rows().back().target = 0;
    Rows().back().timeLimit = 2.0;
}

// ---------------------------------------------------------------------------
// 3-D: a 256^3 volume, eroded over the 6- and the 26-neighbourhood.

struct Volume {
    std::vector<std::uint8_t> samples; // X fastest, then Y, then Z
    ImageRef image;
};

const Volume& RandomVolume()
{
    static const Volume& volume = *new Volume([] {
        Volume made;
        const std::size_t count = std::size_t(volumeSide) * volumeSide * volumeSide;
        const cv::Mat noise = RandomMat(volumeSide * volumeSide, volumeSide, 2028);
        made.samples.assign(noise.data, noise.data + count);
        auto format = Images::UniformFormat::New(Images::StorageOrder::New(L"XYZ"));
        made.image = Images::Image::New(
            Geometry::Coordinates::New(volumeSide, volumeSide, volumeSide, Geometry::Axes::aXYZ), format);
        System::Ref<Images::IBitmap> bitmap = made.image->Bitmap();
        auto* first = static_cast<std::uint8_t*>(bitmap->Memory()->Data()) + bitmap->Origin();
        const std::vector<std::int64_t> strides = bitmap->Strides();
        for (int z = 0; z < volumeSide; ++z)
            for (int y = 0; y < volumeSide; ++y)
                std::memcpy(first + z * strides[2] + y * strides[1],
                            made.samples.data() + (std::size_t(z) * volumeSide + y) * volumeSide, volumeSide);
        return made;
    }());
    return volume;
}

std::vector<std::uint8_t> VolumeSamples(const ImageRef& image)
{
    System::Ref<Images::IBitmap> bitmap = image->Bitmap();
    const auto* first = static_cast<const std::uint8_t*>(bitmap->Memory()->Data()) + bitmap->Origin();
    const std::vector<std::int64_t> strides = bitmap->Strides();
    std::vector<std::uint8_t> samples(std::size_t(volumeSide) * volumeSide * volumeSide);
    for (int z = 0; z < volumeSide; ++z)
        for (int y = 0; y < volumeSide; ++y)
            std::memcpy(samples.data() + (std::size_t(z) * volumeSide + y) * volumeSide,
                        first + z * strides[2] + y * strides[1], volumeSide);
    return samples;
}

#ifndef QUILON_BENCH_WITH_ITK
// The minimum over the neighbourhood, one sample at a time; offsets that
// leave the volume are left out.
std::vector<std::uint8_t> ErodeVolumeByHand(const std::vector<std::uint8_t>& in, bool full)
{
    const int n = volumeSide;
    std::vector<std::uint8_t> out(in.size());
    for (int z = 0; z < n; ++z)
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x) {
                std::uint8_t least = 255;
                for (int dz = -1; dz <= 1; ++dz)
                    for (int dy = -1; dy <= 1; ++dy)
                        for (int dx = -1; dx <= 1; ++dx) {
                            if (!full && std::abs(dx) + std::abs(dy) + std::abs(dz) > 1)
                                continue;
                            const int px = x + dx, py = y + dy, pz = z + dz;
                            if (px < 0 || py < 0 || pz < 0 || px >= n || py >= n || pz >= n)
                                continue;
                            least = std::min(least, in[(std::size_t(pz) * n + py) * n + px]);
                        }
                out[(std::size_t(z) * n + y) * n + x] = least;
            }
    return out;
}

#endif

std::string CompareSamples(const std::vector<std::uint8_t>& ours, const std::vector<std::uint8_t>& theirs,
                           const char* against)
{
    std::size_t differing = 0;
    for (std::size_t i = 0; i < ours.size(); ++i)
        differing += ours[i] != theirs[i];
    if (differing == 0)
        return std::string("equal (") + against + ")";
    return "DIFFERS: " + std::to_string(differing) + " samples (" + against + ")";
}

#ifdef QUILON_BENCH_WITH_ITK
using ItkVolume = itk::Image<std::uint8_t, 3>;
using ItkElement = itk::FlatStructuringElement<3>;
using ItkErode = itk::GrayscaleErodeImageFilter<ItkVolume, ItkVolume, ItkElement>;

ItkVolume::Pointer ItkVolumeOf(const std::vector<std::uint8_t>& samples)
{
    ItkVolume::Pointer volume = ItkVolume::New();
    ItkVolume::RegionType region;
    region.SetSize({{volumeSide, volumeSide, volumeSide}});
    volume->SetRegions(region);
    volume->Allocate();
    std::memcpy(volume->GetBufferPointer(), samples.data(), samples.size());
    return volume;
}

// The box of radius 1 (26 neighbours) or the cross of radius 1 (the six
// face neighbours).
ItkElement ItkNeighbourhood(bool full)
{
    ItkElement::RadiusType radius;
    radius.Fill(1);
    return full ? ItkElement::Box(radius) : ItkElement::Cross(radius);
}
#endif

void AddVolumeRows()
{
    for (const bool full : {false, true}) {
        struct VolumeBuffers {
            ImageRef output = Images::Image::New();
            System::Ref<Geometry::INgbGraph> graph;
#ifdef QUILON_BENCH_WITH_ITK
            ItkErode::Pointer filter;
#endif
        };
        auto b = std::make_shared<VolumeBuffers>();
        b->graph =
            Geometry::NgbGraph::New(full ? Geometry::pngCubic26 : Geometry::pngCubic6, Geometry::Axes::aXYZ);
        Row row;
        row.name = full ? "Erode3D_26" : "Erode3D_6";
        row.pixels = double(volumeSide) * volumeSide * volumeSide;
        row.toolkit = [b] { Morphology::Erode(RandomVolume().image, b->output, b->graph, std::int64_t(1)); };
        row.twoThreads = true;
        // At least 20 times faster than ITK.
        row.target = row.twoThreadTarget = 0.05;
#ifdef QUILON_BENCH_WITH_ITK
        // ITK's pooled threaders end the process with std::system_error
        // when their threads are torn down at exit; threads started per
        // call cost nothing beside an erosion of seconds.
        itk::MultiThreaderBase::SetGlobalDefaultThreader(itk::MultiThreaderBase::ThreaderEnum::Platform);
        b->filter = ItkErode::New();
        b->filter->SetInput(ItkVolumeOf(RandomVolume().samples));
        b->filter->SetKernel(ItkNeighbourhood(full));
        row.peerName = "ITK";
        row.peer = [b] {
            // The number of threads comes from the global default, which
            // UseThreads cannot reach: set it on the filter each time.
            const int threads = cv::getNumThreads();
            b->filter->SetNumberOfWorkUnits(threads);
            b->filter->GetMultiThreader()->SetMaximumNumberOfThreads(threads);
            b->filter->Modified();
            b->filter->Update();
        };
        row.compare = [b] {
            const ItkVolume* out = b->filter->GetOutput();
            const std::vector<std::uint8_t> theirs(out->GetBufferPointer(),
                                                   out->GetBufferPointer() + RandomVolume().samples.size());
            return CompareSamples(VolumeSamples(b->output), theirs, "ITK");
        };
#else
        row.target = row.twoThreadTarget = 0;
        row.compare = [b, full] {
            return CompareSamples(VolumeSamples(b->output), ErodeVolumeByHand(RandomVolume().samples, full),
                                  "a plain loop; no ITK");
        };
#endif
        Rows().push_back(row);
    }
}

// ---------------------------------------------------------------------------
// Registration and the summary.

std::string BenchmarkName(const Row& row, int threads, const char* side)
{
    return "BM_" + row.name + "/T" + std::to_string(threads) + "/" + side;
}

void RegisterRow(const Row& row)
{
    for (const int threads : {1, 2}) {
        if (threads == 2 && !row.twoThreads)
            break;
        auto toolkit = row.toolkit;
        benchmark::RegisterBenchmark(BenchmarkName(row, threads, "Quilon").c_str(),
                                     [toolkit, threads](benchmark::State& state) {
                                         UseThreads(threads);
                                         for (auto _ : state)
                                             toolkit();
                                     })
            ->Unit(row.unit)
            ->UseRealTime();
        if (!row.peer)
            continue;
        auto peer = row.peer;
        benchmark::RegisterBenchmark(BenchmarkName(row, threads, row.peerName).c_str(),
                                     [peer, threads](benchmark::State& state) {
                                         UseThreads(threads);
                                         for (auto _ : state)
                                             peer();
                                     })
            ->Unit(row.unit)
            ->UseRealTime();
    }
}

// Keeps, per benchmark, its median (or its only time when not repeated),
// in milliseconds, for the ratios at the end.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.error_occurred)
                continue;
            const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (run.run_type == Run::RT_Aggregate && !median)
                continue;
            // The registered name, without the "/real_time" the run adds.
            const std::string& name = run.run_name.function_name;
            if (!median && medians.count(name) != 0)
                continue;
            const double milliseconds =
                run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e3;
            times[name] = milliseconds;
            if (median)
                medians[name] = true;
        }
    }

    // Times in the row's own unit (ms, or us for the tiny image); the
    // target is a ratio to the peer, or for a row without one a time.
    void PrintSummary() const
    {
        std::printf("\n%-20s %3s %13s %13s %8s %8s  %s\n", "row", "thr", "Quilon", "peer", "ratio", "target",
                    "Quilon ms/MP");
        for (const Row& row : Rows())
            for (const int threads : {1, 2}) {
                if (threads == 2 && !row.twoThreads)
                    break;
                const auto ours = times.find(BenchmarkName(row, threads, "Quilon"));
                if (ours == times.end())
                    continue;
                const bool micro = row.unit == benchmark::kMicrosecond;
                const double scale = micro ? 1e3 : 1.0;
                const char* unit = micro ? "us" : "ms";
                const auto theirs = times.find(BenchmarkName(row, threads, row.peerName));
                const double target = threads == 1 ? row.target : row.twoThreadTarget;
                char mine[32], peer[32] = "-", ratio[32] = "-", aim[32] = "-";
                std::snprintf(mine, sizeof mine, "%.4g %s", ours->second * scale, unit);
                if (theirs != times.end()) {
                    std::snprintf(peer, sizeof peer, "%.4g %s", theirs->second * scale, unit);
                    const double value = ours->second / theirs->second;
                    std::snprintf(ratio, sizeof ratio, "%.2f%s", value,
                                  target > 0 && value > target ? "!" : "");
                }
                if (row.timeLimit > 0)
                    std::snprintf(aim, sizeof aim, "%g %s%s", row.timeLimit, unit,
                                  ours->second * scale > row.timeLimit ? "!" : "");
                else if (target > 0)
                    std::snprintf(aim, sizeof aim, "%.2f", target);
                std::printf("%-20s %3d %13s %13s %8s %8s  %.3g\n", row.name.c_str(), threads, mine, peer,
                            ratio, aim, ours->second / (row.pixels / 1e6));
            }
        std::printf("ratio = Quilon / peer (%s); \"!\" marks a ratio or time above its target.\n",
                    medians.empty() ? "single runs" : "medians");
    }

private:
    std::map<std::string, double> times;
    std::map<std::string, bool> medians;
};

bool CheckRows()
{
    std::printf("Results, each side run once on the same input:\n");
    bool allAgree = true;
    UseThreads(1);
    for (const Row& row : Rows()) {
        std::string verdict;
        try {
            row.toolkit();
            if (row.peer)
                row.peer();
            verdict = row.compare();
        } catch (const System::Pointer<System::IException, 1>& failure) {
            verdict = "FAILED: " + System::ToAnsi(failure->Message());
        }
        allAgree = allAgree && verdict.rfind("DIFFERS", 0) != 0 && verdict.rfind("FAILED", 0) != 0;
        std::printf("  %-20s %s\n", (row.name + ":").c_str(), verdict.c_str());
    }
    if (!ToolkitCanThread())
        std::printf(
            "No processing pool in the reference library: the T2 rows run the toolkit on one thread.\n");
    return allAgree;
}

} // namespace

int main(int argc, char** argv)
{
    // The concrete images and the operators' implementations come from the
    // reference library.
    Library::SetInitializationFileName(System::ToString(QUILON_FIXTURES_DIR "/Basic.xml"));
    Library::Initialize();
    bool checkOnly = false;
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--check_only") == 0)
            checkOnly = true;
    AddMainRows();
    AddScalingRows();
    AddVolumeRows();
    const bool agree = CheckRows();
    int status = agree ? 0 : 1;
    if (!checkOnly) {
        for (const Row& row : Rows())
            RegisterRow(row);
        benchmark::Initialize(&argc, argv);
        RatioReporter reporter;
        benchmark::RunSpecifiedBenchmarks(&reporter);
        reporter.PrintSummary();
        std::fflush(stdout);
        benchmark::Shutdown();
    }
    return status;
}
