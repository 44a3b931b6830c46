#include "ObjectSets/SetContents.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"

#include <vector>

namespace Quilon_::Basic::ObjectSets {

using Quilon_::ObjectSets::IAttribute;
using Quilon_::ObjectSets::Key;

void ReplaceContents(const System::Ref<Quilon_::ObjectSets::IObjectSet>& target,
                     const System::Ref<Quilon_::ObjectSets::IObjectSet>& source)
{
    if (target.Get() == source.Get())
        return;
    std::vector<Key> keys;
    System::Ref<Quilon_::ObjectSets::IObjectDictionary> rows = source->Objects();
    keys.reserve(static_cast<std::size_t>(rows->Count()));
    for (std::int64_t i = 0; i < rows->Count(); ++i)
        keys.push_back(rows->KeyAt(i));
    std::vector<System::Ref<IAttribute>> columns;
    System::Ref<Quilon_::ObjectSets::IAttributeDictionary> attributes = source->Attributes();
    for (std::int64_t i = 0; i < attributes->Count(); ++i)
        columns.push_back(attributes->ItemAt(i));
    // The columns leave first: clearing the rows of the source would empty
    // every column still attached to it.
    source->Attributes()->Clear();
    source->Objects()->Clear();
    target->Clear();
    for (const System::Ref<IAttribute>& column : columns)
        target->Attributes()->Add(column->Name(), column);
    for (Key key : keys)
        target->AddObject(key);
}

} // namespace Quilon_::Basic::ObjectSets
