#include "Quilon_/Math/ComplexFacet.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(Math::ComplexFacetEnum, Empty, {Math::cfReal, L"cfReal"}, {Math::cfImaginary, L"cfImaginary"},
                        {Math::cfMagnitude, L"cfMagnitude"}, {Math::cfPhase, L"cfPhase"})
