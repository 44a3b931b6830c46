// Settings of the drawing model.
//
//   Pointer<Drawing::IPalette, 0> grey =
//       Drawing::Globals::Palettes()->Find(System::LIString(L"Palette.Grey"));
//   Drawing::Globals::ClearCollectionPalettes();   // empty, still there
//
// Palettes() holds the palettes by which images are shown; the
// implementation library sets the collection at start-up. It is one
// collection for the process: palettes are shared tables, read far more
// often than changed.
#pragma once

#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::Drawing::Globals {

QUILON_DECLARE_SETTING(Palettes, SetPalettes, ClearPalettes, System::Ref<IPaletteCollection>);
// Empties the collection of Palettes() without replacing it.
QUILON_API void ClearCollectionPalettes();

} // namespace Quilon_::Drawing::Globals
