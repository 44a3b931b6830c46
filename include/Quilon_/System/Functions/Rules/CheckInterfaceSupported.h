// The rule that an argument implements an interface:
//
//   collection->Add(CheckInterfaceSupported::New(0, IDisableEvents::GetType()));
//   // refuses with "Argument #1 must implement struct 'Quilon_::System::IDisableEvents'"
//
// A null argument implements nothing and is refused as well.
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Type.h"

#include <cstdint>

namespace Quilon_::System::Functions::Rules::CheckInterfaceSupported {

// Makes the rule for argument `index` (counted from 0) and interface `type`;
// the core's own implementation makes a CCheckInterfaceSupported.
extern QUILON_API Template::Function<Pointer<IRule, 1> (*)(std::int64_t index, const Type& type)> New;

} // namespace Quilon_::System::Functions::Rules::CheckInterfaceSupported
