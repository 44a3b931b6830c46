#include "Quilon_/ObjectSets/ObjectSetSource.h"

#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IObjectSetSource, L"Quilon_::ObjectSets::IObjectSetSource", System::Interface)

} // namespace Quilon_::ObjectSets
