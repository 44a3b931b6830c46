// The stand-in that the DisableEvents rule, and the make rules of the
// domains, put in place of an argument whose events stay off while the
// call runs.
//
//   arguments[i] = ToAny(Pointer<Interface, 1>(new CDisableEventsWrapper(target)));
//
// It is the one class whose FindDelegate answers: any cast that the wrapped
// object supports lands on the wrapped object, so the implementation reads
// the argument back as the interface it expects; a cast that it does not
// support fails as it would on the object itself.
#pragma once

#include "Quilon_/System/DisableEvents.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Pointer.h"

namespace Quilon_::System::Functions::Rules {

class CDisableEventsWrapper : public System::Template::ObjectImpl<CDisableEventsWrapper> {
public:
    // Switches the events of `target` off, remembering what they were.
    explicit CDisableEventsWrapper(System::Pointer<IDisableEvents, 1> target);
    // Puts back what the events were, so that nested wrappers restore in
    // turn and the outermost leaves the object as it found it.
    ~CDisableEventsWrapper() override;

    bool FindDelegate(const Type& type, void*& target, bool& exact) override;

    // The wrapper behind `argument`, or null when it is none.
    static CDisableEventsWrapper* Of(Interface* argument);

private:
    System::Pointer<IDisableEvents, 1> target;
    bool previous;
};

} // namespace Quilon_::System::Functions::Rules
