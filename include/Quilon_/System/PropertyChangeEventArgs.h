// The args of the events before and after a property of an object changes,
// and the factory objects that make them.
//
// The concrete args live in the libraries that the core loads; those
// libraries register their implementations on the six operators of each
// factory. A setter that has listeners builds the args from the property's
// name and its previous value:
//
//   if (PropertyChanged())
//       FirePropertyChanged(PropertyChangedEventArgs::New(L"Radius", ToAny(previous)));
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Function.h"

#include <cstdint>
#include <string>

namespace Quilon_::System {

class QUILON_API IPropertyChangedEventArgs : public virtual IEventArgs {
    QUILON_INTERFACE(IPropertyChangedEventArgs)
public:
    virtual std::wstring PropertyName() = 0;
    // The element of an indexed property that changed; -1 for the whole.
    virtual std::int64_t Index() = 0;
    virtual Any OldValue() = 0;
    virtual Any NewValue() = 0;
    // False for the args made with a single value, which is the old one.
    virtual bool HasNewValue() = 0;
    // For a change passed on from a part of the object: the part's own args
    // and the part.
    virtual Pointer<IEventArgs, 0> InnerEventArgs() = 0;
    virtual Pointer<Interface, 0> Source() = 0;
    // Empties both values, so that args kept by a listener do not keep the
    // values' objects alive.
    virtual void ReleaseValues() = 0;
};

// The args of the event before the change, which a listener may veto.
class QUILON_API IPropertyChangingEventArgs : public virtual IPropertyChangedEventArgs {
    QUILON_INTERFACE(IPropertyChangingEventArgs)
public:
    // A listener may correct the value about to be stored.
    virtual void SetNewValue(const Any& value) = 0;
    virtual bool Allowed() = 0;
    // One-way: once a listener has refused, no later one allows again.
    virtual void SetAllowed(bool allowed) = 0;
    virtual std::wstring Reason() = 0;
    virtual void SetReason(const std::wstring& reason) = 0;
};

namespace Detail {

// The six ways of making the args of a property change, each an operator
// named "New", called through one object by overload.
template <class I>
class QUILON_API PropertyChangeEventArgsFactory {
public:
    using Made = Pointer<I, 1>;
    template <class... A>
    using New = Functions::Template::Function<Made (*)(A...)>;

    // The previous value only.
    Made operator()(const std::wstring& name, const Any& value) const { return byValue(name, value); }
    Made operator()(const std::wstring& name, const Any& oldValue, const Any& newValue) const
    {
        return byValues(name, oldValue, newValue);
    }
    Made operator()(const std::wstring& name, std::int64_t index, const Any& value) const
    {
        return byIndexValue(name, index, value);
    }
    Made operator()(const std::wstring& name, std::int64_t index, const Any& oldValue, const Any& newValue) const
    {
        return byIndexValues(name, index, oldValue, newValue);
    }
    Made operator()(const std::wstring& name, Pointer<IEventArgs, 1> inner, Pointer<Interface, 1> source) const
    {
        return byInner(name, std::move(inner), std::move(source));
    }
    Made operator()(const std::wstring& name, Pointer<IEventArgs, 1> inner, Pointer<Interface, 1> source,
                    const Any& value) const
    {
        return byInnerValue(name, std::move(inner), std::move(source), value);
    }

    New<const std::wstring&, const Any&> byValue{L"New"};
    New<const std::wstring&, const Any&, const Any&> byValues{L"New"};
    New<const std::wstring&, std::int64_t, const Any&> byIndexValue{L"New"};
    New<const std::wstring&, std::int64_t, const Any&, const Any&> byIndexValues{L"New"};
    New<const std::wstring&, Pointer<IEventArgs, 1>, Pointer<Interface, 1>> byInner{L"New"};
    New<const std::wstring&, Pointer<IEventArgs, 1>, Pointer<Interface, 1>, const Any&> byInnerValue{L"New"};
};

} // namespace Detail

namespace PropertyChangingEventArgs {
using Factory = Detail::PropertyChangeEventArgsFactory<IPropertyChangingEventArgs>;
extern QUILON_API Factory New;
} // namespace PropertyChangingEventArgs

namespace PropertyChangedEventArgs {
using Factory = Detail::PropertyChangeEventArgsFactory<IPropertyChangedEventArgs>;
extern QUILON_API Factory New;
} // namespace PropertyChangedEventArgs

} // namespace Quilon_::System
