#include "Quilon_/Windows/KeyEventArgs.h"

#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Windows {

QUILON_DEFINE_INTERFACE_TYPE(IKeyEventArgs, L"Quilon_::Windows::IKeyEventArgs", System::IEventArgs)

KeyEventArgs::Factory KeyEventArgs::New;

} // namespace Quilon_::Windows

QUILON_DEFINE_ENUM_TEXT(Windows::KeyEventTypeEnum, Number, {Windows::ketKeyDown, L"ketKeyDown"},
                        {Windows::ketKeyUp, L"ketKeyUp"}, {Windows::ketKeyPress, L"ketKeyPress"})
QUILON_DEFINE_ENUM_TEXT(Windows::ModifierKeysEnum, Number, {Windows::mkNone, L"mkNone"},
                        {Windows::mkShift, L"mkShift"}, {Windows::mkControl, L"mkControl"},
                        {Windows::mkAlt, L"mkAlt"})
