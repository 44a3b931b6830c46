// Bitmap::Pad and Bitmap::Frame: filling the samples outside a region, and
// writing a border value.
#include "Images/BitmapImpl.h"
#include "Images/SampleValue.h"

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <cmath>
#include <vector>

namespace Quilon_::Basic::Images {

using Quilon_::Images::PaddingTypeEnum;
using ShapeRef = System::Pointer<Geometry::IShapeND, 1>;

namespace {

// The location in [lo, lo + length) that padding takes the value of `c` from.
std::int64_t SourceOf(std::int64_t c, std::int64_t lo, std::int64_t length, PaddingTypeEnum type)
{
    std::int64_t offset = c - lo;
    if (type == Quilon_::Images::ptReplicate || length == 1)
        return lo + std::clamp<std::int64_t>(offset, 0, length - 1);
    const std::int64_t period = 2 * (length - 1);
    offset %= period;
    if (offset < 0)
        offset += period;
    return lo + (offset < length ? offset : period - offset);
}

template <class T>
void PadTyped(const BitmapView<T>& view, const Extent& lo, const Extent& hi, PaddingTypeEnum type, T value)
{
    Extent length{};
    for (int i = 0; i < 5; ++i) {
        length[i] = hi[i] - lo[i];
        if (length[i] <= 0 && type != Quilon_::Images::ptConstant)
            return; // nothing to take values from
    }
    const auto& n = view.size;
    const std::int64_t step = view.stride[0];
    Extent c{};
    for (c[4] = 0; c[4] < n[4]; ++c[4])
        for (c[3] = 0; c[3] < n[3]; ++c[3])
            for (c[2] = 0; c[2] < n[2]; ++c[2])
                for (c[1] = 0; c[1] < n[1]; ++c[1]) {
                    bool inside = true;
                    Extent source = c;
                    for (int i = 1; i < 5; ++i) {
                        inside = inside && lo[i] <= c[i] && c[i] < hi[i];
                        if (type != Quilon_::Images::ptConstant)
                            source[i] = SourceOf(c[i], lo[i], length[i], type);
                    }
                    T* row = view.At(c);
                    const T* sourceRow = view.At(source);
                    for (std::int64_t x = 0; x < n[0]; ++x) {
                        if (inside && x == lo[0] && hi[0] > lo[0]) {
                            x = hi[0] - 1; // the region itself stays
                            continue;
                        }
                        row[x * step] = type == Quilon_::Images::ptConstant
                                            ? value
                                            : sourceRow[SourceOf(x, lo[0], length[0], type) * step];
                    }
                }
}

// The framed axes of a layout: X and Y, and Z for a volume.
std::vector<int> FramedAxes(const Layout& layout, bool volume)
{
    std::vector<int> axes;
    for (Geometry::AxisEnum axis : {Geometry::aX, Geometry::aY, Geometry::aZ})
        if (int i = layout.IndexOf(axis); i >= 0 && (axis != Geometry::aZ || volume))
            axes.push_back(i);
    return axes;
}

// Whether a location is on the border: at either end of a framed axis, or,
// with a mask, inside the mask next to a location outside it.
struct Border {
    const Layout& layout;
    std::vector<int> framed;
    // Over the spatial axes, index x + nx * (y + ny * z); empty for none.
    const std::vector<std::uint8_t>* mask = nullptr;
    std::array<int, 3> spatial{-1, -1, -1};

    std::int64_t MaskIndex(const Extent& c) const
    {
        std::int64_t index = 0, scale = 1;
        for (int s : spatial)
            if (s >= 0) {
                index += c[s] * scale;
                scale *= layout.size[s];
            }
        return index;
    }
    bool InMask(const Extent& c) const { return !mask || (*mask)[MaskIndex(c)]; }

    bool operator()(const Extent& c) const
    {
        if (!InMask(c))
            return false;
        for (int a : framed) {
            if (c[a] == 0 || c[a] == layout.size[a] - 1)
                return true;
            if (mask) {
                Extent d = c;
                d[a] = c[a] - 1;
                Extent e = c;
                e[a] = c[a] + 1;
                if (!InMask(d) || !InMask(e))
                    return true;
            }
        }
        return false;
    }
};

template <class T, class Select>
void WhereTyped(const BitmapView<T>& view, const Select& select, T value)
{
    Extent c{};
    for (c[4] = 0; c[4] < view.size[4]; ++c[4])
        for (c[3] = 0; c[3] < view.size[3]; ++c[3])
            for (c[2] = 0; c[2] < view.size[2]; ++c[2])
                for (c[1] = 0; c[1] < view.size[1]; ++c[1])
                    for (c[0] = 0; c[0] < view.size[0]; ++c[0])
                        if (select(c))
                            *view.At(c) = value;
}

template <class Select>
void WriteWhere(const SampleBlock& block, const Select& select, const System::Any& value)
{
    DispatchSampleType(block.type, [&](auto tag) {
        using T = typename decltype(tag)::type;
        WhereTyped(ViewOf<T>(block.layout, block.data), select, SampleFromAny<T>(value));
    });
}

std::array<int, 3> SpatialAxes(const Layout& layout)
{
    return {layout.IndexOf(Geometry::aX), layout.IndexOf(Geometry::aY), layout.IndexOf(Geometry::aZ)};
}

// The pixel range [lower, upper) of the shape's bounds within the layout,
// pixels being centred on integer locations.
void BoundsOf(Geometry::IShapeND& shape, const Layout& layout, Extent& lower, Extent& upper)
{
    lower.fill(0);
    upper = layout.size;
    System::Pointer<Geometry::IBoxD, 1> bounds = shape.Bounds();
    System::Pointer<Geometry::ICoordinatesD, 1> low = bounds->Lower(), high = bounds->Upper();
    for (Geometry::AxisEnum axis : {Geometry::aX, Geometry::aY, Geometry::aZ}) {
        const int i = layout.IndexOf(axis);
        if (i < 0 || low->IndexOfAxis(axis) < 0)
            continue;
        lower[i] = std::clamp<std::int64_t>(static_cast<std::int64_t>(std::ceil(low->Value(axis))), 0,
                                            layout.size[i]);
        upper[i] = std::clamp<std::int64_t>(static_cast<std::int64_t>(std::floor(high->Value(axis))) + 1,
                                            lower[i], layout.size[i]);
    }
}

// Which spatial locations of the layout lie in the shape. The shape is asked
// once per location of its bounds, not per sample.
std::vector<std::uint8_t> MaskOf(Geometry::IShapeND& shape, const Layout& layout)
{
    const std::array<int, 3> spatial = SpatialAxes(layout);
    std::array<std::int64_t, 3> n{1, 1, 1};
    for (int s = 0; s < 3; ++s)
        if (spatial[s] >= 0)
            n[s] = layout.size[spatial[s]];
    std::vector<std::uint8_t> mask(static_cast<std::size_t>(n[0] * n[1] * n[2]), 0);
    if (shape.IsEmpty())
        return mask;
    Extent lower, upper;
    BoundsOf(shape, layout, lower, upper);
    const Geometry::Axes axes = shape.Axes();
    System::Pointer<Geometry::ICoordinatesD, 1> point = Geometry::CoordinatesD::New(axes);
    const Geometry::AxisEnum names[3] = {Geometry::aX, Geometry::aY, Geometry::aZ};
    auto range = [&](int s, bool upperEnd) {
        return spatial[s] < 0 ? std::int64_t(upperEnd) : (upperEnd ? upper : lower)[spatial[s]];
    };
    for (std::int64_t z = range(2, false); z < range(2, true); ++z)
        for (std::int64_t y = range(1, false); y < range(1, true); ++y)
            for (std::int64_t x = range(0, false); x < range(0, true); ++x) {
                const std::int64_t c[3] = {x, y, z};
                for (int s = 0; s < 3; ++s)
                    if (point->IndexOfAxis(names[s]) >= 0)
                        point->SetValue(names[s], static_cast<double>(c[s]));
                mask[static_cast<std::size_t>(x + n[0] * (y + n[1] * z))] = shape.Contains(point) ? 1 : 0;
            }
    return mask;
}

void Pad1(BitmapRef bitmap, const Padding& padding)
{
    const SampleBlock block = BlockOf(*bitmap);
    Extent kept = block.layout.size;
    if (auto* own = dynamic_cast<CBitmap*>(bitmap.Get()))
        kept = own->Kept();
    PadOutside(block, Extent{0, 0, 0, 0, 0}, kept, padding);
}

void Pad2(BitmapRef bitmap, ShapeRef shape, const Padding& padding)
{
    const SampleBlock block = BlockOf(*bitmap);
    switch (padding.PaddingType()) {
    case Quilon_::Images::ptConstant: {
        const std::vector<std::uint8_t> mask = MaskOf(*shape, block.layout);
        Border inMask{block.layout, {}, &mask, SpatialAxes(block.layout)};
        WriteWhere(
            block, [&](const Extent& c) { return !inMask.InMask(c); }, padding.PaddingValue());
        return;
    }
    case Quilon_::Images::ptReplicate:
    case Quilon_::Images::ptMirror: {
        Extent lower, upper;
        BoundsOf(*shape, block.layout, lower, upper);
        PadOutside(block, lower, upper, padding);
        return;
    }
    default:
        return;
    }
}

void Frame1(BitmapRef bitmap, const System::Any& value, bool volume)
{
    const SampleBlock block = BlockOf(*bitmap);
    WriteWhere(block, Border{block.layout, FramedAxes(block.layout, volume)}, value);
}

void Frame2(BitmapRef bitmap, ShapeRef shape, const System::Any& value, bool volume)
{
    const SampleBlock block = BlockOf(*bitmap);
    const std::vector<std::uint8_t> mask = MaskOf(*shape, block.layout);
    WriteWhere(block,
               Border{block.layout, FramedAxes(block.layout, volume), &mask, SpatialAxes(block.layout)},
               value);
}

void RegisterPadding()
{
    Quilon_::Images::Bitmap::SetPadFunction1(&Pad1);
    Quilon_::Images::Bitmap::SetPadFunction2(&Pad2);
    Quilon_::Images::Bitmap::SetFrameFunction1(&Frame1);
    Quilon_::Images::Bitmap::SetFrameFunction2(&Frame2);
}

const System::Template::Initializer<::Library> padding(&RegisterPadding, nullptr, 0.2f);

} // namespace

void PadOutside(const SampleBlock& block, const Extent& lower, const Extent& upper, const Padding& padding)
{
    const PaddingTypeEnum type = padding.PaddingType();
    if (type != Quilon_::Images::ptConstant && type != Quilon_::Images::ptReplicate &&
        type != Quilon_::Images::ptMirror)
        return;
    const System::Any value = padding.PaddingValue();
    DispatchSampleType(block.type, [&](auto tag) {
        using T = typename decltype(tag)::type;
        const T sample = type == Quilon_::Images::ptConstant ? SampleFromAny<T>(value) : T(0);
        PadTyped(ViewOf<T>(block.layout, block.data), lower, upper, type, sample);
    });
}

} // namespace Quilon_::Basic::Images
