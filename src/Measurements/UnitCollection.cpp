#include "Quilon_/Measurements/UnitCollection.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IUnitCollection, L"Quilon_::Measurements::IUnitCollection",
                             System::Collections::Template::ICollection<IUnit>)

UnitCollection::Factory UnitCollection::New;

} // namespace Quilon_::Measurements
