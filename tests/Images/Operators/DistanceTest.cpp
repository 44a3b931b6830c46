// The Euclidean distance transform of the reference library against the
// distance to the nearest background sample found by trying them all, on
// planes, lines and volumes, sparse and dense background,
// into float (vectorised roots), double and saturating integer outputs,
// under every instruction set the processor has.
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Images/Morphology/Distance/Functions.h"
#include "Quilon_/Images/Morphology/Geodesy/Functions.h"

#include "../../Support/BasicLibrary.h"
#include "../../Support/InChildProcess.h"
#include "../../Support/SimdTargets.h"
#include "SampleImages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace Quilon_::Tests::DistanceSuite {

using Geometry::Axes;
using Testing::ForEachSimdTarget;
namespace Distance = Quilon_::Images::Morphology::Distance::Functions;

struct Shape {
    const char* name;
    std::int64_t nx, ny, nz, steps; // along T, one volume each
};

// Squared distances to the nearest zero of each volume (one per time step),
// infinity where a volume has none.
std::vector<double> BruteForceSquared(const Shape& s, const std::vector<double>& values)
{
    std::vector<double> squared(values.size(), std::numeric_limits<double>::infinity());
    const std::int64_t volume = s.nx * s.ny * s.nz;
    for (std::int64_t t = 0; t < s.steps; ++t)
        for (std::int64_t p = 0; p < volume; ++p)
            for (std::int64_t q = 0; q < volume; ++q) {
                if (values[std::size_t(t * volume + q)] != 0)
                    continue;
                const std::int64_t dx = p % s.nx - q % s.nx, dy = p / s.nx % s.ny - q / s.nx % s.ny,
                                   dz = p / (s.nx * s.ny) - q / (s.nx * s.ny);
                double& best = squared[std::size_t(t * volume + p)];
                best = std::min(best, double(dx * dx + dy * dy + dz * dz));
            }
    return squared;
}

std::vector<std::int64_t> OutputExtent(const Shape& s)
{
    std::vector<std::int64_t> extent{s.nx, s.ny};
    if (s.nz > 1)
        extent.push_back(s.nz);
    if (s.steps > 1)
        extent.push_back(s.steps);
    return extent;
}

// What an output of `type` holds for a distance: the float nearest to it,
// the double, or the integer nearest to it, saturated.
double SampleValueOf(System::NumericTypeEnum type, double distance)
{
    return type == System::ntFloat    ? double(float(distance))
           : type == System::ntDouble ? distance
                                      : std::min(std::nearbyint(distance), 255.0);
}

ImageRef BinaryInput(const Shape& s, const std::vector<double>& values)
{
    const Axes axes = static_cast<Axes>(Geometry::aX | Geometry::aY | (s.nz > 1 ? Geometry::aZ : 0) |
                                        (s.steps > 1 ? Geometry::aT : 0));
    ImageRef image = SampleImage(System::ntUInt8, OutputExtent(s), axes, values);
    Images::Image::SetCategory(image, Images::picBinary, false);
    return image;
}

TEST(DistanceBasic, EuclideanDistancesAreThoseToTheNearestBackgroundSample)
{
    InChildProcess([] {
        StartBasic();
        const Shape shapes[] = {{"1 x 1", 1, 1, 1, 1},     {"1 x 9", 1, 9, 1, 1},
                                {"9 x 1", 9, 1, 1, 1},     {"7 x 13", 7, 13, 1, 1},
                                {"67 x 35", 67, 35, 1, 1}, {"9 x 7 x 5", 9, 7, 5, 1}};
        std::mt19937 random(7);
        for (const Shape& s : shapes)
            for (const int oneIn : {1, 4, 60, 100000}) { // background everywhere .. nowhere
                SCOPED_TRACE(std::string(s.name) + ", background one in " + std::to_string(oneIn));
                std::vector<double> values(std::size_t(s.nx * s.ny * s.nz * s.steps));
                for (double& v : values)
                    v = random() % oneIn == 0 ? 0 : 1;
                const std::vector<double> squared = BruteForceSquared(s, values);
                const ImageRef input = BinaryInput(s, values);
                ForEachSimdTarget([&](const std::string& target) {
                    SCOPED_TRACE(target);
                    for (System::NumericTypeEnum type :
                         {System::ntFloat, System::ntDouble, System::ntUInt8}) {
                        ImageRef output = SampleImage(type, OutputExtent(s), input->Size()->Axes(), {});
                        Distance::Distance(input, output);
                        const std::vector<double> actual = SamplesOf(output);
                        for (std::size_t i = 0; i < actual.size(); ++i) {
                            const double expected = SampleValueOf(type, std::sqrt(squared[i]));
                            ASSERT_EQ(actual[i], expected)
                                << "sample " << i << " into " << System::ToAnsi(System::ToString(type));
                        }
                    }
                });
            }
    });
}

TEST(DistanceBasic, LongDistancesKeepTheRootOfTheExactSquare)
{
    InChildProcess([] {
        StartBasic();
        // Squared distances beyond 2^24 are no longer floats exactly.
        const Shape row{"two rows", 6000, 2, 1, 1};
        std::vector<double> values(12000, 1);
        values[0] = 0;
        const ImageRef input = BinaryInput(row, values);
        ForEachSimdTarget([&](const std::string& target) {
            SCOPED_TRACE(target);
            ImageRef output = SampleImage(System::ntFloat, OutputExtent(row), input->Size()->Axes(), {});
            Distance::Distance(input, output);
            const std::vector<double> actual = SamplesOf(output);
            for (std::size_t i = 0; i < actual.size(); ++i) {
                const double x = double(i % 6000), y = double(i / 6000);
                ASSERT_EQ(actual[i], double(float(std::sqrt(x * x + y * y)))) << "sample " << i;
            }
        });
    });
}

TEST(DistanceBasic, RowsFarFromTheBackgroundTakeTheExactEnvelope)
{
    InChildProcess([] {
        StartBasic();
        // Along the rows, samples near the background and samples up to 150
        // away from it, in the same row and in rows of their own.
        const Shape wide{"wide", 300, 4, 1, 1};
        std::vector<double> values(1200, 1);
        for (std::size_t at : {5u, 7u, 60u, 299u, 300u + 150u, 900u})
            values[at] = 0;
        const std::vector<double> squared = BruteForceSquared(wide, values);
        const ImageRef input = BinaryInput(wide, values);
        ForEachSimdTarget([&](const std::string& target) {
            SCOPED_TRACE(target);
            ImageRef output = SampleImage(System::ntDouble, OutputExtent(wide), input->Size()->Axes(), {});
            Distance::Distance(input, output);
            const std::vector<double> actual = SamplesOf(output);
            for (std::size_t i = 0; i < actual.size(); ++i)
                ASSERT_EQ(actual[i], std::sqrt(squared[i])) << "sample " << i;
        });
    });
}

// Time steps and bands. Each time step is a volume of its own; the output
// of a multi-band input has no bands (the rules make it grey) and holds
// the distances of the input's first band. The Euclidean, chessboard and
// geodesic transforms, into a fresh output and a ready one.
TEST(DistanceBasic, TimeStepsAreVolumesOfTheirOwnAndBandsReduceToTheFirst)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            Shape shape;
            std::int64_t bands;
        };
        const Case cases[] = {{{"9 x 7, 2 steps", 9, 7, 1, 2}, 1},
                              {{"5 x 4 x 3, 2 steps", 5, 4, 3, 2}, 1},
                              {{"9 x 7, 3 bands", 9, 7, 1, 1}, 3},
                              {{"6 x 5, 2 steps of 2 bands", 6, 5, 1, 2}, 2}};
        std::mt19937 random(11);
        for (const Case& c : cases) {
            const Shape& s = c.shape;
            const std::int64_t volume = s.nx * s.ny * s.nz, steps = s.steps * volume;
            std::vector<double> values(std::size_t(steps * c.bands));
            for (double& v : values)
                v = random() % 5 == 0 ? 0 : 1;
            // The first band: the first time steps, B being the slowest axis.
            const std::vector<double> first(values.begin(), values.begin() + steps);
            const std::vector<double> squared = BruteForceSquared(s, first);
            std::vector<double> chessboard(first.size(), std::numeric_limits<double>::infinity());
            for (std::int64_t p = 0; p < steps; ++p)
                for (std::int64_t q = p / volume * volume; q < (p / volume + 1) * volume; ++q)
                    if (first[std::size_t(q)] == 0) {
                        const std::int64_t a = p % volume, b = q % volume;
                        const std::int64_t d = std::max({std::abs(a % s.nx - b % s.nx),
                                                         std::abs(a / s.nx % s.ny - b / s.nx % s.ny),
                                                         std::abs(a / (s.nx * s.ny) - b / (s.nx * s.ny))});
                        chessboard[std::size_t(p)] = std::min(chessboard[std::size_t(p)], double(d));
                    }

            std::vector<std::int64_t> extent = OutputExtent(s);
            unsigned axes = static_cast<unsigned char>(BinaryInput(s, {})->Size()->Axes());
            const std::vector<std::int64_t> outputExtent = extent;
            const Axes outputAxes = static_cast<Axes>(axes);
            if (c.bands > 1) {
                extent.push_back(c.bands);
                axes |= Geometry::aB;
            }
            ImageRef input = SampleImage(System::ntUInt8, extent, static_cast<Axes>(axes), values);
            Images::Image::SetCategory(input, Images::picBinary, false);
            ImageRef whole = SampleImage(System::ntUInt8, extent, static_cast<Axes>(axes),
                                         std::vector<double>(values.size(), 1));
            Images::Image::SetCategory(whole, Images::picBinary, false);
            std::vector<double> marks(values.size());
            for (std::size_t i = 0; i < marks.size(); ++i)
                marks[i] = values[i] == 0 ? 1 : 0;
            ImageRef seeds = SampleImage(System::ntUInt8, extent, static_cast<Axes>(axes), marks);
            Images::Image::SetCategory(seeds, Images::picBinary, false);
            const auto graph = Geometry::NgbGraph::New(s.nz > 1 ? Geometry::pngCubic26 : Geometry::pngSquare8,
                                                       s.nz > 1 ? Axes::aXYZ : Axes::aXY);
            for (const bool fresh : {true, false}) {
                SCOPED_TRACE(std::string(s.name) + (fresh ? ", fresh output" : ", ready output"));
                const auto output = [&] {
                    return fresh ? Images::Image::New()
                                 : SampleImage(System::ntDouble, outputExtent, outputAxes, {});
                };
                const auto expect = [&](const ImageRef& image, const std::vector<double>& expected,
                                        const char* what) {
                    EXPECT_EQ(image->Size()->Axes(), outputAxes) << what;
                    const std::vector<double> actual = SamplesOf(image);
                    ASSERT_EQ(actual.size(), expected.size()) << what;
                    for (std::size_t i = 0; i < actual.size(); ++i)
                        ASSERT_EQ(actual[i], expected[i]) << what << ", sample " << i;
                };
                ImageRef euclidean = output();
                Distance::Distance(input, euclidean);
                std::vector<double> roots(squared.size());
                for (std::size_t i = 0; i < roots.size(); ++i)
                    roots[i] = SampleValueOf(euclidean->Format()->DataType(), std::sqrt(squared[i]));
                expect(euclidean, roots, "Euclidean");
                ImageRef steps8 = output();
                Distance::Distance(input, steps8, graph);
                expect(steps8, chessboard, "chessboard");
                ImageRef geodesic = output();
                Quilon_::Images::Morphology::Geodesy::Functions::Distance(whole, seeds, geodesic, graph);
                expect(geodesic, chessboard, "geodesic");
            }
        }
    });
}

} // namespace Quilon_::Tests::DistanceSuite
