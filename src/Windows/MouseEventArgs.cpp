#include "Quilon_/Windows/MouseEventArgs.h"

#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Windows {

QUILON_DEFINE_INTERFACE_TYPE(IMouseEventArgs, L"Quilon_::Windows::IMouseEventArgs", System::IEventArgs)

MouseEventArgs::Factory MouseEventArgs::New;

} // namespace Quilon_::Windows

QUILON_DEFINE_ENUM_TEXT(Windows::MouseEventTypeEnum, Number, {Windows::metMouseClick, L"metMouseClick"},
                        {Windows::metMouseDoubleClick, L"metMouseDoubleClick"},
                        {Windows::metMouseDown, L"metMouseDown"}, {Windows::metMouseUp, L"metMouseUp"},
                        {Windows::metMouseWheelUp, L"metMouseWheelUp"},
                        {Windows::metMouseWheelDown, L"metMouseWheelDown"},
                        {Windows::metMouseEnter, L"metMouseEnter"},
                        {Windows::metMouseLeave, L"metMouseLeave"}, {Windows::metMouseMove, L"metMouseMove"},
                        {Windows::metMouseHover, L"metMouseHover"})
QUILON_DEFINE_ENUM_TEXT(Windows::MouseButtonEnum, Number, {Windows::mbNone, L"mbNone"},
                        {Windows::mbLeft, L"mbLeft"}, {Windows::mbRight, L"mbRight"},
                        {Windows::mbMiddle, L"mbMiddle"}, {Windows::mbXButton1, L"mbXButton1"},
                        {Windows::mbXButton2, L"mbXButton2"})
