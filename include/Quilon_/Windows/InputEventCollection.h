// A list of input events, such as the gestures bound to one command.
//
//   Ref<Windows::IInputEventCollection> gestures = Windows::InputEventCollection::New();
//   gestures->Add(Windows::InputEvent(L"Zoom in"));
#pragma once

#include "Quilon_/System/Collections/ValueCollection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/Windows/InputEvent.h"

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IValueCollection<Windows::InputEvent>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Windows {

class QUILON_API IInputEventCollection : public System::Collections::Template::IValueCollection<InputEvent> {
    QUILON_INTERFACE(IInputEventCollection)
};

namespace InputEventCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IInputEventCollection>()>;
extern QUILON_API Factory New;
} // namespace InputEventCollection

} // namespace Quilon_::Windows
