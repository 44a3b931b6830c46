#include "Images/Filtering/Neighbourhood.h"

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/System/Helper.h"

#include <algorithm>

namespace Quilon_::Basic::Images::Operators {

using Quilon_::Images::PaddingTypeEnum;

BorderRule BorderOf(const Quilon_::Images::Padding* padding)
{
    BorderRule border;
    if (!padding)
        return border;
    switch (padding->PaddingType()) {
    case Quilon_::Images::ptConstant: {
        border.type = Quilon_::Images::ptConstant;
        const System::Any value = padding->PaddingValue();
        border.value = value.IsEmpty() ? 0.0 : System::Helper::ScalarValue(value);
        break;
    }
    case Quilon_::Images::ptMirror:
        border.type = Quilon_::Images::ptMirror;
        break;
    default:
        break;
    }
    return border;
}

std::int64_t SourceIndex(std::int64_t i, std::int64_t n, const BorderRule& border) noexcept
{
    if (i >= 0 && i < n)
        return i;
    if (border.type == Quilon_::Images::ptConstant || n == 0)
        return -1;
    if (border.type == Quilon_::Images::ptReplicate || n == 1)
        return std::clamp<std::int64_t>(i, 0, n - 1);
    // Mirrored without repeating the border sample: ... c b | a b c | b a ...
    const std::int64_t period = 2 * (n - 1);
    std::int64_t offset = i % period;
    if (offset < 0)
        offset += period;
    return offset < n ? offset : period - offset;
}

std::vector<int> SpatialSlots(const ImageRef& image)
{
    const unsigned axes = static_cast<unsigned char>(image->Size()->Axes());
    std::vector<int> slots;
    for (int slot : {slotX, slotY, slotZ})
        if (axes & (1u << slot))
            slots.push_back(slot);
    return slots;
}

std::vector<Point> WindowPoints(const std::vector<int>& slots, std::int64_t side)
{
    if (side < 1)
        QUILON_RAISE(L"Invalid window size: %1%", side);
    const std::int64_t first = -(side - 1) / 2;
    std::vector<Point> points(1);
    for (int slot : slots) {
        std::vector<Point> grown;
        grown.reserve(points.size() * static_cast<std::size_t>(side));
        for (const Point& point : points)
            for (std::int64_t k = 0; k < side; ++k) {
                Point next = point;
                next.offset[slot] = first + k;
                grown.push_back(next);
            }
        points.swap(grown);
    }
    return points;
}

std::vector<Extent> NeighbourSteps(const std::vector<int>& slots,
                                   const Geometry::PredefinedNgbGraphEnum* graph)
{
    std::vector<int> used = slots;
    bool facesOnly = false;
    if (graph) {
        switch (*graph) {
        case Geometry::pngSquare4:
        case Geometry::pngSquare8:
            used = {slotX, slotY};
            break;
        case Geometry::pngCubic6:
        case Geometry::pngCubic26:
            used = {slotX, slotY, slotZ};
            break;
        default:
            QUILON_RAISE(L"Unsupported neighbourhood graph: %1%", System::ToString(*graph));
        }
        facesOnly = *graph == Geometry::pngSquare4 || *graph == Geometry::pngCubic6;
    }
    std::vector<Extent> steps(1, Extent{0, 0, 0, 0, 0});
    for (int slot : used) {
        std::vector<Extent> grown;
        for (const Extent& step : steps)
            for (int o = -1; o <= 1; ++o) {
                Extent next = step;
                next[slot] = o;
                grown.push_back(next);
            }
        steps.swap(grown);
    }
    std::erase_if(steps, [&](const Extent& step) {
        int moved = 0;
        for (std::int64_t o : step)
            moved += o != 0;
        return moved == 0 || (facesOnly && moved > 1);
    });
    return steps;
}

// The points of a structuring element, on the slots of its axes.
std::vector<Point> ElementPoints(Geometry::IStructuringElement& element)
{
    System::Ref<Geometry::ICoordinatesCollection> offsets = element.Points();
    std::vector<Point> points;
    for (const System::Ref<Geometry::ICoordinates>& offset : offsets->ToVector()) {
        Point point;
        const unsigned axes = static_cast<unsigned char>(offset->Axes());
        for (int slot = 0; slot < maxViewAxes; ++slot)
            if (axes & (1u << slot))
                point.offset[slot] = offset->Value(static_cast<Geometry::AxisEnum>(1u << slot));
        points.push_back(point);
    }
    if (points.empty())
        QUILON_RAISE(L"The structuring element has no points");
    return points;
}

void MarginsOf(const std::vector<Point>& points, Extent& lower, Extent& upper)
{
    lower.fill(0);
    upper.fill(0);
    for (const Point& point : points)
        for (int slot = 0; slot < maxViewAxes; ++slot) {
            lower[slot] = std::max(lower[slot], -point.offset[slot]);
            upper[slot] = std::max(upper[slot], point.offset[slot]);
        }
}

} // namespace Quilon_::Basic::Images::Operators
