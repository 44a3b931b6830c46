#include "Quilon_/System/Functions/Rules/ArgumentIndexes.h"

#include "Quilon_/System/Raise.h"

namespace Quilon_::System::Functions::Rules {

std::vector<std::int64_t> AtLeastTwoIndexes(std::vector<std::int64_t> indexes)
{
    if (indexes.size() < 2)
        QUILON_RAISE(L"At least two argument indexes expected (%1% provided)",
                     static_cast<std::int64_t>(indexes.size()));
    return indexes;
}

} // namespace Quilon_::System::Functions::Rules
