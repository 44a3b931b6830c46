#include "Quilon_/System/Interface.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System {

// Every other type names this one as a base, so it is built on first call
// rather than as a static member.
const Type& Interface::GetType()
{
    static const Type type{Type::ReferenceType<Interface>(L"Quilon_::System::Interface")};
    return type;
}

bool Detail::FindNoDelegate(const Type&, void*&, bool&)
{
    return false;
}

} // namespace Quilon_::System
