#include "Quilon_/Measurements/Globals.h"

namespace Quilon_::Measurements::Globals {

namespace {

// A thread's collection, emptied in place. A null setting has nothing to
// empty.
template <class Getter>
void ClearCollectionOf(Getter getter)
{
    auto collection = getter();
    if (collection.Get())
        collection->Clear();
}

System::GlobalVariable<System::Pointer<IMeasurementsDictionary, 0>>& MeasurementsVariable()
{
    static auto* const variable = new System::GlobalVariable<System::Pointer<IMeasurementsDictionary, 0>>(
        System::Pointer<IMeasurementsDictionary, 0>(), System::gvsPerThreadFromMain);
    return *variable;
}

} // namespace

// Per thread, starting from what the main thread set: a thread may change
// its lists without disturbing the others.
QUILON_DEFINE_SETTING(Units, SetUnits, ClearUnits, System::Ref<IUnitCollection>(),
                      System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(Measurers, SetMeasurers, ClearMeasurers, System::Ref<IMeasurerCollection>(),
                      System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(DefaultSpatialUnit, SetDefaultSpatialUnit, ClearDefaultSpatialUnit,
                      System::Ref<IUnit>(), System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(DefaultTimeUnit, SetDefaultTimeUnit, ClearDefaultTimeUnit, System::Ref<IUnit>(),
                      System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(DefaultBandUnit, SetDefaultBandUnit, ClearDefaultBandUnit, System::Ref<IUnit>(),
                      System::gvsPerThreadFromMain)

void ClearCollectionUnits()
{
    ClearCollectionOf(&Units);
}

void ClearCollectionMeasurers()
{
    ClearCollectionOf(&Measurers);
}

System::Ref<IMeasurementsDictionary> Measurements()
{
    System::Pointer<IMeasurementsDictionary, 0> dictionary = MeasurementsVariable().Get();
    if (!dictionary) {
        dictionary = MeasurementsDictionary::New();
        MeasurementsVariable().Set(dictionary);
    }
    return System::Ref<IMeasurementsDictionary>(dictionary);
}

void ClearMeasurements()
{
    MeasurementsVariable().Clear();
}

void ClearCollectionMeasurements()
{
    System::Pointer<IMeasurementsDictionary, 0> dictionary = MeasurementsVariable().Get();
    if (dictionary)
        dictionary->Clear();
}

} // namespace Quilon_::Measurements::Globals
