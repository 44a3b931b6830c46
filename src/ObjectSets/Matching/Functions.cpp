#include "Quilon_/ObjectSets/Matching/Functions.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::ObjectSets::Matching::Functions {

Operator<void(Set, Set, System::Pointer<System::Interface, 0>&, const System::Any&)> Register(L"Register");

} // namespace Quilon_::ObjectSets::Matching::Functions
