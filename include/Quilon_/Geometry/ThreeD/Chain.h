// A 3-D chain of points, open or closed.
//
//   chain->AddPoint(CoordinatesF::New(1.0f, 2.0f, 3.0f, Axes::aXYZ));
//   chain->Length();
#pragma once

#include "Quilon_/Geometry/ThreeD/BoxedF.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API IChainF : public virtual IBoxedF {
    QUILON_INTERFACE(IChainF)
public:
    // The chain's own list, not a copy.
    virtual System::Ref<ICoordinatesFCollection> Points() = 0;
    virtual void SetPoints(System::Ref<ICoordinatesFCollection> points) = 0;
    virtual std::int64_t PointCount() = 0;
    virtual System::Ref<ICoordinatesF> Point(std::int64_t index) = 0;
    virtual void SetPoint(std::int64_t index, System::Ref<ICoordinatesF> point) = 0;
    virtual std::int64_t AddPoint(System::Ref<ICoordinatesF> point) = 0;
    virtual void InsertPoint(std::int64_t index, System::Ref<ICoordinatesF> point) = 0;
    virtual bool RemovePoint(std::int64_t index) = 0;
    // A closed chain joins its last point back to its first.
    virtual bool Closed() = 0;
    virtual void SetClosed(bool closed) = 0;
    virtual double Length() = 0;
    // Drops points closer than `tolerance` to the chain without them.
    virtual void Simplify(double tolerance) = 0;
    virtual void Reverse() = 0;
    // Replaces the points by points `step` apart along the chain.
    virtual void Resample(double step) = 0;
};

} // namespace Quilon_::Geometry::ThreeD
