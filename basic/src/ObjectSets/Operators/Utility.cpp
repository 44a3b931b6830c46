// Utility::Functions::Copy, Append, Merge and Set: whole tables and whole
// columns copied, joined and filled. Results go to the last argument, which
// changes only once the result is complete.
//
// - Copy(attribute, attribute): the second gets the cells of the first for
//   the rows of the first's set (of the second's when the first is
//   detached), converted to the second's data type; its other cells go.
// - Copy(set, set): the second becomes a deep copy of the first.
// - Append(first, second, output): the rows of the first, then those of the
//   second. A key of the second that is already taken gets a new one, the
//   largest key so far plus one. The columns are those of both, the first's
//   first; a name in both must have one data type.
// - Merge(first, second, output): the rows whose key both sets hold, in the
//   first's order, with the columns of both; where both have a column of a
//   name, the first's is kept.
// - Set(attribute, value): every row of the attribute's set gets `value`,
//   converted to the attribute's data type; an empty value unsets them.
#include "ObjectSets/Operators/Subsets.h"
#include "ObjectSets/SetContents.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/Helper.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/Utility/Functions.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <unordered_map>
#include <unordered_set>

namespace Quilon_::Basic::ObjectSets::Operators {

namespace {

using Quilon_::ObjectSets::Key;

// The rows an attribute's cells are read for: its set's, or `fallback`'s
// set's when it is detached.
std::vector<Key> RowsOfAttribute(const AttributeRef& attribute, const AttributeRef& fallback)
{
    System::Pointer<Quilon_::ObjectSets::IObjectSet, 0> set = attribute->ObjectSet();
    if (!set)
        set = fallback->ObjectSet();
    if (!set)
        Quilon_::ObjectSets::Helper::CheckObjectSetNotNull(attribute);
    return KeysOf(SetRef(set));
}

void CopyAttribute(AttributeRef source, AttributeRef target)
{
    if (source.Get() == target.Get())
        return;
    // Converted into a scratch column first: a value the target cannot hold
    // raises before the target has changed.
    AttributeRef scratch = EmptyLike(target);
    for (Key key : RowsOfAttribute(source, target))
        if (source->HasValue(key))
            scratch->SetValue(key, source->Value(key));
    const std::vector<Key> keys = RowsOfAttribute(source, target);
    target->Clear();
    for (Key key : keys)
        if (scratch->HasValue(key))
            target->SetValue(key, scratch->Value(key));
}

void CopySet(SetRef source, SetRef target)
{
    if (source.Get() != target.Get())
        ReplaceContents(target, source->Copy());
}

void RefuseOtherType(const AttributeRef& first, const AttributeRef& second)
{
    if (!(first->DataType() == second->DataType()))
        QUILON_RAISE(L"The attribute '%1%' has the data type '%2%' in the first set and '%3%' in the second",
                     first->Name(), first->DataType(), second->DataType());
}

void AppendSets(SetRef first, SetRef second, SetRef output)
{
    SetRef result = first->Copy();
    System::Ref<Quilon_::ObjectSets::IAttributeDictionary> columns = second->Attributes();
    std::vector<AttributeRef> sources;
    std::vector<AttributeRef> targets;
    for (std::int64_t i = 0; i < columns->Count(); ++i) {
        AttributeRef column = columns->ItemAt(i);
        System::Pointer<Quilon_::ObjectSets::IAttribute, 0> present =
            result->Attributes()->Find(column->Name());
        if (present) {
            RefuseOtherType(AttributeRef(present), column);
        } else {
            present = EmptyLike(column);
            result->Attributes()->Add(column->Name(), AttributeRef(present));
        }
        sources.push_back(column);
        targets.push_back(AttributeRef(present));
    }
    System::Ref<Quilon_::ObjectSets::IObjectDictionary> rows = result->Objects();
    for (Key key : KeysOf(second)) {
        const Key placed = rows->ContainsKey(key) ? rows->NextKey() : key;
        result->AddObject(placed);
        for (std::size_t column = 0; column < sources.size(); ++column)
            if (sources[column]->HasValue(key))
                targets[column]->SetValue(placed, sources[column]->Value(key));
    }
    ReplaceContents(output, result);
}

void MergeSets(SetRef first, SetRef second, SetRef output)
{
    const std::vector<Key> firstKeys = KeysOf(first);
    const std::vector<Key> secondKeys = KeysOf(second);
    System::Ref<Quilon_::ObjectSets::IObjectDictionary> secondRows = second->Objects();
    std::vector<bool> keep(firstKeys.size());
    std::unordered_set<Key> common;
    for (std::size_t row = 0; row < firstKeys.size(); ++row)
        if ((keep[row] = secondRows->ContainsKey(firstKeys[row])))
            common.insert(firstKeys[row]);
    SetRef result = RowsOf(first, keep);
    System::Ref<Quilon_::ObjectSets::IAttributeDictionary> columns = second->Attributes();
    for (std::int64_t i = 0; i < columns->Count(); ++i) {
        AttributeRef column = columns->ItemAt(i);
        if (result->Attributes()->ContainsKey(column->Name()))
            continue;
        AttributeRef copy = column->Clone();
        for (Key key : secondKeys)
            if (!common.count(key))
                copy->RemoveValue(key);
        result->Attributes()->Add(column->Name(), copy);
    }
    ReplaceContents(output, result);
}

void SetEveryCell(AttributeRef attribute, const System::Any& value)
{
    Quilon_::ObjectSets::Helper::CheckObjectSetNotNull(attribute);
    const std::vector<Key> keys = KeysOf(SetRef(attribute->ObjectSet()));
    if (keys.empty())
        return;
    // A value of the wrong kind raises here, before any cell has changed.
    EmptyLike(attribute)->SetValue(keys.front(), value);
    for (Key key : keys)
        attribute->SetValue(key, value);
}

void RegisterUtility()
{
    namespace Utility = Quilon_::ObjectSets::Utility::Functions;
    Utility::Copy.Overload<0>().Register(L"Copy attribute", &CopyAttribute);
    Utility::Copy.Overload<1>().Register(L"Copy object set", &CopySet);
    Utility::Append.Register(L"Append object sets", &AppendSets);
    Utility::Merge.Register(L"Merge object sets", &MergeSets);
    Utility::Set.Register(L"Set attribute", &SetEveryCell);
}

const System::Template::Initializer<::Library> utilityOperators(&RegisterUtility, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets::Operators
