#include "Quilon_/System/EventArgs.h"

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include <atomic>

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IEventArgs, L"Quilon_::System::IEventArgs", Interface)

namespace {

class CEventArgs : public Template::ObjectImpl<CEventArgs, IEventArgs, ICloneable> {
public:
    Pointer<ICloneable, 1> Clone() override { return Pointer<ICloneable, 1>(new CEventArgs); }
};

// Holds one reference for the rest of the process: the instance may come
// from a library whose code is gone by the time static destructors run.
std::atomic<IEventArgs*> g_empty{nullptr};

} // namespace

Functions::Template::Function<Pointer<IEventArgs, 1> (*)()> EventArgs::New(L"New");

Pointer<IEventArgs, 1> EventArgs::Empty()
{
    if (IEventArgs* cached = g_empty.load(std::memory_order_acquire))
        return Pointer<IEventArgs, 1>(cached);
    Pointer<IEventArgs, 1> made = New.CheckImplemented(false) ? New() : Pointer<IEventArgs, 1>(new CEventArgs);
    IEventArgs* expected = nullptr;
    if (g_empty.compare_exchange_strong(expected, made.Get(), std::memory_order_acq_rel)) {
        made->AddReference();
        return made;
    }
    // Another thread cached its instance first.
    return Pointer<IEventArgs, 1>(expected);
}

} // namespace Quilon_::System
