// A 2-D straight segment, and the connectivity with which lines are
// rasterised unless told otherwise.
//
//   Ref<Geometry::TwoD::ILineF> line = Geometry::TwoD::LineF::New(0, 0, 3, 4, Geometry::Axes::aXY);
//   line->Length();   // 5
//   Geometry::TwoD::LineF::SetDefaultConnectivity(Geometry::TwoD::cn4Connected);
#pragma once

#include "Quilon_/Drawing/Drawable.h"
#include "Quilon_/Geometry/TwoD/BoxedF.h"
#include "Quilon_/Geometry/TwoD/Connectivity.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API ILineF : public virtual IBoxedF,
                          public virtual ILineFND,
                          public virtual Drawing::IDrawable,
                          public virtual Windows::IViewable {
    QUILON_INTERFACE(ILineF)
public:
    virtual double Length() = 0;
    // The angle from the x axis to the segment from Start() to End(), in
    // radians, in (-pi, pi].
    virtual double Orientation() = 0;
};

namespace LineF {
// New(axes) is a line of length 0 at the origin; New(x0, y0, x1, y1, axes).
using Factory =
    System::Functions::Template::Factory<System::Ref<ILineF>(Geometry::Axes),
                                         System::Ref<ILineF>(float, float, float, float, Geometry::Axes)>;
extern QUILON_API Factory New;

// The connectivity of rasterised lines, for the whole process; starts as
// cn8Connected. Read and written without a lock: set it at start-up.
QUILON_API ConnectivityEnum DefaultConnectivity();
QUILON_API void SetDefaultConnectivity(ConnectivityEnum connectivity);
} // namespace LineF

} // namespace Quilon_::Geometry::TwoD
