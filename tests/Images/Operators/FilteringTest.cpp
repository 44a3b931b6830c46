// The filters and gradient edge detectors of the reference library, each
// against a brute-force computation over the window at every sample, the
// borders included, for several sample types, in 2-D and 3-D; and the rule
// chains around them.
#include "Quilon_/Geometry/Kernel.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/EdgeDetection/Functions.h"
#include "Quilon_/Images/Filtering/Functions.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/String.h"

#include "../../Support/BasicLibrary.h"
#include "../../Support/InChildProcess.h"
#include "../../Support/Raised.h"
#include "../../Support/SimdTargets.h"
#include "SampleImages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <tuple>

namespace Quilon_::Tests::FilteringSuite {

using namespace Quilon_::Images;
namespace F = Quilon_::Images::Filtering::Functions;
namespace E = Quilon_::Images::EdgeDetection::Functions;
using Geometry::Axes;
using Testing::ForEachSimdTarget;
using ::testing::HasSubstr;

// ---- The brute-force reference ----------------------------------------------

// Samples over X, Y, Z, X fastest, read through a border rule.
struct Grid {
    std::array<std::int64_t, 3> n{1, 1, 1};
    std::vector<double> values;
    PaddingTypeEnum border = ptReplicate;
    double constant = 0;

    double At(std::int64_t x, std::int64_t y, std::int64_t z) const
    {
        std::array<std::int64_t, 3> c{x, y, z};
        for (int a = 0; a < 3; ++a) {
            if (c[a] >= 0 && c[a] < n[a])
                continue;
            if (border == ptConstant)
                return constant;
            if (border == ptMirror && n[a] > 1) {
                const std::int64_t period = 2 * (n[a] - 1);
                std::int64_t o = ((c[a] % period) + period) % period;
                c[a] = o < n[a] ? o : period - o;
            } else {
                c[a] = std::clamp<std::int64_t>(c[a], 0, n[a] - 1);
            }
        }
        return values[static_cast<std::size_t>(c[0] + n[0] * (c[1] + n[1] * c[2]))];
    }
    // `f(x, y, z)` at every sample.
    std::vector<double> Map(const std::function<double(std::int64_t, std::int64_t, std::int64_t)>& f) const
    {
        std::vector<double> out;
        for (std::int64_t z = 0; z < n[2]; ++z)
            for (std::int64_t y = 0; y < n[1]; ++y)
                for (std::int64_t x = 0; x < n[0]; ++x)
                    out.push_back(f(x, y, z));
        return out;
    }
};

// The window offsets -(side - 1) / 2 .. side / 2 on each of `dimension` axes.
std::vector<std::array<std::int64_t, 3>> Window(std::int64_t side, int dimension)
{
    std::vector<std::array<std::int64_t, 3>> points;
    const std::int64_t a = -(side - 1) / 2, b = side / 2;
    for (std::int64_t z = dimension > 2 ? a : 0; z <= (dimension > 2 ? b : 0); ++z)
        for (std::int64_t y = a; y <= b; ++y)
            for (std::int64_t x = a; x <= b; ++x)
                points.push_back({x, y, z});
    return points;
}

std::vector<double> Gaussian1D(double sigma)
{
    const int r = static_cast<int>(std::ceil(3 * sigma));
    std::vector<double> w;
    double sum = 0;
    for (int k = -r; k <= r; ++k)
        sum += w.emplace_back(std::exp(-k * k / (2 * sigma * sigma)));
    for (double& v : w)
        v /= sum;
    return w;
}

// Integer results are rounded to nearest and saturate: within half a unit
// of the exact value once clamped; floating ones within rounding error.
void ExpectNear(const std::vector<double>& actual, const std::vector<double>& exact,
                System::NumericTypeEnum type)
{
    ASSERT_EQ(actual.size(), exact.size());
    const bool integral = System::IsInteger(type);
    const auto [low, high] = Basic::Images::DispatchSampleType(type, [](auto tag) {
        using T = typename decltype(tag)::type;
        if constexpr (std::is_integral_v<T>)
            return std::pair(double(std::numeric_limits<T>::lowest()), double(std::numeric_limits<T>::max()));
        else
            return std::pair(-1e300, 1e300);
    });
    for (std::size_t i = 0; i < exact.size(); ++i) {
        const double expected = std::clamp(exact[i], low, high);
        const double tolerance = integral ? 0.5 + 1e-6 : (type == System::ntFloat ? 1e-3 : 1e-9);
        EXPECT_NEAR(actual[i], expected, tolerance)
            << "sample " << i << " of " << System::ToAnsi(System::ToString(type));
    }
}

std::vector<double> Ramp(std::size_t count)
{
    std::vector<double> values;
    for (std::size_t i = 0; i < count; ++i)
        values.push_back(static_cast<double>((i * 37 + 11) % 101));
    return values;
}

const System::NumericTypeEnum realTypes[] = {System::ntUInt8,  System::ntInt8,  System::ntInt16,
                                             System::ntUInt32, System::ntInt64, System::ntUInt64,
                                             System::ntFloat,  System::ntDouble};

// ---- Filters --------------------------------------------------------------------

TEST(FilteringBasic, FiltersMatchTheBruteForceWindowForEveryTypeIn2DAnd3D)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            const char* name;
            std::vector<std::int64_t> extent;
            Axes axes;
            PaddingTypeEnum border;
            double constant;
            std::function<void(ImageRef, ImageRef)> run;
            // The exact value at (x, y, z) of the grid.
            std::function<double(const Grid&, std::int64_t, std::int64_t, std::int64_t)> exact;
        };
        auto mean = [](std::int64_t side, int dimension) {
            return [=](const Grid& g, std::int64_t x, std::int64_t y, std::int64_t z) {
                double sum = 0;
                const auto points = Window(side, dimension);
                for (const auto& q : points)
                    sum += g.At(x + q[0], y + q[1], z + q[2]);
                return sum / static_cast<double>(points.size());
            };
        };
        auto gaussian = [](double sigma, int dimension) {
            return [=](const Grid& g, std::int64_t x, std::int64_t y, std::int64_t z) {
                const std::vector<double> w = Gaussian1D(sigma);
                const auto r = static_cast<std::int64_t>(w.size() / 2);
                double sum = 0;
                for (std::int64_t c = dimension > 2 ? -r : 0; c <= (dimension > 2 ? r : 0); ++c)
                    for (std::int64_t b = -r; b <= r; ++b)
                        for (std::int64_t a = -r; a <= r; ++a)
                            sum += w[std::size_t(a + r)] * w[std::size_t(b + r)] *
                                   (dimension > 2 ? w[std::size_t(c + r)] : 1.0) * g.At(x + a, y + b, z + c);
                return sum;
            };
        };
        auto median = [](std::int64_t side, int dimension) {
            return [=](const Grid& g, std::int64_t x, std::int64_t y, std::int64_t z) {
                std::vector<double> window;
                for (const auto& q : Window(side, dimension))
                    window.push_back(g.At(x + q[0], y + q[1], z + q[2]));
                std::sort(window.begin(), window.end());
                return window[(window.size() - 1) / 2];
            };
        };
        const Padding constant(ptConstant, System::ToAny(std::int64_t(90)));
        const Padding mirror(ptMirror, System::Any());
        // x in -1..1 on one row: weight(q) * value(p + q), so that the
        // result is v(x + 1) - 2 v(x - 1) + 2 v(x), over the divisor 2.
        auto skewed = Geometry::Kernel::New(Geometry::Box::New(-1, 0, 2, 1, Axes::aXY),
                                            std::vector<std::int64_t>{-2, 2, 1}, 2.0);
        const Case cases[] = {
            {"Box 3",
             {5, 4},
             Axes::aXY,
             ptReplicate,
             0,
             [](ImageRef a, ImageRef b) { F::Box(a, b, 3); },
             mean(3, 2)},
            {"Box 2 (even side)",
             {4, 3},
             Axes::aXY,
             ptReplicate,
             0,
             [](ImageRef a, ImageRef b) { F::Box(a, b, 2); },
             mean(2, 2)},
            {"Box 3 volume",
             {4, 3, 3},
             Axes::aXYZ,
             ptReplicate,
             0,
             [](ImageRef a, ImageRef b) { F::Box(a, b, 3); },
             mean(3, 3)},
            {"Gaussian 1",
             {6, 5},
             Axes::aXY,
             ptReplicate,
             0,
             [](ImageRef a, ImageRef b) { F::Gaussian(a, b, 1.0); },
             gaussian(1.0, 2)},
            {"Gaussian 0.7 volume",
             {4, 4, 3},
             Axes::aXYZ,
             ptReplicate,
             0,
             [](ImageRef a, ImageRef b) { F::Gaussian(a, b, 0.7); },
             gaussian(0.7, 3)},
            {"Gaussian constant 90",
             {5, 3},
             Axes::aXY,
             ptConstant,
             90,
             [&](ImageRef a, ImageRef b) { F::Gaussian(a, b, 0.8, constant); },
             gaussian(0.8, 2)},
            {"Gaussian mirror",
             {5, 3},
             Axes::aXY,
             ptMirror,
             0,
             [&](ImageRef a, ImageRef b) { F::Gaussian(a, b, 0.8, mirror); },
             gaussian(0.8, 2)},
            {"Gaussian per axis",
             {6, 3},
             Axes::aXY,
             ptReplicate,
             0,
             [](ImageRef a, ImageRef b) {
                 F::Gaussian(a, b, std::vector<double>{1.0, 0.0});
             },
             [](const Grid& g, std::int64_t x, std::int64_t y, std::int64_t z) {
                 const std::vector<double> w = Gaussian1D(1.0);
                 double sum = 0;
                 for (std::int64_t a = -3; a <= 3; ++a)
                     sum += w[std::size_t(a + 3)] * g.At(x + a, y, z);
                 return sum;
             }},
            {"Median 3",
             {5, 4},
             Axes::aXY,
             ptReplicate,
             0,
             [](ImageRef a, ImageRef b) { F::Median(a, b, 3); },
             median(3, 2)},
            {"Median 3 volume",
             {4, 3, 3},
             Axes::aXYZ,
             ptReplicate,
             0,
             [](ImageRef a, ImageRef b) { F::Median(a, b, 3); },
             median(3, 3)},
            {"Convolve skewed, mirror",
             {5, 2},
             Axes::aXY,
             ptMirror,
             0,
             [&](ImageRef a, ImageRef b) { F::Convolve(a, b, skewed, mirror); },
             [](const Grid& g, std::int64_t x, std::int64_t y, std::int64_t z) {
                 return (-2 * g.At(x - 1, y, z) + 2 * g.At(x, y, z) + g.At(x + 1, y, z)) / 2;
             }},
        };
        for (const Case& c : cases)
            for (System::NumericTypeEnum type : realTypes) {
                SCOPED_TRACE(std::string(c.name) + " " + System::ToAnsi(System::ToString(type)));
                Grid grid;
                std::size_t count = 1;
                for (std::size_t a = 0; a < c.extent.size(); ++a)
                    count *= static_cast<std::size_t>(grid.n[a] = c.extent[a]);
                grid.values = Ramp(count);
                grid.border = c.border;
                grid.constant = c.constant;
                ImageRef input = SampleImage(type, c.extent, c.axes, grid.values);
                ImageRef output = Image::New();
                c.run(input, output);
                EXPECT_EQ(output->Format()->DataType(), type);
                ExpectNear(SamplesOf(output),
                           grid.Map([&](auto x, auto y, auto z) { return c.exact(grid, x, y, z); }), type);
            }
    });
}

TEST(FilteringBasic, RankFiltersTakeSampleValuesAndStructuringElements)
{
    InChildProcess([] {
        StartBasic();
        // A salt grain in a flat field goes; a cross-shaped element looks at
        // 5 samples, of which the median is the field's value.
        ImageRef salt = SampleImage(System::ntUInt16, {3, 3}, Axes::aXY, {7, 7, 7, 7, 60000, 7, 7, 7, 7});
        ImageRef cleaned = Image::New();
        F::Median(salt, cleaned, Geometry::StructuringElement::New(Geometry::pseDiamond, 1.0));
        EXPECT_EQ(SamplesOf(cleaned), std::vector<double>(9, 7.0));

        // Rank 0 and 1 are the window's minimum and maximum.
        ImageRef row = SampleImage(System::ntFloat, {5}, Axes(static_cast<unsigned char>(Geometry::aX)),
                                   {4, -1, 3, 8, 2});
        ImageRef low = Image::New(), high = Image::New(), mode = Image::New();
        F::RankValue(row, low, 3, 0.0);
        F::RankValue(row, high, 3, 1.0);
        EXPECT_EQ(SamplesOf(low), (std::vector<double>{-1, -1, -1, 2, 2}));
        EXPECT_EQ(SamplesOf(high), (std::vector<double>{4, 4, 8, 8, 8}));

        // Mode: the most frequent label, the least of a tie.
        ImageRef labels = SampleImage(System::ntUInt8, {5}, Axes(static_cast<unsigned char>(Geometry::aX)),
                                      {1, 2, 2, 3, 1});
        F::Mode(labels, mode, 3);
        EXPECT_EQ(SamplesOf(mode), (std::vector<double>{1, 2, 2, 1, 1}));
    });
}

TEST(FilteringBasic, IntegerResultsSaturateAndWrongParametersRaise)
{
    InChildProcess([] {
        StartBasic();
        // A high-pass over a step overshoots on both sides: 0 and 255 hold it.
        ImageRef step = SampleImage(System::ntUInt8, {4}, Axes(static_cast<unsigned char>(Geometry::aX)),
                                    {0, 0, 250, 250});
        auto laplacian = Geometry::Kernel::New(Geometry::Box::New(-1, 0, 2, 1, Axes::aXY),
                                               std::vector<std::int64_t>{-1, 3, -1}, 1.0);
        ImageRef sharp = Image::New();
        F::Convolve(step, sharp, laplacian);
        EXPECT_EQ(SamplesOf(sharp), (std::vector<double>{0, 0, 255, 250}));

        ImageRef out = Image::New();
        EXPECT_THAT(RaisedMessage([&] { F::Gaussian(step, out, -1.0); }),
                    HasSubstr(L"Invalid Gaussian sigma: -1"));
        EXPECT_THAT(RaisedMessage([&] { F::Gaussian(step, out, 1.0, std::int64_t(4)); }),
                    HasSubstr(L"Invalid Gaussian kernel size: 4"));
        EXPECT_THAT(RaisedMessage([&] { F::Box(step, out, 0); }), HasSubstr(L"Invalid window size: 0"));
        EXPECT_THAT(RaisedMessage([&] {
                        F::Gaussian(step, out, std::vector<double>{1.0, 1.0});
                    }),
                    HasSubstr(L"Expected 1 Gaussian sigmas"));

        // A complex source fails in Check, before the output is made.
        ImageRef complexSource = SampleImage(System::ntComplexF, {2, 2}, Axes::aXY, {1, 2, 3, 4});
        ImageRef untouched = Image::New();
        EXPECT_THAT(RaisedMessage([&] { F::Median(complexSource, untouched, 3); }),
                    HasSubstr(L"scalar type expected"));
        EXPECT_TRUE(untouched->IsEmpty());
    });
}

// ---- Gradients ------------------------------------------------------------------

TEST(EdgeDetectionBasic, GradientsGiveOneBandPerAxisMatchingTheBruteForceKernels)
{
    InChildProcess([] {
        StartBasic();
        using Exact = std::function<double(const Grid&, std::int64_t, std::int64_t, std::int64_t, int)>;
        // Central difference along `axis`, smoothed across by `s` (weights of -1, 0, 1).
        auto derivative = [](std::array<double, 3> s) -> Exact {
            return [=](const Grid& g, std::int64_t x, std::int64_t y, std::int64_t z, int axis) {
                const int dimension = g.n[2] > 1 ? 3 : 2;
                double sum = 0;
                for (int c = dimension > 2 ? -1 : 0; c <= (dimension > 2 ? 1 : 0); ++c)
                    for (int b = -1; b <= 1; ++b)
                        for (int a = -1; a <= 1; ++a) {
                            const int o[3] = {a, b, c};
                            double w = 1;
                            for (int k = 0; k < dimension; ++k)
                                w *= k == axis ? 0.5 * o[k] : s[std::size_t(o[k] + 1)];
                            sum += w * g.At(x + a, y + b, z + c);
                        }
                return std::abs(sum);
            };
        };
        const Exact roberts = [](const Grid& g, std::int64_t x, std::int64_t y, std::int64_t z, int band) {
            const bool volume = g.n[2] > 1;
            std::array<std::int64_t, 3> near{0, 0, 0}, far{1, 1, volume ? 1 : 0};
            if (band > 0)
                near[std::size_t(band - 1)] = 1, far[std::size_t(band - 1)] = 0;
            return std::abs(g.At(x + far[0], y + far[1], z + far[2]) -
                            g.At(x + near[0], y + near[1], z + near[2]));
        };
        struct Case {
            const char* name;
            void (*run)(ImageRef, ImageRef, double);
            Exact exact;
        };
        const Case cases[] = {
            {"Sobel", [](ImageRef a, ImageRef b, double s) { E::SobelEdges(a, b, s); },
             derivative({0.25, 0.5, 0.25})},
            {"Prewitt", [](ImageRef a, ImageRef b, double s) { E::PrewittEdges(a, b, s); },
             derivative({1.0 / 3, 1.0 / 3, 1.0 / 3})},
            {"Roberts", [](ImageRef a, ImageRef b, double s) { E::RobertsEdges(a, b, s); }, roberts},
        };
        const std::pair<std::vector<std::int64_t>, Axes> shapes[] = {{{5, 4}, Axes::aXY},
                                                                     {{4, 3, 3}, Axes::aXYZ}};
        for (const Case& c : cases)
            for (const auto& [extent, axes] : shapes)
                for (System::NumericTypeEnum type : {System::ntUInt8, System::ntInt16, System::ntDouble}) {
                    SCOPED_TRACE(std::string(c.name) + " " + std::to_string(extent.size()) + "-D " +
                                 System::ToAnsi(System::ToString(type)));
                    Grid grid;
                    std::size_t count = 1;
                    for (std::size_t a = 0; a < extent.size(); ++a)
                        count *= static_cast<std::size_t>(grid.n[a] = extent[a]);
                    grid.values = Ramp(count);
                    ImageRef edges = Image::New();
                    c.run(SampleImage(type, extent, axes, grid.values), edges, 2.0);
                    EXPECT_EQ(edges->BandCount(), static_cast<std::int64_t>(extent.size()));
                    EXPECT_EQ(System::ToAnsi(Image::Category(edges).Value().Value()), "Image.Category.Edge");
                    std::vector<double> expected;
                    for (int band = 0; band < static_cast<int>(extent.size()); ++band)
                        for (double v : grid.Map(
                                 [&](auto x, auto y, auto z) { return 2 * c.exact(grid, x, y, z, band); }))
                            expected.push_back(v);
                    const System::NumericTypeEnum stored = edges->Format()->DataType();
                    EXPECT_FALSE(System::IsInteger(stored) && System::IsSigned(stored));
                    ExpectNear(SamplesOf(edges), expected, stored);
                }

        // The morphological gradient: the range under a 3 x 3 square.
        ImageRef flat = SampleImage(System::ntInt32, {4, 1}, Axes::aXY, {5, 5, 9, 9});
        ImageRef range = Image::New();
        E::MorphoGradient(flat, range, Geometry::StructuringElement::New(Geometry::pseSquare, 1.0));
        EXPECT_EQ(SamplesOf(range), (std::vector<double>{0, 4, 4, 0}));

        // Several bands are refused: a gradient is of one band.
        ImageRef bands = SampleImage(System::ntUInt8, {2, 2, 2}, Axes::aXYB, {});
        ImageRef out = Image::New();
        EXPECT_THAT(RaisedMessage([&] { E::SobelEdges(bands, out, 1.0); }),
                    HasSubstr(L"Single band image expected"));
        EXPECT_EQ(System::ToString(Quilon_::Images::EdgeDetection::etValley), L"etValley");
    });
}

// ---- Fast paths against the plain filters ---------------------------------------

// 8-bit and float images take the vectorised filters; the same filter into
// a double output takes the plain one, which gives the exact value.
struct FastCase {
    const char* name;
    std::vector<std::int64_t> extent;
    Axes axes;
};

const FastCase fastShapes[] = {
    {"1 x 1", {1, 1}, Axes::aXY},
    {"1 x 9", {1, 9}, Axes::aXY},
    {"9 x 1", {9, 1}, Axes::aXY},
    {"7 x 13", {7, 13}, Axes::aXY},
    {"67 x 35", {67, 35}, Axes::aXY},
    {"130 x 5", {130, 5}, Axes::aXY},
    {"19 x 11 x 3 bands", {19, 11, 3}, static_cast<Axes>(Geometry::aX | Geometry::aY | Geometry::aB)},
    {"one row of 40", {40}, static_cast<Axes>(Geometry::aX)},
};

std::vector<double> RandomSamples(std::size_t count, double low, double high, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> pick(static_cast<int>(low), static_cast<int>(high));
    std::vector<double> values(count);
    for (double& v : values)
        v = pick(random);
    return values;
}

std::size_t CountOf(const std::vector<std::int64_t>& extent)
{
    std::size_t count = 1;
    for (std::int64_t n : extent)
        count *= static_cast<std::size_t>(n);
    return count;
}

TEST(FilteringBasic, FastSmoothingMatchesThePlainFilterUnderEveryInstructionSet)
{
    InChildProcess([] {
        StartBasic();
        const Padding constant(ptConstant, System::ToAny(std::int64_t(90)));
        const Padding halfConstant(ptConstant, System::ToAny(0.5)); // no 8-bit sample: plain filter
        const Padding mirror(ptMirror, System::Any());
        const std::pair<const char*, std::function<void(ImageRef, ImageRef)>> filters[] = {
            {"Gaussian 2", [](ImageRef a, ImageRef b) { F::Gaussian(a, b, 2.0); }},
            // A radius read at run time, then one too tall to convert each
            // row once for a block of rows.
            {"Gaussian 4", [](ImageRef a, ImageRef b) { F::Gaussian(a, b, 4.0); }},
            {"Gaussian 6.5", [](ImageRef a, ImageRef b) { F::Gaussian(a, b, 6.5); }},
            {"Gaussian 0.8, side 5", [](ImageRef a, ImageRef b) { F::Gaussian(a, b, 0.8, std::int64_t(5)); }},
            {"Gaussian 1.5 mirrored", [&](ImageRef a, ImageRef b) { F::Gaussian(a, b, 1.5, mirror); }},
            {"Gaussian 1 constant", [&](ImageRef a, ImageRef b) { F::Gaussian(a, b, 1.0, constant); }},
            {"Gaussian 1 constant 0.5",
             [&](ImageRef a, ImageRef b) { F::Gaussian(a, b, 1.0, halfConstant); }},
            {"Box 5", [](ImageRef a, ImageRef b) { F::Box(a, b, 5); }},
        };
        unsigned seed = 1;
        for (const FastCase& shape : fastShapes)
            for (const auto& [name, filter] : filters)
                for (System::NumericTypeEnum type : {System::ntUInt8, System::ntFloat}) {
                    SCOPED_TRACE(std::string(name) + ", " + shape.name + ", " +
                                 System::ToAnsi(System::ToString(type)));
                    // Floats beyond the 8-bit range and of both signs.
                    const std::vector<double> values =
                        type == System::ntUInt8 ? RandomSamples(CountOf(shape.extent), 0, 255, seed++)
                                                : RandomSamples(CountOf(shape.extent), -3000, 3000, seed++);
                    const ImageRef input = SampleImage(type, shape.extent, shape.axes, values);
                    ImageRef exact = SampleImage(System::ntDouble, shape.extent, shape.axes, {});
                    filter(input, exact);
                    const std::vector<double> plain = SamplesOf(exact);
                    double largest = 0;
                    for (double v : values)
                        largest = std::max(largest, std::abs(v));
                    ForEachSimdTarget([&](const std::string& target) {
                        SCOPED_TRACE(target);
                        ImageRef output = SampleImage(type, shape.extent, shape.axes, {});
                        filter(input, output);
                        const std::vector<double> fast = SamplesOf(output);
                        ASSERT_EQ(fast.size(), plain.size());
                        for (std::size_t i = 0; i < fast.size(); ++i) {
                            if (type == System::ntFloat) {
                                // Single against double precision: a few
                                // roundings of the largest sample.
                                EXPECT_NEAR(fast[i], plain[i], 1e-6 * (1 + largest)) << "sample " << i;
                            } else if (fast[i] != std::nearbyint(plain[i])) {
                                // Single precision may round the other way,
                                // right next to a rounding boundary only.
                                EXPECT_NEAR(std::abs(fast[i] - plain[i]), 0.5, 1e-4) << "sample " << i;
                            }
                        }
                    });
                }
    });
}

TEST(FilteringBasic, FastBoxOfIntegerSamplesIsTheRoundedPlainMeanUnderEveryInstructionSet)
{
    InChildProcess([] {
        StartBasic();
        std::vector<FastCase> shapes(std::begin(fastShapes), std::end(fastShapes));
        // Banded over the pool: a band's first row starts its column sums
        // afresh.
        shapes.push_back({"300 x 261", {300, 261}, Axes::aXY});
        // Extremes of each type (sums near the top of 32 bits for side 181).
        const std::tuple<System::NumericTypeEnum, double, double> ranges[] = {
            {System::ntUInt8, 0, 255},
            {System::ntUInt16, 0, 65535},
            {System::ntUInt16, 65530, 65535},
            {System::ntInt16, -32768, 32767},
        };
        unsigned seed = 500;
        for (const FastCase& shape : shapes)
            for (const std::int64_t side : {1, 3, 5, 11, 181})
                for (const auto& [type, low, high] : ranges) {
                    SCOPED_TRACE(std::string("Box ") + std::to_string(side) + ", " + shape.name + ", " +
                                 System::ToAnsi(System::ToString(type)) + " " + std::to_string(low));
                    if (side == 181 && CountOf(shape.extent) > 1000)
                        continue; // the plain filter's time grows with the side
                    const ImageRef input =
                        SampleImage(type, shape.extent, shape.axes,
                                    RandomSamples(CountOf(shape.extent), low, high, seed++));
                    ImageRef exact = SampleImage(System::ntDouble, shape.extent, shape.axes, {});
                    F::Box(input, exact, side);
                    std::vector<double> rounded = SamplesOf(exact);
                    for (double& value : rounded)
                        value = std::nearbyint(value);
                    ForEachSimdTarget([&](const std::string& target) {
                        SCOPED_TRACE(target);
                        ImageRef output = SampleImage(type, shape.extent, shape.axes, {});
                        F::Box(input, output, side);
                        EXPECT_EQ(SamplesOf(output), rounded);
                    });
                }
    });
}

TEST(FilteringBasic, FastMediansMatchThePlainFilterUnderEveryInstructionSet)
{
    InChildProcess([] {
        StartBasic();
        const Padding constant(ptConstant, System::ToAny(std::int64_t(200)));
        // Below zero: the unsigned types leave it to the plain filter, and
        // floats order it by a negative key.
        const Padding negative(ptConstant, System::ToAny(std::int64_t(-3)));
        const Padding mirror(ptMirror, System::Any());
        const auto square = [](double radius) {
            return Geometry::StructuringElement::New(Geometry::pseSquare, radius);
        };
        const std::pair<const char*, std::function<void(ImageRef, ImageRef)>> filters[] = {
            {"3", [](ImageRef a, ImageRef b) { F::Median(a, b, 3); }},
            {"5", [](ImageRef a, ImageRef b) { F::Median(a, b, 5); }},
            {"square 1 constant", [&](ImageRef a, ImageRef b) { F::Median(a, b, square(1), constant); }},
            {"square 1 mirrored", [&](ImageRef a, ImageRef b) { F::Median(a, b, square(1), mirror); }},
            {"square 2 mirrored", [&](ImageRef a, ImageRef b) { F::Median(a, b, square(2), mirror); }},
            {"square 2 constant", [&](ImageRef a, ImageRef b) { F::Median(a, b, square(2), constant); }},
            {"square 1 constant -3", [&](ImageRef a, ImageRef b) { F::Median(a, b, square(1), negative); }},
            {"square 2 constant -3", [&](ImageRef a, ImageRef b) { F::Median(a, b, square(2), negative); }},
        };
        std::vector<FastCase> shapes(std::begin(fastShapes), std::end(fastShapes));
        // A square element filters a volume plane by plane.
        shapes.push_back({"9 x 8 x 3 volume", {9, 8, 3}, Axes::aXYZ});
        // Wider than two vectors of every instruction set, with an odd tail.
        shapes.push_back({"261 x 6", {261, 6}, Axes::aXY});
        // Many ties, and few; signed samples of both signs; floats with NaN,
        // infinities and -0 among them (low == high).
        const std::tuple<System::NumericTypeEnum, double, double> ranges[] = {
            {System::ntUInt8, 0, 3},      {System::ntUInt8, 0, 255},        {System::ntUInt16, 0, 3},
            {System::ntUInt16, 0, 65535}, {System::ntInt16, -32768, 32767}, {System::ntInt16, -2, 1},
            {System::ntFloat, -2, 1},     {System::ntFloat, 0, 0},
        };
        // NaN where the plain filter gives NaN; -0 and 0 are alike.
        const auto same = [](const std::vector<double>& a, const std::vector<double>& b) {
            return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                              [](double x, double y) { return x == y || (std::isnan(x) && std::isnan(y)); });
        };
        unsigned seed = 100;
        for (const FastCase& shape : shapes)
            for (const auto& [name, filter] : filters)
                for (const auto& [type, low, high] : ranges) {
                    SCOPED_TRACE(std::string("Median ") + name + ", " + shape.name + ", " +
                                 System::ToAnsi(System::ToString(type)) + " " + std::to_string(low) + " to " +
                                 std::to_string(high));
                    if (shape.axes == Axes::aXYZ && name == std::string("3"))
                        continue; // a cube, for the plain filter
                    const std::size_t count = CountOf(shape.extent);
                    std::vector<double> values = low == high ? Tests::RandomSamples(type, count, seed++)
                                                             : RandomSamples(count, low, high, seed++);
                    // A NaN with its sign set, as arithmetic makes them.
                    for (std::size_t i = 3; low == high && i < count; i += 17)
                        values[i] = -std::numeric_limits<double>::quiet_NaN();
                    const ImageRef input = SampleImage(type, shape.extent, shape.axes, values);
                    // Into doubles: the plain filter.
                    ImageRef exact = SampleImage(System::ntDouble, shape.extent, shape.axes, {});
                    filter(input, exact);
                    // A constant below the type's range saturates on the way in.
                    std::vector<double> plain = SamplesOf(exact);
                    if (System::IsInteger(type) && !System::IsSigned(type))
                        for (double& value : plain)
                            value = std::max(value, 0.0);
                    ForEachSimdTarget([&](const std::string& target) {
                        SCOPED_TRACE(target);
                        ImageRef output = SampleImage(type, shape.extent, shape.axes, {});
                        filter(input, output);
                        EXPECT_TRUE(same(SamplesOf(output), plain));
                    });
                    // In place, the output being the input.
                    ImageRef both = SampleImage(type, shape.extent, shape.axes, SamplesOf(input));
                    filter(both, both);
                    EXPECT_TRUE(same(SamplesOf(both), plain));
                }
    });
}

} // namespace Quilon_::Tests::FilteringSuite
