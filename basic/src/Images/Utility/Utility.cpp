// The reference implementations of the utility operators. Copies run
// through the element-wise engine in the destination's compute type, so a
// copy between any two sample types is a saturating conversion and each
// kernel exists three times, not once per pair of types.
#include "Quilon_/Images/Utility/Functions.h"

#include "Images/Operators/OperatorSupport.h"
#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/Geometry/ShapeSet.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Helper.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Quilon_::Basic::Images::Utility {

namespace {

using namespace Operators;
namespace Fn = Quilon_::Images::Utility::Functions;
using SizeRef = System::Ref<Geometry::ICoordinates>;

template <class Function>
void WithComputeTypeOf(const ImageRef& image, Function&& function)
{
    DispatchComputeType(DataTypeOf(image), function);
}

template <class C>
C ValueOf(const System::Any& value)
{
    if constexpr (isComplexSample<C>)
        return System::Helper::ComplexValue(value);
    else
        return static_cast<C>(System::Helper::ScalarValue(value));
}

// The extent of an image by slot, as its views have it.
Extent ExtentOf(const ImageRef& image)
{
    return AnyViewOf(image).bytes.size;
}

// A size of the given axes (aX to aB), with the values of `extent`.
SizeRef SizeOf(unsigned axes, const Extent& extent)
{
    SizeRef size = Geometry::Coordinates::New(Geometry::Axes(static_cast<unsigned char>(axes)));
    for (int slot = 0; slot < maxViewAxes; ++slot)
        if (axes & (1u << slot))
            size->SetValue(static_cast<Geometry::AxisEnum>(1 << slot), extent[slot]);
    return size;
}

unsigned AxesOf(const ImageRef& image)
{
    return static_cast<unsigned char>(image->Size()->Axes());
}

void CopyView(const AnyView& destination, const AnyView& source)
{
    DispatchComputeType(destination.type, [&](auto tag) {
        using C = typename decltype(tag)::type;
        TransformViews<C>(
            destination, [](C* out, const C* in, std::int64_t n) { std::copy(in, in + n, out); }, source);
    });
}

// ---- Whole images -----------------------------------------------------------

void Clear(ImageRef image)
{
    TransformLines<double>(image, [](double* out, std::int64_t n) { std::fill(out, out + n, 0.0); });
}

void Fill(ImageRef image, const System::Any& value)
{
    WithComputeTypeOf(image, [&](auto tag) {
        using C = typename decltype(tag)::type;
        const C c = ValueOf<C>(value);
        TransformLines<C>(image, [c](C* out, std::int64_t n) { std::fill(out, out + n, c); });
    });
}

void Frame(ImageRef image, const System::Any& value, bool volume)
{
    Quilon_::Images::Bitmap::Frame(image->Bitmap(), value, volume);
}

void CopyWithMask(ImageRef source, ImageRef destination, System::Pointer<Quilon_::Images::IImage, 0> mask)
{
    if (!mask)
        return CopyView(AnyViewOf(destination), AnyViewOf(source));
    const ImageRef maskImage(mask);
    WithComputeTypeOf(destination, [&](auto tag) {
        using C = typename decltype(tag)::type;
        TransformLines<C>(
            destination,
            [](C* out, const C* in, const C* set, const C* kept, std::int64_t n) {
                for (std::int64_t i = 0; i < n; ++i)
                    out[i] = set[i] != C(0) ? in[i] : kept[i];
            },
            source, maskImage, destination);
    });
}

// The pixel centres (at integral locations) that lie in the shape, as a
// mask over the spatial axes of `image`. The shape is asked once per pixel
// of its bounding box; the copy itself runs on the mask.
ImageRef MaskOf(const ImageRef& image, Geometry::IShapeND& shape)
{
    const unsigned spatial = AxesOf(image) & (Geometry::aX | Geometry::aY | Geometry::aZ);
    const Extent extent = ExtentOf(image);
    ImageRef mask = Quilon_::Images::Image::New(SizeOf(spatial, extent));
    System::Ref<Geometry::IBoxD> bounds = shape.Bounds();
    Extent lower{}, upper{0, 0, 0, 0, 0};
    for (int slot = 0; slot < 3; ++slot) {
        if (!(spatial & (1u << slot))) {
            upper[slot] = 1;
            continue;
        }
        const auto axis = static_cast<Geometry::AxisEnum>(1 << slot);
        const bool onShape = static_cast<unsigned char>(bounds->Axes()) & (1u << slot);
        const double lo = onShape ? bounds->Lower()->Value(axis) : 0.0;
        const double hi = onShape ? bounds->Upper()->Value(axis) : double(extent[slot] - 1);
        lower[slot] = std::clamp<std::int64_t>(std::int64_t(std::ceil(lo)), 0, extent[slot]);
        upper[slot] = std::clamp<std::int64_t>(std::int64_t(std::floor(hi)) + 1, lower[slot], extent[slot]);
    }
    const BitmapView<std::uint8_t> view = ViewOf<std::uint8_t>(mask);
    System::Ref<Geometry::ICoordinatesD> location =
        Geometry::CoordinatesD::New(Geometry::Axes(static_cast<unsigned char>(spatial)));
    for (std::int64_t z = lower[slotZ]; z < upper[slotZ]; ++z)
        for (std::int64_t y = lower[slotY]; y < upper[slotY]; ++y)
            for (std::int64_t x = lower[slotX]; x < upper[slotX]; ++x) {
                const std::int64_t at[3]{x, y, z};
                for (int slot = 0; slot < 3; ++slot)
                    if (spatial & (1u << slot))
                        location->SetValue(static_cast<Geometry::AxisEnum>(1 << slot), double(at[slot]));
                *view.At(x, y, z) = shape.Contains(location) ? SetSample<std::uint8_t>() : 0;
            }
    return mask;
}

void CopyWithShape(ImageRef source, ImageRef destination, System::Ref<Geometry::IShapeND> shape)
{
    CopyWithMask(source, destination, MaskOf(source, *shape));
}

void Clip(ImageRef source, ImageRef destination, System::Ref<::Quilon_::Math::IIntervalD> interval)
{
    const double lo = interval->Minimum();
    const double hi = interval->Maximum();
    DispatchComputeType(DataTypeOf(destination), [&](auto tag) {
        using C = typename decltype(tag)::type;
        if constexpr (isComplexSample<C>) {
            RaiseUnsupportedType(DataTypeOf(destination), L"scalar type");
        } else {
            TransformLines<C>(
                destination,
                [lo = C(lo), hi = C(hi)](C* out, const C* in, std::int64_t n) {
                    for (std::int64_t i = 0; i < n; ++i)
                        out[i] = in[i] < lo ? lo : (in[i] > hi ? hi : in[i]);
                },
                source);
        }
    });
}

void Mask(ImageRef source, ImageRef mask, ImageRef destination)
{
    WithComputeTypeOf(destination, [&](auto tag) {
        using C = typename decltype(tag)::type;
        TransformLines<C>(
            destination,
            [](C* out, const C* in, const C* set, std::int64_t n) {
                for (std::int64_t i = 0; i < n; ++i)
                    out[i] = set[i] != C(0) ? in[i] : C(0);
            },
            source, mask);
    });
}

// ---- Look-up tables ---------------------------------------------------------

void MapThroughTable(ImageRef source, ImageRef destination, const std::vector<double>& table)
{
    if (table.empty())
        QUILON_RAISE(L"The look-up table is empty");
    if (System::IsComplex(DataTypeOf(source)))
        RaiseUnsupportedType(DataTypeOf(source), L"scalar type");
    const double last = double(table.size() - 1);
    TransformLines<double>(
        destination,
        [&](double* out, const double* in, std::int64_t n) {
            for (std::int64_t i = 0; i < n; ++i) {
                const double index = std::nearbyint(in[i]);
                // NaN takes the first entry.
                out[i] = table[static_cast<std::size_t>(index > 0 ? std::min(index, last) : 0.0)];
            }
        },
        source);
}

void MapThroughImage(ImageRef source, ImageRef destination, ImageRef table)
{
    std::vector<double> values;
    const AnyView view = AnyViewOf(table);
    values.reserve(static_cast<std::size_t>(view.bytes.SampleCount()));
    const LineReader<double> reader = LineReader<double>::For(view.type);
    ForEachLines(
        [&](std::int64_t n, Line<char> line) {
            const std::size_t at = values.size();
            values.resize(at + static_cast<std::size_t>(n));
            reader.load(line.data, line.step, n, values.data() + at);
        },
        view.bytes);
    MapThroughTable(source, destination, values);
}

// ---- Bands and slices -------------------------------------------------------

void CheckIndex(std::int64_t index, std::int64_t count, const wchar_t* what)
{
    if (index < 0 || index >= count)
        QUILON_RAISE(L"%1% %2% is out of range (%3% in the image)", std::wstring(what), index, count);
}

void CopyBand(ImageRef source, ImageRef destination, std::int64_t band)
{
    const AnyView to = AnyViewOf(destination);
    CheckIndex(band, to.bytes.size[slotB], L"Band");
    CopyView(Slice(to, slotB, band), AnyViewOf(source));
}

void ExtractBand(ImageRef source, ImageRef destination, std::int64_t band)
{
    const AnyView from = AnyViewOf(source);
    CheckIndex(band, from.bytes.size[slotB], L"Band");
    CopyView(AnyViewOf(destination), Slice(from, slotB, band));
}

int SlotOfAxis(const ImageRef& image, Geometry::AxisEnum axis)
{
    if (!(AxesOf(image) & static_cast<unsigned>(axis)) || axis == Geometry::aB)
        QUILON_RAISE(L"The image has no axis %1% to slice across",
                     Geometry::AxesToString(Geometry::Axes(axis)));
    return SlotOf(axis);
}

void ExtractSlice(ImageRef source, ImageRef destination, Geometry::AxisEnum axis, std::int64_t index)
{
    const int slot = SlotOfAxis(source, axis);
    const AnyView from = AnyViewOf(source);
    CheckIndex(index, from.bytes.size[slot], L"Slice");
    Shape(destination, SizeOf(AxesOf(source) & ~static_cast<unsigned>(axis), from.bytes.size), from.type,
          source);
    CopyView(AnyViewOf(destination), Slice(from, slot, index));
}

void CopySlice(ImageRef source, ImageRef destination, Geometry::AxisEnum axis, std::int64_t index)
{
    const int slot = SlotOfAxis(destination, axis);
    const AnyView to = AnyViewOf(destination);
    CheckIndex(index, to.bytes.size[slot], L"Slice");
    CopyView(Slice(to, slot, index), AnyViewOf(source));
}

// ---- Parts --------------------------------------------------------------------

// The destination becomes the part [lower, lower + size) of the source;
// slots that `size` leaves out (bands, time steps) are taken whole.
void CopyPart(const ImageRef& source, const ImageRef& destination, Extent lower, Extent size)
{
    const AnyView from = AnyViewOf(source);
    for (int slot = 0; slot < maxViewAxes; ++slot)
        if (lower[slot] < 0 || size[slot] < 0 || lower[slot] + size[slot] > from.bytes.size[slot])
            QUILON_RAISE(L"The part from %1% of size %2% leaves the image", lower[slot], size[slot]);
    Shape(destination, SizeOf(AxesOf(source), size), from.type, source);
    CopyView(AnyViewOf(destination), Part(from, lower, size));
}

// `coordinates` on the slots it has; `fallback` on the others.
Extent Merge(const SizeRef& coordinates, Extent fallback)
{
    const unsigned axes = static_cast<unsigned char>(coordinates->Axes());
    for (int slot = 0; slot < maxViewAxes; ++slot)
        if (axes & (1u << slot))
            fallback[slot] = coordinates->Value(static_cast<Geometry::AxisEnum>(1 << slot));
    return fallback;
}

void SubCopyOf(ImageRef source, ImageRef destination, SizeRef origin, SizeRef size)
{
    CopyPart(source, destination, Merge(origin, Extent{}), Merge(size, ExtentOf(source)));
}

void SubCopyBox(ImageRef source, ImageRef destination, System::Ref<Geometry::IBox> box)
{
    SubCopyOf(source, destination, box->Lower(), box->Size());
}

void Cut(ImageRef source, ImageRef destination)
{
    const Extent extent = ExtentOf(source);
    Extent lower{}, size = extent;
    System::Pointer<Geometry::IShapeSet, 0> roi = Quilon_::Images::Image::ROI(source);
    System::Pointer<Geometry::IBoxD, 0> bounds = roi ? roi->Bounds() : nullptr;
    if (bounds) {
        const unsigned axes = static_cast<unsigned char>(bounds->Axes());
        for (int slot = 0; slot < 3; ++slot) {
            if (!(axes & (1u << slot)) || !(AxesOf(source) & (1u << slot)))
                continue;
            const auto axis = static_cast<Geometry::AxisEnum>(1 << slot);
            const auto lo = std::clamp<std::int64_t>(std::int64_t(std::floor(bounds->Lower()->Value(axis))),
                                                     0, extent[slot]);
            const auto hi = std::clamp<std::int64_t>(
                std::int64_t(std::ceil(bounds->Upper()->Value(axis))) + 1, lo, extent[slot]);
            lower[slot] = lo;
            size[slot] = hi - lo;
        }
    }
    CopyPart(source, destination, lower, size);
}

void Paste(ImageRef source, ImageRef destination, SizeRef location)
{
    const AnyView from = AnyViewOf(source);
    const AnyView to = AnyViewOf(destination);
    const Extent at = Merge(location, Extent{});
    Extent fromLower{}, toLower{}, size{};
    for (int slot = 0; slot < maxViewAxes; ++slot) {
        toLower[slot] = std::clamp<std::int64_t>(at[slot], 0, to.bytes.size[slot]);
        const std::int64_t end =
            std::clamp<std::int64_t>(at[slot] + from.bytes.size[slot], 0, to.bytes.size[slot]);
        size[slot] = std::max<std::int64_t>(end - toLower[slot], 0);
        fromLower[slot] = toLower[slot] - at[slot];
        // An axis the source lacks (bands of a grey image pasted into a
        // colour one) repeats it all along the destination's.
        if (!(AxesOf(source) & (1u << slot))) {
            fromLower[slot] = 0;
            size[slot] = to.bytes.size[slot];
        }
    }
    for (int slot = 0; slot < maxViewAxes; ++slot)
        if (size[slot] == 0)
            return; // nothing overlaps
    Extent sourceSize = size;
    for (int slot = 0; slot < maxViewAxes; ++slot)
        if (!(AxesOf(source) & (1u << slot)))
            sourceSize[slot] = 1;
    CopyView(Part(to, toLower, size), Part(from, fromLower, sourceSize));
}

void RegisterUtility()
{
    const System::LIString name(L"Sample by sample", false);
    Fn::Clear.Register(name, &Clear);
    Fn::Clip.Register(name, &Clip);
    Fn::Copy.Overload<0>().Register(name, &CopyWithMask);
    Fn::Copy.Overload<1>().Register(name, &CopyWithShape);
    Fn::CopyBand.Register(name, &CopyBand);
    Fn::CopySlice.Register(name, &CopySlice);
    Fn::Cut.Register(name, &Cut);
    Fn::ExtractBand.Register(name, &ExtractBand);
    Fn::ExtractSlice.Register(name, &ExtractSlice);
    Fn::Fill.Register(name, &Fill);
    Fn::Frame.Register(name, &Frame);
    Fn::MapThroughLUT.Overload<0>().Register(name, &MapThroughTable);
    Fn::MapThroughLUT.Overload<1>().Register(name, &MapThroughImage);
    Fn::Mask.Register(name, &Mask);
    Fn::Paste.Register(name, &Paste);
    Fn::SubCopy.Overload<0>().Register(name, &SubCopyBox);
    Fn::SubCopy.Overload<1>().Register(name, &SubCopyOf);
}

const System::Template::Initializer<::Library> utilityInitializer(&RegisterUtility, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Utility
