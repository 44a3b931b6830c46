// One named measurement of an object: what it is called, what computes it
// (a measurer, an operator), which kind of object it applies to, and the
// unit of its values.
//
//   Ref<Measurements::IMeasurement> area = Measurements::Measurement::New(
//       LIString(L"Area"), measurer, Geometry::IShape::GetType());
//   area->SetUnit(Measurements::Globals::DefaultSpatialUnit());
//   if (area->AppliesTo().IsImplementedBy(object)) ...
//
// IMeasurementInternal is the library's side: what readers of archives and
// registrations change after construction.
#pragma once

#include "Quilon_/Measurements/Unit.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Measurements {

class QUILON_API IMeasurement : public virtual System::Interface {
    QUILON_INTERFACE(IMeasurement)
public:
    virtual System::LIString Name() = 0;
    // What computes the values.
    virtual System::Ref<System::Interface> Source() = 0;
    // The type of the objects measured.
    virtual System::Type AppliesTo() = 0;
    // Null when the values have no unit.
    virtual System::Pointer<IUnit, 0> Unit() = 0;
    virtual void SetUnit(System::Pointer<IUnit, 0> unit) = 0;
    virtual System::LIString Description() = 0;
    virtual void SetDescription(const System::LIString& description) = 0;
};

class QUILON_API IMeasurementInternal : public virtual System::Interface {
    QUILON_INTERFACE(IMeasurementInternal)
public:
    virtual void SetName(const System::LIString& name) = 0;
    virtual void SetSource(System::Ref<System::Interface> source) = 0;
    virtual void SetAppliesTo(const System::Type& type) = 0;
};

namespace Measurement {
// New(name, source, appliesTo).
using Factory = System::Functions::Template::Factory<System::Ref<IMeasurement>(
    const System::LIString&, System::Ref<System::Interface>, const System::Type&)>;
extern QUILON_API Factory New;
} // namespace Measurement

} // namespace Quilon_::Measurements
