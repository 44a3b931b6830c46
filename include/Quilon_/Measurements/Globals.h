// The process-wide settings of measuring: the known units, measurers and
// measurements, and the units that values get when nobody says otherwise.
//
//   Ref<Measurements::IUnit> mm = Measurements::Globals::Units()->ItemByName(L"mm");
//   Measurements::Globals::SetDefaultSpatialUnit(mm);
//   Measurements::Globals::Measurements()->AddMeasurement(area);
//
// Each setting holds one value per thread; a thread's first read clones
// what the main thread last set (collections deeply, except the measurers,
// which are tools and are shared). An implementation library fills them at
// start-up and clears them at shut-down; until then a getter raises as a
// null reference does. ClearX() drops the value of every thread;
// ClearCollectionX() empties the calling thread's collection and keeps it,
// which on the main thread is also the one that later threads start from.
//
// The measurements setting has no setter: its getter makes the dictionary
// through MeasurementsDictionary::New when the thread has none, and callers
// add to it.
#pragma once

#include "Quilon_/Measurements/MeasurementsDictionary.h"
#include "Quilon_/Measurements/MeasurerCollection.h"
#include "Quilon_/Measurements/UnitCollection.h"
#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Measurements::Globals {

QUILON_DECLARE_SETTING(Units, SetUnits, ClearUnits, System::Ref<IUnitCollection>);
QUILON_API void ClearCollectionUnits();

QUILON_DECLARE_SETTING(Measurers, SetMeasurers, ClearMeasurers, System::Ref<IMeasurerCollection>);
QUILON_API void ClearCollectionMeasurers();

QUILON_API System::Ref<IMeasurementsDictionary> Measurements();
QUILON_API void ClearMeasurements();
QUILON_API void ClearCollectionMeasurements();

QUILON_DECLARE_SETTING(DefaultSpatialUnit, SetDefaultSpatialUnit, ClearDefaultSpatialUnit,
                       System::Ref<IUnit>);
QUILON_DECLARE_SETTING(DefaultTimeUnit, SetDefaultTimeUnit, ClearDefaultTimeUnit, System::Ref<IUnit>);
QUILON_DECLARE_SETTING(DefaultBandUnit, SetDefaultBandUnit, ClearDefaultBandUnit, System::Ref<IUnit>);

} // namespace Quilon_::Measurements::Globals
