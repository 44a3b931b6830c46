#include "Quilon_/System/Equatable.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IEquatable, L"Quilon_::System::IEquatable", Interface)

bool Equals(Pointer<Interface, 0> a, Pointer<Interface, 0> b)
{
    if (a.Get() == b.Get())
        return true;
    Pointer<IEquatable, 0> left(a);
    Pointer<IEquatable, 0> right(b);
    if (!left || !right)
        return false;
    return left->Equals(Pointer<Interface, 1>(b)) && right->Equals(Pointer<Interface, 1>(a));
}

} // namespace Quilon_::System
