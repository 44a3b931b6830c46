#include "Quilon_/System/Initializer.h"

#include "Quilon_/System/Raise.h"

namespace Quilon_::System {

// Only the upper bound is tested, whatever the message says: code registered
// with a negative rank relies on running before everything else.
void Initializer::CheckRank(float rank)
{
    if (rank > 1.0f)
        QUILON_RAISE(L"Initializer rank is out of range: '%1%' (expected a value between 0 and 1)", rank);
}

} // namespace Quilon_::System
