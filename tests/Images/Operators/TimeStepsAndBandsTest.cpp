// Morphology, threshold and filter operators on images with time steps and
// bands: each time step is processed as an image of its own, and a
// multi-band input is accepted by the operators whose rules make a
// single-band output.
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Filtering/Functions.h"
#include "Quilon_/Images/Morphology/Basic/Functions.h"
#include "Quilon_/Images/Morphology/Distance/Functions.h"
#include "Quilon_/Images/Morphology/Features/Functions.h"
#include "Quilon_/Images/Morphology/Geodesy/Functions.h"
#include "Quilon_/Images/Morphology/OpeningClosing/Functions.h"
#include "Quilon_/Images/Morphology/Segmentation/Functions.h"
#include "Quilon_/Images/Segmentation/Functions.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/System/String.h"

#include "../../Support/BasicLibrary.h"
#include "../../Support/InChildProcess.h"
#include "SampleImages.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>

namespace Quilon_::Tests::TimeStepsAndBandsSuite {

using Geometry::Axes;
namespace M = Quilon_::Images::Morphology;
namespace S = Quilon_::Images::Segmentation::Functions;
namespace F = Quilon_::Images::Filtering::Functions;

struct Operator {
    const char* name;
    bool binaryInput;
    std::function<void(ImageRef, ImageRef)> call;
    // Whose rules refuse more than one band.
    bool singleBand = false;
};

ImageRef Input(const std::vector<std::int64_t>& extent, Axes axes, const std::vector<double>& values,
               bool binary)
{
    ImageRef image = SampleImage(System::ntUInt8, extent, axes, values);
    if (binary)
        Images::Image::SetCategory(image, Images::picBinary, false);
    return image;
}

TEST(TimeStepsAndBands, EachTimeStepIsAnImageOfItsOwnAndBandsAreAccepted)
{
    InChildProcess([] {
        StartBasic();
        const auto graph = Geometry::NgbGraph::New(Geometry::pngSquare8, Axes::aXY);
        const auto square = Geometry::StructuringElement::New(Geometry::pseSquare, 1.0);
        const Operator operators[] = {
            {"Erode", false, [&](ImageRef i, ImageRef o) { M::Basic::Functions::Erode(i, o, square); }},
            {"Dilate", false, [&](ImageRef i, ImageRef o) { M::Basic::Functions::Dilate(i, o, graph, 2); }},
            {"Open", false,
             [&](ImageRef i, ImageRef o) { M::OpeningClosing::Functions::Open(i, o, square); }},
            {"WhiteTophat", false,
             [&](ImageRef i, ImageRef o) { M::Segmentation::Functions::WhiteTophat(i, o, square); }},

            {"HoleFill", false,
             [&](ImageRef i, ImageRef o) { M::Geodesy::Functions::HoleFill(i, o, graph); }},
            {"BorderKill", false,
             [&](ImageRef i, ImageRef o) { M::Geodesy::Functions::BorderKill(i, o, graph); }},
            {"Reconstruct", false,
             [&](ImageRef i, ImageRef o) { M::Geodesy::Functions::Reconstruct(i, i, o, graph); }},
            {"Threshold", false,
             [&](ImageRef i, ImageRef o) { S::Threshold(i, o, Math::IntervalD::New(2.0, 4.0)); }, true},
            {"OtsuThreshold", false,
             [&](ImageRef i, ImageRef o) { S::OtsuThreshold(i, o, Images::Segmentation::Functions::Mask()); },
             true},
            {"Median", false, [&](ImageRef i, ImageRef o) { F::Median(i, o, 3); }},
            {"Gaussian", false, [&](ImageRef i, ImageRef o) { F::Gaussian(i, o, 1.5); }},
            {"Distance", true, [&](ImageRef i, ImageRef o) { M::Distance::Functions::Distance(i, o); }},
        };
        const std::int64_t nx = 11, ny = 7, steps = 2, plane = nx * ny;
        std::mt19937 random(5);
        std::vector<double> values(std::size_t(plane * steps));
        for (const Operator& op : operators) {
            SCOPED_TRACE(op.name);
            for (double& v : values)
                v = op.binaryInput ? (random() % 4 == 0 ? 0 : 1) : double(random() % 7);
            ImageRef stacked = Images::Image::New();
            op.call(Input({nx, ny, steps}, static_cast<Axes>(Geometry::aX | Geometry::aY | Geometry::aT),
                          values, op.binaryInput),
                    stacked);
            const std::vector<double> all = SamplesOf(stacked);
            ASSERT_EQ(all.size(), values.size());
            for (std::int64_t t = 0; t < steps; ++t) {
                const std::vector<double> step(values.begin() + t * plane, values.begin() + (t + 1) * plane);
                ImageRef alone = Images::Image::New();
                op.call(Input({nx, ny}, Axes::aXY, step, op.binaryInput), alone);
                EXPECT_EQ(SamplesOf(alone),
                          std::vector<double>(all.begin() + t * plane, all.begin() + (t + 1) * plane))
                    << "time step " << t;
            }
            ImageRef banded = Images::Image::New();
            std::string refusal;
            try {
                op.call(Input({nx, ny, 2}, static_cast<Axes>(Geometry::aX | Geometry::aY | Geometry::aB),
                              values, op.binaryInput),
                        banded);
            } catch (const System::Pointer<System::IException, 1>& failure) {
                refusal = System::ToAnsi(failure->Message());
            }
            EXPECT_EQ(refusal, op.singleBand ? "Single band image expected" : "") << "two bands";
        }
    });
}

} // namespace Quilon_::Tests::TimeStepsAndBandsSuite
