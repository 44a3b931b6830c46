// The size of one sample along each axis of a set, with its unit: how far
// apart two neighbouring pixels are in the world.
//
//   Ref<Measurements::IResolution> r = Measurements::Resolution::New(Geometry::Axes::aXY);
//   r->SetValue(Geometry::aX, 0.5);
//   r->SetUnit(Geometry::aX, Measurements::Globals::Units()->ItemByName(L"um"));
//   r->ToPhysical(Geometry::aX, 10.0);    // 5 (um)
//   Ref<Measurements::IResolution> half = Measurements::Resolution::New(r, 2.0);   // every value twice
//
// A new resolution has the value 1 and no unit on each of its axes; an axis
// that is not in the set raises when read or written.
#pragma once

#include "Quilon_/Geometry/Axes.h"
#include "Quilon_/Measurements/Unit.h"

namespace Quilon_::Measurements {

class QUILON_API IResolution : public virtual System::Interface {
    QUILON_INTERFACE(IResolution)
public:
    virtual Geometry::Axes Axes() = 0;
    // Axes of both sets keep their value and unit; new axes start at 1.
    virtual void SetAxes(Geometry::Axes axes) = 0;
    // The size of one sample along `axis`, in the axis' unit.
    virtual double Value(Geometry::AxisEnum axis) = 0;
    virtual void SetValue(Geometry::AxisEnum axis, double value) = 0;
    // Null when the axis has no unit: its values count samples.
    virtual System::Pointer<IUnit, 0> Unit(Geometry::AxisEnum axis) = 0;
    virtual void SetUnit(Geometry::AxisEnum axis, System::Pointer<IUnit, 0> unit) = 0;
    // Whether the spatial axes (X, Y, Z) of the set have one value and one
    // unit.
    virtual bool IsIsotropic() = 0;
    // `samples` along `axis` in the axis' unit.
    virtual double ToPhysical(Geometry::AxisEnum axis, double samples) = 0;
    // A length along `axis` in the axis' unit, in samples.
    virtual double ToSamples(Geometry::AxisEnum axis, double length) = 0;
    // A new resolution over the same axes and units, each value times
    // `factor`.
    virtual System::Ref<IResolution> Scaled(double factor) = 0;
};

namespace Resolution {
// New(axes): value 1, no unit on each axis. New(source, factor): as
// source->Scaled(factor); a null source gives X and Y with `factor` as
// value and no unit.
using Factory =
    System::Functions::Template::Factory<System::Ref<IResolution>(Geometry::Axes),
                                         System::Ref<IResolution>(System::Pointer<IResolution, 0>, double)>;
extern QUILON_API Factory New;
} // namespace Resolution

} // namespace Quilon_::Measurements
