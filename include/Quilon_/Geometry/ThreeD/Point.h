// A 3-D point shape.
//
//   p->SetZ(4);
#pragma once

#include "Quilon_/Geometry/ThreeD/Shape.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API IPointF : public virtual IShape, public virtual IPointFND {
    QUILON_INTERFACE(IPointF)
public:
    virtual float X() = 0;
    virtual void SetX(float x) = 0;
    virtual float Y() = 0;
    virtual void SetY(float y) = 0;
    virtual float Z() = 0;
    virtual void SetZ(float z) = 0;
};

} // namespace Quilon_::Geometry::ThreeD
