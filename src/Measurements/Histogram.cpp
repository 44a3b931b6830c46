#include "Quilon_/Measurements/Histogram.h"

#include "Quilon_/Charts/ChartStyle.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IHistogram, L"Quilon_::Measurements::IHistogram", System::Interface)

namespace Histogram {
Factory New;
// Per thread, as the style of palettes' charts: a view's tweaks stay on its
// thread.
QUILON_DEFINE_SETTING(DefaultChartStyle, SetDefaultChartStyle, ClearDefaultChartStyle,
                      System::Ref<Charts::IChartStyle>(), System::gvsPerThread)
} // namespace Histogram

} // namespace Quilon_::Measurements
