// The argument of an object-set source's event
// (ObjectSetAvailableEventArgs::New): the set that became available.
#include "Quilon_/ObjectSets/ObjectSetAvailableEventArgs.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Basic::ObjectSets {

namespace {

using Quilon_::ObjectSets::IObjectSet;
using Quilon_::ObjectSets::IObjectSetAvailableEventArgs;

class CObjectSetAvailableEventArgs
    : public System::Template::ObjectImpl<CObjectSetAvailableEventArgs, IObjectSetAvailableEventArgs> {
public:
    explicit CObjectSetAvailableEventArgs(System::Ref<IObjectSet> set) : m_set(std::move(set)) {}
    System::Ref<IObjectSet> ObjectSet() override { return m_set; }

private:
    System::Ref<IObjectSet> m_set;
};

System::Ref<IObjectSetAvailableEventArgs> NewObjectSetAvailableEventArgs(System::Ref<IObjectSet> set)
{
    return System::Ref<IObjectSetAvailableEventArgs>(new CObjectSetAvailableEventArgs(std::move(set)));
}

void RegisterObjectSetAvailableEventArgs()
{
    Quilon_::ObjectSets::ObjectSetAvailableEventArgs::New.Register(L"Object set available event args",
                                                                   &NewObjectSetAvailableEventArgs);
}

const System::Template::Initializer<::Library>
    objectSetAvailableEventArgs(&RegisterObjectSetAvailableEventArgs, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets
