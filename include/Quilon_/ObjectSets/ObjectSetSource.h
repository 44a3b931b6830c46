// Objects that deliver object sets as they come (a segmentation stage, a
// tracker):
//
//   source->ObjectSetAvailable().Add(handler);   // handler(sender, Ref<IObjectSetAvailableEventArgs>)
//   System::Pointer<ObjectSets::IObjectSet, 0> last = source->ObjectSet();
#pragma once

#include "Quilon_/ObjectSets/ObjectSetAvailableEventArgs.h"
#include "Quilon_/System/Event.h"

namespace Quilon_::ObjectSets {

using ObjectSetAvailableEvent = System::Event<System::Ref<IObjectSetAvailableEventArgs>>;

class QUILON_API IObjectSetSource : public virtual System::Interface {
    QUILON_INTERFACE(IObjectSetSource)
public:
    // The set delivered last; empty before the first.
    virtual System::Pointer<IObjectSet, 0> ObjectSet() = 0;
    virtual ObjectSetAvailableEvent& ObjectSetAvailable() = 0;
};

} // namespace Quilon_::ObjectSets
