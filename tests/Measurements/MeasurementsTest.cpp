// The measurement model as the reference library fills it: the process'
// settings and their life cycle, units and their conversions, the
// dictionary of measurements by type, and the records that measuring
// operators return.
#include "Quilon_/Library.h"
#include "Quilon_/Measurements/Globals.h"
#include "Quilon_/Measurements/Histogram.h"
#include "Quilon_/Measurements/Profile.h"
#include "Quilon_/Measurements/ResolutionCollection.h"
#include "Quilon_/Measurements/ScatterData2D.h"

#include "Quilon_/System/ObjectImpl.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <thread>

namespace Quilon_::Tests::MeasurementModel {

using namespace Quilon_::Measurements;
using System::LIString;
using System::Ref;

// Measures the length of profiles.
class CLengthMeasurer : public System::Template::ObjectImpl<CLengthMeasurer, IMeasurer> {
public:
    std::wstring Name() override { return L"Length"; }
    bool CanMeasure(Ref<System::Interface> object) override
    {
        return IProfile::GetType().IsImplementedBy(object);
    }
    System::Any Measure(Ref<System::Interface> object) override
    {
        return System::ToAny(Ref<IProfile>(object)->Length());
    }
};

// The name of the unit that a new thread reads for a setting.
template <class Getter>
std::wstring NameOnNewThread(Getter getter)
{
    std::wstring name;
    std::thread([&] { name = getter()->Name(); }).join();
    return name;
}

TEST(Measurements, GlobalsLiveFromStartUpToShutDown)
{
    InChildProcess([] {
        EXPECT_EQ(RaisedMessage([] { Globals::Units()->Count(); }),
                  L"Pointer <Quilon_::Measurements::IUnitCollection> : attempt to access a 0 pointer");
        StartBasic();
        for (const wchar_t* name : {L"px", L"m", L"mm", L"um", L"nm", L"s", L"ms", L"band"})
            EXPECT_TRUE(Globals::Units()->ContainsName(name)) << name;
        EXPECT_EQ(Globals::DefaultSpatialUnit()->Name(), L"px");
        EXPECT_EQ(Globals::DefaultTimeUnit()->Name(), L"s");
        EXPECT_EQ(Globals::DefaultBandUnit()->Name(), L"band");
        EXPECT_EQ(Globals::Measurers()->Count(), 0);
        EXPECT_EQ(Globals::Measurements()->Count(), 0);

        // Emptied in place: the same collection, still usable.
        Ref<IUnitCollection> units = Globals::Units();
        Globals::ClearCollectionUnits();
        EXPECT_EQ(Globals::Units().Get(), units.Get());
        EXPECT_EQ(Globals::Units()->Count(), 0);
        Globals::Units()->AddRoot(L"m", LIString(L"Metre"));
        EXPECT_EQ(units->Count(), 1);
        // A later thread starts from the emptied one.
        EXPECT_EQ(NameOnNewThread([] { return Globals::Units()->Item(0); }), L"m");

        Globals::Measurements()->Collection(IUnit::GetType());
        Globals::ClearCollectionMeasurements();
        EXPECT_EQ(Globals::Measurements()->Count(), 0);

        Library::Finalize();
        EXPECT_EQ(RaisedMessage([] { Globals::DefaultTimeUnit()->Name(); }),
                  L"Pointer <Quilon_::Measurements::IUnit> : attempt to access a 0 pointer");
        EXPECT_NE(RaisedMessage([] { Globals::Measurers()->Count(); }), L"");
    });
}

TEST(Measurements, ADefaultSetOnTheMainThreadIsWhereLaterThreadsStart)
{
    InChildProcess([] {
        StartBasic();
        Ref<IUnit> ms = Globals::Units()->ItemByName(L"ms");
        Globals::SetDefaultTimeUnit(ms);
        EXPECT_EQ(NameOnNewThread(&Globals::DefaultTimeUnit), L"ms");

        // What another thread sets stays on that thread.
        std::thread([] {
            Globals::SetDefaultSpatialUnit(Globals::Units()->ItemByName(L"um"));
            EXPECT_EQ(Globals::DefaultSpatialUnit()->Name(), L"um");
        }).join();
        EXPECT_EQ(Globals::DefaultSpatialUnit()->Name(), L"px");
        EXPECT_EQ(NameOnNewThread(&Globals::DefaultSpatialUnit), L"px");

        // A thread's units are its own copy, and still convert.
        std::thread([] {
            Globals::Units()->AddRoot(L"K", LIString(L"Kelvin"));
            EXPECT_DOUBLE_EQ(Globals::Units()->Convert(2.0, L"mm", L"um"), 2000.0);
        }).join();
        EXPECT_FALSE(Globals::Units()->ContainsName(L"K"));
    });
}

TEST(Measurements, MeasurersAreFoundByWhatTheyCanMeasure)
{
    InChildProcess([] {
        EXPECT_EQ(RaisedMessage([] {
                      Globals::Measurements();
                  }).rfind(L"No implementation available for function", 0),
                  0u);
        StartBasic();
        Ref<IMeasurer> length(new CLengthMeasurer);
        Ref<IMeasurerCollection> tools = Globals::Measurers();
        tools->Add(length);
        Ref<IProfile> profile = Profile::New(7, Geometry::Axes::aXY);
        EXPECT_EQ(tools->FindFor(profile).Get(), length.Get());
        EXPECT_FALSE(tools->CanMeasure(tools));
        EXPECT_EQ(tools->Measure(L"Length", profile).CastTo<std::int64_t>(), 7);
        ASSERT_EQ(tools->MeasureAll(profile).size(), 1u);
        EXPECT_EQ(tools->MeasureAll(profile)[0].first, L"Length");
        EXPECT_EQ(RaisedMessage([&] { tools->Measure(L"Area", profile); }),
                  L"There is no measurer named 'Area'");
        // Another thread's list is a copy that shares the tools.
        std::thread([&] {
            EXPECT_NE(Globals::Measurers().Get(), tools.Get());
            EXPECT_EQ(Globals::Measurers()->Item(0).Get(), length.Get());
        }).join();
        EXPECT_TRUE(tools->RemoveByName(L"Length"));
        EXPECT_FALSE(tools->RemoveByName(L"Length"));
    });
}

TEST(Measurements, UnitsConvertWithinTheirDimension)
{
    InChildProcess([] {
        StartBasic();
        Ref<IUnitCollection> units = Globals::Units();
        EXPECT_DOUBLE_EQ(units->Convert(2.5, L"mm", L"um"), 2500.0);
        EXPECT_DOUBLE_EQ(units->Convert(90.0, L"min", L"h"), 1.5);
        EXPECT_EQ(units->ItemByName(L"nm")->RootUnit()->Name(), L"m");
        EXPECT_EQ(RaisedMessage([&] { units->Convert(1.0, L"mm", L"s"); }),
                  L"Unit 'mm' cannot be converted into unit 's'");
        EXPECT_EQ(RaisedMessage([&] { units->ItemByName(L"parsec"); }), L"There is no unit named 'parsec'");

        struct Row {
            double value;
            const wchar_t* unit;
            const wchar_t* readable;
        };
        for (const Row& row : {Row{1500.0, L"mm", L"m"}, Row{0.002, L"m", L"mm"}, Row{5.0, L"mm", L"mm"},
                               Row{0.0, L"cm", L"cm"}, Row{7200.0, L"s", L"h"}})
            EXPECT_EQ(units->ReadableUnit(row.value, units->ItemByName(row.unit))->Name(), row.readable)
                << row.value << " " << row.unit;

        Ref<IUnit> m = units->ItemByName(L"m");
        Ref<IUnit> km = units->ItemByName(L"km");
        EXPECT_NE(RaisedMessage([&] { m->SetBaseUnit(km); }), L"");
        EXPECT_EQ(units->RootUnits().size(), 4u);
        EXPECT_EQ(units->CompatibleUnits(units->ItemByName(L"s")).size(), 6u);

        // SetUnit replaces by name, in place.
        const std::int64_t at = units->IndexOfName(L"cm");
        Ref<IUnit> cm = Unit::New(L"cm", LIString(L"Centimetre (new)"));
        units->SetUnit(cm);
        EXPECT_EQ(units->IndexOfName(L"cm"), at);
        EXPECT_EQ(units->FindByDisplayName(LIString(L"Centimetre (new)", false)).Get(), cm.Get());
        EXPECT_FALSE(cm->IsCompatible(m));
        EXPECT_EQ(cm->Format(2.5), L"2.5 cm");
    });
}

TEST(Measurements, MeasurementsAreFoundByTheTypeOfTheObject)
{
    InChildProcess([] {
        StartBasic();
        Ref<IMeasurementsDictionary> all = Globals::Measurements();
        Ref<System::Interface> source = Globals::Measurers();
        Ref<IMeasurement> length = Measurement::New(LIString(L"Length"), source, IProfile::GetType());
        Ref<IMeasurement> bins = Measurement::New(LIString(L"Bins"), source, IHistogram::GetType());
        all->AddMeasurement(length);
        all->AddMeasurement(bins);
        EXPECT_EQ(all->Count(), 2);
        EXPECT_EQ(all->MeasurementCount(), 2);

        Ref<IProfile> profile = Profile::New(3, Geometry::Axes::aXY);
        ASSERT_EQ(all->ApplicableTo(profile).size(), 1u);
        EXPECT_EQ(all->ApplicableTo(profile)[0].Get(), length.Get());
        EXPECT_TRUE(all->ContainsMeasurement(IProfile::GetType(), LIString(L"Length", false)));
        EXPECT_EQ(all->BySource(source).size(), 2u);

        Ref<IMeasurementCollection> ofProfiles = all->Collection(IProfile::GetType());
        ofProfiles->SetSelectedNames({LIString(L"Length"), LIString(L"Missing")});
        EXPECT_EQ(ofProfiles->Selected().size(), 1u);
        EXPECT_EQ(RaisedMessage([&] { ofProfiles->ItemByName(LIString(L"Area")); }),
                  L"There is no measurement named 'Area'");

        all->ClearMeasurements();
        EXPECT_EQ(all->Count(), 2);
        EXPECT_EQ(all->MeasurementCount(), 0);
    });
}

TEST(Measurements, HistogramsCountSamplesIntoBins)
{
    InChildProcess([] {
        StartBasic();
        Ref<IHistogram> dropping = Histogram::New(4, Math::RangeD::New(0.0, 8.0), false);
        struct Row {
            double value;
            std::int64_t bin;
        };
        for (const Row& row : {Row{0.0, 0}, Row{1.99, 0}, Row{2.0, 1}, Row{7.9, 3}, Row{8.0, 3},
                               Row{-0.1, -1}, Row{8.1, -1}, Row{std::nan(""), -1}})
            EXPECT_EQ(dropping->Add({row.value}), row.bin) << row.value;
        EXPECT_EQ(dropping->Counts(), (std::vector<std::int64_t>{2, 1, 0, 2}));
        EXPECT_EQ(dropping->Total(), 5);

        Ref<IHistogram> clamping = Histogram::New(4, Math::RangeD::New(0.0, 8.0), true);
        EXPECT_EQ(clamping->Add({-5.0}), 0);
        EXPECT_EQ(clamping->Add({50.0}), 3);

        // Two dimensions: the first runs fastest.
        Ref<IHistogram> joint =
            Histogram::New(2, std::vector<std::int64_t>{2, 3},
                           {Math::RangeD::New(0.0, 2.0), Math::RangeD::New(0.0, 3.0)}, false);
        EXPECT_EQ(joint->Add({1.5, 2.5}), 1 + 2 * 2);
        EXPECT_EQ(joint->Counts().size(), 6u);
        EXPECT_NE(RaisedMessage([&] { joint->Add({1.0}); }), L"");
        EXPECT_NE(RaisedMessage([&] { joint->SetCounts({1, 2}); }), L"");
        EXPECT_NE(
            RaisedMessage([] {
                Histogram::New(3, std::vector<std::int64_t>{2, 3}, {Math::RangeD::New(0.0, 1.0)}, false);
            }),
            L"");
    });
}

TEST(Measurements, ProfilesHoldPositionsAndValues)
{
    InChildProcess([] {
        StartBasic();
        Ref<IProfile> path = Profile::New(3, Geometry::Axes::aXY);
        path->Position(1)->SetX(3.0);
        path->Position(1)->SetY(4.0);
        path->Position(2)->SetX(3.0);
        path->Position(2)->SetY(5.0);
        path->Position(2)->SetUnit(Globals::DefaultSpatialUnit());
        EXPECT_DOUBLE_EQ(path->Distance(2), 6.0);
        EXPECT_NE(RaisedMessage([&] { path->Position(3); }), L"");
        EXPECT_NE(RaisedMessage([&] { path->SetValues({1.0}); }), L"");

        // Along the same path, over X alone, one sample shorter.
        Ref<IProfile> along = Profile::New(2, path, Geometry::Axes(Geometry::aX));
        EXPECT_EQ(along->Length(), 2);
        EXPECT_EQ(along->Position(1)->X(), 3.0);
        EXPECT_EQ(along->Position(1)->AxisCount(), 1);
        EXPECT_EQ(along->Values(), (std::vector<double>{0.0, 0.0}));

        Ref<IScatterData2D> scatter = ScatterData2D::New({{{1.0, 2.0}}});
        EXPECT_EQ(scatter->AddSeries({{3.0, 4.0}, {5.0, 6.0}}), 1);
        EXPECT_EQ(scatter->Item(1).size(), 2u);
    });
}

TEST(Measurements, ResolutionsScaleAndConvertLengths)
{
    InChildProcess([] {
        StartBasic();
        Ref<IResolution> base = Resolution::New(Geometry::Axes::aXY);
        base->SetValue(Geometry::aX, 0.5);
        EXPECT_FALSE(base->IsIsotropic());
        EXPECT_DOUBLE_EQ(base->ToPhysical(Geometry::aX, 10.0), 5.0);
        EXPECT_NE(RaisedMessage([&] { base->Value(Geometry::aZ); }), L"");

        Ref<IResolutionCollection> levels = ResolutionCollection::New();
        levels->AddScaled(base, 4.0);
        levels->Add(base);
        levels->AddScaled(base, 2.0);
        levels->SortByValue(Geometry::aX);
        EXPECT_EQ(levels->Values(Geometry::aX), (std::vector<double>{0.5, 1.0, 2.0}));
        EXPECT_EQ(levels->IndexOfNearest(Geometry::aX, 1.7), 2);
        EXPECT_EQ(levels->Finest(Geometry::aY)->Value(Geometry::aY), 1.0);
        EXPECT_EQ(static_cast<unsigned>(levels->CommonAxes()), 3u);

        Ref<IResolution> fromNothing = Resolution::New(System::Pointer<IResolution, 0>(), 3.0);
        EXPECT_TRUE(fromNothing->IsIsotropic());
        EXPECT_EQ(fromNothing->Value(Geometry::aY), 3.0);
    });
}

} // namespace Quilon_::Tests::MeasurementModel
