// The thresholds and measurements of the reference library against values
// worked out by hand: thresholds of several sample types, Otsu on a small
// bimodal histogram, hysteresis by connectivity, labels from intervals;
// range, histogram, area, bounding box, moments and volume; and the rule
// chains that guard them.
#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Images/Measurements/Functions.h"
#include "Quilon_/Images/Segmentation/Functions.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/Math/Moments.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/Measurements/Histogram.h"
#include "Quilon_/System/String.h"

#include "../../Support/BasicLibrary.h"
#include "../../Support/InChildProcess.h"
#include "../../Support/Raised.h"
#include "../../Support/SimdTargets.h"
#include "SampleImages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace Quilon_::Tests::SegmentationMeasurementSuite {

using namespace Quilon_::Images;
namespace S = Quilon_::Images::Segmentation::Functions;
namespace M = Quilon_::Images::Measurements::Functions;
using Geometry::Axes;
using ::testing::HasSubstr;
using Mask = System::Pointer<IImage, 0>;

const Axes row(static_cast<unsigned char>(Geometry::aX));

// 255 where `set` holds 1.
std::vector<double> Binary(std::vector<double> set)
{
    for (double& v : set)
        v *= 255;
    return set;
}

// ---- Thresholds -----------------------------------------------------------------

TEST(SegmentationBasic, ThresholdsWriteEightBitBinaryImagesForEverySampleType)
{
    InChildProcess([] {
        StartBasic();
        const std::vector<double> values{-3, 0, 2, 5, 7, 120};
        struct Case {
            const char* name;
            void (*run)(ImageRef, ImageRef);
            std::vector<double> set;
        };
        const Case cases[] = {
            {"interval [0, 5]",
             [](ImageRef a, ImageRef b) { S::Threshold(a, b, ::Quilon_::Math::IntervalD::New(0.0, 5.0)); },
             {0, 1, 1, 1, 0, 0}},
            {"at or above 5", [](ImageRef a, ImageRef b) { S::Threshold(a, b, 5.0); }, {0, 0, 0, 1, 1, 1}},
            {"one value [7, 7]",
             [](ImageRef a, ImageRef b) {
                 S::Threshold(a, b, ::Quilon_::Math::IntervalD::New(std::int64_t(7)));
             },
             {0, 0, 0, 0, 1, 0}},
        };
        for (const Case& c : cases)
            for (System::NumericTypeEnum type : {System::ntInt8, System::ntInt16, System::ntInt32,
                                                 System::ntInt64, System::ntFloat, System::ntDouble}) {
                SCOPED_TRACE(std::string(c.name) + " " + System::ToAnsi(System::ToString(type)));
                ImageRef binary = Image::New();
                c.run(SampleImage(type, {6}, row, values), binary);
                EXPECT_EQ(binary->Format()->DataType(), System::ntUInt8);
                EXPECT_EQ(System::ToAnsi(Image::Category(binary).Value().Value()), "Image.Category.Binary");
                EXPECT_EQ(SamplesOf(binary), Binary(c.set));
            }

        // NaN lies in no interval and above no value; 64-bit values keep
        // their last digit.
        ImageRef withNaN = SampleImage(System::ntFloat, {3}, row, {std::nan(""), 1, 2});
        ImageRef set = Image::New();
        S::Threshold(withNaN, set, -1e9);
        EXPECT_EQ(SamplesOf(set), Binary({0, 1, 1}));
        ImageRef big = SampleImage(System::ntUInt64, {2}, row, {});
        ForEachSample<std::uint64_t>(
            big, [n = std::uint64_t(0)](std::uint64_t& v) mutable { v = (std::uint64_t(1) << 62) + n++; });
        S::Threshold(big, set, ::Quilon_::Math::IntervalD::New(std::ldexp(1.0, 62), std::ldexp(1.0, 62)));
        EXPECT_EQ(SamplesOf(set), Binary({1, 0}));
    });
}

TEST(SegmentationBasic, OtsuSplitsABimodalHistogramWhereTheBetweenClassVarianceIsGreatest)
{
    InChildProcess([] {
        StartBasic();
        // Six 0s, one 2, three 10s. Splitting after 0: 6 * 4 * (0 - 8)^2 =
        // 1536; after 2: 7 * 3 * (2/7 - 10)^2 = 1981.7, the greater. The
        // threshold is 2, the greatest value of the lower class.
        const std::vector<double> values{0, 10, 0, 2, 0, 10, 0, 0, 10, 0};
        for (System::NumericTypeEnum type :
             {System::ntUInt8, System::ntUInt16, System::ntInt64, System::ntDouble}) {
            SCOPED_TRACE(System::ToAnsi(System::ToString(type)));
            ImageRef binary = Image::New();
            double level = -1;
            S::OtsuThreshold(SampleImage(type, {5, 2}, Axes::aXY, values), binary, Mask(), level);
            EXPECT_EQ(level, 2.0);
            EXPECT_EQ(SamplesOf(binary), Binary({0, 1, 0, 0, 0, 1, 0, 0, 1, 0}));
        }

        // Within a mask that leaves out the 2 and four 0s: 0 0 | 10 10 10.
        ImageRef image = SampleImage(System::ntUInt8, {5, 2}, Axes::aXY, values);
        ImageRef mask = SampleImage(System::ntUInt8, {5, 2}, Axes::aXY, {1, 1, 1, 0, 0, 1, 0, 0, 1, 0});
        ImageRef binary = Image::New();
        double level = -1;
        S::OtsuThreshold(image, binary, Mask(mask), level);
        EXPECT_EQ(level, 0.0);
        EXPECT_EQ(SamplesOf(binary), Binary({0, 1, 0, 1, 0, 1, 0, 0, 1, 0}));

        // One value: nothing above it.
        S::OtsuThreshold(SampleImage(System::ntFloat, {3}, row, {4, 4, 4}), binary, Mask(), level);
        EXPECT_EQ(level, 4.0);
        EXPECT_EQ(SamplesOf(binary), Binary({0, 0, 0}));

        // The entropy threshold sums the entropies of the two classes: after
        // 0 that is 0 + (log 4 - 3 log 3 / 4) = 0.56, after 2 (log 7 -
        // 6 log 6 / 7) + 0 = 0.41; it splits after 0.
        S::EntropyThreshold(SampleImage(System::ntUInt8, {5, 2}, Axes::aXY, values), binary, Mask(), level);
        EXPECT_EQ(level, 0.0);
        EXPECT_EQ(SamplesOf(binary), Binary({0, 1, 0, 1, 0, 1, 0, 0, 1, 0}));
    });
}

TEST(SegmentationBasic, HysteresisGrowsFromStrongSamplesThroughItsGraph)
{
    InChildProcess([] {
        StartBasic();
        // 9 is strong; the 5s joined to it stay, the lone 5s go.
        ImageRef line = SampleImage(System::ntUInt8, {8}, row, {0, 5, 9, 5, 0, 5, 5, 0});
        ImageRef binary = Image::New();
        S::HysteresisThreshold(line, binary, 4.0, 8.0);
        EXPECT_EQ(SamplesOf(binary), Binary({0, 1, 1, 1, 0, 0, 0, 0}));

        // A weak sample touching the strong one by a corner: joined with 8
        // neighbours, not with 4.
        const std::vector<double> diagonal{9, 0, 0, 0, 5, 0, 0, 0, 5};
        ImageRef plane = SampleImage(System::ntFloat, {3, 3}, Axes::aXY, diagonal);
        S::HysteresisThreshold(plane, binary, 4.0, 8.0);
        EXPECT_EQ(SamplesOf(binary), Binary({1, 0, 0, 0, 1, 0, 0, 0, 1}));
        S::HysteresisThreshold(plane, binary, 4.0, 8.0, Geometry::pngSquare4);
        EXPECT_EQ(SamplesOf(binary), Binary({1, 0, 0, 0, 0, 0, 0, 0, 0}));

        // In a volume, a step along Z joins with 6 neighbours.
        ImageRef volume = SampleImage(System::ntInt16, {2, 1, 3}, Axes::aXYZ, {9, 0, 5, 0, 5, 5});
        S::HysteresisThreshold(volume, binary, 4.0, 8.0, Geometry::pngCubic6);
        EXPECT_EQ(SamplesOf(binary), Binary({1, 0, 1, 0, 1, 1}));
        EXPECT_THAT(
            RaisedMessage([&] { S::HysteresisThreshold(plane, binary, 4.0, 8.0, Geometry::pngHexagonal6); }),
            HasSubstr(L"Unsupported neighbourhood graph: pngHexagonal6"));
    });
}

TEST(SegmentationBasic, MultiThresholdLabelsByTheFirstIntervalHolding)
{
    InChildProcess([] {
        StartBasic();
        using ::Quilon_::Math::IntervalD::New;
        ImageRef labels = Image::New();
        S::MultiThreshold(SampleImage(System::ntDouble, {6}, row, {0, 1, 2.5, 3, 9, 4}), labels,
                          {New(1.0, 3.0), New(2.0, 5.0)});
        EXPECT_EQ(labels->Format()->DataType(), System::ntUInt8);
        EXPECT_EQ(System::ToAnsi(Image::Category(labels).Value().Value()), "Image.Category.Label");
        EXPECT_EQ(SamplesOf(labels), (std::vector<double>{0, 1, 1, 1, 0, 2}));
    });
}

TEST(SegmentationBasic, ChainsCheckTheSourceBeforeTheOutputIsMade)
{
    InChildProcess([] {
        StartBasic();
        ImageRef out = Image::New();
        ImageRef bands = SampleImage(System::ntUInt8, {2, 2, 2}, Axes::aXYB, {});
        EXPECT_THAT(RaisedMessage([&] { S::Threshold(bands, out, 1.0); }),
                    HasSubstr(L"Single band image expected"));
        ImageRef complexRow = SampleImage(System::ntComplexD, {2}, row, {1, 2});
        EXPECT_THAT(RaisedMessage([&] { S::OtsuThreshold(complexRow, out, Mask()); }),
                    HasSubstr(L"scalar type expected"));
        EXPECT_TRUE(out->IsEmpty());
        // Only three operators of the family have no rule at all.
        for (const auto* rules :
             {&S::RegionGrow.Overload<0>().AllRules(), &S::Clusters.Overload<0>().AllRules(),
              &S::AdaptivePercentileThreshold.Overload<2>().AllRules()})
            for (const auto& collection : *rules)
                EXPECT_FALSE(collection);
        EXPECT_TRUE(S::AdaptivePercentileThreshold.Overload<0>().Rules(System::Functions::rtMake));
    });
}

// ---- Measurements -----------------------------------------------------------------

TEST(MeasurementsBasic, RangeAndHistogramCountEverySampleOnce)
{
    InChildProcess([] {
        StartBasic();
        const std::vector<double> values{3, 250, 3, 0, 7, 250};
        for (System::NumericTypeEnum type :
             {System::ntUInt8, System::ntInt32, System::ntUInt64, System::ntFloat}) {
            SCOPED_TRACE(System::ToAnsi(System::ToString(type)));
            ImageRef image = SampleImage(type, {3, 2}, Axes::aXY, values);
            System::Ref<::Quilon_::Math::IRangeD> range = M::Range(image);
            EXPECT_EQ(range->Minimum(), 0.0);
            EXPECT_EQ(range->Maximum(), 250.0);
            // Five bins of width 50 over [0, 250]: the last also takes 250.
            auto histogram = M::Histogram(image, 5, ::Quilon_::Math::RangeD::New(0.0, 250.0));
            EXPECT_EQ(histogram->Counts(), (std::vector<std::int64_t>{4, 0, 0, 0, 2}));
        }
        // One bin per value for 8 bits.
        auto bytes = M::Histogram(SampleImage(System::ntUInt8, {3, 2}, Axes::aXY, values));
        const std::vector<std::int64_t> counts = bytes->Counts();
        ASSERT_EQ(counts.size(), 256u);
        EXPECT_EQ(counts[0], 1);
        EXPECT_EQ(counts[3], 2);
        EXPECT_EQ(counts[250], 2);
        EXPECT_EQ(bytes->Total(), 6);

        // NaN is left out; within a mask only the masked samples count.
        ImageRef floats = SampleImage(System::ntFloat, {4}, row, {std::nan(""), -2, 5, 1});
        EXPECT_EQ(M::Range(floats)->Minimum(), -2.0);
        ImageRef mask = SampleImage(System::ntUInt8, {4}, row, {1, 0, 1, 1});
        System::Ref<::Quilon_::Math::IRangeD> masked = M::Range(floats, Mask(mask));
        EXPECT_EQ(masked->Minimum(), 1.0);
        EXPECT_EQ(masked->Maximum(), 5.0);
        ImageRef empty = SampleImage(System::ntUInt8, {4}, row, {});
        EXPECT_EQ(M::Range(floats, Mask(empty))->Maximum(), 0.0);
    });
}

TEST(MeasurementsBasic, AreaBoundingBoxAndObjectsOfABinaryVolume)
{
    InChildProcess([] {
        StartBasic();
        // Set samples at (1, 0, 1) and (2, 1, 2) of a 4 x 2 x 3 volume.
        std::vector<double> values(24, 0);
        values[1 + 4 * (0 + 2 * 1)] = 1;
        values[2 + 4 * (1 + 2 * 2)] = 1;
        ImageRef binary = Image::New();
        S::Threshold(SampleImage(System::ntUInt16, {4, 2, 3}, Axes::aXYZ, values), binary, 1.0);
        double area = 0;
        M::Area(binary, area);
        EXPECT_EQ(area, 2.0);
        System::Pointer<Geometry::IBox, 0> box;
        M::BoundingBox(binary, box);
        ASSERT_TRUE(box);
        EXPECT_EQ(box->Axes(), Axes::aXYZ);
        EXPECT_EQ(box->Lower()->Value(Geometry::aX), 1);
        EXPECT_EQ(box->Lower()->Value(Geometry::aZ), 1);
        EXPECT_EQ(box->Upper()->Value(Geometry::aX), 3);
        EXPECT_EQ(box->Upper()->Value(Geometry::aY), 2);
        EXPECT_EQ(box->Upper()->Value(Geometry::aZ), 3);

        // The two touch only by a corner: one object with 26 neighbours,
        // two with 6.
        double objects = 0;
        M::ObjectCount(binary, objects);
        EXPECT_EQ(objects, 1.0);
        M::ObjectCount(binary, Geometry::pngCubic6, objects);
        EXPECT_EQ(objects, 2.0);

        S::Threshold(SampleImage(System::ntUInt8, {3}, row, {}), binary, 1.0);
        M::BoundingBox(binary, box);
        EXPECT_FALSE(box);
        M::ObjectCount(binary, objects);
        EXPECT_EQ(objects, 0.0);

        // A grey image is no binary image.
        ImageRef grey = SampleImage(System::ntUInt8, {3}, row, {1, 2, 3});
        EXPECT_THAT(RaisedMessage([&] { M::Area(grey, area); }), HasSubstr(L"Image.Category.Binary"));
    });
}

TEST(MeasurementsBasic, MomentsAndVolumeAreGivenPerBand)
{
    InChildProcess([] {
        StartBasic();
        // Band 0: 1 2 3 6 (mean 3, variance 3.5); band 1: constant 4.
        ImageRef image = SampleImage(System::ntInt16, {2, 2, 2}, Axes::aXYB, {1, 2, 3, 6, 4, 4, 4, 4});
        const std::vector<::Quilon_::Math::Moments> moments = M::Moments(image);
        ASSERT_EQ(moments.size(), 2u);
        EXPECT_EQ(moments[0].Minimum(), 1.0);
        EXPECT_EQ(moments[0].Maximum(), 6.0);
        EXPECT_DOUBLE_EQ(moments[0].Mean(), 3.0);
        EXPECT_DOUBLE_EQ(moments[0].StandardDeviation(), std::sqrt(3.5));
        // Third central moment (-8 - 1 + 0 + 27) / 4 = 4.5; fourth (16 + 1 + 0 + 81) / 4 = 24.5.
        EXPECT_NEAR(moments[0].Skewness(), 4.5 / std::pow(3.5, 1.5), 1e-12);
        EXPECT_NEAR(moments[0].Kurtosis(), 24.5 / (3.5 * 3.5), 1e-12);
        EXPECT_EQ(moments[1].Mean(), 4.0);
        EXPECT_EQ(moments[1].StandardDeviation(), 0.0);
        EXPECT_EQ(moments[1].Skewness(), 0.0);

        // Within a binary mask of the plane: samples 2 and 6 of band 0.
        ImageRef mask = Image::New();
        S::Threshold(SampleImage(System::ntUInt8, {2, 2}, Axes::aXY, {0, 1, 0, 1}), mask, 1.0);
        const auto masked = M::Moments(image, mask);
        EXPECT_DOUBLE_EQ(masked[0].Mean(), 4.0);
        EXPECT_DOUBLE_EQ(masked[0].StandardDeviation(), 2.0);

        // Weights 1 1 1 3 give the mean (1 + 2 + 3 + 18) / 6 = 4.
        ImageRef weights = SampleImage(System::ntFloat, {2, 2, 2}, Axes::aXYB, {1, 1, 1, 3, 1, 1, 1, 3});
        EXPECT_DOUBLE_EQ(M::Moments(image, weights, Mask())[0].Mean(), 4.0);

        std::vector<double> sums;
        M::Volume(image, sums);
        EXPECT_EQ(sums, (std::vector<double>{12, 16}));
    });
}

// ---- Dense images: counted by value, thresholded in bands ----------------------

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double inf = std::numeric_limits<double>::infinity();

// Banded, and a small volume.
const std::vector<DenseShape> denseShapes{bandedShape, smallVolume};

std::vector<double> TwoHumps(System::NumericTypeEnum type, std::size_t count, unsigned seed)
{
    return RandomSamples(type, count, seed, Spread::twoHumps);
}

std::string Describe(System::NumericTypeEnum type, std::size_t count)
{
    return System::ToAnsi(System::ToString(type)) + " of " + std::to_string(count);
}

TEST(SegmentationBasic, DenseThresholdsCompareAsDoublesUnderEveryInstructionSet)
{
    InChildProcess([] {
        StartBasic();
        // lower <= v <= upper, as the source's samples compare in double:
        // bounds between samples, beyond the type's range (both ways), NaN,
        // empty intervals, and near the ends of the 64-bit types.
        const std::vector<std::pair<double, double>> bounds{
            {128, inf},    {10, 200.5},       {-inf, inf},   {0.5, inf},      {-1e300, inf},
            {1e300, inf},  {nan, inf},        {0.1, inf},    {-0.1, 0.1},     {200, 100},
            {nan, 5.0},    {-40000, 40000.5}, {9.2e18, inf}, {-inf, -9.2e18}, {0x1p63, inf},
            {0x1p64, inf}, {-0x1p63, -0x1p63}};
        // The first `boundCount` bounds only, if given.
        const auto expectThresholds = [&](const ImageRef& source, const std::vector<double>& values,
                                          const std::string& what, std::size_t boundCount = 0) {
            for (std::size_t k = 0; k < (boundCount ? boundCount : bounds.size()); ++k) {
                const auto [lower, upper] = bounds[k];
                std::vector<double> expected(values.size());
                for (std::size_t i = 0; i < values.size(); ++i)
                    expected[i] = lower <= values[i] && values[i] <= upper ? 255 : 0;
                ImageRef binary = Image::New();
                if (upper == inf)
                    S::Threshold(source, binary, lower);
                else
                    S::Threshold(source, binary, ::Quilon_::Math::IntervalD::New(lower, upper));
                ASSERT_EQ(SamplesOf(binary), expected) << what << " [" << lower << ", " << upper << "]";
            }
        };
        // Every kernel variant on a small volume; banding once, with the
        // default choice.
        for (System::NumericTypeEnum type :
             {System::ntUInt8, System::ntInt8, System::ntUInt16, System::ntInt16, System::ntUInt32,
              System::ntInt32, System::ntUInt64, System::ntInt64, System::ntFloat, System::ntDouble}) {
            std::vector<double> values = TwoHumps(type, smallVolume.Count(), 3);
            // The ends of the range, which the bounds above reach.
            WithRealType(type, [&](auto tag) {
                using L = std::numeric_limits<typename decltype(tag)::type>;
                values[1] = double(L::lowest());
                values[2] = sizeof(L::max()) == 8 ? std::nextafter(double(L::max()), 0.0) : double(L::max());
            });
            ImageRef source = SampleImage(type, smallVolume.extent, smallVolume.axes, values);
            Testing::ForEachSimdTarget([&](const std::string& target) {
                expectThresholds(source, values, Describe(type, values.size()) + " under " + target);
            });
            values = TwoHumps(type, bandedShape.Count(), 3);
            expectThresholds(SampleImage(type, bandedShape.extent, bandedShape.axes, values), values,
                             Describe(type, values.size()), 3);
        }
        // In place: an 8-bit image thresholded over itself, large enough
        // for its result to be written past the caches.
        const DenseShape streamed{{2900, 2901}, Axes::aXY};
        // Scrambled bytes, cheaper to make than random ones.
        std::vector<double> values(streamed.Count());
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = double(std::uint32_t(i * 2654435761u) >> 24);
        ImageRef image = SampleImage(System::ntUInt8, streamed.extent, streamed.axes, values);
        S::Threshold(image, image, 100.0);
        std::vector<double> expected(values.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            expected[i] = values[i] >= 100 ? 255 : 0;
        EXPECT_EQ(SamplesOf(image), expected);
    });
}

TEST(SegmentationBasic, OtsuAndEntropyByValueTableMatchTheSortedCounts)
{
    InChildProcess([] {
        StartBasic();
        // 8- and 16-bit images are counted by value, with or without a mask;
        // the same values as 32-bit integers are sorted and counted, the
        // reference. Masks: random 0 and 1 bytes; floats with NaN (set) and
        // -0 (not set); all zero.
        struct Levels {
            double otsu = nan, entropy = nan;
            std::vector<double> aboveOtsu, aboveEntropy;
            bool operator==(const Levels&) const = default;
        };
        const auto levelsOf = [](const ImageRef& source, const Mask& mask) {
            Levels levels;
            ImageRef binary = Image::New();
            S::OtsuThreshold(source, binary, mask, levels.otsu);
            levels.aboveOtsu = SamplesOf(binary);
            S::EntropyThreshold(source, binary, mask, levels.entropy);
            levels.aboveEntropy = SamplesOf(binary);
            return levels;
        };
        for (System::NumericTypeEnum type :
             {System::ntUInt8, System::ntInt8, System::ntUInt16, System::ntInt16})
            for (const DenseShape* shape : {&smallVolume, &bandedShape}) {
                const std::size_t count = shape->Count();
                const std::vector<double> values = TwoHumps(type, count, 4);
                ImageRef source = SampleImage(type, shape->extent, shape->axes, values);
                ImageRef reference = SampleImage(System::ntInt32, shape->extent, shape->axes, values);
                std::vector<double> bits = RandomSamples(System::ntUInt8, count, 5), floats = bits;
                for (std::size_t i = 0; i < count; ++i) {
                    bits[i] = double(int(bits[i]) & 1);
                    floats[i] = std::vector<double>{nan, -0.0, 0.0, 2.5}[std::size_t(floats[i]) % 4];
                }
                const std::vector<std::pair<const char*, Mask>> masks{
                    {"no mask", Mask()},
                    {"bytes", SampleImage(System::ntUInt8, shape->extent, shape->axes, bits)},
                    {"floats", SampleImage(System::ntFloat, shape->extent, shape->axes, floats)},
                    {"zeros", SampleImage(System::ntUInt16, shape->extent, shape->axes, {})}};
                for (const auto& [name, mask] : masks) {
                    const Levels expected = levelsOf(reference, mask);
                    const auto check = [&](const std::string& target) {
                        EXPECT_TRUE(levelsOf(source, mask) == expected)
                            << Describe(type, count) << ", " << name << ", under " << target;
                    };
                    if (shape == &bandedShape)
                        check("the default target");
                    else
                        Testing::ForEachSimdTarget(check);
                }
            }
    });
}

TEST(MeasurementsBasic, HistogramsByValueTableMatchTheSampleWalk)
{
    InChildProcess([] {
        StartBasic();
        // The same samples as doubles take the walk sample by sample.
        for (System::NumericTypeEnum type :
             {System::ntUInt8, System::ntInt8, System::ntUInt16, System::ntInt16})
            for (const DenseShape& shape : denseShapes) {
                SCOPED_TRACE(Describe(type, shape.Count()));
                const std::vector<double> values = TwoHumps(type, shape.Count(), 5);
                ImageRef image = SampleImage(type, shape.extent, shape.axes, values);
                ImageRef doubles = SampleImage(System::ntDouble, shape.extent, shape.axes, values);
                for (const auto& [bins, low, high] :
                     std::vector<std::tuple<std::int64_t, double, double>>{{7, -3.5, 200.25},
                                                                           {256, 0, 256},
                                                                           {1000, -40000, 40000},
                                                                           {2, 100, 100.5},
                                                                           {3, 100, 100}}) {
                    auto range = ::Quilon_::Math::RangeD::New(low, high);
                    EXPECT_EQ(M::Histogram(image, bins, range)->Counts(),
                              M::Histogram(doubles, bins, range)->Counts())
                        << bins << " bins over [" << low << ", " << high << "]";
                }
                // One bin per value of the type, from its lowest.
                const std::vector<std::int64_t> counts = M::Histogram(image)->Counts();
                const double lowest = WithRealType(type, [](auto tag) {
                    return double(std::numeric_limits<typename decltype(tag)::type>::lowest());
                });
                std::vector<std::int64_t> expected(counts.size(), 0);
                for (double value : values)
                    ++expected.at(std::size_t(value - lowest));
                EXPECT_EQ(counts, expected);
            }
    });
}

// [least, greatest] of the samples whose mask value is not 0 (NaN is set),
// NaN passed over, the first of equal ones kept; [0, 0] with none.
std::pair<double, double> RangeByWalk(const std::vector<double>& values, const std::vector<double>* mask)
{
    double low = std::numeric_limits<double>::infinity(), high = -low;
    for (std::size_t i = 0; i < values.size(); ++i)
        if ((!mask || (*mask)[i] != 0) && !std::isnan(values[i])) {
            low = values[i] < low ? values[i] : low;
            high = high < values[i] ? values[i] : high;
        }
    return low > high ? std::pair(0.0, 0.0) : std::pair(low, high);
}

TEST(MeasurementsBasic, RangesOfDenseImagesMatchTheSampleWalk)
{
    InChildProcess([] {
        StartBasic();
        const auto expectRange = [](const ImageRef& image, const Mask& mask,
                                    std::pair<double, double> expected, const std::string& what) {
            const auto range = mask ? M::Range(image, mask) : M::Range(image);
            EXPECT_EQ(std::signbit(range->Minimum()), std::signbit(expected.first)) << what;
            EXPECT_EQ(range->Minimum(), expected.first) << what;
            EXPECT_EQ(range->Maximum(), expected.second) << what;
        };
        for (System::NumericTypeEnum type :
             {System::ntUInt8, System::ntInt8, System::ntUInt16, System::ntInt16, System::ntInt32,
              System::ntUInt32, System::ntInt64, System::ntFloat, System::ntDouble})
            for (const DenseShape* shape : {&bandedShape, &smallVolume, &shortRow}) {
                const std::size_t count = shape->Count();
                const std::vector<double> values = TwoHumps(type, count, 6);
                ImageRef image = SampleImage(type, shape->extent, shape->axes, values);
                // Masks: random bytes selecting about one in 8; floats with
                // NaN (set) and -0 (not set); a single sample; none set.
                std::vector<double> sparse = RandomSamples(System::ntUInt8, count, 7), floats = sparse,
                                    single(count, 0.0);
                for (std::size_t i = 0; i < count; ++i) {
                    sparse[i] = double(int(sparse[i]) % 8 == 0);
                    floats[i] = std::vector<double>{nan, -0.0, 0.0, 2.5}[std::size_t(floats[i]) % 4];
                }
                single[count / 2] = 1;
                const std::vector<double> none(count, 0.0);
                const std::vector<
                    std::tuple<const char*, System::NumericTypeEnum, const std::vector<double>*>>
                    masks{{"no mask", System::ntUInt8, nullptr},
                          {"sparse bytes", System::ntUInt8, &sparse},
                          {"floats", System::ntFloat, &floats},
                          {"one sample", System::ntUInt16, &single},
                          {"none set", System::ntUInt1, &none}};
                for (const auto& [name, maskType, maskValues] : masks) {
                    const Mask mask =
                        maskValues ? Mask(SampleImage(maskType, shape->extent, shape->axes, *maskValues))
                                   : Mask();
                    const auto expected = RangeByWalk(values, maskValues);
                    const auto check = [&](const std::string& target) {
                        expectRange(image, mask, expected,
                                    Describe(type, count) + ", " + name + ", under " + target);
                    };
                    if (shape == &bandedShape)
                        check("the default target");
                    else
                        Testing::ForEachSimdTarget(check);
                }
            }
        // Of equal extremes the first in memory is kept, across bands too;
        // an image of NaNs alone has the range [0, 0].
        const DenseShape large = bandedShape;
        std::vector<double> zeros(large.Count(), 1.0);
        zeros[10] = -0.0;
        zeros[large.Count() - 10] = 0.0;
        const std::vector<double> ones(large.Count(), 1.0);
        const Mask all(SampleImage(System::ntUInt8, large.extent, large.axes, ones));
        for (const Mask& mask : {Mask(), all}) {
            expectRange(SampleImage(System::ntFloat, large.extent, large.axes, zeros), mask,
                        RangeByWalk(zeros, nullptr), "-0 first");
            std::vector<double> swapped = zeros;
            std::swap(swapped[10], swapped[large.Count() - 10]);
            expectRange(SampleImage(System::ntDouble, large.extent, large.axes, swapped), mask,
                        RangeByWalk(swapped, nullptr), "0 first");
            expectRange(SampleImage(System::ntFloat, large.extent, large.axes,
                                    std::vector<double>(large.Count(), nan)),
                        mask, {0.0, 0.0}, "NaN alone");
        }
    });
}

} // namespace Quilon_::Tests::SegmentationMeasurementSuite
