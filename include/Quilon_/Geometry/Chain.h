// Tools that rework a chain of 2-D points: simplifiers drop points that add
// little to the chain's course, interpolators add points between them.
//
//   Ref<Geometry::IChainSimplifier> simplifier = Geometry::DouglasPeukerChainSimplifier::New(0.5);
//   Ref<Drawing::IPointFCollection> fewer = simplifier->Simplify(points);
//
//   Ref<Geometry::IHighGradientChainInterpolator> snap = Geometry::HighGradientChainInterpolator::New();
//   snap->SetGradient(gradientBitmap);
//   Ref<Drawing::IPointFCollection> path = snap->Interpolate(clicks);   // follows the edges
#pragma once

#include "Quilon_/Drawing/PointFCollection.h"
#include "Quilon_/System/Functions/Function.h"

namespace Quilon_::Images {
class IBitmap;
} // namespace Quilon_::Images

namespace Quilon_::Geometry {

class QUILON_API IChainSimplifier : public virtual System::Interface {
    QUILON_INTERFACE(IChainSimplifier)
public:
    // A new chain; the first and the last point are always kept.
    virtual System::Ref<Drawing::IPointFCollection>
    Simplify(System::Ref<Drawing::IPointFCollection> chain) = 0;
    // The largest distance of a dropped point from the simplified chain.
    virtual double Tolerance() = 0;
    virtual void SetTolerance(double tolerance) = 0;
};

class QUILON_API IChainInterpolator : public virtual System::Interface {
    QUILON_INTERFACE(IChainInterpolator)
public:
    // A new chain through every point of `chain`, with points added between
    // neighbours.
    virtual System::Ref<Drawing::IPointFCollection>
    Interpolate(System::Ref<Drawing::IPointFCollection> chain) = 0;
};

// Joins the points along the path of highest gradient, so that a chain
// clicked roughly along an edge follows the edge.
class QUILON_API IHighGradientChainInterpolator : public virtual IChainInterpolator {
    QUILON_INTERFACE(IHighGradientChainInterpolator)
public:
    virtual System::Pointer<Images::IBitmap, 0> Gradient() = 0;
    virtual void SetGradient(System::Pointer<Images::IBitmap, 0> gradient) = 0;
};

namespace DouglasPeukerChainSimplifier {
// New(tolerance).
extern QUILON_API System::Functions::Template::Function<System::Ref<IChainSimplifier> (*)(double)> New;
} // namespace DouglasPeukerChainSimplifier

namespace HighGradientChainInterpolator {
extern QUILON_API System::Functions::Template::Function<System::Ref<IHighGradientChainInterpolator> (*)()>
    New;
} // namespace HighGradientChainInterpolator

} // namespace Quilon_::Geometry
