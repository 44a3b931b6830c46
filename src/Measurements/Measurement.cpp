#include "Quilon_/Measurements/Measurement.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IMeasurement, L"Quilon_::Measurements::IMeasurement", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IMeasurementInternal, L"Quilon_::Measurements::IMeasurementInternal",
                             System::Interface)

Measurement::Factory Measurement::New;

} // namespace Quilon_::Measurements
