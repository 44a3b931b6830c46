#include "Quilon_/Drawing/Globals.h"

namespace Quilon_::Drawing::Globals {

QUILON_DEFINE_SETTING(Palettes, SetPalettes, ClearPalettes)

void ClearCollectionPalettes()
{
    System::Pointer<IPaletteCollection, 0> palettes = Palettes();
    if (palettes)
        palettes->Clear();
}

} // namespace Quilon_::Drawing::Globals
