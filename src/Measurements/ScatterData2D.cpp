#include "Quilon_/Measurements/ScatterData2D.h"

#include "Quilon_/Charts/ChartStyle.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IScatterData2D, L"Quilon_::Measurements::IScatterData2D", System::Interface)

namespace ScatterData2D {
Factory New;
// Per thread, as the style of palettes' charts: a view's tweaks stay on its
// thread.
QUILON_DEFINE_SETTING(DefaultChartStyle, SetDefaultChartStyle, ClearDefaultChartStyle,
                      System::Ref<Charts::IChartStyle>(), System::gvsPerThread)
} // namespace ScatterData2D

} // namespace Quilon_::Measurements
