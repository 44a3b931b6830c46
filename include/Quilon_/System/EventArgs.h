// The arguments of an event: the base of every event-args interface, and
// the args of events that carry nothing.
//
//   Destroyed.Fire(EventArgs::Empty());     // one shared instance
//   Pointer<IEventArgs> own = EventArgs::New();   // needs Functions/Function.h
#pragma once

#include "Quilon_/System/Pointer.h"

namespace Quilon_::System {

namespace Functions::Template {
template <class Signature>
class Function;
} // namespace Functions::Template

class QUILON_API IEventArgs : public virtual Interface {
    QUILON_INTERFACE(IEventArgs)
};

namespace EventArgs {
// Makes plain event args; implemented by the libraries that the core loads.
extern QUILON_API Functions::Template::Function<Pointer<IEventArgs, 1> (*)()> New;
// One instance for all events that carry nothing, made on first use: by New
// when a library implements it, otherwise a plain one of the core's own.
QUILON_API Pointer<IEventArgs, 1> Empty();
} // namespace EventArgs

} // namespace Quilon_::System
