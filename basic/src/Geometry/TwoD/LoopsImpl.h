// The reference library's loops of a multi-polygon: an observable
// collection of point lists.
#pragma once

#include "Quilon_/Geometry/TwoD/Loops.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"

#include <vector>

namespace Quilon_::Basic::Geometry::TwoD {

namespace LoopsDetail {
namespace CT = System::Collections::Template;
using Store = CT::Detail::ICollectionImplBase<Drawing::IPointFCollection>;
using Events = CT::ICollectionEventsImpl<System::Collections::ICollectionEvents>;
using Typed =
    CT::Detail::ICollectionImpl<Quilon_::Geometry::TwoD::ILoops, Drawing::IPointFCollection, Events, Store>;
using Untyped =
    CT::Detail::ICollectionImpl<System::Collections::ICollection, System::Interface, Events, Store>;
} // namespace LoopsDetail

class CLoops : public System::Template::ObjectImpl<CLoops, LoopsDetail::Typed, LoopsDetail::Untyped> {
public:
    using PointF = Drawing::Point<float>;
    using Loop = std::vector<PointF>;

    CLoops() = default;
    explicit CLoops(std::vector<System::Ref<Drawing::IPointFCollection>> loops)
    {
        m_items = std::move(loops);
    }

    // The points of every loop, one virtual call per loop.
    std::vector<Loop> AllLoops();
    // A new CLoops with a copy of each loop.
    System::Ref<Quilon_::Geometry::TwoD::ILoops> Copy();

    std::int64_t PointCount() override;
    std::int64_t AddLoop(const Loop& points) override;
    void Append(System::Ref<Quilon_::Geometry::TwoD::ILoops> other) override;
    Loop LoopPoints(std::int64_t loop) override;
    void SetLoopPoints(std::int64_t loop, const Loop& points) override;
    double SignedArea(std::int64_t loop) override;
    bool IsClockwise(std::int64_t loop) override;
    void ReverseLoop(std::int64_t loop) override;
    void Move(float dx, float dy) override;
    PointF Minimum() override;
    PointF Maximum() override;
    std::int64_t RemoveDegenerate() override;

private:
    // Both bounds at once; false when there is no point.
    bool Extremes(PointF& low, PointF& high);
};

} // namespace Quilon_::Basic::Geometry::TwoD
