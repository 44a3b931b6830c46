#include "Quilon_/Measurements/MeasurementCollection.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IMeasurementCollection, L"Quilon_::Measurements::IMeasurementCollection",
                             System::Collections::Template::ICollection<IMeasurement>)

MeasurementCollection::Factory MeasurementCollection::New;

} // namespace Quilon_::Measurements
