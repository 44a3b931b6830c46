// A 3-D straight segment from (X0, Y0, Z0) to (X1, Y1, Z1).
//
//   line->SetZ1(10);
#pragma once

#include "Quilon_/Geometry/ThreeD/BoxedF.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API ILineF : public virtual IBoxedF, public virtual ILineFND {
    QUILON_INTERFACE(ILineF)
public:
    virtual float X0() = 0;
    virtual void SetX0(float x) = 0;
    virtual float Y0() = 0;
    virtual void SetY0(float y) = 0;
    virtual float Z0() = 0;
    virtual void SetZ0(float z) = 0;
    virtual float X1() = 0;
    virtual void SetX1(float x) = 0;
    virtual float Y1() = 0;
    virtual void SetY1(float y) = 0;
    virtual float Z1() = 0;
    virtual void SetZ1(float z) = 0;
};

} // namespace Quilon_::Geometry::ThreeD
