// The plumbing of a concrete class, written once.
//
// A concrete class states its interfaces and its own state; this template
// gives it Object, the proxy container placed directly behind Object, the
// reference counting, FindDelegate that delegates nothing, and the per-class
// proxy word:
//
//   class CThing : public System::Template::ObjectImpl<CThing, IThing, ICloneable> {
//   public:
//       void Do() override;
//   };
//
// A class that answers casts for another object overrides FindDelegate.
//
// The list of interfaces may name mixins too: with EventTarget among them
// the deletion sequence clears the object's event handlers, with
// Template::IDestructionEventsImpl (DestructionEvents.h) it tells the
// listeners of its Destroyed event, which is what weak references need:
//
//   class CNode : public System::Template::ObjectImpl<CNode, INode, System::Template::IDestructionEventsImpl> {};
//   System::WeakReference<INode> weak(node);   // null once the node is gone
#pragma once

#include "Quilon_/Interop/Proxy.h"
#include "Quilon_/System/Object.h"

#include <type_traits>

namespace Quilon_::System::Template {

template <class Derived, class... Interfaces>
class ObjectImpl : public Object, public Interop::IProxyContainerImpl, public Interfaces... {
public:
    std::int64_t AddReference() override { return ReferenceCounting::AddReference(*this, this->proxy); }
    std::int64_t ReleaseReference() override
    {
        return ReferenceCounting::ReleaseReference(*this, this->proxy);
    }
    bool FindDelegate(const Type& type, void*& target, bool& exact) override
    {
        return Detail::FindNoDelegate(type, target, exact);
    }

    EventTarget* AsEventTarget() override
    {
        if constexpr ((std::is_convertible_v<Interfaces*, EventTarget*> || ...))
            return this;
        else
            return nullptr;
    }
    IDestructionEvents* AsIDestructionEvents() override
    {
        if constexpr ((std::is_convertible_v<Interfaces*, IDestructionEvents*> || ...))
            return this;
        else
            return nullptr;
    }

    using Interop::IProxyContainerImpl::SetProxy;
    void SetProxy(Interop::IProxy* value) override { Interop::IProxyContainerImpl::SetProxy(*this, value); }
    void* ProxyClass() override { return s_proxyClass; }
    void* SetProxyClass(void* value) override
    {
        if (value)
            s_proxyClass = value;
        return s_proxyClass;
    }

private:
    static inline void* s_proxyClass = nullptr;
};

} // namespace Quilon_::System::Template
