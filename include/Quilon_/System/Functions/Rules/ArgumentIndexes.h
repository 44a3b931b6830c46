// The argument indexes of a rule that relates several arguments, such as
// a compatibility rule between an input and an output. Such a rule is
// meaningless with fewer than two, so its constructor refuses them:
//
//   CCheckCompatible(std::vector<std::int64_t> indexes)
//       : indexes(Rules::AtLeastTwoIndexes(std::move(indexes))) {}
#pragma once

#include "Quilon_/Config.h"

#include <cstdint>
#include <vector>

namespace Quilon_::System::Functions::Rules {

// Returns `indexes`, or raises "At least two argument indexes expected (%1%
// provided)" when there are fewer than two.
QUILON_API std::vector<std::int64_t> AtLeastTwoIndexes(std::vector<std::int64_t> indexes);

} // namespace Quilon_::System::Functions::Rules
