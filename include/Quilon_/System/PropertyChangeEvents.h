// The events before and after a property of an object changes.
//
// A class gets both events, with itself as the sender, from the mixin:
//
//   class CCircle : public Template::ObjectImpl<CCircle, Template::IPropertyChangeEventsImpl<ICircle>> {
//   public:
//       void SetRadius(double radius) override
//       {
//           double previous = m_radius;
//           if (previous == radius)
//               return;
//           m_radius = radius;
//           if (HasPropertyChangedHandlers())   // no args are built without listeners
//               FirePropertyChanged(PropertyChangedEventArgs::New(L"Radius", ToAny(previous)));
//       }
//   };
//
// where ICircle derives IPropertyChangeEvents; the mixin derives ICircle. A
// class that also listens to events takes IPropertyChangeEventsTargetImpl
// instead.
#pragma once

#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventTarget.h"
#include "Quilon_/System/PropertyChangeEventArgs.h"

#include <utility>

namespace Quilon_::System {

class QUILON_API IPropertyChangeEvents : public virtual Interface {
    QUILON_INTERFACE(IPropertyChangeEvents)
public:
    virtual Event<Pointer<IPropertyChangingEventArgs, 1>>& PropertyChanging() = 0;
    virtual Event<Pointer<IPropertyChangedEventArgs, 1>>& PropertyChanged() = 0;
};

namespace Template {

template <class I = IPropertyChangeEvents>
class IPropertyChangeEventsImpl : public I {
public:
    using ChangingEvent = Event<Pointer<IPropertyChangingEventArgs, 1>>;
    using ChangedEvent = Event<Pointer<IPropertyChangedEventArgs, 1>>;

    IPropertyChangeEventsImpl() noexcept : m_changing(this), m_changed(this) {}
    // A copy is another sender, with listeners of its own.
    IPropertyChangeEventsImpl(const IPropertyChangeEventsImpl& other) : I(other), m_changing(this), m_changed(this)
    {
    }
    IPropertyChangeEventsImpl& operator=(const IPropertyChangeEventsImpl& other)
    {
        I::operator=(other);
        return *this;
    }

    ChangingEvent& PropertyChanging() override { return m_changing; }
    ChangedEvent& PropertyChanged() override { return m_changed; }

    virtual bool HasPropertyChangingHandlers() { return static_cast<bool>(m_changing); }
    virtual bool HasPropertyChangedHandlers() { return static_cast<bool>(m_changed); }
    virtual void FirePropertyChanging(Pointer<IPropertyChangingEventArgs, 1> args) { m_changing.Fire(std::move(args)); }
    virtual void FirePropertyChanged(Pointer<IPropertyChangedEventArgs, 1> args) { m_changed.Fire(std::move(args)); }

private:
    ChangingEvent m_changing;
    ChangedEvent m_changed;
};

// The same for a class that is also an event target.
template <class I = IPropertyChangeEvents>
class IPropertyChangeEventsTargetImpl : public IPropertyChangeEventsImpl<I>, public EventTarget {
public:
    void OnEventTargetReset() override {}
};

} // namespace Template

} // namespace Quilon_::System
