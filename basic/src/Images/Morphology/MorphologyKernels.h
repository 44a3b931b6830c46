// The scalar kernels of the reference library's morphology operators, on
// one dense volume of samples (x fastest, then y, then z; a plane is a
// volume of depth 1). They are the reference that faster versions are
// measured and checked against: plain loops, no call per sample.
//
//   Grid grid{width, height, 1};
//   std::vector<std::uint8_t> in = ..., out(in.size());
//   const Shift cross[] = {{0, 0, 0}, {1, 0, 0}, {-1, 0, 0}, {0, 1, 0}, {0, -1, 0}};
//   Erode(grid, in.data(), out.data(), cross);        // min over in[p + s]
//   Reconstruct<false>(grid, marker.data(), mask.data(), eight);   // by dilation, in place in marker
//
// Borders: a shift that leaves the volume contributes nothing, which is the
// same as a neutral value outside (the largest value for an erosion, the
// lowest for a dilation).
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <deque>
#include <limits>
#include <span>
#include <type_traits>
#include <vector>

namespace Quilon_::Basic::Images::Morphology {

struct Grid {
    std::int64_t nx = 1;
    std::int64_t ny = 1;
    std::int64_t nz = 1;

    std::int64_t Count() const { return nx * ny * nz; }
    bool Contains(std::int64_t x, std::int64_t y, std::int64_t z) const
    {
        return x >= 0 && x < nx && y >= 0 && y < ny && z >= 0 && z < nz;
    }
    std::int64_t Index(std::int64_t x, std::int64_t y, std::int64_t z) const { return x + nx * (y + ny * z); }
    // Whether the location lies on a face of the volume; a plane has no
    // faces along z.
    bool OnBorder(std::int64_t x, std::int64_t y, std::int64_t z) const
    {
        return x == 0 || x == nx - 1 || y == 0 || y == ny - 1 || (nz > 1 && (z == 0 || z == nz - 1));
    }
};

// One offset of a structuring element or a neighbourhood graph.
struct Shift {
    std::int64_t dx = 0;
    std::int64_t dy = 0;
    std::int64_t dz = 0;

    Shift Reflected() const { return {-dx, -dy, -dz}; }
    friend bool operator==(const Shift&, const Shift&) = default;
};

// The largest and the lowest value of T, infinities for floating types:
// the neutral values of erosion and dilation.
template <class T>
constexpr T Highest()
{
    if constexpr (std::numeric_limits<T>::has_infinity)
        return std::numeric_limits<T>::infinity();
    else
        return std::numeric_limits<T>::max();
}
template <class T>
constexpr T Lowest()
{
    if constexpr (std::numeric_limits<T>::has_infinity)
        return -std::numeric_limits<T>::infinity();
    else
        return std::numeric_limits<T>::lowest();
}

// a - b for a >= b, saturated at the largest value: the difference of two
// values of a signed type may not fit in it.
template <class T>
T SaturatedDifference(T a, T b)
{
    if constexpr (std::is_floating_point_v<T>)
        return a - b;
    else {
        T result;
        if (__builtin_sub_overflow(a, b, &result))
            return std::numeric_limits<T>::max();
        return result;
    }
}

namespace Detail {

// The range [first, last) of i along one axis of n samples for which
// i + d stays inside.
inline void ValidRange(std::int64_t n, std::int64_t d, std::int64_t& first, std::int64_t& last)
{
    first = std::max<std::int64_t>(0, -d);
    last = std::min<std::int64_t>(n, n - d);
}

// out[p] = combine(out[p], in[p + s]) wherever p + s is inside: one shift
// at a time, so the inner loop is a plain run over a row.
template <class T, class Combine>
void Accumulate(const Grid& grid, const T* in, T* out, const Shift& s, Combine combine)
{
    std::int64_t x0, x1, y0, y1, z0, z1;
    ValidRange(grid.nx, s.dx, x0, x1);
    ValidRange(grid.ny, s.dy, y0, y1);
    ValidRange(grid.nz, s.dz, z0, z1);
    const std::int64_t delta = s.dx + grid.nx * (s.dy + grid.ny * s.dz);
    for (std::int64_t z = z0; z < z1; ++z)
        for (std::int64_t y = y0; y < y1; ++y) {
            T* row = out + grid.Index(0, y, z);
            const T* source = in + grid.Index(0, y, z) + delta;
            for (std::int64_t x = x0; x < x1; ++x)
                row[x] = combine(row[x], source[x]);
        }
}

} // namespace Detail

// out[p] = min over s of in[p + s]; `out` must not overlap `in`.
template <class T>
void Erode(const Grid& grid, const T* in, T* out, std::span<const Shift> shifts)
{
    std::fill(out, out + grid.Count(), Highest<T>());
    for (const Shift& s : shifts)
        Detail::Accumulate(grid, in, out, s, [](T a, T b) { return b < a ? b : a; });
}

// out[p] = max over s of in[p - s]: the dilation by the element, which
// reads through its reflection.
template <class T>
void Dilate(const Grid& grid, const T* in, T* out, std::span<const Shift> shifts)
{
    std::fill(out, out + grid.Count(), Lowest<T>());
    for (const Shift& s : shifts)
        Detail::Accumulate(grid, in, out, s.Reflected(), [](T a, T b) { return a < b ? b : a; });
}

// Geodesic reconstruction of `marker` under `mask` (by dilation), or over
// it with `Dual` (by erosion), along the neighbours `shifts`; the result
// replaces `marker`. The hybrid scheme: one raster scan forward and one
// backward, then a queue of the locations that can still spread.
template <bool Dual, class T>
void Reconstruct(const Grid& grid, T* marker, const T* mask, std::span<const Shift> shifts)
{
    // "a ranks below b": the direction in which values spread.
    const auto below = [](T a, T b) { return Dual ? b < a : a < b; };
    const auto upper = [&](T a, T b) { return below(a, b) ? b : a; };
    const auto lower = [&](T a, T b) { return below(a, b) ? a : b; };

    std::vector<Shift> before, after; // neighbours scanned earlier / later in raster order
    for (const Shift& s : shifts) {
        const bool earlier = s.dz != 0 ? s.dz < 0 : s.dy != 0 ? s.dy < 0 : s.dx < 0;
        if (s == Shift{})
            continue;
        (earlier ? before : after).push_back(s);
    }
    const std::int64_t count = grid.Count();
    for (std::int64_t i = 0; i < count; ++i)
        marker[i] = lower(marker[i], mask[i]);

    const auto spread = [&](std::int64_t x, std::int64_t y, std::int64_t z, const std::vector<Shift>& from) {
        const std::int64_t p = grid.Index(x, y, z);
        T value = marker[p];
        for (const Shift& s : from)
            if (grid.Contains(x + s.dx, y + s.dy, z + s.dz))
                value = upper(value, marker[grid.Index(x + s.dx, y + s.dy, z + s.dz)]);
        marker[p] = lower(value, mask[p]);
    };
    for (std::int64_t z = 0; z < grid.nz; ++z)
        for (std::int64_t y = 0; y < grid.ny; ++y)
            for (std::int64_t x = 0; x < grid.nx; ++x)
                spread(x, y, z, before);

    std::deque<std::int64_t> queue;
    for (std::int64_t z = grid.nz - 1; z >= 0; --z)
        for (std::int64_t y = grid.ny - 1; y >= 0; --y)
            for (std::int64_t x = grid.nx - 1; x >= 0; --x) {
                spread(x, y, z, after);
                const T value = marker[grid.Index(x, y, z)];
                for (const Shift& s : after) {
                    if (!grid.Contains(x + s.dx, y + s.dy, z + s.dz))
                        continue;
                    const std::int64_t q = grid.Index(x + s.dx, y + s.dy, z + s.dz);
                    if (below(marker[q], value) && below(marker[q], mask[q])) {
                        queue.push_back(grid.Index(x, y, z));
                        break;
                    }
                }
            }

    while (!queue.empty()) {
        const std::int64_t p = queue.front();
        queue.pop_front();
        const std::int64_t x = p % grid.nx, y = p / grid.nx % grid.ny, z = p / (grid.nx * grid.ny);
        for (const Shift& s : shifts) {
            if (!grid.Contains(x + s.dx, y + s.dy, z + s.dz))
                continue;
            const std::int64_t q = grid.Index(x + s.dx, y + s.dy, z + s.dz);
            if (below(marker[q], marker[p]) && marker[q] != mask[q]) {
                marker[q] = lower(marker[p], mask[q]);
                queue.push_back(q);
            }
        }
    }
}

// The squared Euclidean distance from every location to the nearest one
// where `squared` is 0, given squared distances that are 0 or infinite:
// one pass of the lower envelope of parabolas per axis (Felzenszwalb and
// Huttenlocher), in place. Infinite values mean "no zero reachable yet" and
// stay infinite only when a whole line has no finite value.
void SquaredDistanceTransform(const Grid& grid, double* squared);

// The number of steps along `shifts` from every location to the nearest
// one where `steps` is 0, given 0 or infinity; unreachable locations stay
// infinite. A breadth-first walk from every zero at once.
void GraphDistanceTransform(const Grid& grid, double* steps, std::span<const Shift> shifts);

} // namespace Quilon_::Basic::Images::Morphology
