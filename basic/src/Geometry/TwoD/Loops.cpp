// Loops of multi-polygons for Geometry::TwoD::Loops::New.
#include "Geometry/TwoD/LoopsImpl.h"

#include "Geometry/TwoD/PointFCollectionImpl.h"
#include "Geometry/TwoD/PolygonMath.h"

#include "Quilon_/PrivateLibrary.h"

#include <algorithm>

namespace Quilon_::Basic::Geometry::TwoD {

using LoopsDetail::Typed;
using Quilon_::Geometry::TwoD::ILoops;

std::vector<CLoops::Loop> CLoops::AllLoops()
{
    std::vector<Loop> loops;
    loops.reserve(m_items.size());
    for (const auto& loop : m_items)
        loops.push_back(loop->Points());
    return loops;
}

System::Ref<ILoops> CLoops::Copy()
{
    std::vector<System::Ref<Drawing::IPointFCollection>> copies;
    for (const auto& loop : m_items)
        copies.push_back(CPointFCollection::Make(loop->Points()));
    return System::Ref<ILoops>(new CLoops(std::move(copies)));
}

std::int64_t CLoops::PointCount()
{
    std::int64_t count = 0;
    for (const auto& loop : m_items)
        count += loop->Count();
    return count;
}

std::int64_t CLoops::AddLoop(const Loop& points)
{
    return Typed::Add(CPointFCollection::Make(points));
}

void CLoops::Append(System::Ref<ILoops> other)
{
    // Read first: appending a collection to itself doubles it once.
    std::vector<Loop> loops;
    for (std::int64_t i = 0; i < other->Count(); ++i)
        loops.push_back(other->Item(i)->Points());
    for (const Loop& loop : loops)
        AddLoop(loop);
}

CLoops::Loop CLoops::LoopPoints(std::int64_t loop)
{
    return Typed::Item(loop)->Points();
}

void CLoops::SetLoopPoints(std::int64_t loop, const Loop& points)
{
    Typed::Item(loop)->SetPoints(points);
}

double CLoops::SignedArea(std::int64_t loop)
{
    return TwoD::SignedArea(LoopPoints(loop));
}

bool CLoops::IsClockwise(std::int64_t loop)
{
    return SignedArea(loop) < 0.0;
}

void CLoops::ReverseLoop(std::int64_t loop)
{
    Typed::Item(loop)->Reverse();
}

void CLoops::Move(float dx, float dy)
{
    for (const auto& loop : m_items)
        loop->Move(dx, dy);
}

bool CLoops::Extremes(PointF& low, PointF& high)
{
    bool any = false;
    for (const auto& loop : m_items) {
        if (loop->Count() == 0)
            continue;
        const PointF loopLow = loop->Minimum(), loopHigh = loop->Maximum();
        low = any ? PointF(std::min(low.x, loopLow.x), std::min(low.y, loopLow.y)) : loopLow;
        high = any ? PointF(std::max(high.x, loopHigh.x), std::max(high.y, loopHigh.y)) : loopHigh;
        any = true;
    }
    return any;
}

Drawing::Point<float> CLoops::Minimum()
{
    PointF low, high;
    return Extremes(low, high) ? low : PointF();
}

Drawing::Point<float> CLoops::Maximum()
{
    PointF low, high;
    return Extremes(low, high) ? high : PointF();
}

std::int64_t CLoops::RemoveDegenerate()
{
    std::int64_t removed = 0;
    for (std::int64_t i = Typed::Count() - 1; i >= 0; --i) {
        if (m_items[static_cast<std::size_t>(i)]->Count() < 3) {
            Typed::RemoveAt(i);
            ++removed;
        }
    }
    return removed;
}

namespace {

System::Ref<ILoops> NewEmptyLoops()
{
    return System::Ref<ILoops>(new CLoops());
}

System::Ref<ILoops> NewLoopsOf(const std::vector<System::Ref<Drawing::IPointFCollection>>& loops)
{
    return System::Ref<ILoops>(new CLoops(loops));
}

void RegisterLoops()
{
    Quilon_::Geometry::TwoD::Loops::New.Register(L"Loops", &NewEmptyLoops);
    Quilon_::Geometry::TwoD::Loops::New.Register(L"Loops", &NewLoopsOf);
}

const System::Template::Initializer<::Library> loopsInitializer(&RegisterLoops, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry::TwoD
