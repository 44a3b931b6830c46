// The rule that an attribute argument holds cells of one data type:
//
//   checks->Add(CheckAttributeDataType::New(1, DataTypeOf<std::vector<float>>()));
//   // refuses with "Data Type of attribute #2 ('Profile') must be of type 'std::vector<float>'"
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Type.h"

#include <cstdint>

namespace Quilon_::ObjectSets::Functions::Rules::CheckAttributeDataType {

extern QUILON_API System::Functions::Template::Function<System::Ref<System::Functions::Rules::IRule> (*)(
    std::int64_t index, const System::Type& type)>
    New;

} // namespace Quilon_::ObjectSets::Functions::Rules::CheckAttributeDataType
