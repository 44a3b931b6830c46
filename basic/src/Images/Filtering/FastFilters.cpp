// The fast paths of the filters: the choice of whether one applies, the
// border laid out around each row, and rows banded over the pool. The
// vectorised work is in FilterSimd.cpp.
#include "Images/Filtering/FastFilters.h"

#include "Images/Filtering/FilterKernels.h"
#include "Images/Operators/SampleKinds.h"
#include "System/Threading/Parallel.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <set>
#include <utility>

namespace Quilon_::Basic::Images::Operators {

namespace {

// Whether the border constant is a sample of T: an 8-bit row cannot hold
// 0.5 or 300, which the plain filter computes with.
template <class T>
bool FilterHoldsConstant(const BorderRule& border)
{
    if (border.type != Quilon_::Images::ptConstant)
        return true;
    if constexpr (std::is_integral_v<T>)
        return border.value >= double(std::numeric_limits<T>::lowest()) &&
               border.value <= double(std::numeric_limits<T>::max()) &&
               std::nearbyint(border.value) == border.value;
    else
        return static_cast<double>(static_cast<T>(border.value)) == border.value;
}

// Two views the fast paths can run on: the same extent, rows dense in
// memory, and no sample of the output also in the input (the output's
// rows are written while later rows of the input are still to be read).
template <class T>
bool FilterViewsSuit(const BitmapView<T>& in, const BitmapView<T>& out)
{
    if (in.size != out.size || !DenseRows(in) || !DenseRows(out) || in.SampleCount() == 0)
        return false;
    return !ViewsOverlap(in, out);
}

// The plane (X-Y) of index `plane` in Z, T, B order.
template <class T>
T* FilterPlane(const BitmapView<T>& view, std::int64_t plane)
{
    const std::int64_t nz = view.size[slotZ], nt = view.size[slotT];
    return view.data + plane % nz * view.stride[slotZ] + plane / nz % nt * view.stride[slotT] +
           plane / (nz * nt) * view.stride[slotB];
}

// Starts bringing row `y` of a plane into the cache, if the plane has it:
// the row the next output row adds, while this one is worked on. Rows a
// page or more apart defeat the processor's own prefetching at each row's
// start, which costs the short kernels a quarter of their time.
template <class T>
void PrefetchFilterRow(const T* plane, std::int64_t strideY, std::int64_t y, std::int64_t ny, std::int64_t nx)
{
    if (y >= ny)
        return;
    const T* row = plane + y * strideY;
    for (std::int64_t x = 0; x < nx; x += 64 / static_cast<std::int64_t>(sizeof(T)))
        __builtin_prefetch(row + x);
}

// Calls rows(inputPlane, outputPlane, y, n) for the rows y .. y + n - 1 of
// every plane, in groups of n = `group` rows (fewer at a plane's end),
// groups banded over the pool; each band makes its own `rows = makeRows()`,
// which holds the band's buffers.
template <class T, class MakeRows>
void ForEachFilterRowGroup(const BitmapView<T>& in, const BitmapView<T>& out, std::int64_t group,
                           std::int64_t costPerSample, MakeRows&& makeRows)
{
    const std::int64_t nx = in.size[slotX], ny = in.size[slotY];
    const std::int64_t planes = in.size[slotZ] * in.size[slotT] * in.size[slotB];
    const std::int64_t groups = (ny + group - 1) / group;
    Threading::ParallelBands(
        planes * groups, group * nx * costPerSample, [&](std::int64_t first, std::int64_t last) {
            auto rows = makeRows();
            for (std::int64_t item = first; item < last; ++item) {
                const std::int64_t plane = item / groups, y = item % groups * group;
                rows(FilterPlane(in, plane), FilterPlane(out, plane), y, std::min(group, ny - y));
            }
        });
}

// Fills the `radius` samples on each side of line[0, n) by the border rule.
template <class T>
void PadFilterLine(T* line, std::int64_t n, std::int64_t radius, const BorderRule& border)
{
    const T constant = static_cast<T>(border.value);
    for (std::int64_t i = 1; i <= radius; ++i) {
        const std::int64_t before = SourceIndex(-i, n, border), after = SourceIndex(n - 1 + i, n, border);
        line[-i] = before < 0 ? constant : line[before];
        line[n - 1 + i] = after < 0 ? constant : line[after];
    }
}

// ---- Separable smoothing ---------------------------------------------------------

// The weights of a pass from the middle outwards, in single precision.
std::vector<float> HalfFilterWeights(const std::vector<double>& weights)
{
    if (weights.empty())
        return {1.0f};
    const std::size_t middle = weights.size() / 2;
    return std::vector<float>(weights.begin() + static_cast<std::ptrdiff_t>(middle), weights.end());
}

bool IsSymmetricFilter(const std::vector<double>& weights)
{
    if (weights.size() % 2 == 0)
        return weights.empty();
    for (std::size_t i = 0; i < weights.size() / 2; ++i)
        if (weights[i] != weights[weights.size() - 1 - i])
            return false;
    return true;
}

// Columns first, from the samples as they are, into rows of floats, a few
// output rows at a time (each input sample is converted once for all of
// them); then along those rows into the output.
template <class T>
void SmoothPlanes(const BitmapView<T>& in, const BitmapView<T>& out, const std::vector<float>& wx,
                  const std::vector<float>& wy, const BorderRule& border)
{
    const std::int64_t nx = in.size[slotX], ny = in.size[slotY];
    const auto rx = static_cast<std::int64_t>(wx.size()) - 1, ry = static_cast<std::int64_t>(wy.size()) - 1;
    const std::int64_t taps = 2 * (rx + ry) + 2;
    const std::int64_t group = 2 * ry + gaussianBlockRows <= gaussianBlockSpan ? gaussianBlockRows : 1;
    const auto columnLength = static_cast<std::size_t>(nx + 2 * rx);
    ForEachFilterRowGroup(in, out, group, taps, [&] {
        return [&, columns = std::vector<float>(columnLength * static_cast<std::size_t>(group)),
                constant = std::vector<T>(static_cast<std::size_t>(nx), static_cast<T>(border.value)),
                rows = std::vector<const T*>(static_cast<std::size_t>(2 * ry + group))](
                   const T* plane, T* outputPlane, std::int64_t y, std::int64_t n) mutable {
            for (std::int64_t k = -ry; k < ry + n; ++k) {
                const std::int64_t source = SourceIndex(y + k, ny, border);
                rows[static_cast<std::size_t>(k + ry)] =
                    source < 0 ? constant.data() : plane + source * in.stride[slotY];
            }
            float* centres[gaussianBlockRows];
            for (std::int64_t j = 0; j < n; ++j)
                centres[j] = columns.data() + static_cast<std::size_t>(j) * columnLength + rx;
            for (std::int64_t j = 0; j < n; ++j)
                PrefetchFilterRow(plane, in.stride[slotY], y + ry + n + j, ny, nx);
            GaussianColumns(rows.data(), wy.data(), ry, nx, n, centres);
            for (std::int64_t j = 0; j < n; ++j) {
                PadFilterLine(centres[j], nx, rx, border);
                GaussianRow(centres[j] - rx, wx.data(), rx, nx, outputPlane + (y + j) * out.stride[slotY]);
            }
        };
    });
}

// ---- Median ---------------------------------------------------------------------

// The side of the square window the points make in X and Y (3 or 5), or 0.
std::int64_t SquareWindowSide(const std::vector<Point>& points)
{
    const std::int64_t side = points.size() == 9 ? 3 : points.size() == 25 ? 5 : 0;
    std::set<std::pair<std::int64_t, std::int64_t>> offsets;
    for (const Point& point : points) {
        const Extent& o = point.offset;
        if (o[slotZ] || o[slotT] || o[slotB] ||
            std::max(std::llabs(o[slotX]), std::llabs(o[slotY])) > side / 2)
            return 0;
        offsets.emplace(o[slotX], o[slotY]);
    }
    return offsets.size() == points.size() ? side : 0;
}

// The 3 x 3 median at the first and the last sample of a row, whose
// windows reach past the row's ends: sample by sample, through the border
// rule.
template <class T>
void MedianRowEnds3(const T* const* rows, std::int64_t nx, const BorderRule& border, T* out)
{
    const T constant = static_cast<T>(border.value);
    for (const std::int64_t x : {std::int64_t(0), nx - 1}) {
        T window[9];
        for (std::int64_t k = 0; k < 9; ++k) {
            const std::int64_t source = SourceIndex(x + k % 3 - 1, nx, border);
            window[k] = source < 0 ? constant : rows[k / 3][source];
        }
        std::nth_element(window, window + 4, window + 9,
                         [](T a, T b) { return MedianKeyOf(a) < MedianKeyOf(b); });
        out[x] = window[4];
    }
}

// The 3 x 3 median, two output rows at a time (they share two of their
// three rows), straight from the input rows to the output's.
template <class T>
void Median3Planes(const BitmapView<T>& in, const BitmapView<T>& out, const BorderRule& border)
{
    const std::int64_t nx = in.size[slotX], ny = in.size[slotY];
    const SampleKind kind = sampleKindOf<T>;
    ForEachFilterRowGroup(in, out, 2, 9, [&] {
        return [&, constant = std::vector<T>(static_cast<std::size_t>(nx), static_cast<T>(border.value))](
                   const T* plane, T* outputPlane, std::int64_t y, std::int64_t n) {
            const T* rows[4];
            for (std::int64_t k = 0; k < 4; ++k) {
                const std::int64_t source = SourceIndex(y + std::min(k, n + 1) - 1, ny, border);
                rows[k] = source < 0 ? constant.data() : plane + source * in.stride[slotY];
            }
            T* outputs[] = {outputPlane + y * out.stride[slotY],
                            n == 2 ? outputPlane + (y + 1) * out.stride[slotY] : nullptr};
            const std::int64_t next = y + n + 1; // the first row the next group adds
            const T* ahead[] = {next < ny ? plane + next * in.stride[slotY] : nullptr,
                                next + 1 < ny ? plane + (next + 1) * in.stride[slotY] : nullptr,
                                y + n < ny ? outputPlane + (y + n) * out.stride[slotY] : nullptr,
                                y + n + 1 < ny ? outputPlane + (y + n + 1) * out.stride[slotY] : nullptr};
            Median3x3Rows(kind, reinterpret_cast<const void* const*>(rows), 1,
                          std::max<std::int64_t>(nx - 1, 1), reinterpret_cast<void* const*>(outputs),
                          reinterpret_cast<const void* const*>(ahead));
            for (std::int64_t j = 0; j < n; ++j)
                MedianRowEnds3(rows + j, nx, border, outputs[j]);
        };
    });
}

// The 5 x 5 median: the columns of the window are sorted straight from
// the input rows, then the sorted columns outside the row are laid out by
// the border rule (a column read through the rule sorts to the same
// ranks), and the median taken from the sorted columns.
template <class T>
void Median5Planes(const BitmapView<T>& in, const BitmapView<T>& out, const BorderRule& border)
{
    constexpr std::int64_t side = 5, r = 2;
    const std::int64_t nx = in.size[slotX], ny = in.size[slotY];
    const SampleKind kind = sampleKindOf<T>;
    using K = MedianKey<T>;
    // Sorted columns outside the row: the keys of the constant.
    BorderRule keys = border;
    keys.value = static_cast<double>(MedianKeyOf(static_cast<T>(border.value)));
    // Rows of sorted columns a few cache lines more than a multiple of 4 KiB
    // apart (image rows often are such a multiple): a load from one row
    // then never waits on a store to another that the processor takes for
    // the same address.
    const auto width =
        (static_cast<std::size_t>(nx + 2 * r) * sizeof(T) + 63) / 64 * 64 / sizeof(T) + 5 * 64 / sizeof(T);
    ForEachFilterRowGroup(in, out, 1, side * side, [&] {
        return [&, constant = std::vector<T>(static_cast<std::size_t>(nx), static_cast<T>(border.value)),
                sorted = std::vector<K>(width * side)](const T* plane, T* outputPlane, std::int64_t y,
                                                       std::int64_t) mutable {
            const T* rows[side];
            K* ranks[side];
            K* inside[side];
            for (std::int64_t k = 0; k < side; ++k) {
                const std::int64_t source = SourceIndex(y + k - r, ny, border);
                rows[k] = source < 0 ? constant.data() : plane + source * in.stride[slotY];
                ranks[k] = sorted.data() + static_cast<std::size_t>(k) * width;
                inside[k] = ranks[k] + r;
            }
            const std::int64_t next = y + 1 + r; // the row the next output row adds
            SortColumns5(kind, reinterpret_cast<const void* const*>(rows), nx,
                         reinterpret_cast<void* const*>(inside),
                         next < ny ? plane + next * in.stride[slotY] : nullptr);
            for (std::int64_t k = 0; k < side; ++k)
                PadFilterLine(inside[k], nx, r, keys);
            MedianOfSortedColumns5(kind, reinterpret_cast<const void* const*>(ranks), nx,
                                   outputPlane + y * out.stride[slotY]);
        };
    });
}

// ---- Box mean of integer samples -------------------------------------------------

// The window's sums exactly in 32 bits: column sums kept from one output
// row to the next (the row the window gains added, the row it loses taken
// away), then summed along the row and divided with exact rounding.
template <class T>
void BoxPlanes(const BitmapView<T>& in, const BitmapView<T>& out, std::int64_t side, bool alongY,
               const BorderRule& border)
{
    const std::int64_t nx = in.size[slotX], ny = in.size[slotY], r = side / 2;
    const std::int64_t columnSide = alongY ? side : 1;
    const auto divisor = static_cast<std::int32_t>(side * columnSide);
    const SampleKind kind = sampleKindOf<T>;
    // A column outside the row sums columnSide constants.
    BorderRule columns = border;
    columns.value *= static_cast<double>(columnSide);
    ForEachFilterRowGroup(in, out, 1, side + 4, [&] {
        return [&, constant = std::vector<T>(static_cast<std::size_t>(nx), static_cast<T>(border.value)),
                sums = std::vector<std::int32_t>(static_cast<std::size_t>(nx + 2 * r)),
                rows = std::vector<const T*>(static_cast<std::size_t>(columnSide)),
                lastPlane = static_cast<const T*>(nullptr), lastY = std::int64_t(-1)](
                   const T* plane, T* outputPlane, std::int64_t y, std::int64_t) mutable {
            const auto rowAt = [&](std::int64_t row) {
                const std::int64_t source = SourceIndex(row, ny, border);
                return source < 0 ? constant.data() : plane + source * in.stride[slotY];
            };
            std::int32_t* inside = sums.data() + r;
            if (alongY && plane == lastPlane && y == lastY + 1) {
                BoxColumnSlide(kind, rowAt(y + r), rowAt(y - r - 1), nx, inside);
            } else {
                for (std::int64_t k = 0; k < columnSide; ++k)
                    rows[static_cast<std::size_t>(k)] =
                        alongY ? rowAt(y + k - r) : plane + y * in.stride[slotY];
                BoxColumnSums(kind, reinterpret_cast<const void* const*>(rows.data()), columnSide, nx,
                              inside);
            }
            lastPlane = plane, lastY = y;
            PadFilterLine(inside, nx, r, columns);
            BoxRow(kind, sums.data(), side, nx, divisor, outputPlane + y * out.stride[slotY]);
        };
    });
}

} // namespace

bool SymmetricSeparableFast(const ImageRef& source, const ImageRef& destination,
                            const std::vector<std::vector<double>>& weightsBySlot, const BorderRule& border)
{
    const std::optional<SampleKind> kind = SampleKindOf(DataTypeOf(source));
    if (!kind || (*kind != SampleKind::u8 && *kind != SampleKind::f32) ||
        SampleKindOf(DataTypeOf(destination)) != kind)
        return false;
    const std::vector<int> slots = SpatialSlots(source);
    if (slots.empty() || slots[0] != slotX || slots.size() != weightsBySlot.size())
        return false;
    for (const std::vector<double>& weights : weightsBySlot)
        if (!IsSymmetricFilter(weights))
            return false;
    const std::vector<float> wx = HalfFilterWeights(weightsBySlot[0]);
    const std::vector<float> wy =
        HalfFilterWeights(slots.size() > 1 && slots[1] == slotY ? weightsBySlot[1] : std::vector<double>{});
    const bool passAlongZ = slots.back() == slotZ && !weightsBySlot.back().empty();
    const auto run = [&]<class T>(std::type_identity<T>) {
        const BitmapView<T> in = ViewOf<T>(source), out = ViewOf<T>(destination);
        // A pass along Z is left to the plain filter; a single plane along
        // Z is its own neighbour (but for a constant border): no pass.
        if (passAlongZ && (in.size[slotZ] > 1 || border.type == Quilon_::Images::ptConstant))
            return false;
        if (!FilterHoldsConstant<T>(border) || !FilterViewsSuit(in, out))
            return false;
        SmoothPlanes(in, out, wx, wy, border);
        return true;
    };
    return *kind == SampleKind::u8 ? run(std::type_identity<std::uint8_t>{})
                                   : run(std::type_identity<float>{});
}

bool MedianFast(const ImageRef& source, const ImageRef& destination, const std::vector<Point>& points,
                const BorderRule& border)
{
    const std::optional<SampleKind> kind = SampleKindOf(DataTypeOf(source));
    if (!kind ||
        (*kind != SampleKind::u8 && *kind != SampleKind::u16 && *kind != SampleKind::i16 &&
         *kind != SampleKind::f32) ||
        SampleKindOf(DataTypeOf(destination)) != kind)
        return false;
    const std::int64_t side = SquareWindowSide(points);
    if (side == 0)
        return false;
    return DispatchSampleKind(*kind, [&]<class T>(std::type_identity<T>) {
        if constexpr (!std::is_same_v<T, float> && (sizeof(T) > 2 || std::is_same_v<T, std::int8_t>)) {
            return false;
        } else {
            const BitmapView<T> in = ViewOf<T>(source), out = ViewOf<T>(destination);
            if (!FilterHoldsConstant<T>(border) || !FilterViewsSuit(in, out))
                return false;
            if (side == 3)
                Median3Planes(in, out, border);
            else
                Median5Planes(in, out, border);
            return true;
        }
    });
}

bool BoxFast(const ImageRef& source, const ImageRef& destination, std::int64_t side, const BorderRule& border)
{
    const std::optional<SampleKind> kind = SampleKindOf(DataTypeOf(source));
    if (!kind || (*kind != SampleKind::u8 && *kind != SampleKind::u16 && *kind != SampleKind::i16) ||
        SampleKindOf(DataTypeOf(destination)) != kind || side < 1 || side % 2 == 0)
        return false;
    const std::vector<int> slots = SpatialSlots(source);
    if (slots.empty() || slots[0] != slotX || slots.size() > 2 || (slots.size() == 2 && slots[1] != slotY))
        return false;
    const bool alongY = slots.size() == 2;
    // Sums and the divisor times the quotient stay within 32 bits.
    if ((alongY ? side * side : side) > 32767)
        return false;
    return DispatchSampleKind(*kind, [&]<class T>(std::type_identity<T>) {
        if constexpr (sizeof(T) > 2 || std::is_same_v<T, std::int8_t>) {
            return false;
        } else {
            const BitmapView<T> in = ViewOf<T>(source), out = ViewOf<T>(destination);
            if (!FilterHoldsConstant<T>(border) || !FilterViewsSuit(in, out))
                return false;
            BoxPlanes(in, out, side, alongY, border);
            return true;
        }
    });
}

} // namespace Quilon_::Basic::Images::Operators
