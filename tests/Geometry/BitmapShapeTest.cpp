// The reference library's 2-D bitmap shapes through BitmapShape::New: pixels
// placed at an origin, growing when set outside, moving by whole pixels and
// resampled when stretched.
#include "Quilon_/Geometry/TwoD/BitmapShape.h"
#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Bitmap.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Quilon_::Tests::BitmapShapes {

using namespace Quilon_::Geometry;
using Shape = System::Ref<TwoD::IBitmapShape>;

// '#' set, '.' clear; samples are written as 7, since any non-zero sample
// counts as set.
Shape ShapeOf(const std::vector<std::string>& rows, std::int64_t x, std::int64_t y)
{
    const auto width = std::int64_t(rows[0].size()), height = std::int64_t(rows.size());
    System::Ref<Images::IBitmap> bitmap = Images::Bitmap::New(Coordinates::New(width, height, Axes::aXY));
    const auto view = Basic::Images::BitmapView<std::uint8_t>::Of(bitmap);
    for (std::int64_t j = 0; j < height; ++j)
        for (std::int64_t i = 0; i < width; ++i)
            *view.At(i, j) = rows[std::size_t(j)][std::size_t(i)] == '#' ? 7 : 0;
    return TwoD::BitmapShape::New(bitmap, Coordinates::New(x, y, Axes::aXY));
}

// The pixels of the shape over [x0, x0 + width) x [y0, y0 + height).
std::vector<std::string> PixelsOf(const Shape& shape, std::int64_t x0, std::int64_t y0, std::int64_t width,
                                  std::int64_t height)
{
    std::vector<std::string> rows;
    for (std::int64_t y = y0; y < y0 + height; ++y) {
        rows.emplace_back();
        for (std::int64_t x = x0; x < x0 + width; ++x)
            rows.back() += shape->Value(x, y) ? '#' : '.';
    }
    return rows;
}

std::vector<double> BoundsOf(const Shape& shape)
{
    System::Ref<IBoxD> box = shape->Bounds();
    return {box->Lower()->X(), box->Lower()->Y(), box->Upper()->X(), box->Upper()->Y()};
}

TEST(BitmapShapes, PixelsAreReadWrittenAndMeasuredInImageCoordinates)
{
    InChildProcess([] {
        StartBasic();
        Shape shape = ShapeOf({".#.", "###"}, 10, 20);
        EXPECT_EQ(PixelsOf(shape, 9, 19, 5, 4),
                  (std::vector<std::string>{".....", "..#..", ".###.", "....."}));
        // Bounds run between the extreme pixel centres.
        EXPECT_EQ(BoundsOf(shape), (std::vector<double>{10, 20, 12, 21}));
        EXPECT_EQ(shape->Area(), 4.0);
        EXPECT_EQ(shape->Perimeter(), 10.0); // crack length
        EXPECT_EQ(shape->Origin()->X(), 10);

        // Set pixels are 255 in the bitmap the shape gives back.
        System::Ref<Images::IBitmap> bitmap = shape->Bitmap();
        const auto view = Basic::Images::BitmapView<std::uint8_t>::Of(bitmap);
        EXPECT_EQ(*view.At(1, 0), 255);
        EXPECT_EQ(*view.At(0, 0), 0);

        // Setting a pixel outside grows the bitmap; clearing one outside changes nothing.
        shape->SetValue(14, 18, true);
        shape->SetValue(30, 30, false);
        EXPECT_TRUE(shape->Value(14, 18));
        EXPECT_TRUE(shape->Value(11, 20));
        EXPECT_EQ(shape->Area(), 5.0);
        EXPECT_EQ(BoundsOf(shape), (std::vector<double>{10, 18, 14, 21}));
    });
}

TEST(BitmapShapes, MovesSnapToPixelsAndFittingResamples)
{
    InChildProcess([] {
        StartBasic();
        Shape moved = ShapeOf({"##", "#."}, 0, 0);
        moved->Offset(2.4, -1.0);
        EXPECT_EQ(PixelsOf(moved, 2, -1, 2, 2), (std::vector<std::string>{"##", "#."}));

        Shape square = ShapeOf({"##", "##"}, 0, 0);
        square->FitTo(BoxD::New(0.0, 0.0, 3.0, 3.0, Axes::aXY));
        EXPECT_EQ(square->Area(), 16.0);
        EXPECT_EQ(BoundsOf(square), (std::vector<double>{0, 0, 3, 3}));

        Shape empty =
            TwoD::BitmapShape::New(Coordinates::New(0, 0, Axes::aXY), Coordinates::New(3, 2, Axes::aXY));
        EXPECT_TRUE(empty->IsEmpty());
        empty->SetValue(1, 1, true);
        EXPECT_FALSE(empty->IsEmpty());
        EXPECT_TRUE(empty->Contains(CoordinatesD::New(1.2, 0.9, Axes::aXY)));
    });
}

} // namespace Quilon_::Tests::BitmapShapes
