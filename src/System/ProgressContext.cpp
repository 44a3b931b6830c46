#include "Quilon_/System/ProgressContext.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/ErrorManager.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Type.h"
#include "Quilon_/System/WeakReference.h"

#include <utility>

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IProgressContext, L"Quilon_::System::IProgressContext", Interface)

namespace ProgressContext {

namespace {

Pointer<IProgressContext, 1> NewRoot(Share share)
{
    return NewInstance(share, false);
}

Pointer<IProgressContext, 1> NewChild(Pointer<IProgressContext, 1> parent, Share share,
                                      bool completeWhenReleased)
{
    Pointer<IProgressContext, 1> child = NewInstance(share, completeWhenReleased);
    child->SetParent(std::move(parent));
    return child;
}

Pointer<IProgressContext, 1> NewPlainChild(Pointer<IProgressContext, 1> parent, Share share)
{
    return NewChild(std::move(parent), share, false);
}

// Made at first use and never destroyed: the current context may be read
// while the process exits, after static destruction has begun.
WeakReference<IProgressContext>& Current()
{
    static auto* const current = new WeakReference<IProgressContext>();
    return *current;
}

} // namespace

Factory New(&NewRoot, &NewPlainChild, &NewChild);

Event<Pointer<IPropertyChangedEventArgs, 1>> PropertyChanged{nullptr};

QUILON_DEFINE_FUNCTION_SLOT(NewInstance, 1, Pointer<IProgressContext, 1> (*)(Share, bool))

QUILON_DEFINE_SETTING(DefaultInterval, SetDefaultInterval, ClearDefaultInterval, 500u, gvsPerThread)

Pointer<IProgressContext, 0> CurrentProgressContext()
{
    return Current().Target();
}

void SetCurrentProgressContext(Pointer<IProgressContext, 0> context)
{
    Pointer<IProgressContext, 0> previous = Current().Target();
    if (previous.Get() == context.Get())
        return;
    Current().SetTarget(context.Get());
    if (PropertyChanged)
        PropertyChanged.Fire(PropertyChangedEventArgs::New(L"CurrentProgressContext", ToAny(previous)));
}

Pointer<IProgressContext, 0> CreateChild(Share share)
{
    return CreateChild(share, false);
}

Pointer<IProgressContext, 0> CreateChild(Share share, bool completeWhenReleased)
{
    Pointer<IProgressContext, 0> current = CurrentProgressContext();
    if (!current)
        return nullptr;
    return New(Pointer<IProgressContext, 1>(current), share, completeWhenReleased);
}

Pointer<IProgressContext, 1> NewInstance(Share share, bool completeWhenReleased)
{
    return QUILON_FUNCTION_SLOT(NewInstance, 1)(share, completeWhenReleased);
}

void RaiseCancelled(const char* function, const char* file, int line)
{
    Pointer<IException, 1> cancelled(
        CancelException::RawNew(Detail::TranslateMessage(L"The operation was cancelled"),
                                Detail::ToStringLenient(function), Detail::ToStringLenient(file), line));
    Library::ErrorManager()->SetLastError(cancelled);
    Detail::Throw(cancelled);
}

} // namespace ProgressContext

} // namespace Quilon_::System
