// The arguments of a window's mouse events: what happened, with which
// button, where, and which modifier keys were held.
//
//   Ref<Windows::IMouseEventArgs> args = Windows::MouseEventArgs::New(
//       Windows::metMouseDown, Windows::mbLeft, Windows::mkControl, 10, 20, 1, 0);
//   state.Update(args, false);   // Control and the left button are now held
#pragma once

#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/Windows/InputEnumerations.h"

namespace Quilon_::Windows {

class QUILON_API IMouseEventArgs : public virtual System::IEventArgs {
    QUILON_INTERFACE(IMouseEventArgs)
public:
    virtual MouseEventTypeEnum EventType() = 0;
    // The button that changed; mbNone for moves, wheels, enter and leave.
    virtual MouseButtonEnum Button() = 0;
    // The modifier keys held, or'ed.
    virtual ModifierKeysEnum Modifiers() = 0;
    // The pointer, in the window's client pixels.
    virtual int X() = 0;
    virtual int Y() = 0;
    // 1 for a click, 2 for a double click.
    virtual int Clicks() = 0;
    // The signed wheel rotation, in the platform's detents times 120.
    virtual int Delta() = 0;
};

namespace MouseEventArgs {
// New(type, button, modifiers, x, y, clicks, delta).
using Factory = System::Functions::Template::Factory<System::Ref<IMouseEventArgs>(
    MouseEventTypeEnum, MouseButtonEnum, ModifierKeysEnum, int, int, int, int)>;
extern QUILON_API Factory New;
} // namespace MouseEventArgs

} // namespace Quilon_::Windows
