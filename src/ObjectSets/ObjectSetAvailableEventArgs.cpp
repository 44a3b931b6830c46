#include "Quilon_/ObjectSets/ObjectSetAvailableEventArgs.h"

#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IObjectSetAvailableEventArgs,
                             L"Quilon_::ObjectSets::IObjectSetAvailableEventArgs", System::IEventArgs)

ObjectSetAvailableEventArgs::Factory ObjectSetAvailableEventArgs::New;

} // namespace Quilon_::ObjectSets
