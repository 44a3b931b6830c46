// Morphology operators of the reference library against brute-force
// definitions on small images: erosion and its compositions for several
// sample types, elements and graphs in 2-D, 3-D and multi-band; geodesic
// reconstruction against iterated geodesic dilation; hand-made hole
// filling and border kill; distance transforms against the nearest
// background point; and the rules that refuse complex input.
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Morphology/Basic/Functions.h"
#include "Quilon_/Images/Morphology/Distance/Functions.h"
#include "Quilon_/Images/Morphology/Geodesy/Functions.h"
#include "Quilon_/Images/Morphology/OpeningClosing/Functions.h"
#include "Quilon_/Images/Morphology/Segmentation/Functions.h"
#include "Quilon_/System/Threading/ThreadPool.h"

#include "../../Support/BasicLibrary.h"
#include "../../Support/InChildProcess.h"
#include "../../Support/Raised.h"
#include "../../Support/SimdTargets.h"
#include "SampleImages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <random>

namespace Quilon_::Tests::MorphologySuite {

using namespace Quilon_::Images::Morphology;
using namespace Quilon_::Geometry;
using System::Ref;
namespace BasicFunctions = Quilon_::Images::Morphology::Basic::Functions;

constexpr double infinity = std::numeric_limits<double>::infinity();

struct Offset3 {
    std::int64_t x, y, z;
};

// A plain image as doubles: the extent on X, Y, Z and the bands.
struct Plain {
    std::int64_t nx, ny, nz, bands;
    std::vector<double> values;

    bool Inside(std::int64_t x, std::int64_t y, std::int64_t z) const
    {
        return x >= 0 && x < nx && y >= 0 && y < ny && z >= 0 && z < nz;
    }
    std::size_t Index(std::int64_t x, std::int64_t y, std::int64_t z, std::int64_t b) const
    {
        return static_cast<std::size_t>(x + nx * (y + ny * (z + nz * b)));
    }
    // Calls visit(x, y, z, b, index) for every sample.
    template <class Visit>
    void Each(Visit&& visit) const
    {
        for (std::int64_t b = 0; b < bands; ++b)
            for (std::int64_t z = 0; z < nz; ++z)
                for (std::int64_t y = 0; y < ny; ++y)
                    for (std::int64_t x = 0; x < nx; ++x)
                        visit(x, y, z, b, Index(x, y, z, b));
    }
};

std::vector<Offset3> OffsetsOf(ICoordinatesCollection& points)
{
    std::vector<Offset3> offsets;
    for (std::int64_t i = 0; i < points.Count(); ++i) {
        Ref<ICoordinates> p = points.Item(i);
        const auto has = [&](AxisEnum axis) { return (static_cast<unsigned char>(p->Axes()) & axis) != 0; };
        offsets.push_back({has(aX) ? p->X() : 0, has(aY) ? p->Y() : 0, has(aZ) ? p->Z() : 0});
    }
    return offsets;
}

// Erosion (min of f(p + b)) or dilation (max of f(p - b)) by definition.
Plain Morph(const Plain& f, const std::vector<Offset3>& element, bool dilate)
{
    Plain g = f;
    f.Each([&](std::int64_t x, std::int64_t y, std::int64_t z, std::int64_t b, std::size_t i) {
        double value = dilate ? -infinity : infinity;
        for (const Offset3& o : element) {
            const std::int64_t sign = dilate ? -1 : 1;
            const std::int64_t qx = x + sign * o.x, qy = y + sign * o.y, qz = z + sign * o.z;
            if (f.Inside(qx, qy, qz))
                value = dilate ? std::max(value, f.values[f.Index(qx, qy, qz, b)])
                               : std::min(value, f.values[f.Index(qx, qy, qz, b)]);
        }
        g.values[i] = value;
    });
    return g;
}

Plain Combine(const Plain& a, const Plain& b, const std::function<double(double, double)>& op)
{
    Plain c = a;
    for (std::size_t i = 0; i < c.values.size(); ++i)
        c.values[i] = op(a.values[i], b.values[i]);
    return c;
}

// Deterministic values for a type: small integers, or quarters for the
// floating types, signed where the type is.
std::vector<double> Values(System::NumericTypeEnum type, std::size_t count, std::uint32_t seed,
                           int levels = 40)
{
    const bool isSigned = type == System::ntInt8 || type == System::ntInt16 || type == System::ntInt32 ||
                          type == System::ntInt64 || type == System::ntFloat || type == System::ntDouble;
    const bool isFloat = type == System::ntFloat || type == System::ntDouble;
    std::vector<double> values(count);
    for (double& value : values) {
        seed = seed * 1664525u + 1013904223u;
        value = static_cast<double>((seed >> 8) % static_cast<std::uint32_t>(levels)) -
                (isSigned ? levels / 2 : 0);
        if (isFloat)
            value += 0.25 * ((seed >> 4) % 4);
    }
    return values;
}

struct Shape {
    std::vector<std::int64_t> extent;
    Axes axes;
    std::int64_t nx, ny, nz, bands;
};

const Shape plane{{7, 6}, Axes::aXY, 7, 6, 1, 1};
const Shape volume{{5, 4, 3}, Axes::aXYZ, 5, 4, 3, 1};
const Shape bands{{5, 4, 2}, Axes::aXYB, 5, 4, 1, 2};

ImageRef ImageOf(System::NumericTypeEnum type, const Shape& shape, const std::vector<double>& values)
{
    return SampleImage(type, shape.extent, shape.axes, values);
}

void ExpectSamples(const ImageRef& image, const Plain& expected, const std::string& what)
{
    const std::vector<double> actual = SamplesOf(image);
    ASSERT_EQ(actual.size(), expected.values.size()) << what;
    for (std::size_t i = 0; i < actual.size(); ++i)
        ASSERT_EQ(actual[i], expected.values[i]) << what << ", sample " << i;
}

struct ElementCase {
    const char* name;
    const Shape* shape;
    std::function<Ref<IStructuringElement>()> element;
};

TEST(Morphology, ErosionAndItsCompositionsMatchTheDefinitionForEveryTypeAndElement)
{
    InChildProcess([] {
        StartBasic();
        const ElementCase cases[] = {
            {"disk 2", &plane, [] { return StructuringElement::New(pseDisk, 2.0); }},
            {"square 1", &plane, [] { return StructuringElement::New(pseSquare, 1.0); }},
            {"line 45", &plane, [] { return StructuringElement::New(pseLine45, 2.0); }},
            {"asymmetric", &plane,
             [] {
                 Ref<ICoordinatesCollection> points = CoordinatesCollection::New();
                 for (auto [x, y] : {std::pair{0, 0}, {1, 0}, {0, -1}, {2, 1}})
                     points->Add(Coordinates::New(x, y, Axes::aXY));
                 return StructuringElement::New(points);
             }},
            {"ball 1", &volume, [] { return StructuringElement::New(pseBall, 1.0); }},
            {"disk 1.5 on bands", &bands, [] { return StructuringElement::New(pseDisk, 1.5); }},
        };
        const System::NumericTypeEnum types[] = {System::ntUInt8,  System::ntInt8,  System::ntInt16,
                                                 System::ntUInt32, System::ntInt64, System::ntUInt64,
                                                 System::ntFloat,  System::ntDouble};
        std::uint32_t seed = 1;
        for (const ElementCase& c : cases)
            for (System::NumericTypeEnum type : types) {
                const Shape& s = *c.shape;
                const Plain f{s.nx, s.ny, s.nz, s.bands,
                              Values(type, std::size_t(s.nx * s.ny * s.nz * s.bands), ++seed)};
                const ImageRef input = ImageOf(type, s, f.values);
                Ref<IStructuringElement> element = c.element();
                const std::vector<Offset3> offsets = OffsetsOf(*element->Points());
                const std::string what =
                    std::string(c.name) + " on " + System::ToAnsi(System::ToString(type));

                const Plain eroded = Morph(f, offsets, false), dilated = Morph(f, offsets, true);
                const Plain opened = Morph(eroded, offsets, true), closed = Morph(dilated, offsets, false);
                const auto minus = [](double a, double b) { return a - b; };
                const std::pair<std::function<void(ImageRef, ImageRef)>, Plain> expectations[] = {
                    {[&](ImageRef i, ImageRef o) { BasicFunctions::Erode(i, o, element); }, eroded},
                    {[&](ImageRef i, ImageRef o) { BasicFunctions::Dilate(i, o, element); }, dilated},
                    {[&](ImageRef i, ImageRef o) { OpeningClosing::Functions::Open(i, o, element); }, opened},
                    {[&](ImageRef i, ImageRef o) { OpeningClosing::Functions::Close(i, o, element); },
                     closed},
                    {[&](ImageRef i, ImageRef o) { Segmentation::Functions::WhiteTophat(i, o, element); },
                     Combine(f, opened, minus)},
                    {[&](ImageRef i, ImageRef o) { Segmentation::Functions::BlackTophat(i, o, element); },
                     Combine(closed, f, minus)},
                };
                int step = 0;
                for (const auto& [run, expected] : expectations) {
                    ImageRef output = Images::Image::New();
                    run(input, output);
                    EXPECT_EQ(output->Format()->DataType(), type) << what;
                    ExpectSamples(output, expected, what + ", operator " + std::to_string(step++));
                }
                // In place: the input is its own output.
                ImageRef inPlace = ImageOf(type, s, f.values);
                BasicFunctions::Erode(inPlace, inPlace, element);
                ExpectSamples(inPlace, eroded, what + ", in place");
            }
    });
}

// Samples over the whole range of a type (of the doubles' exact integers
// for the 64-bit ones), with NaN and infinities among floating samples.
std::vector<double> WideValues(System::NumericTypeEnum type, std::size_t count, std::uint64_t seed)
{
    std::mt19937_64 random(seed);
    double low = 0, high = 0;
    ::Quilon_::Basic::Images::DispatchSampleType(type, [&](auto tag) {
        using T = typename decltype(tag)::type;
        if constexpr (std::is_integral_v<T>) {
            low = std::max<double>(double(std::numeric_limits<T>::lowest()), -0x1p52);
            high = std::min<double>(double(std::numeric_limits<T>::max()), 0x1p52);
        } else {
            low = -1e6;
            high = 1e6;
        }
    });
    const bool floating = type == System::ntFloat || type == System::ntDouble;
    std::vector<double> values(count);
    for (double& value : values) {
        value = std::floor(std::uniform_real_distribution<double>(low, high + 1)(random));
        const std::uint64_t pick = random() % 29;
        if (floating)
            value = pick == 0 ? std::nan("") : pick == 1 ? infinity : pick == 2 ? -infinity : value / 4;
    }
    return values;
}

// An expected value as the image stores it: saturated into an integer
// type, rounded to float.
double Stored(System::NumericTypeEnum type, double value)
{
    double result = value;
    ::Quilon_::Basic::Images::DispatchSampleType(type, [&](auto tag) {
        using T = typename decltype(tag)::type;
        if constexpr (std::is_integral_v<T>)
            result = std::clamp(value, double(std::numeric_limits<T>::lowest()),
                                double(std::numeric_limits<T>::max()));
        else if constexpr (std::is_same_v<T, float>)
            result = double(float(value));
    });
    return result;
}

void ExpectStored(const ImageRef& image, System::NumericTypeEnum type, const Plain& expected,
                  const std::string& what)
{
    const std::vector<double> actual = SamplesOf(image);
    ASSERT_EQ(actual.size(), expected.values.size()) << what;
    for (std::size_t i = 0; i < actual.size(); ++i) {
        const double wanted = Stored(type, expected.values[i]);
        if (!(std::isnan(actual[i]) && std::isnan(wanted))) {
            ASSERT_EQ(actual[i], wanted) << what << ", sample " << i;
        }
    }
}

// The row-by-row paths (direct offsets, span groups folded by shifts or
// by doubling, 3-D rows, scratch volumes for in-place and multi-pass
// operators) under every instruction set, on sizes that leave vector tails
// and borders wider than the interior.
TEST(Morphology, RowPathsMatchTheDefinitionUnderEveryInstructionSet)
{
    InChildProcess([] {
        StartBasic();
        const auto fromPoints = [](std::initializer_list<std::pair<int, int>> xy) {
            Ref<ICoordinatesCollection> points = CoordinatesCollection::New();
            for (auto [x, y] : xy)
                points->Add(Coordinates::New(x, y, Axes::aXY));
            return StructuringElement::New(points);
        };
        const Shape wide{{131, 6}, Axes::aXY, 131, 6, 1, 1};
        const Shape odd{{67, 35}, Axes::aXY, 67, 35, 1, 1};
        const Shape small{{7, 13}, Axes::aXY, 7, 13, 1, 1};
        const Shape row{{9, 1}, Axes::aXY, 9, 1, 1, 1};
        const Shape column{{1, 9}, Axes::aXY, 1, 9, 1, 1};
        const Shape single{{1, 1}, Axes::aXY, 1, 1, 1, 1};
        const Shape solid{{19, 7, 5}, Axes::aXYZ, 19, 7, 5, 1};
        const std::vector<const Shape*> flat = {&wide, &odd, &small, &row, &column, &single};
        const std::vector<const Shape*> deep = {&solid};
        const std::tuple<const char*, std::vector<const Shape*>, std::function<Ref<IStructuringElement>()>>
            cases[] = {
                {"square 1", flat, [] { return StructuringElement::New(pseSquare, 1.0); }},
                {"square 2", flat, [] { return StructuringElement::New(pseSquare, 2.0); }},
                {"disk 2", flat, [] { return StructuringElement::New(pseDisk, 2.0); }},
                {"disk 5", flat, [] { return StructuringElement::New(pseDisk, 5.0); }},
                {"horizontal 7", flat, [] { return StructuringElement::New(pseHorizontalLine, 7.0); }},
                {"horizontal 31", flat, [] { return StructuringElement::New(pseHorizontalLine, 31.0); }},
                {"vertical 3", flat, [] { return StructuringElement::New(pseVerticalLine, 3.0); }},
                {"line 135", flat, [] { return StructuringElement::New(pseLine135, 4.0); }},
                // Lines down the rows of 8 offsets and more fold by doubling over rows.
                {"vertical 31", flat, [] { return StructuringElement::New(pseVerticalLine, 15.0); }},
                {"line 45 of 19", flat, [] { return StructuringElement::New(pseLine45, 9.0); }},
                {"diagonal off centre", flat,
                 [&] {
                     return fromPoints({{3, -2},
                                        {2, -1},
                                        {1, 0},
                                        {0, 1},
                                        {-1, 2},
                                        {-2, 3},
                                        {-3, 4},
                                        {-4, 5},
                                        {-5, 6},
                                        {-6, 7},
                                        {-7, 8},
                                        {-8, 9}});
                 }},
                // Not lines down the rows: a gap, and a step of two samples.
                {"vertical with a gap", flat,
                 [&] {
                     return fromPoints(
                         {{0, -5}, {0, -4}, {0, -3}, {0, -2}, {0, -1}, {0, 1}, {0, 2}, {0, 3}, {0, 4}});
                 }},
                {"steep slope of 2", flat,
                 [&] {
                     return fromPoints(
                         {{-8, -4}, {-6, -3}, {-4, -2}, {-2, -1}, {0, 0}, {2, 1}, {4, 2}, {6, 3}, {8, 4}});
                 }},
                {"vertical below", flat,
                 [&] {
                     return fromPoints(
                         {{2, 1}, {2, 2}, {2, 3}, {2, 4}, {2, 5}, {2, 6}, {2, 7}, {2, 8}, {2, 9}});
                 }},
                {"rectangle 9 x 3", flat,
                 [&] {
                     return fromPoints({{-4, -1}, {-3, -1}, {-2, -1}, {-1, -1}, {0, -1}, {1, -1}, {2, -1},
                                        {3, -1},  {4, -1},  {-4, 0},  {-3, 0},  {-2, 0}, {-1, 0}, {0, 0},
                                        {1, 0},   {2, 0},   {3, 0},   {4, 0},   {-4, 1}, {-3, 1}, {-2, 1},
                                        {-1, 1},  {0, 1},   {1, 1},   {2, 1},   {3, 1},  {4, 1}});
                 }},
                {"off centre", flat,
                 [&] {
                     return fromPoints(
                         {{2, 0}, {3, 0}, {4, 0}, {5, 0}, {6, 0}, {7, 0}, {8, 0}, {9, 0}, {-1, 2}});
                 }},
                {"cube 1", deep, [] { return StructuringElement::New(pseCube, 1.0); }},
                {"ball 2", deep, [] { return StructuringElement::New(pseBall, 2.0); }},
                {"cross on X and Z", deep, [] { return StructuringElement::New(pseDisk, 1.0, Axes::aXZ); }},
                {"line 135 in a volume", deep, [] { return StructuringElement::New(pseLine135, 5.0); }},
            };
        const System::NumericTypeEnum types[] = {
            System::ntInt8,   System::ntUInt8, System::ntInt16,  System::ntUInt16, System::ntInt32,
            System::ntUInt32, System::ntInt64, System::ntUInt64, System::ntFloat,  System::ntDouble};
        std::uint64_t seed = 5;
        for (const auto& [name, shapes, make] : cases)
            for (const Shape* shape : shapes)
                for (System::NumericTypeEnum type : types) {
                    const Shape& s = *shape;
                    const ImageRef input =
                        ImageOf(type, s, WideValues(type, std::size_t(s.nx * s.ny * s.nz), ++seed));
                    const Plain f{s.nx, s.ny, s.nz, 1, SamplesOf(input)};
                    Ref<IStructuringElement> element = make();
                    const std::vector<Offset3> offsets = OffsetsOf(*element->Points());
                    // Intermediate results as the image stores them: an element
                    // without its origin leaves samples on which nothing lands.
                    const auto stored = [&](Plain p) {
                        for (double& v : p.values)
                            v = Stored(type, v);
                        return p;
                    };
                    const Plain eroded = stored(Morph(f, offsets, false));
                    const Plain dilated = stored(Morph(f, offsets, true));
                    const Plain closed = Morph(dilated, offsets, false);
                    const Plain whiteTophat = Combine(f, stored(Morph(eroded, offsets, true)),
                                                      [](double a, double b) { return a - b; });
                    const std::string what = std::string(name) + " on " +
                                             System::ToAnsi(System::ToString(type)) + " " +
                                             std::to_string(s.nx) + " x " + std::to_string(s.ny);
                    Testing::ForEachSimdTarget([&](const std::string& target) {
                        ImageRef output = Images::Image::New();
                        BasicFunctions::Erode(input, output, element);
                        ExpectStored(output, type, eroded, what + ", erode, " + target);
                        BasicFunctions::Dilate(input, output, element);
                        ExpectStored(output, type, dilated, what + ", dilate, " + target);
                        Segmentation::Functions::WhiteTophat(input, output, element);
                        ExpectStored(output, type, whiteTophat, what + ", white top-hat, " + target);
                        ImageRef inPlace = ImageOf(type, s, f.values);
                        OpeningClosing::Functions::Close(inPlace, inPlace, element);
                        ExpectStored(inPlace, type, closed, what + ", close in place, " + target);
                    });
                }
    });
}

// Images large enough to be cut into bands over the processing pool (band
// edges cutting through the element: every band lays its own buffers), and
// one large enough (8 MB) to be written with streaming stores, rows not
// aligned to a vector.
TEST(Morphology, BandedAndStreamedErosionMatchTheDefinition)
{
    InChildProcess([] {
        StartBasic();
        // Three threads cut eight bands, on any machine.
        System::Threading::Globals::SetProcessingThreadPool(System::Threading::ThreadPool::New(3));
        const Shape banded{{401, 347}, Axes::aXY, 401, 347, 1, 1};
        const Shape deep{{67, 45, 47}, Axes::aXYZ, 67, 45, 47, 1};
        const Shape streamed{{1030, 1025}, Axes::aXY, 1030, 1025, 1, 1};
        const auto disk = [](double radius) {
            return [radius] { return StructuringElement::New(pseDisk, radius); };
        };
        const std::tuple<const Shape*, System::NumericTypeEnum, std::function<Ref<IStructuringElement>()>>
            cases[] = {
                {&banded, System::ntUInt8, disk(1.0)},
                {&banded, System::ntUInt8, disk(2.0)},
                {&banded, System::ntUInt8, disk(3.0)},
                {&banded, System::ntInt16, [] { return StructuringElement::New(pseSquare, 1.0); }},
                {&banded, System::ntUInt16, [] { return StructuringElement::New(pseVerticalLine, 7.0); }},
                {&banded, System::ntUInt8, [] { return StructuringElement::New(pseLine45, 20.0); }},
                {&deep, System::ntInt16, [] { return StructuringElement::New(pseVerticalLine, 6.0); }},
                {&banded, System::ntFloat, disk(2.0)},
                {&deep, System::ntUInt8, [] { return StructuringElement::New(pseBall, 1.0); }},
                {&streamed, System::ntDouble, disk(2.0)},
                {&streamed, System::ntDouble, [] { return StructuringElement::New(pseLine135, 10.0); }},
            };
        for (const auto& [shape, type, make] : cases) {
            const Shape& s = *shape;
            const ImageRef input = ImageOf(type, s, WideValues(type, std::size_t(s.nx * s.ny * s.nz), 77));
            const Plain f{s.nx, s.ny, s.nz, 1, SamplesOf(input)};
            Ref<IStructuringElement> element = make();
            const std::vector<Offset3> offsets = OffsetsOf(*element->Points());
            const Plain eroded = Morph(f, offsets, false), dilated = Morph(f, offsets, true);
            const std::string what = std::to_string(s.nx) + " x " + std::to_string(s.ny) + " x " +
                                     std::to_string(s.nz) + ", " + std::to_string(offsets.size()) +
                                     " offsets, " + System::ToAnsi(System::ToString(type));
            Testing::ForEachSimdTarget([&](const std::string& target) {
                ImageRef output = Images::Image::New();
                BasicFunctions::Erode(input, output, element);
                ExpectStored(output, type, eroded, "erode " + what + ", " + target);
                ImageRef inPlace = ImageOf(type, s, f.values);
                BasicFunctions::Dilate(inPlace, inPlace, element);
                ExpectStored(inPlace, type, dilated, "dilate in place " + what + ", " + target);
            });
        }
    });
}

TEST(Morphology, GraphOverloadsIterateOverTheNeighboursAndTheCentre)
{
    InChildProcess([] {
        StartBasic();
        const std::tuple<const char*, const Shape*, PredefinedNgbGraphEnum, Axes> cases[] = {
            {"4", &plane, pngSquare4, Axes::aXY},          {"8", &plane, pngSquare8, Axes::aXY},
            {"6", &volume, pngCubic6, Axes::aXYZ},         {"26", &volume, pngCubic26, Axes::aXYZ},
            {"8 on bands", &bands, pngSquare8, Axes::aXY},
        };
        for (const auto& [name, shape, value, axes] : cases) {
            const Shape& s = *shape;
            const Plain f{s.nx, s.ny, s.nz, s.bands,
                          Values(System::ntInt16, std::size_t(s.nx * s.ny * s.nz * s.bands), 7)};
            Ref<INgbGraph> graph = NgbGraph::New(value, axes);
            std::vector<Offset3> offsets = OffsetsOf(*graph);
            offsets.push_back({0, 0, 0});
            const ImageRef input = ImageOf(System::ntInt16, s, f.values);
            ImageRef output = Images::Image::New();
            BasicFunctions::Erode(input, output, graph, 2);
            ExpectSamples(output, Morph(Morph(f, offsets, false), offsets, false),
                          std::string("erode ") + name);
            BasicFunctions::Dilate(input, output, graph, 1);
            ExpectSamples(output, Morph(f, offsets, true), std::string("dilate ") + name);
            OpeningClosing::Functions::Open(input, output, graph, 1);
            ExpectSamples(output, Morph(Morph(f, offsets, false), offsets, true),
                          std::string("open ") + name);
            BasicFunctions::Erode(input, output, graph, 0);
            ExpectSamples(output, f, std::string("zero iterations ") + name);
        }
        ImageRef input = ImageOf(System::ntUInt8, plane, {});
        EXPECT_NE(RaisedMessage([&] {
                      BasicFunctions::Erode(input, input, NgbGraph::New(pngSquare4, Axes::aXY), -1);
                  }).find(L"The number of iterations must not be negative: -1"),
                  std::wstring::npos);
    });
}

TEST(Morphology, SaturatedTophatOnASignedType)
{
    InChildProcess([] {
        StartBasic();
        // 100 - (-128) does not fit in int8: the residue saturates.
        ImageRef input = SampleImage(System::ntInt8, {3, 1}, Axes::aXY, {-128, 100, -128});
        ImageRef output = Images::Image::New();
        Segmentation::Functions::WhiteTophat(input, output, StructuringElement::New(pseHorizontalLine, 1.0));
        EXPECT_EQ(SamplesOf(output), (std::vector<double>{0, 127, 0}));
    });
}

// Geodesic dilation iterated until stable, by definition; with `dual`
// geodesic erosion over the mask.
Plain ReconstructByIteration(Plain marker, const Plain& mask, std::vector<Offset3> graph, bool dual)
{
    graph.push_back({0, 0, 0});
    const auto clip = [dual](double a, double b) { return dual ? std::max(a, b) : std::min(a, b); };
    marker = Combine(marker, mask, clip);
    for (;;) {
        const Plain next = Combine(Morph(marker, graph, !dual), mask, clip);
        if (next.values == marker.values)
            return marker;
        marker = next;
    }
}

TEST(Morphology, GeodesicOperatorsMatchIteratedGeodesicDilation)
{
    InChildProcess([] {
        StartBasic();
        const std::tuple<const Shape*, PredefinedNgbGraphEnum, Axes, System::NumericTypeEnum> cases[] = {
            {&plane, pngSquare4, Axes::aXY, System::ntUInt8},
            {&plane, pngSquare8, Axes::aXY, System::ntFloat},
            {&volume, pngCubic6, Axes::aXYZ, System::ntInt32},
            {&volume, pngCubic26, Axes::aXYZ, System::ntUInt16},
            {&bands, pngSquare8, Axes::aXY, System::ntInt16},
        };
        std::uint32_t seed = 11;
        for (const auto& [shape, value, axes, type] : cases) {
            const Shape& s = *shape;
            const std::size_t count = std::size_t(s.nx * s.ny * s.nz * s.bands);
            const Plain mask{s.nx, s.ny, s.nz, s.bands, Values(type, count, ++seed, 6)};
            const Plain marker{s.nx, s.ny, s.nz, s.bands, Values(type, count, ++seed, 6)};
            Ref<INgbGraph> graph = NgbGraph::New(value, axes);
            const std::vector<Offset3> offsets = OffsetsOf(*graph);
            const std::string what = System::ToAnsi(System::ToString(value));
            ImageRef output = Images::Image::New();

            Geodesy::Functions::Reconstruct(ImageOf(type, s, marker.values), ImageOf(type, s, mask.values),
                                            output, graph);
            ExpectSamples(output, ReconstructByIteration(marker, mask, offsets, false),
                          "reconstruct " + what);

            // Hole filling: the border values spread over the image's maximum.
            Plain top = mask;
            const double highest = *std::max_element(mask.values.begin(), mask.values.end());
            const double lowest = *std::min_element(mask.values.begin(), mask.values.end());
            mask.Each([&](std::int64_t x, std::int64_t y, std::int64_t z, std::int64_t, std::size_t i) {
                const bool border = x == 0 || y == 0 || x == s.nx - 1 || y == s.ny - 1 ||
                                    (s.nz > 1 && (z == 0 || z == s.nz - 1));
                top.values[i] = border ? mask.values[i] : highest;
            });
            Geodesy::Functions::HoleFill(ImageOf(type, s, mask.values), output, graph);
            ExpectSamples(output, ReconstructByIteration(top, mask, offsets, true), "hole fill " + what);

            // Border kill: the input less its reconstruction from the border.
            Plain bottom = top;
            mask.Each([&](std::int64_t x, std::int64_t y, std::int64_t z, std::int64_t, std::size_t i) {
                const bool border = x == 0 || y == 0 || x == s.nx - 1 || y == s.ny - 1 ||
                                    (s.nz > 1 && (z == 0 || z == s.nz - 1));
                bottom.values[i] = border ? mask.values[i] : lowest;
            });
            const Plain reconstructed = ReconstructByIteration(bottom, mask, offsets, false);
            Geodesy::Functions::BorderKill(ImageOf(type, s, mask.values), output, graph);
            ExpectSamples(output, Combine(mask, reconstructed, [](double f, double r) { return f - r; }),
                          "border kill " + what);
        }
    });
}

// Binary images as text: '#' set (255), '.' clear.
std::vector<double> Binary(const std::vector<std::string>& rows)
{
    std::vector<double> values;
    for (const std::string& row : rows)
        for (char c : row)
            values.push_back(c == '#' ? 255 : 0);
    return values;
}

TEST(Morphology, HoleFillAndBorderKillOnBinaryImagesByConnectivity)
{
    InChildProcess([] {
        StartBasic();
        const auto binary = [](const std::vector<std::string>& rows) {
            return SampleImage(System::ntUInt8, {std::int64_t(rows[0].size()), std::int64_t(rows.size())},
                               Axes::aXY, Binary(rows));
        };
        ImageRef output = Images::Image::New();
        // The centre is closed off for 4-connected background, open for 8.
        const std::vector<std::string> ring = {".....", ".##..", ".#.#.", "..##.", "....."};
        Geodesy::Functions::HoleFill(binary(ring), output);
        EXPECT_EQ(SamplesOf(output), Binary({".....", ".##..", ".###.", "..##.", "....."}));
        Geodesy::Functions::HoleFill(binary(ring), output, NgbGraph::New(pngSquare8, Axes::aXY));
        EXPECT_EQ(SamplesOf(output), Binary(ring));
        // A gap on the border is no hole.
        Geodesy::Functions::HoleFill(binary({"#####", "#...#", "#.#.#", "#...#", "##.##"}), output);
        EXPECT_EQ(SamplesOf(output), Binary({"#####", "#...#", "#.#.#", "#...#", "##.##"}));
        Geodesy::Functions::HoleFill(binary({"#####", "#...#", "#.#.#", "#...#", "#####"}), output);
        EXPECT_EQ(SamplesOf(output), Binary({"#####", "#####", "#####", "#####", "#####"}));

        // The point at (1, 1) touches the corner object diagonally.
        const std::vector<std::string> objects = {"#.....", ".#..#.", "...##.", ".#....", ".....#"};
        Geodesy::Functions::BorderKill(binary(objects), output);
        EXPECT_EQ(SamplesOf(output), Binary({"......", "....#.", "...##.", ".#....", "......"}));
        Geodesy::Functions::BorderKill(binary(objects), output, NgbGraph::New(pngSquare4, Axes::aXY));
        EXPECT_EQ(SamplesOf(output), Binary({"......", ".#..#.", "...##.", ".#....", "......"}));

        // A grey profile: each marker spreads under the mask, lowered by every pass it crosses.
        ImageRef mask = SampleImage(System::ntUInt8, {9, 1}, Axes::aXY, {5, 5, 5, 1, 7, 7, 2, 4, 4});
        ImageRef marker = SampleImage(System::ntUInt8, {9, 1}, Axes::aXY, {0, 9, 0, 0, 0, 0, 0, 0, 4});
        Geodesy::Functions::Reconstruct(marker, mask, output);
        EXPECT_EQ(SamplesOf(output), (std::vector<double>{5, 5, 5, 1, 2, 2, 2, 4, 4}));
        Geodesy::Functions::Dilate(marker, mask, output, NgbGraph::New(pngSquare8, Axes::aXY), 1);
        EXPECT_EQ(SamplesOf(output), (std::vector<double>{5, 5, 5, 0, 0, 0, 0, 4, 4}));
    });
}

ImageRef BinaryImage(ImageRef image)
{
    Images::Image::SetCategory(image, Images::picBinary, false);
    return image;
}

TEST(Morphology, DistancesMatchTheNearestBackgroundPoint)
{
    InChildProcess([] {
        StartBasic();
        const std::pair<const Shape*, const char*> shapes[] = {{&plane, "plane"}, {&volume, "volume"}};
        for (const auto& [shape, name] : shapes) {
            const Shape& s = *shape;
            Plain f{s.nx, s.ny, s.nz, 1, Values(System::ntUInt8, std::size_t(s.nx * s.ny * s.nz), 3, 5)};
            for (double& v : f.values)
                v = v == 0 ? 0 : 255; // about one point in five is background
            const auto nearest =
                [&](const std::function<double(std::int64_t, std::int64_t, std::int64_t)>& metric) {
                    Plain d = f;
                    f.Each([&](std::int64_t x, std::int64_t y, std::int64_t z, std::int64_t, std::size_t i) {
                        double best = infinity;
                        f.Each(
                            [&](std::int64_t u, std::int64_t v, std::int64_t w, std::int64_t, std::size_t j) {
                                if (f.values[j] == 0)
                                    best = std::min(best, metric(u - x, v - y, w - z));
                            });
                        d.values[i] = best;
                    });
                    return d;
                };
            const ImageRef input = BinaryImage(ImageOf(System::ntUInt8, s, f.values));
            ImageRef output = ImageOf(System::ntDouble, s, {});
            Distance::Functions::Distance(input, output);
            const Plain euclidean = nearest(
                [](auto dx, auto dy, auto dz) { return std::sqrt(double(dx * dx + dy * dy + dz * dz)); });
            const std::vector<double> actual = SamplesOf(output);
            for (std::size_t i = 0; i < actual.size(); ++i)
                EXPECT_NEAR(actual[i], euclidean.values[i], 1e-12) << name << ", sample " << i;

            const Axes graphAxes = s.nz > 1 ? Axes::aXYZ : Axes::aXY;
            const auto few = s.nz > 1 ? pngCubic6 : pngSquare4;
            const auto many = s.nz > 1 ? pngCubic26 : pngSquare8;
            Distance::Functions::Distance(input, output, NgbGraph::New(few, graphAxes));
            ExpectSamples(output, nearest([](auto dx, auto dy, auto dz) {
                              return double(std::abs(dx) + std::abs(dy) + std::abs(dz));
                          }),
                          std::string("city block, ") + name);
            Distance::Functions::Distance(input, output, NgbGraph::New(many, graphAxes));
            ExpectSamples(output, nearest([](auto dx, auto dy, auto dz) {
                              return double(std::max({std::abs(dx), std::abs(dy), std::abs(dz)}));
                          }),
                          std::string("chessboard, ") + name);
        }
        // No background at all: infinitely far, saturated in an integer output.
        ImageRef full = BinaryImage(SampleImage(System::ntUInt8, {3, 2}, Axes::aXY, {1, 1, 1, 1, 1, 1}));
        ImageRef bytes = SampleImage(System::ntUInt8, {3, 2}, Axes::aXY, {});
        Distance::Functions::Distance(full, bytes);
        EXPECT_EQ(SamplesOf(bytes), std::vector<double>(6, 255));
        // Geodesic distance: around the wall, from the seed on the left.
        ImageRef mask =
            BinaryImage(SampleImage(System::ntUInt8, {4, 2}, Axes::aXY, Binary({"#.##", "####"})));
        ImageRef seeds =
            BinaryImage(SampleImage(System::ntUInt8, {4, 2}, Axes::aXY, Binary({"#...", "...."})));
        ImageRef steps = SampleImage(System::ntDouble, {4, 2}, Axes::aXY, {});
        Geodesy::Functions::Distance(mask, seeds, steps, NgbGraph::New(pngSquare4, Axes::aXY));
        EXPECT_EQ(SamplesOf(steps), (std::vector<double>{0, 0, 4, 5, 1, 2, 3, 4}));
    });
}

TEST(Morphology, ComplexInputIsRefusedBeforeTheOutputIsTouched)
{
    InChildProcess([] {
        StartBasic();
        ImageRef input = SampleImage(System::ntComplexF, {3, 2}, Axes::aXY, {1, 2, 3, 4, 5, 6});
        ImageRef output = Images::Image::New();
        const std::wstring message = RaisedMessage(
            [&] { BasicFunctions::Erode(input, output, StructuringElement::New(pseSquare, 1.0)); });
        EXPECT_NE(message.find(L"scalar type expected"), std::wstring::npos) << System::ToAnsi(message);
        EXPECT_TRUE(output->IsEmpty());
        EXPECT_NE(
            RaisedMessage([&] { Geodesy::Functions::HoleFill(input, output); }).find(L"scalar type expected"),
            std::wstring::npos);
        EXPECT_TRUE(output->IsEmpty());
        // Distance wants a binary input.
        EXPECT_NE(RaisedMessage([&] {
                      Distance::Functions::Distance(input, output);
                  }).find(L"Image.Category.Binary"),
                  std::wstring::npos);
    });
}

} // namespace Quilon_::Tests::MorphologySuite
