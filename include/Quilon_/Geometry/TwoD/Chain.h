// An open 2-D chain of points, as drawn by a polyline tool or found along
// a contour.
//
//   Ref<Geometry::TwoD::IChainF> chain = Geometry::TwoD::ChainF::New(points, Geometry::Axes::aXY);
//   chain->Simplify(Geometry::DouglasPeukerChainSimplifier::New(1.0));
#pragma once

#include "Quilon_/Geometry/Chain.h"
#include "Quilon_/Geometry/TwoD/BoxedF.h"
#include "Quilon_/Geometry/TwoD/PolyPoints.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IChainF : public virtual IBoxedF, public virtual IPolyPointsF {
    QUILON_INTERFACE(IChainF)
public:
    // Replaces the points by the simplifier's result.
    virtual void Simplify(System::Ref<IChainSimplifier> simplifier) = 0;
    // Replaces the points by the interpolator's result.
    virtual void Interpolate(System::Ref<IChainInterpolator> interpolator) = 0;
};

namespace ChainF {
using Factory =
    System::Functions::Template::Factory<System::Ref<IChainF>(Geometry::Axes),
                                         System::Ref<IChainF>(System::Ref<Drawing::IPointFCollection>,
                                                              Geometry::Axes)>;
extern QUILON_API Factory New;
} // namespace ChainF

} // namespace Quilon_::Geometry::TwoD
