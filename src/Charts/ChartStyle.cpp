#include "Quilon_/Charts/ChartStyle.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Charts {

QUILON_DEFINE_INTERFACE_TYPE(IChartStyle, L"Quilon_::Charts::IChartStyle", System::Interface)

} // namespace Quilon_::Charts
