#include "Quilon_/Drawing/Palette.h"

#include "Quilon_/Charts/ChartStyle.h"
#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IPalette, L"Quilon_::Drawing::IPalette", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IInterpolatedPalette, L"Quilon_::Drawing::IInterpolatedPalette", IPalette)
QUILON_DEFINE_INTERFACE_TYPE(IPaletteCollection, L"Quilon_::Drawing::IPaletteCollection",
                             System::Collections::Template::ICollection<IPalette>)

namespace Palette {
Factory New;
QUILON_DEFINE_SETTING(DefaultChartStyle, SetDefaultChartStyle, ClearDefaultChartStyle,
                      System::Ref<Charts::IChartStyle>(), System::gvsPerThreadFromMain)
} // namespace Palette

namespace InterpolatedPalette {
Factory New;
} // namespace InterpolatedPalette

namespace PaletteCollection {
Factory New;
} // namespace PaletteCollection

} // namespace Quilon_::Drawing
