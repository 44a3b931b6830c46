#include "Geometry/NgbGraphOffsets.h"

#include "Quilon_/System/Raise.h"

#include <algorithm>

namespace Quilon_::Basic::Geometry {

namespace {

constexpr QG::AxisEnum spatial[] = {QG::aX, QG::aY, QG::aZ};

std::int64_t& Component(Offset& offset, std::size_t i)
{
    return i == 0 ? offset.x : i == 1 ? offset.y : offset.z;
}

std::int64_t Component(const Offset& offset, std::size_t i)
{
    return i == 0 ? offset.x : i == 1 ? offset.y : offset.z;
}

bool IsSpatial(QG::AxisEnum axis)
{
    return axis == QG::aX || axis == QG::aY || axis == QG::aZ;
}

} // namespace

std::vector<QG::AxisEnum> SpatialAxes(QG::Axes axes)
{
    std::vector<QG::AxisEnum> result;
    for (QG::AxisEnum axis : spatial)
        if (axes & axis)
            result.push_back(axis);
    return result;
}

void CheckSpatialAxes(QG::Axes axes, std::int64_t dimension)
{
    if (static_cast<std::int64_t>(SpatialAxes(axes).size()) < dimension)
        QUILON_RAISE(L"Axes '%1%' have fewer than %2% spatial axes", axes.ToString(), dimension);
}

Extent ExtentOf(std::span<const Offset> offsets)
{
    Extent extent{offsets.front(), {offsets.front().x + 1, offsets.front().y + 1, offsets.front().z + 1}};
    for (const Offset& o : offsets) {
        extent.lower = {std::min(extent.lower.x, o.x), std::min(extent.lower.y, o.y),
                        std::min(extent.lower.z, o.z)};
        extent.upper = {std::max(extent.upper.x, o.x + 1), std::max(extent.upper.y, o.y + 1),
                        std::max(extent.upper.z, o.z + 1)};
    }
    return extent;
}

Extent Reflected(const Extent& extent)
{
    return {{1 - extent.upper.x, 1 - extent.upper.y, 1 - extent.upper.z},
            {1 - extent.lower.x, 1 - extent.lower.y, 1 - extent.lower.z}};
}

System::Ref<QG::ICoordinates> ToCoordinates(const Offset& offset, QG::Axes axes)
{
    System::Ref<QG::ICoordinates> result = QG::Coordinates::New(axes);
    std::vector<QG::AxisEnum> axesOfOffset = SpatialAxes(axes);
    for (std::size_t i = 0; i < axesOfOffset.size(); ++i)
        result->SetValue(axesOfOffset[i], Component(offset, i));
    return result;
}

Offset ToOffset(QG::ICoordinates& coordinates)
{
    Offset result;
    std::size_t next = 0;
    for (QG::AxisEnum axis : coordinates.Axes().ToVector()) {
        const std::int64_t value = coordinates.Value(axis);
        if (IsSpatial(axis))
            Component(result, next++) = value;
        else if (value != 0)
            QUILON_RAISE(L"Offsets on the axes T and B must be 0");
    }
    return result;
}

System::Ref<QG::IBox> ToBox(const Extent& extent, QG::Axes axes)
{
    System::Ref<QG::ICoordinates> lower = ToCoordinates(extent.lower, axes);
    System::Ref<QG::ICoordinates> upper = ToCoordinates(extent.upper, axes);
    for (QG::AxisEnum axis : {QG::aT, QG::aB})
        if (axes & axis)
            upper->SetValue(axis, std::int64_t(1));
    return QG::Box::New(lower, upper);
}

Extent ToExtent(QG::IBox& box)
{
    System::Ref<QG::ICoordinates> lower = box.Lower();
    System::Ref<QG::ICoordinates> upper = box.Upper();
    Extent extent;
    std::size_t next = 0;
    for (QG::AxisEnum axis : box.Axes().ToVector()) {
        const std::int64_t low = lower->Value(axis);
        const std::int64_t high = upper->Value(axis);
        if (IsSpatial(axis)) {
            Component(extent.lower, next) = low;
            Component(extent.upper, next++) = high;
        } else if (low != 0 || (high != 0 && high != 1)) {
            QUILON_RAISE(L"Offsets on the axes T and B must be 0");
        }
    }
    return extent;
}

std::vector<Offset> ReadOffsets(QG::ICoordinatesCollection& points)
{
    std::vector<Offset> offsets;
    const std::int64_t count = points.Count();
    offsets.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i)
        offsets.push_back(ToOffset(*points.Item(i)));
    return offsets;
}

} // namespace Quilon_::Basic::Geometry
