// Input states and events as values: their texts and hash keys, which key
// maps of bindings, the containment test of gestures, and how a state
// follows the mouse and key events of a window.
#include "Quilon_/Windows/InputEvent.h"
#include "Quilon_/Windows/InputEventCollection.h"
#include "Quilon_/Windows/KeyEventArgs.h"
#include "Quilon_/Windows/MouseEventArgs.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::InputEvents {

using namespace Quilon_::Windows;

TEST(InputEvent, StatesPrintTheirKeysFromTheHighestBitDown)
{
    struct Row {
        InputState state;
        const wchar_t* text;
    };
    const Row rows[] = {
        {InputState(), L""},
        {InputState(512), L"skControl"},
        {InputState(768), L"skControl+skShift"},
        {InputState(skAlt | skLeft | skXButton2), L"skAlt+skXButton2+skLeft"},
        {InputState(0, 65), L"65"},
        {InputState(skShift, 65), L"skShift+65"},
        // Bits that name no key are left out of the text.
        {InputState(0x80 | skRight), L"skRight"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.state.ToString(), row.text) << row.text;
}

TEST(InputEvent, HashKeysAndTextsFollowTheKindOfEvent)
{
    struct Row {
        InputEvent event;
        const wchar_t* hashKey;
        const wchar_t* text;
    };
    const Row rows[] = {
        {InputEvent(InputState(), false, metMouseClick, mbLeft), L"skLeft-ietMouseClick",
         L"Event:skLeft-ietMouseClick"},
        {InputEvent(InputState(skControl), true, metMouseDown, mbRight), L"skRight-ietMouseDown",
         L"Event:skControl_skRight-ietMouseDown"},
        {InputEvent(InputState(skControl | skShift, 9), false, metMouseWheelUp, mbNone), L"-ietMouseWheelUp",
         L"Event:skControl+skShift+9_-ietMouseWheelUp"},
        // A key event has no button: its key starts with "-".
        {InputEvent(InputState(), false, ketKeyDown, 0x41), L"-ietKeyDown-0x0041",
         L"Event:-ietKeyDown-0x0041"},
        {InputEvent(InputState(skAlt), false, ketKeyPress, 0x1234), L"-ietKeyPress-0x1234",
         L"Event:skAlt_-ietKeyPress-0x1234"},
        {InputEvent(L"Zoom in"), L"Zoom in", L"Event:Zoom in"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.event.HashKey(), row.hashKey);
        EXPECT_EQ(row.event.ToString(), row.text);
        // Asked again, the cached texts are the same.
        EXPECT_EQ(row.event.HashKey(), row.hashKey);
        EXPECT_EQ(row.event.ToString(), row.text);
    }
    EXPECT_EQ(InputEvent(L"Zoom in").EventType(), ietKeyword);
    EXPECT_EQ(InputEvent(InputState(), false, ketKeyUp, 7).EventType(), ietKeyUp);
    EXPECT_EQ(System::ToString(ietMouseHover), L"ietMouseHover");
    EXPECT_EQ(System::ToString(static_cast<InputEventTypeEnum>(15)), L"15");
}

TEST(InputEvent, EventTypesOfArgsMatchTheInputEventTypes)
{
    EXPECT_EQ(static_cast<int>(metMouseHover), static_cast<int>(ietMouseHover));
    EXPECT_EQ(static_cast<int>(metMouseDown), static_cast<int>(ietMouseDown));
    EXPECT_EQ(static_cast<int>(ketKeyDown), static_cast<int>(ietKeyDown));
    EXPECT_EQ(static_cast<int>(ketKeyPress), static_cast<int>(ietKeyPress));
    EXPECT_EQ(static_cast<unsigned>(mbXButton2), static_cast<unsigned>(skXButton2));
    EXPECT_EQ(static_cast<unsigned>(mkAlt), static_cast<unsigned>(skAlt));
}

TEST(InputEvent, EqualityLooksAtEveryFieldButTheCaches)
{
    const InputEvent a(InputState(skShift), false, metMouseClick, mbLeft);
    InputEvent cached = a;
    cached.ToString();
    EXPECT_EQ(a, cached);
    EXPECT_NE(a, InputEvent(InputState(skShift), true, metMouseClick, mbLeft));
    EXPECT_NE(a, InputEvent(InputState(skShift), false, metMouseClick, mbRight));
    EXPECT_NE(a, InputEvent(InputState(skAlt), false, metMouseClick, mbLeft));
    EXPECT_NE(a, InputEvent(InputState(skShift), false, metMouseDoubleClick, mbLeft));
    EXPECT_NE(InputEvent(L"a"), InputEvent(L"b"));
    EXPECT_EQ(InputState(3, 4), InputState(3, 4));
    EXPECT_FALSE(InputState(3, 4) == InputState(3, 5));
}

TEST(InputEvent, ContainsAsksForEveryKeyOfTheOtherAndItsKeyIfAny)
{
    struct Row {
        InputState held;
        InputState other;
        bool contains;
    };
    const Row rows[] = {
        {InputState(), InputState(), true},
        {InputState(skControl | skLeft, 65), InputState(), true},
        {InputState(skControl | skLeft), InputState(skControl), true},
        {InputState(skControl), InputState(skControl | skLeft), false},
        {InputState(skControl, 65), InputState(skControl, 65), true},
        {InputState(skControl, 65), InputState(0, 66), false},
        {InputState(skControl), InputState(0, 65), false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.held.Contains(row.other), row.contains)
            << row.held.ToString() << " / " << row.other.ToString();
}

TEST(InputEvent, UpdateFollowsButtonsKeysAndModifiers)
{
    InChildProcess([] {
        StartBasic();
        InputState state;
        EXPECT_EQ(state.ToString(), L"");

        // The cached text is dropped by every update.
        state.Update(MouseEventArgs::New(metMouseDown, mbLeft, mkControl, 0, 0, 1, 0), false);
        EXPECT_EQ(state.ToString(), L"skControl+skLeft");
        state.Update(MouseEventArgs::New(metMouseDown, mbRight, mkNone, 0, 0, 1, 0), false);
        EXPECT_EQ(state.ToString(), L"skRight+skLeft");
        state.Update(MouseEventArgs::New(metMouseUp, mbLeft, mkShift, 0, 0, 1, 0), false);
        EXPECT_EQ(state.ToString(), L"skShift+skRight");
        // Other mouse events change the modifiers alone.
        state.Update(MouseEventArgs::New(metMouseMove, mbMiddle, mkAlt, 5, 5, 0, 0), false);
        EXPECT_EQ(state.ToString(), L"skAlt+skRight");

        state.Update(KeyEventArgs::New(ketKeyDown, 65, mkNone), false);
        EXPECT_EQ(state.ToString(), L"skRight+65");
        // Up of another key keeps the held one; up of the held one drops it.
        state.Update(KeyEventArgs::New(ketKeyUp, 66, mkNone), false);
        EXPECT_EQ(state.Key(), 65);
        state.Update(KeyEventArgs::New(ketKeyUp, 65, mkControl), false);
        EXPECT_EQ(state.ToString(), L"skControl+skRight");

        // With modifiers only, buttons and keys stay as they are.
        state.Update(MouseEventArgs::New(metMouseUp, mbRight, mkShift, 0, 0, 1, 0), true);
        state.Update(KeyEventArgs::New(ketKeyDown, 70, mkShift), true);
        EXPECT_EQ(state.ToString(), L"skShift+skRight");
        EXPECT_EQ(state.Key(), 0);

        // Args of another kind clear the modifiers.
        state.Update(System::EventArgs::Empty(), false);
        EXPECT_EQ(state.ToString(), L"skRight");
    });
}

TEST(InputEvent, CollectionsFindEventsByValue)
{
    InChildProcess([] {
        StartBasic();
        System::Ref<IInputEventCollection> events = InputEventCollection::New();
        const InputEvent click(InputState(skControl), true, metMouseClick, mbLeft);
        events->Add(InputEvent(L"Zoom in"));
        events->Add(click);
        events->Insert(0, click);
        EXPECT_EQ(events->Count(), 3);
        // A copy equals the stored event; another gesture does not.
        EXPECT_EQ(events->IndexOf(InputEvent(InputState(skControl), true, metMouseClick, mbLeft)), 0);
        EXPECT_EQ(events->IndexOf(InputEvent(InputState(skControl), false, metMouseClick, mbLeft)), -1);
        EXPECT_TRUE(events->Remove(click));
        EXPECT_EQ(events->Item(0).Keyword(), L"Zoom in");
        EXPECT_EQ(RaisedMessage([&] { events->Item(2); }), L"Collection index is out of range (2)");
    });
}

} // namespace Quilon_::Tests::InputEvents
