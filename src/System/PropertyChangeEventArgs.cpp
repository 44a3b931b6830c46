#include "Quilon_/System/PropertyChangeEventArgs.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IPropertyChangedEventArgs, L"Quilon_::System::IPropertyChangedEventArgs", IEventArgs)
QUILON_DEFINE_INTERFACE_TYPE(IPropertyChangingEventArgs, L"Quilon_::System::IPropertyChangingEventArgs",
                             IPropertyChangedEventArgs)

template class Detail::PropertyChangeEventArgsFactory<IPropertyChangingEventArgs>;
template class Detail::PropertyChangeEventArgsFactory<IPropertyChangedEventArgs>;

PropertyChangingEventArgs::Factory PropertyChangingEventArgs::New;
PropertyChangedEventArgs::Factory PropertyChangedEventArgs::New;

} // namespace Quilon_::System
