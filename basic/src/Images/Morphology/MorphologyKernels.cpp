// The distance kernels of the morphology operators; the others are
// templates in the header.
#include "Images/Morphology/MorphologyKernels.h"

namespace Quilon_::Basic::Images::Morphology {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// The lower envelope of the parabolas (i - q)² + f(q) over the finite
// samples q of one line, evaluated at every i. Parabolas of infinite
// samples never lie below a finite one, so they are left out, which also
// keeps infinities out of the intersection formula.
void EnvelopeOfLine(std::vector<double>& f, std::vector<double>& d, std::vector<std::int64_t>& apex,
                    std::vector<double>& from)
{
    const auto n = static_cast<std::int64_t>(f.size());
    std::int64_t k = -1;
    for (std::int64_t q = 0; q < n; ++q) {
        if (f[q] == infinity)
            continue;
        double s = -infinity;
        while (k >= 0) {
            const std::int64_t p = apex[k];
            s = ((f[q] + double(q) * double(q)) - (f[p] + double(p) * double(p))) / (2.0 * double(q - p));
            if (s > from[k])
                break;
            --k;
        }
        ++k;
        apex[k] = q;
        from[k] = k == 0 ? -infinity : s;
    }
    if (k < 0) {
        std::fill(d.begin(), d.end(), infinity);
        return;
    }
    std::int64_t j = 0;
    for (std::int64_t i = 0; i < n; ++i) {
        while (j < k && from[j + 1] < double(i))
            ++j;
        const double di = double(i - apex[j]);
        d[i] = di * di + f[apex[j]];
    }
}

} // namespace

void SquaredDistanceTransform(const Grid& grid, double* squared)
{
    const std::int64_t extent[] = {grid.nx, grid.ny, grid.nz};
    const std::int64_t stride[] = {1, grid.nx, grid.nx * grid.ny};
    for (int axis = 0; axis < 3; ++axis) {
        const std::int64_t n = extent[axis];
        if (n <= 1)
            continue;
        std::vector<double> f(static_cast<std::size_t>(n)), d(f.size()), from(f.size());
        std::vector<std::int64_t> apex(f.size());
        // Every line along `axis` starts at a location whose coordinate on
        // that axis is 0.
        for (std::int64_t start = 0; start < grid.Count(); ++start) {
            if (start / stride[axis] % n != 0)
                continue;
            for (std::int64_t i = 0; i < n; ++i)
                f[i] = squared[start + i * stride[axis]];
            EnvelopeOfLine(f, d, apex, from);
            for (std::int64_t i = 0; i < n; ++i)
                squared[start + i * stride[axis]] = d[i];
        }
    }
}

void GraphDistanceTransform(const Grid& grid, double* steps, std::span<const Shift> shifts)
{
    std::deque<std::int64_t> queue;
    for (std::int64_t p = 0; p < grid.Count(); ++p)
        if (steps[p] == 0)
            queue.push_back(p);
    while (!queue.empty()) {
        const std::int64_t p = queue.front();
        queue.pop_front();
        const std::int64_t x = p % grid.nx, y = p / grid.nx % grid.ny, z = p / (grid.nx * grid.ny);
        for (const Shift& s : shifts) {
            if (!grid.Contains(x + s.dx, y + s.dy, z + s.dz))
                continue;
            const std::int64_t q = grid.Index(x + s.dx, y + s.dy, z + s.dz);
            if (steps[q] > steps[p] + 1) {
                steps[q] = steps[p] + 1;
                queue.push_back(q);
            }
        }
    }
}

} // namespace Quilon_::Basic::Images::Morphology
