#include "Quilon_/Interop/Proxy.h"

#include "Quilon_/Startup.h"
#include "Quilon_/System/Object.h"
#include "Quilon_/System/Threading/CriticalSection.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Interop {

QUILON_DEFINE_INTERFACE_TYPE(IProxy, L"Quilon_::Interop::IProxy", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IProxyContainer, L"Quilon_::Interop::IProxyContainer", System::Interface)

// Count and proxy are read and written under the object lock, as one step
// with the count's crossings of 0 (see Object.h). Pin() is called under the
// lock here; Delete runs after it is left.
void IProxyContainerImpl::SetProxy(System::Object& object, IProxy* value)
{
    if (value == proxy)
        return;
    bool deleteObject = false;
    {
        System::Threading::CriticalSection::Scope lock(System::ObjectCriticalSection());
        proxy = value;
        if (value) {
            if (object.ReferenceCount() > 0)
                value->Pin();
        } else if (object.ReferenceCount() == 0) {
            if (System::InitializationState() < 0)
                return;
            object.count.store(System::Object::DeletionCount, std::memory_order_relaxed);
            deleteObject = true;
        }
    }
    if (deleteObject) {
        System::Object* dying = &object;
        System::UnsafeDeallocator::Delete(dying);
    }
}

void DebugBreak() {}

} // namespace Quilon_::Interop
