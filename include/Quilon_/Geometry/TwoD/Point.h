// A 2-D point shape, drawn as a symbol on a view.
//
//   Ref<Geometry::TwoD::IPointF> p = Geometry::TwoD::PointF::New(1.5f, 2.5f, Geometry::Axes::aXY);
//   p->SetX(3);
#pragma once

#include "Quilon_/Drawing/Drawable.h"
#include "Quilon_/Geometry/TwoD/Shape.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IPointF : public virtual IShape,
                           public virtual IPointFND,
                           public virtual Drawing::IDrawable,
                           public virtual Windows::IViewable {
    QUILON_INTERFACE(IPointF)
public:
    virtual float X() = 0;
    virtual void SetX(float x) = 0;
    virtual float Y() = 0;
    virtual void SetY(float y) = 0;
};

namespace PointF {
// New(axes) is the point (0, 0); New(x, y, axes).
using Factory = System::Functions::Template::Factory<System::Ref<IPointF>(Geometry::Axes),
                                                     System::Ref<IPointF>(float, float, Geometry::Axes)>;
extern QUILON_API Factory New;
} // namespace PointF

} // namespace Quilon_::Geometry::TwoD
