#include "Quilon_/ObjectSets/Functions/Rules/AttributeDimensionRelation.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(ObjectSets::Functions::Rules::AttributeDimensionRelationEnum, Number,
                        {ObjectSets::Functions::Rules::adrEqual, L"adrEqual"},
                        {ObjectSets::Functions::Rules::adrAtMost, L"adrAtMost"},
                        {ObjectSets::Functions::Rules::adrAtLeast, L"adrAtLeast"})
