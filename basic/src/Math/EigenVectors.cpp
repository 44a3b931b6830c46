#include "Math/EigenVectors.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Quilon_::Basic {

namespace {

double OffDiagonalNorm(Dense& a)
{
    double sum = 0;
    for (std::int64_t row = 0; row < a.rows; ++row)
        for (std::int64_t column = row + 1; column < a.columns; ++column)
            sum += a(row, column) * a(row, column);
    return std::sqrt(sum);
}

// One rotation in the plane (p, q) that zeroes a(p, q), applied to a from
// both sides and to the accumulated vectors v from the right.
void Rotate(Dense& a, Dense& v, std::int64_t p, std::int64_t q)
{
    const double theta = (a(q, q) - a(p, p)) / (2 * a(p, q));
    const double t = (theta >= 0 ? 1.0 : -1.0) / (std::fabs(theta) + std::sqrt(theta * theta + 1));
    const double c = 1 / std::sqrt(t * t + 1);
    const double s = t * c;
    for (std::int64_t k = 0; k < a.rows; ++k) {
        const double kp = a(k, p), kq = a(k, q);
        a(k, p) = c * kp - s * kq;
        a(k, q) = s * kp + c * kq;
    }
    for (std::int64_t k = 0; k < a.rows; ++k) {
        const double pk = a(p, k), qk = a(q, k);
        a(p, k) = c * pk - s * qk;
        a(q, k) = s * pk + c * qk;
    }
    for (std::int64_t k = 0; k < v.rows; ++k) {
        const double kp = v(k, p), kq = v(k, q);
        v(k, p) = c * kp - s * kq;
        v(k, q) = s * kp + c * kq;
    }
}

} // namespace

Dense SymmetricEigenVectors(Dense a)
{
    const std::int64_t n = a.rows;
    for (std::int64_t row = 0; row < n; ++row)
        for (std::int64_t column = 0; column < row; ++column)
            a(row, column) = a(column, row);
    Dense v(n, n);
    for (std::int64_t i = 0; i < n; ++i)
        v(i, i) = 1.0;

    // Each sweep squares the off-diagonal norm at the end, so fifty sweeps
    // are never reached for finite input; they bound the loop for NaN.
    double scale = 0;
    for (double value : a.values)
        scale = std::fmax(scale, std::fabs(value));
    for (int sweep = 0; sweep < 50 && OffDiagonalNorm(a) > scale * 1e-15; ++sweep)
        for (std::int64_t p = 0; p < n; ++p)
            for (std::int64_t q = p + 1; q < n; ++q)
                if (a(p, q) != 0)
                    Rotate(a, v, p, q);

    std::vector<std::int64_t> order(static_cast<std::size_t>(n));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](std::int64_t x, std::int64_t y) { return a(x, x) > a(y, y); });
    Dense sorted(n, n);
    for (std::int64_t column = 0; column < n; ++column)
        for (std::int64_t row = 0; row < n; ++row)
            sorted(row, column) = v(row, order[static_cast<std::size_t>(column)]);
    return sorted;
}

} // namespace Quilon_::Basic
