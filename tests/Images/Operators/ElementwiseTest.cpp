// The element-wise operators of the reference library (arithmetic, logic,
// sample functions, utility copies, colour bands) against values worked out
// by hand, through the operators and their rule chains, as callers use them.
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Arithmetic/Functions.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/Color/Utility/Functions.h"
#include "Quilon_/Images/Logic/Functions.h"
#include "Quilon_/Images/Math/Functions.h"
#include "Quilon_/Images/Measurements/Functions.h"
#include "Quilon_/Images/Segmentation/Functions.h"
#include "Quilon_/Images/Utility/Functions.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/System/Any.h"

#include "../../Support/BasicLibrary.h"
#include "../../Support/InChildProcess.h"
#include "../../Support/Raised.h"
#include "../../Support/SimdTargets.h"
#include "SampleImages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>

namespace Quilon_::Tests::Elementwise {

using namespace Quilon_::Images;
using Geometry::Axes;
using System::NumericTypeEnum;
using Binary = std::function<void(const ImageRef& a, const ImageRef& b, const ImageRef& out)>;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double inf = std::numeric_limits<double>::infinity();

ImageRef Row(NumericTypeEnum type, const std::vector<double>& values)
{
    return SampleImage(type, {std::int64_t(values.size()), 1}, Axes::aXY, values);
}

void ExpectSamples(const ImageRef& image, const std::vector<double>& expected, const std::string& what)
{
    const std::vector<double> actual = SamplesOf(image);
    ASSERT_EQ(actual.size(), expected.size()) << what;
    for (std::size_t i = 0; i < actual.size(); ++i) {
        if (std::isnan(expected[i]))
            EXPECT_TRUE(std::isnan(actual[i])) << what << " sample " << i;
        else if (std::isinf(expected[i]) || std::abs(expected[i]) > 1e15)
            EXPECT_EQ(actual[i], expected[i]) << what << " sample " << i;
        else
            EXPECT_NEAR(actual[i], expected[i], 1e-6 * (1 + std::abs(expected[i])))
                << what << " sample " << i;
    }
}

// One operator on two rows of one type; the output is a fresh image.
struct Case {
    std::string what;
    Binary op;
    NumericTypeEnum type;
    std::vector<double> a, b, expected;
};

void RunCases(const std::vector<Case>& cases)
{
    for (const Case& c : cases) {
        ImageRef out = Image::New();
        c.op(Row(c.type, c.a), Row(c.type, c.b), out);
        ExpectSamples(out, c.expected, c.what);
    }
}

namespace A = Arithmetic::Functions;
namespace L = Logic::Functions;
namespace M = Images::Math::Functions;
namespace U = Utility::Functions;

TEST(ElementwiseOperators, ArithmeticRoundsToEvenAndSaturatesInTheOutputType)
{
    InChildProcess([] {
        StartBasic();
        const double big = std::ldexp(1.0, 62);
        auto add = [](auto& a, auto& b, auto& o) { A::Add(a, b, o); };
        auto subtract = [](auto& a, auto& b, auto& o) { A::Subtract(a, b, o); };
        auto divide = [](auto& a, auto& b, auto& o) { A::Divide(a, b, o); };
        auto half = [](auto& a, auto& b, auto& o) { A::Blend(a, b, o, 0.5); };
        RunCases({
            {"uint8 +", add, System::ntUInt8, {200, 10, 0}, {100, 20, 0}, {255, 30, 0}},
            {"uint8 -", subtract, System::ntUInt8, {10, 30}, {20, 5}, {0, 25}},
            {"int8 -", subtract, System::ntInt8, {-100, 100}, {100, -100}, {-128, 127}},
            {"int16 *",
             [](auto& a, auto& b, auto& o) { A::Multiply(a, b, o); },
             System::ntInt16,
             {300, -300},
             {300, 2},
             {32767, -600}},
            {"int64 + exact and saturated",
             add,
             System::ntInt64,
             {big, 3},
             {big, 4},
             {9223372036854775807.0, 7}},
            {"uint8 / by 0", divide, System::ntUInt8, {7, 0, 9}, {0, 0, 2}, {255, 0, 4}},
            {"int16 / by 0", divide, System::ntInt16, {-7}, {0}, {-32768}},
            {"float / by 0", divide, System::ntFloat, {1, 0}, {0, 0}, {inf, nan}},
            {"uint8 blend ties to even", half, System::ntUInt8, {1, 2, 0}, {2, 3, 255}, {2, 2, 128}},
            {"maximum",
             [](auto& a, auto& b, auto& o) { A::Maximum(a, b, o); },
             System::ntInt32,
             {1, -5},
             {2, -9},
             {2, -5}},
            {"minimum",
             [](auto& a, auto& b, auto& o) { A::Minimum(a, b, o); },
             System::ntDouble,
             {1, -5},
             {2, -9},
             {1, -9}},
            {"add constant",
             [](auto& a, auto&, auto& o) { A::Add(a, System::ToAny(2.5), o); },
             System::ntUInt16,
             {0, 65534},
             {},
             {2, 65535}},
            {"maximum constant",
             [](auto& a, auto&, auto& o) { A::Maximum(a, 3.0, o); },
             System::ntInt8,
             {-4, 9},
             {},
             {3, 9}},
            {"abs",
             [](auto& a, auto&, auto& o) { A::Abs(a, o); },
             System::ntInt8,
             {-128, -3, 4},
             {},
             {127, 3, 4}},
            {"invert unsigned",
             [](auto& a, auto&, auto& o) { A::Invert(a, o); },
             System::ntUInt8,
             {0, 200},
             {},
             {255, 55}},
            {"invert signed",
             [](auto& a, auto&, auto& o) { A::Invert(a, o); },
             System::ntInt16,
             {5, -1},
             {},
             {-6, 0}},
            {"invert floating",
             [](auto& a, auto&, auto& o) { A::Invert(a, o); },
             System::ntFloat,
             {0.25},
             {},
             {0.75}},
            {"linear scale",
             [](auto& a, auto&, auto& o) {
                 A::LinearScale(a, o, ::Quilon_::Math::RangeD::New(0.0, 10.0),
                                ::Quilon_::Math::RangeD::New(0.0, 100.0));
             },
             System::ntUInt8,
             {0, 5, 10, 20},
             {},
             {0, 50, 100, 200}},
        });

        // A fresh output takes the input's type; a sized one keeps its own.
        ImageRef wide = Row(System::ntInt32, {0, 0});
        A::Add(Row(System::ntUInt8, {250, 1}), Row(System::ntUInt8, {250, 1}), wide);
        EXPECT_EQ(wide->Format()->DataType(), System::ntInt32);
        ExpectSamples(wide, {500, 2}, "sized int32 output");
    });
}

TEST(ElementwiseOperators, SecondOperandRepeatsAlongBandsAndPlanes)
{
    InChildProcess([] {
        StartBasic();
        ImageRef colour = SampleImage(System::ntUInt8, {2, 1, 3}, Axes::aXYB, {1, 2, 10, 20, 100, 200});
        ImageRef out = Image::New();
        A::Add(colour, Row(System::ntUInt8, {5, 6}), out);
        ExpectSamples(out, {6, 8, 15, 26, 105, 206}, "bands");

        ImageRef volume = SampleImage(System::ntFloat, {2, 1, 2}, Axes::aXYZ, {1, 2, 3, 4});
        ImageRef product = Image::New();
        A::Multiply(volume, Row(System::ntFloat, {10, 100}), product);
        ExpectSamples(product, {10, 200, 30, 400}, "planes");

        const std::wstring message = RaisedMessage([&] {
            A::Add(colour, Row(System::ntUInt8, {1, 2, 3}), out);
        });
        EXPECT_THAT(System::ToAnsi(message), testing::HasSubstr("Image sizes do not match"));
    });
}

TEST(ElementwiseOperators, LogicOnBinaryImagesAndBits)
{
    InChildProcess([] {
        StartBasic();
        auto binary = [](std::vector<double> values) {
            ImageRef image = Row(System::ntUInt8, values);
            Image::SetCategory(image, picBinary, false);
            return image;
        };
        const std::vector<std::pair<std::string, std::function<void(ImageRef, ImageRef, ImageRef)>>> gates{
            {"And", [](auto a, auto b, auto o) { L::And(a, b, o); }},
            {"Or", [](auto a, auto b, auto o) { L::Or(a, b, o); }},
            {"XOr", [](auto a, auto b, auto o) { L::XOr(a, b, o); }},
            {"XNOr", [](auto a, auto b, auto o) { L::XNOr(a, b, o); }},
            {"NAnd", [](auto a, auto b, auto o) { L::NAnd(a, b, o); }},
            {"NOr", [](auto a, auto b, auto o) { L::NOr(a, b, o); }},
            {"Difference", [](auto a, auto b, auto o) { L::Difference(a, b, o); }},
        };
        const std::vector<std::vector<double>> truth{{0, 0, 0, 255},   {0, 255, 255, 255}, {0, 255, 255, 0},
                                                     {255, 0, 0, 255}, {255, 255, 255, 0}, {255, 0, 0, 0},
                                                     {0, 0, 255, 0}};
        for (std::size_t g = 0; g < gates.size(); ++g) {
            ImageRef out = Image::New();
            gates[g].second(binary({0, 0, 1, 255}), binary({0, 7, 0, 1}), out);
            ExpectSamples(out, truth[g], gates[g].first);
        }
        ImageRef negated = Image::New();
        L::Not(binary({0, 3}), negated);
        ExpectSamples(negated, {255, 0}, "Not");

        RunCases({
            {"BitAnd constant",
             [](auto& a, auto&, auto& o) { L::BitAnd(a, std::int64_t(0x0F), o); },
             System::ntInt8,
             {-1, 0x35},
             {},
             {15, 5}},
            {"BitOr images",
             [](auto& a, auto& b, auto& o) { L::BitOr(a, b, o); },
             System::ntUInt16,
             {0x0F00, 1},
             {0x00F0, 2},
             {0x0FF0, 3}},
            {"BitXNOr",
             [](auto& a, auto& b, auto& o) { L::BitXNOr(a, b, o); },
             System::ntUInt8,
             {0xF0},
             {0xFF},
             {0xF0}},
            {"BitDifference",
             [](auto& a, auto& b, auto& o) { L::BitDifference(a, b, o); },
             System::ntUInt8,
             {0xFF},
             {0x0F},
             {0xF0}},
            {"BitNot",
             [](auto& a, auto&, auto& o) { L::BitNot(a, o); },
             System::ntInt16,
             {0, -1},
             {},
             {-1, 0}},
            {"LeftShift",
             [](auto& a, auto&, auto& o) { L::LeftShift(a, o, 1); },
             System::ntUInt8,
             {1, 129},
             {},
             {2, 2}},
            {"RightShift signed",
             [](auto& a, auto&, auto& o) { L::RightShift(a, o, 2); },
             System::ntInt16,
             {-8, 9},
             {},
             {-2, 2}},
            {"RightShift past the width",
             [](auto& a, auto&, auto& o) { L::RightShift(a, o, 70); },
             System::ntInt32,
             {-8, 9},
             {},
             {-1, 0}},
            {"LeftShift past the width",
             [](auto& a, auto&, auto& o) { L::LeftShift(a, o, 8); },
             System::ntUInt8,
             {255},
             {},
             {0}},
        });
    });
}

TEST(ElementwiseOperators, SampleFunctionsChooseAFloatingOrRealOutput)
{
    InChildProcess([] {
        StartBasic();
        const double pi = std::acos(-1.0);
        RunCases({
            {"Sqrt", [](auto& a, auto&, auto& o) { M::Sqrt(a, o); }, System::ntFloat, {4, -1}, {}, {2, nan}},
            {"Exp10",
             [](auto& a, auto&, auto& o) { M::Exp10(a, o); },
             System::ntDouble,
             {2, -1},
             {},
             {100, 0.1}},
            {"Log", [](auto& a, auto&, auto& o) { M::Log(a, o); }, System::ntDouble, {1, 0}, {}, {0, -inf}},
            {"Inverse",
             [](auto& a, auto&, auto& o) { M::Inverse(a, o); },
             System::ntUInt8,
             {4, 0},
             {},
             {0.25, inf}},
            {"ATan", [](auto& a, auto&, auto& o) { M::ATan(a, o); }, System::ntInt16, {1}, {}, {pi / 4}},
            {"Sqr saturates",
             [](auto& a, auto&, auto& o) { M::Sqr(a, o); },
             System::ntInt16,
             {300, -3},
             {},
             {32767, 9}},
            {"Phase of reals",
             [](auto& a, auto&, auto& o) { M::Phase(a, o); },
             System::ntInt8,
             {-2, 3},
             {},
             {pi, 0}},
        });
        ImageRef sine = Image::New();
        M::Sin(Row(System::ntUInt8, {0}), sine);
        EXPECT_EQ(sine->Format()->DataType(), System::ntFloat);

        // Complex samples keep their imaginary parts up to the kernel.
        ImageRef z = Row(System::ntComplexD, {3, 0});
        auto view = Basic::Images::BitmapView<std::complex<double>>::Of(z->Bitmap());
        *view.At(0) = {3, 4};
        *view.At(1) = {0, -2};
        const std::vector<std::pair<std::string, std::function<void(ImageRef, ImageRef)>>> facets{
            {"Magnitude", [](auto a, auto o) { M::Magnitude(a, o); }},
            {"Imaginary", [](auto a, auto o) { M::ComplexFacet(a, o, ::Quilon_::Math::cfImaginary); }},
            {"Real", [](auto a, auto o) { M::RealPart(a, o); }},
            {"Phase", [](auto a, auto o) { M::Phase(a, o); }},
        };
        const std::vector<std::vector<double>> expected{{5, 2}, {4, -2}, {3, 0}, {std::atan2(4, 3), -pi / 2}};
        for (std::size_t f = 0; f < facets.size(); ++f) {
            ImageRef out = Image::New();
            facets[f].second(z, out);
            EXPECT_EQ(out->Format()->DataType(), System::ntDouble) << facets[f].first;
            ExpectSamples(out, expected[f], facets[f].first);
        }

        // Bands times matrix: RGB to (sum, R - B).
        ImageRef rgb = SampleImage(System::ntInt16, {2, 1, 3}, Axes::aXYB, {1, 2, 10, 20, 100, 200});
        ImageRef mixed = Image::New();
        M::MatrixMultiply(rgb, mixed, ::Quilon_::Math::MatrixD::New(3, 2, {1, 1, 1, 0, 1, -1}));
        EXPECT_EQ(mixed->BandCount(), 2);
        ExpectSamples(mixed, {111, 222, -99, -198}, "MatrixMultiply");
    });
}

TEST(ElementwiseOperators, UtilityCopiesConvertAndReshape)
{
    InChildProcess([] {
        StartBasic();
        // Copy converts into the type a sized destination has.
        ImageRef bytes = Row(System::ntUInt8, {0, 0, 0, 0, 0, 9});
        U::Copy(Row(System::ntDouble, {0.5, 1.5, 2.5, -3, 300, nan}), bytes, System::Pointer<IImage, 0>());
        ExpectSamples(bytes, {0, 2, 2, 0, 255, 0}, "Copy double to uint8");

        ImageRef kept = Row(System::ntInt16, {-1, -1, -1});
        ImageRef mask = Row(System::ntUInt8, {0, 1, 0});
        U::Copy(Row(System::ntInt16, {7, 8, 9}), kept, System::Pointer<IImage, 0>(mask));
        ExpectSamples(kept, {-1, 8, -1}, "Copy with mask");

        Image::SetCategory(mask, picBinary, false);
        ImageRef masked = Image::New();
        U::Mask(Row(System::ntFloat, {7, 8, 9}), mask, masked);
        ExpectSamples(masked, {0, 8, 0}, "Mask");

        ImageRef clipped = Image::New();
        U::Clip(Row(System::ntInt32, {-5, 5, 50}), clipped, ::Quilon_::Math::IntervalD::New(0.0, 10.0));
        ExpectSamples(clipped, {0, 5, 10}, "Clip");

        ImageRef mapped = Image::New();
        U::MapThroughLUT(Row(System::ntUInt8, {0, 1, 2, 9}), mapped, std::vector<double>{10, 20, 30});
        ExpectSamples(mapped, {10, 20, 30, 30}, "MapThroughLUT table");
        U::MapThroughLUT(Row(System::ntUInt8, {2, 0}), mapped, Row(System::ntUInt8, {5, 6, 7}));
        ExpectSamples(mapped, {7, 5}, "MapThroughLUT image");

        ImageRef filled = Row(System::ntInt8, {1, 2});
        U::Fill(filled, System::ToAny(-200.0));
        ExpectSamples(filled, {-128, -128}, "Fill");
        U::Clear(filled);
        ExpectSamples(filled, {0, 0}, "Clear");

        // Bands and slices, in 3-D.
        ImageRef colour = SampleImage(System::ntUInt16, {2, 1, 3}, Axes::aXYB, {1, 2, 3, 4, 5, 6});
        ImageRef band = Image::New();
        U::ExtractBand(colour, band, 1);
        EXPECT_FALSE(band->Size()->Axes() & Geometry::aB);
        ExpectSamples(band, {3, 4}, "ExtractBand");
        U::CopyBand(Row(System::ntUInt16, {9, 9}), colour, 2);
        ExpectSamples(colour, {1, 2, 3, 4, 9, 9}, "CopyBand");

        ImageRef volume = SampleImage(System::ntFloat, {2, 2, 2}, Axes::aXYZ, {1, 2, 3, 4, 5, 6, 7, 8});
        ImageRef slice = Image::New();
        U::ExtractSlice(volume, slice, Geometry::aY, 1);
        EXPECT_EQ(slice->Size()->Axes(), Axes::aXZ);
        ExpectSamples(slice, {3, 4, 7, 8}, "ExtractSlice across Y");
        U::CopySlice(SampleImage(System::ntFloat, {2, 2}, Axes::aXY, {0, 0, 0, 0}), volume, Geometry::aZ, 0);
        ExpectSamples(volume, {0, 0, 0, 0, 5, 6, 7, 8}, "CopySlice across Z");

        // Parts.
        ImageRef grid = SampleImage(System::ntInt32, {3, 3}, Axes::aXY, {1, 2, 3, 4, 5, 6, 7, 8, 9});
        ImageRef part = Image::New();
        U::SubCopy(grid, part, Geometry::Coordinates::New(1, 1, Axes::aXY),
                   Geometry::Coordinates::New(2, 2, Axes::aXY));
        ExpectSamples(part, {5, 6, 8, 9}, "SubCopy");
        EXPECT_THAT(System::ToAnsi(RaisedMessage([&] {
                        U::SubCopy(grid, part, Geometry::Coordinates::New(2, 2, Axes::aXY),
                                   Geometry::Coordinates::New(2, 2, Axes::aXY));
                    })),
                    testing::HasSubstr("leaves the image"));
        U::Paste(SampleImage(System::ntInt32, {2, 2}, Axes::aXY, {0, 0, 0, 0}), grid,
                 Geometry::Coordinates::New(2, -1, Axes::aXY));
        ExpectSamples(grid, {1, 2, 0, 4, 5, 6, 7, 8, 9}, "Paste clipped at two borders");
        ImageRef whole = Image::New();
        U::Cut(grid, whole);
        ExpectSamples(whole, SamplesOf(grid), "Cut without a region");
    });
}

TEST(ElementwiseOperators, ColourBandsExpandAndAverage)
{
    InChildProcess([] {
        StartBasic();
        ImageRef colour = Image::New();
        Color::Utility::Functions::ExpandRGB(Row(System::ntUInt8, {10, 20}), colour);
        EXPECT_TRUE((System::Pointer<Color::IColorFormat, 0>(colour->Format())));
        EXPECT_EQ(Image::Category(colour).Value().Value(), L"Image.Category.Color");
        ExpectSamples(colour, {10, 20, 10, 20, 10, 20}, "ExpandRGB");

        ImageRef rgb = SampleImage(System::ntUInt8, {2, 1, 3}, Axes::aXYB, {10, 0, 20, 1, 31, 2});
        ImageRef grey = Image::New();
        Color::Utility::Functions::Intensity(rgb, grey);
        EXPECT_EQ(grey->BandCount(), 1);
        ExpectSamples(grey, {20, 1}, "Intensity rounds the mean");

        ImageRef excess = Image::New();
        Color::Utility::Functions::ExcessRGB(
            SampleImage(System::ntInt16, {1, 1, 3}, Axes::aXYB, {10, 20, 60}), excess);
        ExpectSamples(excess, {-60, -30, 90}, "ExcessRGB");
    });
}

TEST(ElementwiseOperators, EachFamilyRefusesThroughItsRules)
{
    InChildProcess([] {
        StartBasic();
        ImageRef out = Image::New();
        ImageRef grey = Row(System::ntUInt8, {1, 2});
        ImageRef complex = Row(System::ntComplexF, {1, 2});
        const std::vector<std::pair<std::function<void()>, std::string>> refusals{
            {[&] { A::Abs(complex, out); }, "scalar type expected"},
            {[&] { L::And(grey, grey, out); }, "Image.Category.Binary image expected"},
            {[&] { L::BitAnd(Row(System::ntFloat, {1}), std::int64_t(1), out); }, "integral type expected"},
            {[&] { M::MatrixMultiply(grey, out, ::Quilon_::Math::MatrixD::New(1, 1, {2})); },
             "multi-band image expected"},
            {[&] { U::ExtractSlice(grey, out, Geometry::aX, 0); }, "Invalid image dimension: 2 (3 expected)"},
            {[&] {
                 Color::Utility::Functions::ExpandRGB(SampleImage(System::ntUInt8, {1, 1, 2}, Axes::aXYB, {}),
                                                      out);
             },
             "Single band image expected"},
        };
        for (const auto& [call, words] : refusals)
            EXPECT_THAT(System::ToAnsi(RaisedMessage(call)), testing::HasSubstr(words));
        // Refused in Check: the output was never touched.
        EXPECT_TRUE(out->IsEmpty());
    });
}

// Image::SetCategory with conversion runs through these operators: one row
// of its table per case.
TEST(ElementwiseOperators, SetCategoryConvertsThePixelsForEachCategory)
{
    InChildProcess([] {
        StartBasic();
        auto typeOf = [](const ImageRef& image) { return image->Format()->DataType(); };

        ImageRef expanded = Row(System::ntUInt8, {10, 20});
        Image::SetCategory(expanded, picColor, true);
        EXPECT_TRUE((System::Pointer<Color::IColorFormat, 0>(expanded->Format())));
        ExpectSamples(expanded, {10, 20, 10, 20, 10, 20}, "grey to colour");

        ImageRef colour = Image::New();
        Color::Utility::Functions::ExpandRGB(Row(System::ntUInt8, {10, 20}), colour);
        Image::SetCategory(colour, picGrey, true);
        EXPECT_EQ(colour->BandCount(), 1);
        ExpectSamples(colour, {10, 20}, "colour to grey");

        ImageRef bands = SampleImage(System::ntInt16, {2, 1, 2}, Axes::aXYB, {1, 2, 3, 4});
        Image::SetCategory(bands, picLabel, true);
        EXPECT_FALSE(bands->Size()->Axes() & Geometry::aB);
        ExpectSamples(bands, {1, 2}, "bands to label: the first band");

        ImageRef complex = Row(System::ntComplexD, {0, 0});
        *Basic::Images::BitmapView<std::complex<double>>::Of(complex->Bitmap()).At(1) = {3, 4};
        Image::SetCategory(complex, picGrey, true);
        ExpectSamples(complex, {0, 5}, "complex to grey: the magnitude");

        ImageRef edges = Row(System::ntUInt8, {7, 8});
        Image::SetCategory(edges, picEdge, true);
        EXPECT_EQ(edges->BandCount(), 2);
        ExpectSamples(edges, {7, 8, 0, 0}, "grey to edge: one band per axis");

        ImageRef spectrum = Row(System::ntUInt8, {1, 2});
        Image::SetCategory(spectrum, picFrequency, true);
        EXPECT_EQ(typeOf(spectrum), System::ntComplexF);
        ExpectSamples(spectrum, {1, 2}, "grey to frequency");
        ImageRef doubles = Row(System::ntDouble, {1.5});
        Image::SetCategory(doubles, picComplex, true);
        EXPECT_TRUE(System::IsComplex(typeOf(doubles)));
        ExpectSamples(doubles, {1.5}, "double to complex");

        ImageRef other = Row(System::ntFloat, {1.5});
        Image::SetCategory(other, System::LIString(L"Image.Category.Mine", true), true);
        ExpectSamples(other, {1.5}, "another category: no conversion");

        // Binary goes through the measurement and threshold operators.
        if (Images::Measurements::Functions::Range.Overload<0>().ImplementationCount() == 0 ||
            Images::Segmentation::Functions::OtsuThreshold.Overload<0>().ImplementationCount() == 0)
            return;
        auto set = [](const ImageRef& image) {
            std::vector<double> flags;
            for (double value : SamplesOf(image))
                flags.push_back(value != 0);
            return flags;
        };
        const std::vector<std::pair<std::vector<double>, std::vector<double>>> binaries{
            {{0, 0, 0}, {0, 0, 0}}, {{7, 7, 7}, {1, 1, 1}}, {{0, 10, 200, 210}, {0, 0, 1, 1}}};
        for (const auto& [values, expected] : binaries) {
            ImageRef image = Row(System::ntUInt16, values);
            Image::SetCategory(image, picBinary, true);
            EXPECT_EQ(typeOf(image), System::ntUInt8);
            EXPECT_EQ(set(image), expected);
        }
    });
}

// ---- Dense images: the vectorised, banded path ---------------------------------

// `value` (a sum of two samples, rounded to double) as the plain path stores
// it into `type` and SamplesOf reads it back: clamped for integers (64-bit
// results read back round as the double sum did), rounded once for float.
double StoredAs(NumericTypeEnum type, double value)
{
    return WithRealType(type, [&](auto tag) {
        using T = typename decltype(tag)::type;
        if constexpr (std::is_integral_v<T>)
            return std::clamp(value, double(std::numeric_limits<T>::lowest()),
                              double(std::numeric_limits<T>::max()));
        else
            return double(T(value));
    });
}

// Bit for bit, NaN equal to NaN; reports the first difference only.
void ExpectSameSamples(const std::vector<double>& actual, const std::vector<double>& expected,
                       const std::string& what)
{
    ASSERT_EQ(actual.size(), expected.size()) << what;
    for (std::size_t i = 0; i < actual.size(); ++i)
        if (!(actual[i] == expected[i] || (std::isnan(actual[i]) && std::isnan(expected[i])))) {
            ADD_FAILURE() << what << ": sample " << i << " is " << actual[i] << ", not " << expected[i];
            return;
        }
}

TEST(ElementwiseOperators, DenseSumsAndDifferencesSaturateUnderEveryInstructionSet)
{
    InChildProcess([] {
        StartBasic();
        // The plain path's values: the exact result, clamped and stored.
        // Every kernel variant on the small shapes; banding once.
        const DenseShape streamedShape{{1024, 1025}, Axes::aXY};
        for (NumericTypeEnum type :
             {System::ntUInt8, System::ntInt8, System::ntUInt16, System::ntInt16, System::ntUInt32,
              System::ntInt32, System::ntUInt64, System::ntInt64, System::ntFloat, System::ntDouble})
            for (const DenseShape* shape : {&smallVolume, &shortRow, &bandedShape, &streamedShape}) {
                // Results of 8 MB and more are written past the caches.
                if (shape == &streamedShape && type != System::ntDouble)
                    continue;
                const std::size_t count = shape->Count();
                const std::vector<double> x = RandomSamples(type, count, 1),
                                          y = RandomSamples(type, count, 2);
                std::vector<double> sum(count), difference(count);
                for (std::size_t i = 0; i < count; ++i) {
                    sum[i] = StoredAs(type, x[i] + y[i]);
                    difference[i] = StoredAs(type, x[i] - y[i]);
                }
                ImageRef a = SampleImage(type, shape->extent, shape->axes, x),
                         b = SampleImage(type, shape->extent, shape->axes, y);
                const std::string what =
                    System::ToAnsi(System::ToString(type)) + " of " + std::to_string(count);
                const auto check = [&](const std::string& target) {
                    ImageRef out = Image::New();
                    A::Add(a, b, out);
                    ExpectSameSamples(SamplesOf(out), sum, what + " + under " + target);
                    A::Subtract(a, b, out);
                    ExpectSameSamples(SamplesOf(out), difference, what + " - under " + target);
                    // In place, over either operand.
                    ImageRef copy = SampleImage(type, shape->extent, shape->axes, x);
                    A::Add(copy, b, copy);
                    ExpectSameSamples(SamplesOf(copy), sum, what + " += under " + target);
                    copy = SampleImage(type, shape->extent, shape->axes, y);
                    A::Subtract(a, copy, copy);
                    ExpectSameSamples(SamplesOf(copy), difference, what + " =- under " + target);
                };
                if (shape == &bandedShape || shape == &streamedShape)
                    check("the default target");
                else
                    Testing::ForEachSimdTarget(check);
            }
    });
}

} // namespace Quilon_::Tests::Elementwise
