#include "Quilon_/System/DestructionEvents.h"

#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Type.h"
#include "Quilon_/System/WeakReference.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IDestructionEvents, L"Quilon_::System::IDestructionEvents", Interface)

DestroyedEvent::~DestroyedEvent() = default;

void Detail::RaiseWeakReferenceRequisite(const Type& type)
{
    QUILON_RAISE(L"WeakReference<> requisite: %1% should implement IDestructionEvents", type.Name());
}

} // namespace Quilon_::System
