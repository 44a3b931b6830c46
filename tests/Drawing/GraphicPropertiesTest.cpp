// Graphic properties, their per-thread defaults and their collection,
// through the reference library.
#include "Quilon_/Charts/ChartStyle.h"
#include "Quilon_/Drawing/ArrowProperties.h"
#include "Quilon_/Drawing/EllipseProperties.h"
#include "Quilon_/Drawing/Font.h"
#include "Quilon_/Drawing/Globals.h"
#include "Quilon_/Drawing/GraphicContext.h"
#include "Quilon_/Drawing/GraphicPropertiesCollection.h"
#include "Quilon_/Drawing/LineDrawer.h"
#include "Quilon_/Drawing/StandardProperties.h"
#include "Quilon_/Drawing/TextProperties.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <thread>

namespace Quilon_::Tests::DrawingGraphicProperties {

using namespace Quilon_::Drawing;
using System::Pointer;
using System::Ref;

TEST(DrawingGraphicProperties, NewObjectsStartFromTheCallingThreadsDefaults)
{
    InChildProcess([] {
        StartBasic();
        Ref<IStandardProperties> plain = StandardProperties::New();
        EXPECT_EQ(plain->PenColor(), Color::Black());
        EXPECT_EQ(plain->PenWidth(), 1.0);
        EXPECT_EQ(plain->LineStyle(), lsSolid);
        EXPECT_EQ(plain->FillStyle(), fsNone);

        // Changing the defaults reaches new objects and Reset, not objects
        // made before.
        StandardProperties::DefaultValues()->SetPenWidth(3.0);
        EXPECT_EQ(StandardProperties::New()->PenWidth(), 3.0);
        EXPECT_EQ(plain->PenWidth(), 1.0);
        plain->Reset();
        EXPECT_EQ(plain->PenWidth(), 3.0);

        Ref<IStandardProperties> red = StandardProperties::New();
        red->SetPenColor(Color(255, 0, 0));
        StandardProperties::SetDefaultValues(red);
        // What the main thread sets, threads started later begin with; what
        // they change stays theirs.
        std::thread([] {
            EXPECT_EQ(StandardProperties::DefaultValues()->PenColor(), Color(255, 0, 0));
            StandardProperties::DefaultValues()->SetPenColor(Color(0, 0, 255));
            EXPECT_EQ(StandardProperties::New()->PenColor(), Color(0, 0, 255));
        }).join();
        EXPECT_EQ(StandardProperties::New()->PenColor(), Color(255, 0, 0));

        // Copying takes the values of the same kind only.
        Ref<IStandardProperties> copy = StandardProperties::New();
        copy->SetPenColor(Color::White());
        copy->CopyFrom(ArrowProperties::New());
        EXPECT_EQ(copy->PenColor(), Color::White());
        copy->CopyFrom(red);
        EXPECT_EQ(copy->PenColor(), Color(255, 0, 0));
    });
}

TEST(DrawingGraphicProperties, CollectionHoldsOneItemOfEachKind)
{
    InChildProcess([] {
        StartBasic();
        Ref<IGraphicPropertiesCollection> defaults = GraphicPropertiesCollection::DefaultValues();
        EXPECT_EQ(defaults->Count(), 7);
        EXPECT_TRUE(defaults->FindStandard());
        EXPECT_TRUE(defaults->FindEllipse());

        Ref<IGraphicPropertiesCollection> mine = GraphicPropertiesCollection::New();
        Ref<IStandardProperties> first = StandardProperties::New();
        Ref<IStandardProperties> second = StandardProperties::New();
        EXPECT_EQ(mine->SetProperties(first), 0);
        EXPECT_EQ(mine->SetProperties(TextProperties::New()), 1);
        EXPECT_EQ(mine->SetProperties(second), 0); // replaces the standard properties
        EXPECT_EQ(mine->Count(), 2);
        EXPECT_EQ(mine->FindStandard().Get(), second.Get());
        EXPECT_FALSE(mine->FindArrow());
        EXPECT_TRUE(mine->Find(IGraphicProperties::GetType()));

        second->SetPenWidth(5.0);
        defaults->CopyValuesFrom(mine);
        EXPECT_EQ(defaults->FindStandard()->PenWidth(), 5.0);

        // Another thread starts from a copy of the main thread's defaults,
        // and emptying its copy leaves ours alone.
        std::thread([] {
            EXPECT_EQ(GraphicPropertiesCollection::DefaultValues()->Count(), 7);
            GraphicPropertiesCollection::ClearCollectionDefaultValues();
            EXPECT_EQ(GraphicPropertiesCollection::DefaultValues()->Count(), 0);
        }).join();
        EXPECT_EQ(GraphicPropertiesCollection::DefaultValues()->Count(), 7);

        EXPECT_TRUE(mine->RemoveType(IStandardProperties::GetType()));
        EXPECT_FALSE(mine->RemoveType(IStandardProperties::GetType()));
        EXPECT_EQ(mine->Count(), 1);
    });
}

TEST(DrawingGraphicProperties, ContextsAndTheirCollection)
{
    InChildProcess([] {
        StartBasic();
        // A context made by name gets its own copy of the defaults.
        Ref<IGraphicContext> overlay = GraphicContext::New(L"Overlay");
        overlay->Properties()->FindStandard()->SetPenWidth(9.0);
        EXPECT_EQ(GraphicPropertiesCollection::DefaultValues()->FindStandard()->PenWidth(), 1.0);

        Ref<IGraphicContextCollection> contexts = GraphicContextCollection::New();
        contexts->Add(overlay);
        contexts->Add(GraphicContext::New(L"Selection", GraphicPropertiesCollection::New()));
        EXPECT_EQ(contexts->IndexOfName(L"Selection"), 1);
        contexts->SetActiveIndex(1);
        EXPECT_EQ(contexts->Active()->Name(), L"Selection");
        contexts->RemoveAt(0);
        EXPECT_EQ(contexts->ActiveIndex(), 0); // follows its context
        EXPECT_TRUE(contexts->RemoveByName(L"Selection"));
        EXPECT_FALSE(contexts->Active());
        EXPECT_EQ(RaisedMessage([&] { contexts->SetActive(overlay); }),
                  L"The graphic context is not in the collection");
    });
}

TEST(DrawingGraphicProperties, LineDrawerLeavesTheGapsOfItsStyle)
{
    InChildProcess([] {
        StartBasic();
        // One pixel per step along the longer axis, each next to the last.
        const std::vector<Point<int>> solid = LineDrawer::New(lsSolid)->Pixels({0, 0}, {4, 2});
        ASSERT_EQ(solid.size(), 5u);
        EXPECT_EQ(solid.front(), Point<int>(0, 0));
        EXPECT_EQ(solid.back(), Point<int>(4, 2));
        for (std::size_t i = 1; i < solid.size(); ++i) {
            EXPECT_EQ(solid[i].x - solid[i - 1].x, 1) << i;
            EXPECT_LE(solid[i].y - solid[i - 1].y, 1) << i;
            EXPECT_GE(solid[i].y, solid[i - 1].y) << i;
        }
        EXPECT_EQ(LineDrawer::New(lsSolid)->Pixels({3, 3}, {3, 3}).size(), 1u);
        EXPECT_EQ(LineDrawer::New(lsSolid)->Pixels({0, 5}, {0, 0}).back(), Point<int>(0, 0));
        // Dots: one drawn, two skipped.
        const std::vector<Point<int>> dots = LineDrawer::New(lsDot)->Pixels({0, 0}, {9, 0});
        EXPECT_EQ(dots, (std::vector<Point<int>>{{0, 0}, {3, 0}, {6, 0}, {9, 0}}));
        EXPECT_TRUE(LineDrawer::New(lsNone)->Pixels({0, 0}, {9, 0}).empty());

        Ref<IFont> font = Font::New(L"Sans", 10.0);
        font->SetBold(true);
        font->SetItalic(true);
        EXPECT_EQ(font->Description(), L"Sans 10 bold italic");
    });
}

TEST(DrawingGraphicProperties, ShutDownReleasesEveryDefault)
{
    InChildProcess([] {
        StartBasic();
        std::thread([] { StandardProperties::DefaultValues()->SetPenWidth(2.0); }).join();
        Library::Finalize();
        EXPECT_EQ(StandardProperties::DefaultValues().Get(), nullptr);
        EXPECT_EQ(TextProperties::DefaultValues().Get(), nullptr);
        EXPECT_EQ(GraphicPropertiesCollection::DefaultValues().Get(), nullptr);
        EXPECT_EQ(Globals::Palettes().Get(), nullptr);
        EXPECT_EQ(Palette::DefaultChartStyle().Get(), nullptr);
    });
}

} // namespace Quilon_::Tests::DrawingGraphicProperties
