// A 2-D rectangle: its bounding box is itself.
//
//   Ref<Geometry::TwoD::IRectangleF> r = Geometry::TwoD::RectangleF::New(0, 0, 4, 3, Geometry::Axes::aXY);
//   r->Area();   // 12
#pragma once

#include "Quilon_/Geometry/TwoD/BoxedF.h"

namespace Quilon_::Geometry::TwoD {

// A rectangle adds no operation to its bounding box.
class QUILON_API IRectangleF : public virtual IBoxedF {
    QUILON_INTERFACE(IRectangleF)
};

namespace RectangleF {
// New(axes) is empty; New(left, top, width, height, axes).
using Factory = System::Functions::Template::Factory<System::Ref<IRectangleF>(Geometry::Axes),
                                                     System::Ref<IRectangleF>(float, float, float, float,
                                                                              Geometry::Axes)>;
extern QUILON_API Factory New;
} // namespace RectangleF

} // namespace Quilon_::Geometry::TwoD
