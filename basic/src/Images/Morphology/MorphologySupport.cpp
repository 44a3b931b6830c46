// Images as dense volumes, and elements and graphs as shifts, for the
// morphology operators.
#include "Images/Morphology/MorphologySupport.h"

#include "Images/Operators/OperatorSupport.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Quilon_::Basic::Images::Morphology {

using Geometry::AxisEnum;

namespace {

// Where the samples of one image lie: a stride per spatial axis and the
// start of every volume.
template <class T>
struct VolumeAccess {
    Grid grid;
    std::array<std::int64_t, 3> stride{};
    BitmapView<T> view;
    std::int64_t countT = 1;
    std::int64_t strideT = 0;
    std::int64_t strideB = 0;

    explicit VolumeAccess(const ImageRef& image) : view(Operators::ViewOf<T>(image))
    {
        grid = {view.size[Operators::slotX], view.size[Operators::slotY], view.size[Operators::slotZ]};
        stride = {view.stride[Operators::slotX], view.stride[Operators::slotY],
                  view.stride[Operators::slotZ]};
        countT = view.size[Operators::slotT];
        strideT = view.stride[Operators::slotT];
        strideB = view.stride[Operators::slotB];
    }

    T* Start(std::int64_t volume) const
    {
        return view.data + volume % countT * strideT + volume / countT * strideB;
    }

    // Calls `function(sample, index)` for every sample of the volume, with
    // its index in the dense order.
    template <class Function>
    void Walk(std::int64_t volume, Function&& function) const
    {
        T* start = Start(volume);
        std::int64_t index = 0;
        for (std::int64_t z = 0; z < grid.nz; ++z)
            for (std::int64_t y = 0; y < grid.ny; ++y) {
                T* row = start + y * stride[1] + z * stride[2];
                for (std::int64_t x = 0; x < grid.nx; ++x)
                    function(row[x * stride[0]], index++);
            }
    }
};

Shift ShiftOf(Geometry::ICoordinates& point)
{
    const Geometry::Axes axes = point.Axes();
    const auto value = [&](AxisEnum axis) {
        return (static_cast<unsigned char>(axes) & axis) != 0 ? point.Value(axis) : std::int64_t(0);
    };
    return {value(Geometry::aX), value(Geometry::aY), value(Geometry::aZ)};
}

std::vector<Shift> ShiftsOf(Geometry::ICoordinatesCollection& points)
{
    std::vector<Shift> shifts;
    for (std::int64_t i = 0; i < points.Count(); ++i) {
        const Shift shift = ShiftOf(*points.Item(i));
        if (std::find(shifts.begin(), shifts.end(), shift) == shifts.end())
            shifts.push_back(shift);
    }
    return shifts;
}

} // namespace

VolumeLayout LayoutOf(const ImageRef& image)
{
    const Operators::SlotBlock block = Operators::SlotsOf(*image->Bitmap());
    VolumeLayout layout;
    layout.grid = {block.size[Operators::slotX], block.size[Operators::slotY], block.size[Operators::slotZ]};
    layout.timeCount = block.size[Operators::slotT];
    layout.volumeCount = layout.timeCount * block.size[Operators::slotB];
    if (layout.grid.Count() == 0)
        layout.volumeCount = 0;
    return layout;
}

void CheckSameLayout(const VolumeLayout& a, const VolumeLayout& b)
{
    if (a.grid.nx != b.grid.nx || a.grid.ny != b.grid.ny || a.grid.nz != b.grid.nz ||
        a.volumeCount != b.volumeCount)
        QUILON_RAISE(L"Images of %1% x %2% x %3% samples in %4% bands and of %5% x %6% x %7% samples in %8% "
                     L"bands do not match",
                     a.grid.nx, a.grid.ny, a.grid.nz, a.volumeCount, b.grid.nx, b.grid.ny, b.grid.nz,
                     b.volumeCount);
}

VolumeLayout SingleBandOutputLayout(const VolumeLayout& in, const VolumeLayout& out)
{
    const bool bandsDropped =
        out.volumeCount == out.timeCount && in.volumeCount > out.volumeCount && in.timeCount == out.timeCount;
    if (!bandsDropped)
        CheckSameLayout(in, out);
    else
        CheckSameLayout({in.grid, out.volumeCount, out.timeCount}, out);
    return out;
}

void RaiseComplexInput(System::NumericTypeEnum type)
{
    QUILON_RAISE(L"Morphology needs real samples, not %1%", System::ToString(type));
}

template <class T>
void ReadVolume(const ImageRef& image, std::int64_t index, T* dense)
{
    DispatchSampleType(image->Format()->DataType(), [&](auto tag) {
        using U = typename decltype(tag)::type;
        VolumeAccess<U>(image).Walk(
            index, [dense](U& sample, std::int64_t i) { dense[i] = Operators::SaturateCast<T>(sample); });
    });
}

template <class T>
void WriteVolume(const ImageRef& image, std::int64_t index, const T* dense)
{
    DispatchSampleType(image->Format()->DataType(), [&](auto tag) {
        using U = typename decltype(tag)::type;
        VolumeAccess<U>(image).Walk(
            index, [dense](U& sample, std::int64_t i) { sample = Operators::SaturateCast<U>(dense[i]); });
    });
}

#define QUILON_MORPHOLOGY_VOLUME_IO(T)                                                                       \
    template void ReadVolume<T>(const ImageRef&, std::int64_t, T*);                                          \
    template void WriteVolume<T>(const ImageRef&, std::int64_t, const T*);
QUILON_MORPHOLOGY_VOLUME_IO(std::int8_t)
QUILON_MORPHOLOGY_VOLUME_IO(std::uint8_t)
QUILON_MORPHOLOGY_VOLUME_IO(std::int16_t)
QUILON_MORPHOLOGY_VOLUME_IO(std::uint16_t)
QUILON_MORPHOLOGY_VOLUME_IO(std::int32_t)
QUILON_MORPHOLOGY_VOLUME_IO(std::uint32_t)
QUILON_MORPHOLOGY_VOLUME_IO(std::int64_t)
QUILON_MORPHOLOGY_VOLUME_IO(std::uint64_t)
QUILON_MORPHOLOGY_VOLUME_IO(float)
QUILON_MORPHOLOGY_VOLUME_IO(double)
#undef QUILON_MORPHOLOGY_VOLUME_IO

std::vector<Shift> ShiftsOf(Geometry::IStructuringElement& element)
{
    return ShiftsOf(*element.Points());
}

std::vector<Shift> ShiftsOf(Geometry::INgbGraph& graph, bool withOrigin)
{
    std::vector<Shift> shifts = ShiftsOf(static_cast<Geometry::ICoordinatesCollection&>(graph));
    if (withOrigin && std::find(shifts.begin(), shifts.end(), Shift{}) == shifts.end())
        shifts.insert(shifts.begin(), Shift{});
    return shifts;
}

std::vector<Shift> DefaultNeighbours(const Grid& grid, bool fewest)
{
    const std::int64_t zRange = grid.nz > 1 ? 1 : 0;
    std::vector<Shift> shifts;
    for (std::int64_t z = -zRange; z <= zRange; ++z)
        for (std::int64_t y = -1; y <= 1; ++y)
            for (std::int64_t x = -1; x <= 1; ++x) {
                const std::int64_t steps = std::abs(x) + std::abs(y) + std::abs(z);
                if (steps != 0 && (!fewest || steps == 1))
                    shifts.push_back({x, y, z});
            }
    return shifts;
}

} // namespace Quilon_::Basic::Images::Morphology
