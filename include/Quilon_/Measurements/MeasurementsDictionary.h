// The measurements of the process, one collection for each kind of object,
// keyed by the object's Type:
//
//   Ref<Measurements::IMeasurementsDictionary> all = Measurements::Globals::Measurements();
//   all->AddMeasurement(area);      // into the collection of area->AppliesTo()
//   for (auto& m : all->ApplicableTo(shape)) ...
#pragma once

#include "Quilon_/Measurements/MeasurementCollection.h"
#include "Quilon_/System/Collections/Dictionary.h"

#include <cstdint>
#include <vector>

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IDictionary<Type, Measurements::IMeasurementCollection>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Measurements {

class QUILON_API IMeasurementsDictionary
    : public System::Collections::Template::IDictionary<System::Type, IMeasurementCollection> {
    QUILON_INTERFACE(IMeasurementsDictionary)
public:
    // The collection of `type`, or null.
    virtual System::Pointer<IMeasurementCollection, 0> Find(const System::Type& type) = 0;
    // The collection of `type`, made through MeasurementCollection::New and
    // added when missing.
    virtual System::Ref<IMeasurementCollection> Collection(const System::Type& type) = 0;
    // Adds to the collection of measurement->AppliesTo().
    virtual void AddMeasurement(System::Ref<IMeasurement> measurement) = 0;
    // Removes that very measurement from its collection; false when absent.
    virtual bool RemoveMeasurement(System::Ref<IMeasurement> measurement) = 0;
    virtual System::Pointer<IMeasurement, 0> FindMeasurement(const System::Type& type,
                                                             const System::LIString& name) = 0;
    virtual bool ContainsMeasurement(const System::Type& type, const System::LIString& name) = 0;
    // The measurements of every type that `object` implements.
    virtual std::vector<System::Ref<IMeasurement>> ApplicableTo(System::Ref<System::Interface> object) = 0;
    // The keys that `object` implements.
    virtual std::vector<System::Type> TypesOf(System::Ref<System::Interface> object) = 0;
    // The measurements of all collections.
    virtual std::int64_t MeasurementCount() = 0;
    virtual std::vector<System::Ref<IMeasurement>> AllMeasurements() = 0;
    // The names of the measurements of `type`; none when it has no collection.
    virtual std::vector<System::LIString> Names(const System::Type& type) = 0;
    // The measurements of that name, of any type.
    virtual std::vector<System::Ref<IMeasurement>> FindByName(const System::LIString& name) = 0;
    virtual std::vector<System::Ref<IMeasurement>> BySource(System::Ref<System::Interface> source) = 0;
    // Empties every collection and keeps the keys.
    virtual void ClearMeasurements() = 0;
    // Adds the measurements of `other` whose type and name are not here yet.
    virtual void Merge(System::Ref<IMeasurementsDictionary> other) = 0;
};

namespace MeasurementsDictionary {
using Factory = System::Functions::Template::Factory<System::Ref<IMeasurementsDictionary>()>;
extern QUILON_API Factory New;
} // namespace MeasurementsDictionary

} // namespace Quilon_::Measurements
