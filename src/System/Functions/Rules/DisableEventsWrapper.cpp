#include "System/Functions/Rules/DisableEventsWrapper.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Functions::Rules {

CDisableEventsWrapper::CDisableEventsWrapper(Pointer<IDisableEvents, 1> target)
    : target(std::move(target)), previous(this->target->EventsDisabled())
{
    this->target->SetEventsDisabled(true);
}

CDisableEventsWrapper::~CDisableEventsWrapper()
{
    target->SetEventsDisabled(previous);
}

bool CDisableEventsWrapper::FindDelegate(const Type& type, void*& delegate, bool& exact)
{
    Pointer<Interface, 1> wrapped(target);
    if (!type.IsImplementedBy(wrapped))
        return false;
    delegate = wrapped.Get();
    exact = false;
    return true;
}

CDisableEventsWrapper* CDisableEventsWrapper::Of(Interface* argument)
{
    return dynamic_cast<CDisableEventsWrapper*>(argument);
}

} // namespace Quilon_::System::Functions::Rules
