#include "Quilon_/Measurements/MeasurerCollection.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IMeasurerCollection, L"Quilon_::Measurements::IMeasurerCollection",
                             System::Collections::Template::ICollection<IMeasurer>)

MeasurerCollection::Factory MeasurerCollection::New;

} // namespace Quilon_::Measurements
