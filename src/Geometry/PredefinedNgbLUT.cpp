#include "Quilon_/Geometry/PredefinedNgbLUT.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(
    Geometry::PredefinedNgbLUTEnum, Number, {Geometry::pnlSinglePoints, L"pnlSinglePoints"},
    {Geometry::pnlMultiplePoints, L"pnlMultiplePoints"}, {Geometry::pnlEndPoints, L"pnlEndPoints"},
    {Geometry::pnlBoundaryPoints, L"pnlBoundaryPoints"}, {Geometry::pnlPruning, L"pnlPruning"},
    {Geometry::pnlHomotopicPruning, L"pnlHomotopicPruning"}, {Geometry::pnlCentroid, L"pnlCentroid"},
    {Geometry::pnlSKIZ, L"pnlSKIZ"}, {Geometry::pnlSkeleton1, L"pnlSkeleton1"})

Quilon_::System::Any Quilon_::System::ToAny(Geometry::PredefinedNgbLUTEnum value)
{
    return Detail::Box(value);
}
