// A 2-D shape given by a list of points: chains, polygons, point sets.
//
//   Ref<Drawing::IPointFCollection> points = shape->Points();   // live: changes reshape the shape
#pragma once

#include "Quilon_/Drawing/PointFCollection.h"
#include "Quilon_/Geometry/TwoD/Shape.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IPolyPointsF : public virtual IShape {
    QUILON_INTERFACE(IPolyPointsF)
public:
    // The shape's own list, not a copy.
    virtual System::Ref<Drawing::IPointFCollection> Points() = 0;
    virtual void SetPoints(System::Ref<Drawing::IPointFCollection> points) = 0;
};

} // namespace Quilon_::Geometry::TwoD
