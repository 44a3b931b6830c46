// Palettes through the reference library: the default collection that
// images find their palettes in, and the palette classes.
#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/Charts/ChartStyle.h"
#include "Quilon_/Drawing/Globals.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"

#include <gtest/gtest.h>

#include <thread>

namespace Quilon_::Tests::DrawingPalette {

using namespace Quilon_::Drawing;
using System::LIString;

TEST(DrawingPalette, DefaultPalettesAreFoundByCategoryName)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            const wchar_t* name;
            std::int64_t sample;
            Color color;
        };
        const Case cases[] = {
            {L"Palette.Grey", 0, Color(0, 0, 0)},
            {L"Palette.Grey", 200, Color(200, 200, 200)},
            {L"Palette.Binary", 0, Color::Black()},
            {L"Palette.Binary", 1, Color::White()},
            {L"Palette.Binary", 255, Color::White()},
            {L"Palette.Label", 0, Color::Black()},
            {L"Palette.Color", 77, Color(77, 77, 77)},
            {L"Palette.Edge", 9, Color(9, 9, 9)},
            {L"Palette.Complex", 9, Color(9, 9, 9)},
            {L"Palette.Frequency", 0, Color::Black()},
            {L"Palette.Frequency", 255, Color::White()},
            // Samples beyond the table take its ends.
            {L"Palette.Grey", 1000, Color::White()},
            {L"Palette.Grey", -5, Color::Black()},
        };
        System::Ref<IPaletteCollection> palettes = Globals::Palettes();
        for (const Case& c : cases) {
            System::Pointer<IPalette, 0> palette = palettes->Find(LIString(c.name, true));
            ASSERT_TRUE(palette) << System::ToAnsi(c.name);
            EXPECT_EQ(palette->Colors().size(), 256u);
            EXPECT_EQ(palette->ColorAt(c.sample), c.color) << System::ToAnsi(c.name) << " " << c.sample;
        }
        // The key is the whole LIString, flag included.
        EXPECT_FALSE(palettes->Find(LIString(L"Palette.Grey", false)));
        EXPECT_FALSE(palettes->Find(LIString(L"Palette", true)));

        // Labels next to each other differ.
        System::Ref<IPalette> labels(palettes->Find(LIString(L"Palette.Label", true)));
        for (std::int64_t label = 1; label < 255; ++label)
            EXPECT_NE(labels->ColorAt(label), labels->ColorAt(label + 1)) << label;

        Globals::ClearCollectionPalettes();
        EXPECT_EQ(Globals::Palettes()->Count(), 0);
        EXPECT_EQ(Globals::Palettes().Get(), palettes.Get()); // the same collection, emptied
        Globals::Palettes()->Add(Palette::New(LIString(L"Mine", true), {Color::White()}));
        EXPECT_TRUE(Globals::Palettes()->Contains(LIString(L"Mine", true)));

        Globals::ClearPalettes();
        EXPECT_EQ(Globals::Palettes().Get(), nullptr);
        Globals::ClearCollectionPalettes(); // nothing to empty, and no failure
    });
}

TEST(DrawingPalette, CollectionLooksUpReplacesAndMergesByName)
{
    InChildProcess([] {
        StartBasic();
        auto named = [](const wchar_t* name, Color color) {
            return Palette::New(LIString(name, true), std::vector<Color>{color});
        };
        System::Ref<IPaletteCollection> a = PaletteCollection::New();
        a->Add(named(L"b", Color(1, 1, 1)));
        a->Add(named(L"a", Color(2, 2, 2)));
        EXPECT_EQ(a->AddOrReplace(named(L"a", Color(3, 3, 3))), 1);
        EXPECT_EQ(a->Count(), 2);
        EXPECT_EQ(a->Find(LIString(L"a", true))->ColorAt(0), Color(3, 3, 3));

        System::Ref<IPaletteCollection> b = PaletteCollection::New();
        b->Add(named(L"a", Color(4, 4, 4)));
        b->Add(named(L"c", Color(5, 5, 5)));
        a->Merge(b, false);
        EXPECT_EQ(a->Find(LIString(L"a", true))->ColorAt(0), Color(3, 3, 3));
        a->Merge(b, true);
        EXPECT_EQ(a->Find(LIString(L"a", true))->ColorAt(0), Color(4, 4, 4));

        a->SortByName();
        std::vector<std::wstring> names;
        for (const LIString& name : a->Names())
            names.push_back(name.Value());
        EXPECT_EQ(names, (std::vector<std::wstring>{L"a", L"b", L"c"}));

        EXPECT_TRUE(a->Rename(LIString(L"c", true), LIString(L"d", true)));
        EXPECT_FALSE(a->Rename(LIString(L"c", true), LIString(L"e", true)));
        EXPECT_TRUE(a->RemoveByName(LIString(L"d", true)));
        EXPECT_EQ(a->IndexOfName(LIString(L"d", true)), -1);
    });
}

TEST(DrawingPalette, InterpolatedPaletteKeepsItsTableInStepWithItsStops)
{
    InChildProcess([] {
        StartBasic();
        System::Ref<IInterpolatedPalette> ramp =
            InterpolatedPalette::New(LIString(L"Ramp", true), Color::Black(), Color(200, 100, 0));
        EXPECT_EQ(ramp->Colors().size(), 256u);
        EXPECT_EQ(ramp->Interpolate(127.5), Color(100, 50, 0));
        EXPECT_EQ(ramp->ColorAt(255), Color(200, 100, 0));

        EXPECT_EQ(ramp->AddStop(51.0, Color::White()), 1);
        EXPECT_EQ(ramp->ColorAt(51), Color::White());
        ramp->SetResolution(2);
        EXPECT_EQ(ramp->Colors(), (std::vector<Color>{Color::Black(), Color(200, 100, 0)}));

        ramp->Reverse();
        EXPECT_EQ(ramp->StopColor(0), Color(200, 100, 0));
        EXPECT_DOUBLE_EQ(ramp->StopPosition(1), 204.0);
        EXPECT_EQ(ramp->ColorAt(0), Color(200, 100, 0));

        EXPECT_FALSE(ramp->RemoveStop(3));
        ramp->ClearStops();
        EXPECT_EQ(ramp->Interpolate(10), Color::Black());

        // Charts of palettes have a style of their own per thread.
        std::thread([] {
            Palette::DefaultChartStyle()->SetChartType(Charts::ctBar);
            EXPECT_EQ(Palette::DefaultChartStyle()->ChartType(), Charts::ctBar);
        }).join();
        EXPECT_EQ(Palette::DefaultChartStyle()->ChartType(), Charts::ctLine);
    });
}

} // namespace Quilon_::Tests::DrawingPalette
