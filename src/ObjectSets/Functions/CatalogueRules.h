// The words in which the object-set catalogue writes its chains, one short
// call per rule, so that each area's initialiser reads as its table:
//
//   RuleChain logic;
//   logic.Check({Spatial(0), Spatial(1), Spatial(2), SameAttributeKeys(1, 0, 3), SameAttributeKeys(2, 0,
//   11)});
//
// Flags of the compatibility rules: 1 count, 3 keys, 7 same set, plus 8 to
// waive the test when the first operand is empty.
#pragma once

#include "Quilon_/ObjectSets/Functions/Rules/AttributeDimensionRelation.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckAttributeCompatible.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckAttributeDimension.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckBitmapAttribute.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckObjectSetCompatible.h"
#include "Quilon_/ObjectSets/KeyVectorAttribute.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/ObjectSets/VectorAttribute.h"
#include "Quilon_/System/Functions/RuleChain.h"
#include "Quilon_/System/Functions/Rules/CheckInterfaceSupported.h"

#include <cstdint>

namespace Quilon_::ObjectSets::Functions::Catalogue {

using Rule = System::Functions::RuleChain::Rule;

inline Rule Supports(std::int64_t index, const System::Type& type)
{
    return System::Functions::Rules::CheckInterfaceSupported::New(index, type);
}
inline Rule Spatial(std::int64_t index)
{
    return Supports(index, ISpatialAttribute::GetType());
}
inline Rule Scalar(std::int64_t index)
{
    return Supports(index, IScalarAttribute::GetType());
}
inline Rule KeyVector(std::int64_t index)
{
    return Supports(index, IKeyVectorAttribute::GetType());
}
inline Rule FloatVector(std::int64_t index)
{
    return Supports(index, IFloatVectorAttribute::GetType());
}
// The attribute holds the bitmap shapes of the dimension of argument
// `dimension`; an attribute measured against itself must hold bitmaps.
inline Rule BitmapCells(std::int64_t attribute, std::int64_t dimension)
{
    return Rules::CheckBitmapAttribute::New(attribute, dimension);
}
inline Rule SameAttributeKeys(std::int64_t index, std::int64_t reference, unsigned short flags)
{
    return Rules::CheckAttributeCompatible::New(index, reference, flags);
}
inline Rule SameObjectKeys(std::int64_t index, std::int64_t reference, unsigned short flags)
{
    return Rules::CheckObjectSetCompatible::New(index, reference, flags);
}
// An object set measured through its "Shape" attribute, of two or three
// dimensions.
inline Rule HasShape(std::int64_t index)
{
    return Rules::CheckAttributeDimension::New(index, System::LIString(L"Shape"), std::int64_t(3),
                                               Rules::adrAtMost);
}

} // namespace Quilon_::ObjectSets::Functions::Catalogue
