#include "Quilon_/System/Cloneable.h"

#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(ICloneable, L"Quilon_::System::ICloneable", Interface)
QUILON_DEFINE_INTERFACE_TYPE(Collections::ICloneable, L"Quilon_::System::Collections::ICloneable", Interface)

namespace {
// Clone() answers with a reference: a null answer is refused as a null
// assigned to a reference of the cloning interface.
template <class C>
Interface* CloneThrough(C* cloneable)
{
    Pointer<C, 1> clone = cloneable->Clone();
    Interface* result = clone.Get();
    if (!result)
        Detail::RaiseNullAssignment(C::GetType(), QUILON_HERE);
    result->AddReference();
    return result;
}
} // namespace

Interface* Detail::CloneVariable(Interface* source)
{
    if (auto* collection = InterfaceCast<Collections::ICloneable>(source))
        return CloneThrough(collection);
    if (auto* cloneable = InterfaceCast<ICloneable>(source))
        return CloneThrough(cloneable);
    return nullptr;
}

void Detail::RaiseNotCloneable(const Type& type)
{
    QUILON_RAISE(L"Class '%1%' does not implement ICloneable", type.Name());
}

} // namespace Quilon_::System
