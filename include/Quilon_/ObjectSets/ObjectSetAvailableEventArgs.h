// The argument of the event by which a source hands out a new object set:
//
//   ObjectSetAvailable().Fire(ObjectSets::ObjectSetAvailableEventArgs::New(set));
//
//   void OnObjects(Interface*, Ref<ObjectSets::IObjectSetAvailableEventArgs> args)
//   {
//       report(args->ObjectSet());
//   }
#pragma once

#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::ObjectSets {

class IObjectSet;

class QUILON_API IObjectSetAvailableEventArgs : public virtual System::IEventArgs {
    QUILON_INTERFACE(IObjectSetAvailableEventArgs)
public:
    virtual System::Ref<IObjectSet> ObjectSet() = 0;
};

namespace ObjectSetAvailableEventArgs {
using Factory =
    System::Functions::Template::Factory<System::Ref<IObjectSetAvailableEventArgs>(System::Ref<IObjectSet>)>;
extern QUILON_API Factory New;
} // namespace ObjectSetAvailableEventArgs

} // namespace Quilon_::ObjectSets
