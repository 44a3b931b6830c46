// A 2-D vector: an arrow of (DX, DY) drawn from (X, Y), as object sets keep
// motion or orientation per object.
//
//   Ref<Geometry::TwoD::IVectorF> v = Geometry::TwoD::VectorF::New(0, 0, 3, 4);
//   v->DX();   // 3
#pragma once

#include "Quilon_/Drawing/Drawable.h"
#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IVectorF : public virtual IVectorFND,
                            public virtual Drawing::IDrawable,
                            public virtual Windows::IViewable {
    QUILON_INTERFACE(IVectorF)
public:
    virtual float X() = 0;
    virtual void SetX(float x) = 0;
    virtual float Y() = 0;
    virtual void SetY(float y) = 0;
    virtual float DX() = 0;
    virtual void SetDX(float dx) = 0;
    virtual float DY() = 0;
    virtual void SetDY(float dy) = 0;
};

namespace VectorF {
// New(x, y, dx, dy).
using Factory = System::Functions::Template::Factory<System::Ref<IVectorF>(float, float, float, float)>;
extern QUILON_API Factory New;
} // namespace VectorF

} // namespace Quilon_::Geometry::TwoD
