// The loops of a multi-polygon: each an IPointFCollection, closed
// implicitly from its last point back to its first. Which loops are holes
// is the concern of the functions that read them (see MultiPolygon.h).
//
//   Ref<Geometry::TwoD::ILoops> loops = Geometry::TwoD::Loops::New();
//   loops->AddLoop({{0, 0}, {10, 0}, {10, 10}, {0, 10}});   // outline
//   loops->AddLoop({{2, 2}, {2, 4}, {4, 4}, {4, 2}});       // a hole
#pragma once

#include "Quilon_/Drawing/PointFCollection.h"
#include "Quilon_/System/Collections/Collection.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Geometry::TwoD {

class QUILON_API ILoops
    : public virtual System::Collections::Template::ICollection<Drawing::IPointFCollection> {
    QUILON_INTERFACE(ILoops)
public:
    // The number of points over all loops.
    virtual std::int64_t PointCount() = 0;
    // Appends a new loop of these points; its position.
    virtual std::int64_t AddLoop(const std::vector<Drawing::Point<float>>& points) = 0;
    // Appends every loop of `other`, each copied.
    virtual void Append(System::Ref<ILoops> other) = 0;
    virtual std::vector<Drawing::Point<float>> LoopPoints(std::int64_t loop) = 0;
    virtual void SetLoopPoints(std::int64_t loop, const std::vector<Drawing::Point<float>>& points) = 0;
    // The shoelace sum of one loop, halved: positive when the loop turns
    // from the x axis towards the y axis.
    virtual double SignedArea(std::int64_t loop) = 0;
    // Whether SignedArea(loop) is negative.
    virtual bool IsClockwise(std::int64_t loop) = 0;
    virtual void ReverseLoop(std::int64_t loop) = 0;
    virtual void Move(float dx, float dy) = 0;
    // The smallest x and y over all loops, and the largest; (0, 0) when
    // there is no point.
    virtual Drawing::Point<float> Minimum() = 0;
    virtual Drawing::Point<float> Maximum() = 0;
    // Removes the loops of fewer than three points; how many went.
    virtual std::int64_t RemoveDegenerate() = 0;
};

namespace Loops {
// New() is empty; New(loops) takes the lists as its own.
using Factory = System::Functions::Template::Factory<
    System::Ref<ILoops>(), System::Ref<ILoops>(const std::vector<System::Ref<Drawing::IPointFCollection>>&)>;
extern QUILON_API Factory New;
} // namespace Loops

} // namespace Quilon_::Geometry::TwoD
