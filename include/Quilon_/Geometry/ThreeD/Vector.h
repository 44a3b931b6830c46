// A 3-D vector: an arrow of (DX, DY, DZ) drawn from (X, Y, Z).
//
//   v->SetDZ(1);
#pragma once

#include "Quilon_/Geometry/Shape.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API IVectorF : public virtual IVectorFND {
    QUILON_INTERFACE(IVectorF)
public:
    virtual float X() = 0;
    virtual void SetX(float x) = 0;
    virtual float Y() = 0;
    virtual void SetY(float y) = 0;
    virtual float Z() = 0;
    virtual void SetZ(float z) = 0;
    virtual float DX() = 0;
    virtual void SetDX(float dx) = 0;
    virtual float DY() = 0;
    virtual void SetDY(float dy) = 0;
    virtual float DZ() = 0;
    virtual void SetDZ(float dz) = 0;
};

} // namespace Quilon_::Geometry::ThreeD
