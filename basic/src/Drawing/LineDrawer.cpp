// Line rasterisation in a line style, behind LineDrawer::New.
#include "Quilon_/Drawing/LineDrawer.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"

#include <cstdlib>
#include <vector>

namespace Quilon_::Basic::Drawing {

using namespace Quilon_::Drawing;
using System::Ref;

namespace {

// The dash pattern of a style: lengths in pixels, drawn and skipped in
// turn, starting with drawn. Empty for a solid line.
std::vector<int> PatternOf(LineStyleEnum style)
{
    switch (style) {
    case lsDash:
        return {6, 3};
    case lsDot:
        return {1, 2};
    case lsDashDot:
        return {6, 3, 1, 3};
    case lsDashDotDot:
        return {6, 3, 1, 3, 1, 3};
    case lsNone:
        return {0, 1};
    default:
        return {};
    }
}

class CLineDrawer : public System::Template::ObjectImpl<CLineDrawer, ILineDrawer> {
public:
    explicit CLineDrawer(LineStyleEnum style) : m_pattern(PatternOf(style)) {}

    // Bresenham's walk, one pixel per step along the longer axis; the
    // pattern runs along the steps from `from` on.
    std::vector<Point<int>> Pixels(const Point<int>& from, const Point<int>& to) override
    {
        const int dx = std::abs(to.x - from.x);
        const int dy = -std::abs(to.y - from.y);
        const int sx = from.x < to.x ? 1 : -1;
        const int sy = from.y < to.y ? 1 : -1;
        int error = dx + dy;
        Point<int> p = from;
        std::vector<Point<int>> pixels;
        for (long step = 0;; ++step) {
            if (Drawn(step))
                pixels.push_back(p);
            if (p == to)
                break;
            const int twice = 2 * error;
            if (twice >= dy) {
                error += dy;
                p.x += sx;
            }
            if (twice <= dx) {
                error += dx;
                p.y += sy;
            }
        }
        return pixels;
    }

private:
    bool Drawn(long step) const
    {
        if (m_pattern.empty())
            return true;
        long period = 0;
        for (int length : m_pattern)
            period += length;
        long offset = step % period;
        for (std::size_t i = 0; i < m_pattern.size(); ++i) {
            if (offset < m_pattern[i])
                return i % 2 == 0;
            offset -= m_pattern[i];
        }
        return false;
    }

    std::vector<int> m_pattern;
};

Ref<ILineDrawer> NewLineDrawer(LineStyleEnum style)
{
    return Ref<ILineDrawer>(new CLineDrawer(style));
}

void RegisterLineDrawer()
{
    LineDrawer::New.Register(L"Line drawer", &NewLineDrawer);
}

const System::Template::Initializer<::Library> lineDrawers(&RegisterLineDrawer, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Drawing
