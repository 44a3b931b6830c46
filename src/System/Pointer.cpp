#include "Quilon_/System/Pointer.h"

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Type.h"

#include <typeinfo>

namespace Quilon_::System::Detail {

void RaiseNullAssignment(const Type& type, SourceLocation where)
{
    Raise(where.function, where.file, where.line, L"Pointer <%1%> : attempt to assign 0 to a reference",
          type.Name());
}

void RaiseNullAccess(const Type& type, SourceLocation where)
{
    Raise(where.function, where.file, where.line, L"Pointer <%1%> : attempt to access a 0 pointer", type.Name());
}

void RaiseInterfaceNotSupported(const Type& type, Interface* source, SourceLocation where)
{
    Raise(where.function, where.file, where.line, L"Pointer <%1%> : Interface not supported by instance of %2%",
          type.Name(), RuntimeClassName(typeid(*source)));
}

void RaiseCloneableNotSupported(const Type& type, Interface* source, SourceLocation where)
{
    Raise(where.function, where.file, where.line,
          L"Pointer <%1%> : ICloneable Interface not supported by instance of %2%", type.Name(),
          RuntimeClassName(typeid(*source)));
}

Interface* CloneThroughICloneable(Interface* source, const Type& type)
{
    ICloneable* cloneable = InterfaceCast<ICloneable>(source);
    if (!cloneable)
        return nullptr;
    Pointer<ICloneable, 1> clone = cloneable->Clone();
    Interface* result = clone.Get();
    if (!result)
        RaiseNullAssignment(type, QUILON_HERE);
    result->AddReference();
    return result;
}

} // namespace Quilon_::System::Detail
