// Reading an image's axes and extents without copying its size: the reader
// of the reference library and the way through Size() give the same
// answers, for every shape of size.
#include "Quilon_/Images/ImageAxes.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/StorageOrder.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace Quilon_;
using Geometry::Axes;
namespace ImageAxes = Quilon_::Images::ImageAxes;

// What Size() says, in the reader's terms.
void ExpectAsSize(Images::IImage& image, const char* what)
{
    System::Ref<Geometry::ICoordinates> size = image.Size();
    const ImageAxes::Extent extent = ImageAxes::ExtentOf(image);
    EXPECT_EQ(static_cast<int>(ImageAxes::Of(image)), static_cast<int>(size->Axes())) << what;
    EXPECT_EQ(static_cast<int>(extent.axes), static_cast<int>(size->Axes())) << what;
    for (Geometry::AxisEnum axis : {Geometry::aX, Geometry::aY, Geometry::aZ, Geometry::aT, Geometry::aB})
        EXPECT_EQ(extent.Value(axis), (size->Axes() & axis) ? size->Value(axis) : 0)
            << what << ", axis " << axis;
}

TEST(ImageAxes, ReaderAndSizeAgree)
{
    Tests::InChildProcess([] {
        Tests::StartBasic();
        struct Case {
            const char* what;
            std::vector<std::int64_t> values;
            unsigned char axes;
            const wchar_t* order;
        };
        const Case cases[] = {
            {"empty", {}, 0, L"XY"},
            {"plane", {9, 7}, Axes::aXY, L"XY"},
            {"one pixel", {1, 1}, Axes::aXY, L"XY"},
            {"bands", {5, 3, 4}, Axes::aXYB, L"XYB"},
            {"volume", {4, 3, 2}, Axes::aXYZ, L"XYZ"},
            {"every axis",
             {2, 3, 4, 5, 6},
             Geometry::aX | Geometry::aY | Geometry::aZ | Geometry::aT | Geometry::aB,
             L"XYZTB"},
        };
        for (bool withReader : {true, false}) {
            if (!withReader)
                ImageAxes::SetReader(nullptr);
            for (const Case& c : cases) {
                System::Ref<Images::IImage> image = Images::Image::New();
                if (!c.values.empty()) {
                    System::Ref<Geometry::ICoordinates> size =
                        Geometry::Coordinates::New(Geometry::Axes(c.axes));
                    for (std::size_t i = 0; i < c.values.size(); ++i)
                        size->SetValue(static_cast<std::int64_t>(i), c.values[i]);
                    image = Images::Image::New(
                        size, Images::UniformFormat::New(Images::StorageOrder::New(c.order)));
                }
                ExpectAsSize(*image, c.what);
                // A reshaped image is read anew.
                System::Ref<Geometry::ICoordinates> wider = image->Size();
                if (wider->Axes() & Geometry::aX) {
                    wider->SetValue(Geometry::aX, wider->Value(Geometry::aX) + 2);
                    image->Reshape(image->Format(), wider, true, Images::Padding());
                    ExpectAsSize(*image, c.what);
                }
            }
        }
    });
}

} // namespace
