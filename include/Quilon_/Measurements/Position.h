// A real-valued location over a set of axes, in a unit: coordinates of
// doubles that say what their numbers measure.
//
//   Ref<Measurements::IPosition> p = Measurements::Position::New(Geometry::Axes::aXY);
//   p->SetX(12.5);
//   p->SetUnit(Measurements::Globals::DefaultSpatialUnit());
#pragma once

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Measurements/Unit.h"

namespace Quilon_::Measurements {

class QUILON_API IPosition : public virtual Geometry::ICoordinatesD {
    QUILON_INTERFACE(IPosition)
public:
    // Null when the values count samples.
    virtual System::Pointer<IUnit, 0> Unit() = 0;
    virtual void SetUnit(System::Pointer<IUnit, 0> unit) = 0;
};

namespace Position {
// New(axes): every value 0, no unit.
using Factory = System::Functions::Template::Factory<System::Ref<IPosition>(Geometry::Axes)>;
extern QUILON_API Factory New;
} // namespace Position

} // namespace Quilon_::Measurements
