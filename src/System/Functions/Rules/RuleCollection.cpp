#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Functions::Rules {

QUILON_DEFINE_INTERFACE_TYPE(IRule, L"Quilon_::System::Functions::Rules::IRule", Interface)
QUILON_DEFINE_INTERFACE_TYPE(IRuleCollection, L"Quilon_::System::Functions::Rules::IRuleCollection", Interface)

} // namespace Quilon_::System::Functions::Rules
