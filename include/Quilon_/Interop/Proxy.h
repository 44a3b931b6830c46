// Pairing an object with a peer in a managed or scripting environment.
//
// A peer environment stores an IProxy in the object; from then on the object
// pins its peer while native code holds references, unpins it when the native
// count reaches 0 instead of deleting itself, and is deleted when the peer
// detaches (SetProxy(nullptr)) while the native side holds nothing:
//
//   container->SetProxy(proxy);   // Pin() now if native references exist
//   ...                           // Unpin() at count 0, Pin() at 0 -> 1
//   container->SetProxy(nullptr); // deletes the object if its count is 0
#pragma once

#include "Quilon_/System/Interface.h"

namespace Quilon_::System {
class Object;
}

namespace Quilon_::Interop {

class QUILON_API IProxy : public virtual System::Interface {
    QUILON_INTERFACE(IProxy)
public:
    // Reserved for the peer's environment; not called by this library.
    virtual void Reserved() = 0;
    // The native side begins to hold the object (count 0 -> 1).
    virtual void Pin() = 0;
    // The native side lets go (count reached 0).
    virtual void Unpin() = 0;
};

class QUILON_API IProxyContainer : public virtual System::Interface {
    QUILON_INTERFACE(IProxyContainer)
public:
    virtual IProxy* Proxy() = 0;
    virtual void SetProxy(IProxy* proxy) = 0;
    // A word kept per concrete class, for the peer environment to remember
    // how to make peers of that class.
    virtual void* ProxyClass() = 0;
    // Stores `value` unless it is null; returns the word now stored.
    virtual void* SetProxyClass(void* value) = 0;
};

// Every concrete class places this directly behind Object.
class QUILON_API IProxyContainerImpl : public IProxyContainer {
public:
    IProxy* Proxy() override { return proxy; }
    // The work behind SetProxy, on the object's count: see Proxy.cpp.
    virtual void SetProxy(System::Object& object, IProxy* proxy);
    using IProxyContainer::SetProxy;

protected:
    IProxy* proxy = nullptr;
};

// Does nothing; a place to set a breakpoint from a peer environment.
QUILON_API void DebugBreak();

} // namespace Quilon_::Interop
