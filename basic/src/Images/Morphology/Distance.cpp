// The distance transform of the reference library: exact Euclidean
// distances by separable passes, or steps along a neighbourhood graph.
//
// The Euclidean transform runs on integers: the distance to the nearest
// background sample along Y, swept down and up the rows of each plane (so
// that memory is read in order), then the lower envelope of the parabolas
// (i - q)² + f(q) along Z and last along each row, whose result goes
// straight into the output row. Along a row whose samples all lie near
// the background, the envelope is a windowed minimum on whole vectors,
// which is the usual case and free of the envelope's unpredictable
// branches. Squares stay exact in 32 bits for any image whose squared
// diagonal fits; a dense float output holds the integers in place until
// its row is written. Lines along Z are gathered a few at a time into
// contiguous buffers; every pass is banded over the pool. An image too
// large, or of complex samples, takes the plain double transform of
// MorphologyKernels.cpp.
#include "Images/Morphology/MorphologySupport.h"

#include "Images/Operators/OperatorSupport.h"
#include "System/Threading/Parallel.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Images/Morphology/Distance/Functions.h"
#include "Quilon_/PrivateLibrary.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>

namespace Quilon_::Basic::Images::Morphology {

// Row kernels (DistanceSimd.cpp); UINT32_MAX marks a sample with no
// background found (yet). sqrt(squared[i]) into out[i] as the nearest
// float to the exact root, infinity for none.
void SquareRootsToFloat(const std::uint32_t* squared, std::int64_t count, float* out);
// row[x] = 0 for a zero input sample, UINT32_MAX for any other.
void MarkObjects(const std::uint8_t* in, std::int64_t count, std::uint32_t* row);
// Marked samples of `row` one further than those of the row above.
void SweepDown(const std::uint32_t* above, std::int64_t count, std::uint32_t* row);
// Samples of `row` no further than one more than those below, which are
// then squared.
void SweepUp(std::uint32_t* below, std::int64_t count, std::uint32_t* row);
void Square(std::uint32_t* row, std::int64_t count);
// The envelope of row f into out, for rows near the background (every
// sample within 48 of a reached one; false, with `out` undefined,
// otherwise); `scratch` holds n + 96.
bool WindowedEnvelope(const std::uint32_t* f, std::int64_t n, std::uint32_t* scratch, std::uint32_t* out);

namespace {

namespace Catalogue = ::Quilon_::Images::Morphology;
using Operators::slotB;
using Operators::slotT;
using Operators::slotX;
using Operators::slotY;
using Operators::slotZ;

// Calls `transform(grid, values)` on each volume of `out`, read from `in`
// as 0 for the background and infinity for the objects, and writes the
// values into `out`.
template <class Transform>
void DistanceOf(const ImageRef& in, const ImageRef& out, Transform&& transform)
{
    const VolumeLayout layout = SingleBandOutputLayout(LayoutOf(in), LayoutOf(out));
    std::vector<double> values(static_cast<std::size_t>(layout.grid.Count()));
    for (std::int64_t v = 0; v < layout.volumeCount; ++v) {
        ReadVolume(in, v, values.data());
        for (double& value : values)
            value = value == 0 ? 0 : std::numeric_limits<double>::infinity();
        transform(layout.grid, values.data());
        WriteVolume(out, v, values.data());
    }
}

// ---- Integer Euclidean transform ----------------------------------------------

// A squared distance not known yet: no background on the line so far.
constexpr std::uint32_t unreached = std::numeric_limits<std::uint32_t>::max();

// Lines gathered at once from neighbouring columns: 16 samples of 4 bytes
// fill a cache line of 64 bytes.
constexpr std::int64_t gatheredLines = 16;

template <class T>
T* VolumeStart(const BitmapView<T>& view, std::int64_t volume)
{
    const std::int64_t countT = view.size[slotT];
    return view.data + volume % countT * view.stride[slotT] + volume / countT * view.stride[slotB];
}

// Columns [x0, x1) of a plane: the squared distance along Y to the nearest
// zero sample of the input, or `unreached`. Distances are swept down the
// rows, then up, and squared one row behind the upward sweep.
template <class T>
void ColumnDistances(const T* plane, const std::int64_t* stride, std::int64_t ny, std::int64_t x0,
                     std::int64_t x1, std::uint32_t* out, std::int64_t outRow)
{
    const std::int64_t count = x1 - x0;
    for (std::int64_t y = 0; y < ny; ++y) {
        const T* in = plane + y * stride[1] + x0 * stride[0];
        std::uint32_t* d = out + y * outRow + x0;
        if constexpr (std::is_same_v<T, std::uint8_t>) {
            if (stride[0] == 1)
                MarkObjects(in, count, d);
            else
                for (std::int64_t x = 0; x < count; ++x)
                    d[x] = in[x * stride[0]] == T(0) ? 0 : unreached;
        } else {
            for (std::int64_t x = 0; x < count; ++x)
                d[x] = in[x * stride[0]] == T(0) ? 0 : unreached;
        }
        if (y > 0)
            SweepDown(d - outRow, count, d);
    }
    for (std::int64_t y = ny - 2; y >= 0; --y)
        SweepUp(out + (y + 1) * outRow + x0, count, out + y * outRow + x0);
    Square(out + x0, count);
}

// The lower envelope of the parabolas (i - q)² + f[q] over the reached
// samples q of one line, at every i (Felzenszwalb and Huttenlocher).
// Parabola k is the lowest from the point where it crosses parabola k - 1,
// at the fraction from[k] / over[k]; fractions are compared by
// cross-multiplying, all in 64-bit integers (below 2^51 for lines of up to
// 2^16 samples), so that no division holds up the loop and the envelope is
// exact.
struct EnvelopeScratch {
    std::vector<std::int64_t> apex, key, from, over;
};

void IntegerEnvelopeOfLine(const std::uint32_t* f, std::int64_t n, std::uint32_t* d, EnvelopeScratch& s)
{
    for (auto* v : {&s.apex, &s.key, &s.from, &s.over})
        v->resize(static_cast<std::size_t>(n));
    std::int64_t* apex = s.apex.data();
    std::int64_t* key = s.key.data(); // f[apex] + apex²
    std::int64_t* from = s.from.data();
    std::int64_t* over = s.over.data();
    std::int64_t k = -1;
    for (std::int64_t q = 0; q < n; ++q) {
        if (f[q] == unreached)
            continue;
        const std::int64_t keyQ = std::int64_t(f[q]) + q * q;
        std::int64_t num = 0, den = 1;
        while (k >= 0) {
            // Where parabola q crosses parabola k: num / den.
            num = keyQ - key[k];
            den = 2 * (q - apex[k]);
            if (k == 0 || num * over[k] > from[k] * den)
                break;
            --k; // parabola k is nowhere the lowest
        }
        ++k;
        apex[k] = q, key[k] = keyQ, from[k] = num, over[k] = den;
    }
    if (k < 0) {
        std::fill(d, d + n, unreached);
        return;
    }
    std::int64_t j = 0;
    for (std::int64_t i = 0; i < n; ++i) {
        while (j < k && from[j + 1] < i * over[j + 1])
            ++j;
        const std::int64_t di = i - apex[j];
        d[i] = static_cast<std::uint32_t>(di * di + f[apex[j]]);
    }
}

// The envelope along the lines of `n` samples `step` apart that start at
// row * rowStride + x, for x < nx and row < rowCount: lines next to each
// other in memory are gathered a group at a time.
void EnvelopeAlong(std::uint32_t* squared, std::int64_t n, std::int64_t step, std::int64_t rowCount,
                   std::int64_t rowStride, std::int64_t nx)
{
    if (n <= 1)
        return;
    const std::int64_t groupsPerRow = (nx + gatheredLines - 1) / gatheredLines;
    Threading::ParallelBands(
        rowCount * groupsPerRow, gatheredLines * n * 8, [&](std::int64_t g0, std::int64_t g1) {
            std::vector<std::uint32_t> lines(static_cast<std::size_t>(gatheredLines * n)),
                line(static_cast<std::size_t>(n));
            EnvelopeScratch scratch;
            for (std::int64_t g = g0; g < g1; ++g) {
                const std::int64_t x0 = g % groupsPerRow * gatheredLines;
                const std::int64_t width = std::min(gatheredLines, nx - x0);
                std::uint32_t* base = squared + g / groupsPerRow * rowStride + x0;
                for (std::int64_t i = 0; i < n; ++i)
                    for (std::int64_t j = 0; j < width; ++j)
                        lines[static_cast<std::size_t>(j * n + i)] = base[i * step + j];
                for (std::int64_t j = 0; j < width; ++j) {
                    IntegerEnvelopeOfLine(lines.data() + j * n, n, line.data(), scratch);
                    std::copy(line.begin(), line.end(), lines.begin() + j * n);
                }
                for (std::int64_t i = 0; i < n; ++i)
                    for (std::int64_t j = 0; j < width; ++j)
                        base[i * step + j] = lines[static_cast<std::size_t>(j * n + i)];
            }
        });
}

// Columns swept in bands this wide: the part of a row that a band sweeps
// fills whole pages, so that the sweeps read memory in order.
constexpr std::int64_t sweptColumns = 1024;

// The first step of a volume: the columns of `in` (volume `v`) into
// `squared`, dense.
template <class T>
void SweepColumns(const ImageRef& in, std::int64_t v, const Grid& grid, std::uint32_t* squared)
{
    const BitmapView<T> view = Operators::ViewOf<T>(in);
    const T* volume = VolumeStart(view, v);
    const std::int64_t stride[] = {view.stride[slotX], view.stride[slotY], view.stride[slotZ]};
    const std::int64_t nx = grid.nx, ny = grid.ny, bands = (nx + sweptColumns - 1) / sweptColumns;
    Threading::ParallelBands(bands * grid.nz, sweptColumns * ny, [&](std::int64_t b0, std::int64_t b1) {
        for (std::int64_t b = b0; b < b1; ++b) {
            const std::int64_t z = b / bands, x0 = b % bands * sweptColumns;
            ColumnDistances(volume + z * stride[2], stride, ny, x0, std::min(nx, x0 + sweptColumns),
                            squared + z * nx * ny, nx);
        }
    });
}

// The envelope along one row: windowed minima, vectorised and with few
// branches, where the row lies near the background, else the parabolas'
// envelope.
void RowEnvelope(const std::uint32_t* f, std::int64_t n, std::uint32_t* d,
                 std::vector<std::uint32_t>& scratch, EnvelopeScratch& envelope)
{
    scratch.resize(static_cast<std::size_t>(n + 96));
    if (!WindowedEnvelope(f, n, scratch.data(), d))
        IntegerEnvelopeOfLine(f, n, d, envelope);
}

// The last step: the envelope along each row, whose roots go into the
// output row (rounded and saturated into an integer type). `squared` may
// be the output's own memory: a row is read whole before it is written.
template <class U>
void WriteRows(const std::uint32_t* squared, const Grid& grid, const ImageRef& out, std::int64_t v)
{
    const BitmapView<U> view = Operators::ViewOf<U>(out);
    U* volume = VolumeStart(view, v);
    const std::int64_t nx = grid.nx, ny = grid.ny;
    Threading::ParallelBands(ny * grid.nz, nx * 8, [&](std::int64_t r0, std::int64_t r1) {
        std::vector<std::uint32_t> line(static_cast<std::size_t>(nx)), padded;
        EnvelopeScratch scratch;
        for (std::int64_t r = r0; r < r1; ++r) {
            RowEnvelope(squared + r * nx, nx, line.data(), padded, scratch);
            U* row = volume + r % ny * view.stride[slotY] + r / ny * view.stride[slotZ];
            if constexpr (std::is_same_v<U, float>) {
                if (view.stride[slotX] == 1) {
                    SquareRootsToFloat(line.data(), nx, row);
                    continue;
                }
            }
            for (std::int64_t x = 0; x < nx; ++x)
                row[x * view.stride[slotX]] =
                    Operators::SaturateCast<U>(line[x] == unreached ? std::numeric_limits<double>::infinity()
                                                                    : std::sqrt(double(line[x])));
        }
    });
}

// Volume `v` of a float output whose samples lie densely, X then Y then Z,
// which then holds its own squared distances until its rows are written:
// no buffer of the image's size to allocate (and fault in) on every call.
std::uint32_t* DenseFloatVolume(const ImageRef& out, const Grid& grid, std::int64_t v)
{
    if (out->Format()->DataType() != System::ntFloat)
        return nullptr;
    const BitmapView<float> view = Operators::ViewOf<float>(out);
    if (view.stride[slotX] != 1 || (grid.ny > 1 && view.stride[slotY] != grid.nx) ||
        (grid.nz > 1 && view.stride[slotZ] != grid.nx * grid.ny))
        return nullptr;
    return reinterpret_cast<std::uint32_t*>(VolumeStart(view, v));
}

// Whether squared distances across the whole grid stay below `unreached`.
bool FitsIntegerTransform(const Grid& grid)
{
    const auto square = [](std::int64_t n) { return double(n - 1) * double(n - 1); };
    return square(grid.nx) + square(grid.ny) + square(grid.nz) < double(unreached);
}

// False, having done nothing, for complex samples or a grid too large.
bool IntegerEuclideanDistance(const ImageRef& in, const ImageRef& out)
{
    const auto isComplex = [](const ImageRef& image) {
        const System::NumericTypeEnum type = image->Format()->DataType();
        return type == System::ntComplexF || type == System::ntComplexD;
    };
    const VolumeLayout layout = SingleBandOutputLayout(LayoutOf(in), LayoutOf(out));
    if (isComplex(in) || isComplex(out) || !FitsIntegerTransform(layout.grid))
        return false;
    const Grid& grid = layout.grid;
    std::unique_ptr<std::uint32_t[]> buffer;
    for (std::int64_t v = 0; v < layout.volumeCount; ++v) {
        std::uint32_t* squared = DenseFloatVolume(out, grid, v);
        if (!squared) {
            if (!buffer)
                buffer =
                    std::make_unique_for_overwrite<std::uint32_t[]>(static_cast<std::size_t>(grid.Count()));
            squared = buffer.get();
        }
        DispatchRealType(in->Format()->DataType(),
                         [&](auto tag) { SweepColumns<typename decltype(tag)::type>(in, v, grid, squared); });
        EnvelopeAlong(squared, grid.nz, grid.nx * grid.ny, grid.ny, grid.nx, grid.nx);
        DispatchRealType(out->Format()->DataType(),
                         [&](auto tag) { WriteRows<typename decltype(tag)::type>(squared, grid, out, v); });
    }
    return true;
}

void EuclideanDistance(ImageRef in, ImageRef out)
{
    if (IntegerEuclideanDistance(in, out))
        return;
    DistanceOf(in, out, [](const Grid& grid, double* values) {
        SquaredDistanceTransform(grid, values);
        for (std::int64_t p = 0; p < grid.Count(); ++p)
            values[p] = std::sqrt(values[p]);
    });
}

void GraphDistance(ImageRef in, ImageRef out, System::Ref<Geometry::INgbGraph> graph)
{
    const std::vector<Shift> shifts = ShiftsOf(*graph, false);
    DistanceOf(in, out,
               [&](const Grid& grid, double* values) { GraphDistanceTransform(grid, values, shifts); });
}

void RegisterDistance()
{
    const wchar_t* name = L"Reference morphology";
    Catalogue::Distance::Functions::Distance.Overload<0>().Register(name, &EuclideanDistance);
    Catalogue::Distance::Functions::Distance.Overload<1>().Register(name, &GraphDistance);
}

const System::Template::Initializer<::Library> distanceInitializer(&RegisterDistance, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Morphology
