#include "Quilon_/Measurements/Profile.h"

#include "Quilon_/Charts/ChartStyle.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IProfile, L"Quilon_::Measurements::IProfile", System::Interface)

namespace Profile {
Factory New;
// Per thread, as the style of palettes' charts: a view's tweaks stay on its
// thread.
QUILON_DEFINE_SETTING(DefaultChartStyle, SetDefaultChartStyle, ClearDefaultChartStyle,
                      System::Ref<Charts::IChartStyle>(), System::gvsPerThread)
} // namespace Profile

} // namespace Quilon_::Measurements
