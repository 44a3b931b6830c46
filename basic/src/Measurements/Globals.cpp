// The units this library ships with, and the settings of measuring that it
// fills at start-up and releases at shut-down.
//
// Units, by dimension, each with its root first:
//   length  m (root), km, cm, mm, um, nm
//   time    s (root), min, h, ms, us, ns
//   pixels  px (root): lengths of uncalibrated images
//   bands   band (root): positions along the band axis
// The defaults are px for space (an image knows no physical size until it
// is calibrated), s for time and band for the band axis.
#include "Quilon_/Measurements/Globals.h"
#include "Quilon_/Charts/ChartStyle.h"
#include "Quilon_/Measurements/Histogram.h"
#include "Quilon_/Measurements/Profile.h"
#include "Quilon_/Measurements/ScatterData2D.h"
#include "Quilon_/PrivateLibrary.h"
#include "System/SettingsLifetime.h"

namespace Quilon_::Basic::Measurements {

using namespace Quilon_::Measurements;
using System::LIString;
using System::Ref;

namespace {

struct Multiple {
    const wchar_t* name;
    const wchar_t* displayName;
    double factor;
};

void AddDimension(const Ref<IUnitCollection>& units, const wchar_t* root, const wchar_t* rootName,
                  std::initializer_list<Multiple> multiples)
{
    units->AddRoot(root, LIString(rootName));
    for (const Multiple& multiple : multiples)
        units->AddMultiple(multiple.name, LIString(multiple.displayName), root, multiple.factor);
}

Ref<IUnitCollection> ShippedUnits()
{
    Ref<IUnitCollection> units = UnitCollection::New();
    AddDimension(units, L"m", L"Metre",
                 {{L"km", L"Kilometre", 1e3},
                  {L"cm", L"Centimetre", 1e-2},
                  {L"mm", L"Millimetre", 1e-3},
                  {L"um", L"Micrometre", 1e-6},
                  {L"nm", L"Nanometre", 1e-9}});
    AddDimension(units, L"s", L"Second",
                 {{L"min", L"Minute", 60.0},
                  {L"h", L"Hour", 3600.0},
                  {L"ms", L"Millisecond", 1e-3},
                  {L"us", L"Microsecond", 1e-6},
                  {L"ns", L"Nanosecond", 1e-9}});
    AddDimension(units, L"px", L"Pixel", {});
    AddDimension(units, L"band", L"Band", {});
    return units;
}

void StartMeasurements()
{
    Ref<IUnitCollection> units = ShippedUnits();
    Globals::SetUnits(units);
    Globals::SetDefaultSpatialUnit(units->ItemByName(L"px"));
    Globals::SetDefaultTimeUnit(units->ItemByName(L"s"));
    Globals::SetDefaultBandUnit(units->ItemByName(L"band"));
    Globals::SetMeasurers(MeasurerCollection::New());
    // Made now, on the thread that starts the library, so that later
    // threads start from this one.
    Globals::Measurements();
}

void StopMeasurements()
{
    Globals::ClearDefaultBandUnit();
    Globals::ClearDefaultTimeUnit();
    Globals::ClearDefaultSpatialUnit();
    Globals::ClearMeasurements();
    Globals::ClearMeasurers();
    Globals::ClearUnits();
    Histogram::ClearDefaultChartStyle();
    Profile::ClearDefaultChartStyle();
    ScatterData2D::ClearDefaultChartStyle();
}

// After the classes are registered (0.2).
const SettingsLifetime globals(&StartMeasurements, &StopMeasurements, 0.3f);

} // namespace

} // namespace Quilon_::Basic::Measurements
