// The rule that silences the events of arguments for the length of a call.
//
// An operator that fills an output collection would otherwise tell every
// listener about each item on the way; with the rule in its Make chain the
// listeners hear nothing until the call is over:
//
//   collection->Add(DisableEvents::New(0));            // argument 0
//   collection->Add(DisableEvents::New({0, 2}));       // arguments 0 and 2
//
// The rule replaces each argument that has IDisableEvents by a wrapper that
// switches its events off and, when the call's boxed arguments go away,
// back to what they were; the wrapper answers every interface cast with the
// wrapped object, so the implementation receives what it expects. Arguments
// without IDisableEvents are left as they are, and the rule never refuses.
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::System::Functions::Rules::DisableEvents {

using Factory = Template::Factory<Pointer<IRule, 1>(const std::vector<std::int64_t>& indexes),
                                  Pointer<IRule, 1>(std::int64_t index)>;
// The core's own implementations make a CDisableEvents.
extern QUILON_API Factory New;

} // namespace Quilon_::System::Functions::Rules::DisableEvents
