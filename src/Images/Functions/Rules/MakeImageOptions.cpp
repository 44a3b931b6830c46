#include "Quilon_/Images/Functions/Rules/MakeImageOptions.h"

namespace Quilon_::System {

Any ToAny(const Images::Functions::Rules::TypeOptions& value)
{
    return Detail::Box(value);
}

Any ToAny(const Images::Functions::Rules::MakeImageOptions& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
