#include "Geometry/TwoD/PolygonMath.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Quilon_::Basic::Geometry::TwoD {

namespace {

// Twice the signed area of the triangle o, a, b: positive when o -> a -> b
// turns from the x axis towards the y axis.
double Cross(PointF o, PointF a, PointF b)
{
    return (double(a.x) - o.x) * (double(b.y) - o.y) - (double(a.y) - o.y) * (double(b.x) - o.x);
}

bool OnSegment(PointF a, PointF b, PointF p)
{
    return Cross(a, b, p) == 0.0 && std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x) &&
           std::min(a.y, b.y) <= p.y && p.y <= std::max(a.y, b.y);
}

// Appends `p` to the hull under construction, popping the corners that
// would not turn left: collinear ones go too.
void PushTurningLeft(Loop& hull, std::size_t floor, PointF p)
{
    while (hull.size() >= floor + 2 && Cross(hull[hull.size() - 2], hull.back(), p) <= 0.0)
        hull.pop_back();
    hull.push_back(p);
}

} // namespace

double SignedArea(const Loop& loop)
{
    if (loop.size() < 3)
        return 0.0;
    double sum = 0.0;
    for (std::size_t i = 0, j = loop.size() - 1; i < loop.size(); j = i++)
        sum += double(loop[j].x) * loop[i].y - double(loop[i].x) * loop[j].y;
    return sum / 2.0;
}

Loop ConvexHull(Loop points)
{
    std::sort(points.begin(), points.end(),
              [](PointF a, PointF b) { return a.x < b.x || (a.x == b.x && a.y < b.y); });
    points.erase(std::unique(points.begin(), points.end()), points.end());
    if (points.size() < 3) {
        if (points.size() == 2 || points.size() == 1)
            return points;
        return {};
    }
    Loop hull;
    for (PointF p : points) // lower chain, left to right
        PushTurningLeft(hull, 0, p);
    const std::size_t lowerSize = hull.size();
    for (auto p = points.rbegin() + 1; p != points.rend(); ++p) // upper chain, back
        PushTurningLeft(hull, lowerSize - 1, *p);
    hull.pop_back(); // the first point, reached again
    return hull;
}

bool OnBoundary(const Loop& loop, PointF point)
{
    for (std::size_t i = 0, j = loop.size() - 1; i < loop.size(); j = i++) {
        if (OnSegment(loop[j], loop[i], point))
            return true;
    }
    return false;
}

bool OddCrossings(const Loop& loop, PointF point)
{
    bool odd = false;
    for (std::size_t i = 0, j = loop.size() - 1; i < loop.size(); j = i++) {
        const PointF a = loop[j], b = loop[i];
        // Half-open in y, so that a ray through a corner counts it once.
        if ((a.y > point.y) != (b.y > point.y)) {
            const double x = a.x + (double(point.y) - a.y) * (double(b.x) - a.x) / (double(b.y) - a.y);
            if (point.x < x)
                odd = !odd;
        }
    }
    return odd;
}

double EvenOddArea(const std::vector<Loop>& loops)
{
    double area = 0.0;
    for (std::size_t i = 0; i < loops.size(); ++i) {
        if (loops[i].size() < 3)
            continue;
        std::size_t depth = 0;
        for (std::size_t j = 0; j < loops.size(); ++j) {
            if (j != i && loops[j].size() >= 3 && OddCrossings(loops[j], loops[i].front()))
                ++depth;
        }
        const double own = std::abs(SignedArea(loops[i]));
        area += depth % 2 == 0 ? own : -own;
    }
    return area;
}

bool EvenOddContains(const std::vector<Loop>& loops, PointF point)
{
    bool inside = false;
    for (const Loop& loop : loops) {
        if (loop.empty())
            continue;
        if (OnBoundary(loop, point))
            return true;
        if (loop.size() >= 3 && OddCrossings(loop, point))
            inside = !inside;
    }
    return inside;
}

double PathLength(const Loop& points, bool closed)
{
    double length = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i)
        length += std::hypot(double(points[i].x) - points[i - 1].x, double(points[i].y) - points[i - 1].y);
    if (closed && points.size() > 1)
        length += std::hypot(double(points.front().x) - points.back().x,
                             double(points.front().y) - points.back().y);
    return length;
}

} // namespace Quilon_::Basic::Geometry::TwoD
