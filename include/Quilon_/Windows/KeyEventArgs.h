// The arguments of a window's key events: which key went down, up or was
// pressed, with the modifier keys held. A handler that consumed the key
// says so through SetHandled, and the window stops passing it on.
//
//   Ref<Windows::IKeyEventArgs> args = Windows::KeyEventArgs::New(Windows::ketKeyDown, 0x41,
//   Windows::mkShift); state.Update(args, false);   // Shift and key 0x41 are now held
#pragma once

#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/Windows/InputEnumerations.h"

namespace Quilon_::Windows {

class QUILON_API IKeyEventArgs : public virtual System::IEventArgs {
    QUILON_INTERFACE(IKeyEventArgs)
public:
    virtual KeyEventTypeEnum EventType() = 0;
    // The platform's virtual key code.
    virtual unsigned short Key() = 0;
    // The modifier keys held, or'ed.
    virtual ModifierKeysEnum Modifiers() = 0;
    virtual bool Handled() = 0;
    virtual void SetHandled(bool handled) = 0;
};

namespace KeyEventArgs {
// New(type, key, modifiers), not handled.
using Factory = System::Functions::Template::Factory<System::Ref<IKeyEventArgs>(
    KeyEventTypeEnum, unsigned short, ModifierKeysEnum)>;
extern QUILON_API Factory New;
} // namespace KeyEventArgs

} // namespace Quilon_::Windows
