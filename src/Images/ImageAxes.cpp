#include "Quilon_/Images/ImageAxes.h"

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Image.h"

#include <atomic>

namespace Quilon_::Images::ImageAxes {

namespace {
// Set and cleared by the library's start-up and shut-down while operators
// may run on other threads: the release and acquire pair hands the reader's
// code over with its address.
constinit std::atomic<Reader> reader{nullptr};
} // namespace

void SetReader(Reader value)
{
    reader.store(value, std::memory_order_release);
}

Extent ExtentOf(IImage& image)
{
    Extent extent;
    if (Reader read = reader.load(std::memory_order_acquire); read && read(image, extent))
        return extent;
    System::Ref<Geometry::ICoordinates> size = image.Size();
    extent.axes = size->Axes();
    for (Geometry::AxisEnum axis : {Geometry::aX, Geometry::aY, Geometry::aZ, Geometry::aT, Geometry::aB})
        if (extent.axes & axis)
            extent.values[Extent::Position(axis)] = size->Value(axis);
    return extent;
}

Geometry::Axes Of(IImage& image)
{
    Extent extent;
    if (Reader read = reader.load(std::memory_order_acquire); read && read(image, extent))
        return extent.axes;
    return image.Size()->Axes();
}

} // namespace Quilon_::Images::ImageAxes
