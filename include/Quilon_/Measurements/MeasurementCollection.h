// The measurements of one kind of object, looked up by name, with the
// subset that the user chose to compute:
//
//   Ref<Measurements::IMeasurementCollection> shapes = ...;
//   shapes->AddMeasurement(LIString(L"Area"), measurer, Geometry::IShape::GetType());
//   shapes->SetSelectedNames({LIString(L"Area")});
//   for (auto& m : shapes->Selected()) ...
//
// Names compare by their text, whether translatable or not.
#pragma once

#include "Quilon_/Measurements/Measurement.h"
#include "Quilon_/System/Collections/Collection.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Measurements {

class QUILON_API IMeasurementCollection : public System::Collections::Template::ICollection<IMeasurement> {
    QUILON_INTERFACE(IMeasurementCollection)
public:
    // The first measurement of that name, or null.
    virtual System::Pointer<IMeasurement, 0> Find(const System::LIString& name) = 0;
    // The first measurement of that name; raises when there is none.
    virtual System::Ref<IMeasurement> ItemByName(const System::LIString& name) = 0;
    virtual std::int64_t IndexOfName(const System::LIString& name) = 0;
    virtual bool ContainsName(const System::LIString& name) = 0;
    virtual bool RemoveByName(const System::LIString& name) = 0;
    virtual std::vector<System::LIString> Names() = 0;
    virtual std::vector<System::Ref<IMeasurement>> ToVector() = 0;
    virtual void AddRange(const std::vector<System::Ref<IMeasurement>>& measurements) = 0;
    // Makes a measurement through Measurement::New and adds it.
    virtual System::Ref<IMeasurement> AddMeasurement(const System::LIString& name,
                                                     System::Ref<System::Interface> source,
                                                     const System::Type& appliesTo) = 0;
    // The measurements whose type `object` implements.
    virtual std::vector<System::Ref<IMeasurement>> ApplicableTo(System::Ref<System::Interface> object) = 0;
    // The measurements computed by that very source.
    virtual std::vector<System::Ref<IMeasurement>> BySource(System::Ref<System::Interface> source) = 0;
    // The names chosen for computing, in the order given.
    virtual std::vector<System::LIString> SelectedNames() = 0;
    virtual void SetSelectedNames(const std::vector<System::LIString>& names) = 0;
    // The chosen measurements that the collection holds, in its order.
    virtual std::vector<System::Ref<IMeasurement>> Selected() = 0;
};

namespace MeasurementCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IMeasurementCollection>()>;
extern QUILON_API Factory New;
} // namespace MeasurementCollection

} // namespace Quilon_::Measurements
