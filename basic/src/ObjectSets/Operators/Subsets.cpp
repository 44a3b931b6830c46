#include "ObjectSets/Operators/Subsets.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::Basic::ObjectSets::Operators {

using Quilon_::ObjectSets::Key;

std::vector<Key> KeysOf(const SetRef& set)
{
    System::Ref<Quilon_::ObjectSets::IObjectDictionary> rows = set->Objects();
    std::vector<Key> keys;
    keys.reserve(static_cast<std::size_t>(rows->Count()));
    for (std::int64_t i = 0; i < rows->Count(); ++i)
        keys.push_back(rows->KeyAt(i));
    return keys;
}

// The columns are cloned and lose the cells of the dropped rows: a clone
// keeps each column's own kind, whatever the factory table holds.
SetRef RowsOf(const SetRef& set, const std::vector<bool>& keep)
{
    const std::vector<Key> keys = KeysOf(set);
    SetRef result = Quilon_::ObjectSets::ObjectSet::New();
    System::Ref<Quilon_::ObjectSets::IAttributeDictionary> columns = set->Attributes();
    for (std::int64_t i = 0; i < columns->Count(); ++i) {
        AttributeRef column = columns->ItemAt(i)->Clone();
        for (std::size_t row = 0; row < keys.size(); ++row)
            if (!keep[row])
                column->RemoveValue(keys[row]);
        result->Attributes()->Add(column->Name(), column);
    }
    for (std::size_t row = 0; row < keys.size(); ++row)
        if (keep[row])
            result->AddObject(keys[row]);
    return result;
}

AttributeRef EmptyLike(const AttributeRef& column)
{
    AttributeRef empty = column->Clone();
    empty->Clear();
    return empty;
}

} // namespace Quilon_::Basic::ObjectSets::Operators
