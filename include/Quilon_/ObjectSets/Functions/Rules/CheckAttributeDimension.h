// The rule on the spatial dimension of an attribute argument, or of the
// named attribute of an object-set argument:
//
//   checks->Add(CheckAttributeDimension::New(0, 2, adrEqual));              // a 2-D attribute
//   checks->Add(CheckAttributeDimension::New(0, L"Shape", 3, adrAtMost));   // set whose "Shape" is at most
//   3-D
//
// A spatial attribute has its Dimension(); an attribute of TwoD::IVectorF or
// ThreeD::IVectorF cells counts as 2-D or 3-D; any other is refused as not
// spatial.
#pragma once

#include "Quilon_/ObjectSets/Functions/Rules/AttributeDimensionRelation.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/String.h"

#include <cstdint>

namespace Quilon_::ObjectSets::Functions::Rules::CheckAttributeDimension {

using Factory = System::Functions::Template::Factory<
    System::Ref<System::Functions::Rules::IRule>(std::int64_t index, std::int64_t dimension,
                                                 AttributeDimensionRelationEnum relation),
    System::Ref<System::Functions::Rules::IRule>(std::int64_t index, const System::LIString& attributeName,
                                                 std::int64_t dimension,
                                                 AttributeDimensionRelationEnum relation)>;
extern QUILON_API Factory New;

} // namespace Quilon_::ObjectSets::Functions::Rules::CheckAttributeDimension
