// Filtering::Functions::Filter: the rows of a set that pass a test, with
// every column, into the output set (the last set argument).
//
// By range: a row passes when its cell of the attribute holds a number in
// [min, max]; an unset cell, or NaN, is in no range. `invert` keeps the
// rows that do not pass instead. By keys: the listed keys pass, each of
// which the input must hold; `invert` drops them instead. Either way the
// rows keep the input's order and keys, and the output is replaced only
// once the result is complete.
#include "ObjectSets/Operators/Subsets.h"
#include "ObjectSets/SetContents.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/Filtering/Functions.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Helper.h"

#include <unordered_set>

namespace Quilon_::Basic::ObjectSets::Operators {

namespace {

using Quilon_::ObjectSets::Key;

// The number in the cell of `key`; false for an unset cell. A scalar column
// is read directly, any other through its Any, which must hold a number.
bool NumberOf(const AttributeRef& attribute, Quilon_::ObjectSets::IScalarAttribute* scalar, Key key,
              double& value)
{
    if (!attribute->HasValue(key))
        return false;
    value = scalar ? scalar->ScalarValue(key) : System::Helper::ScalarValue(attribute->Value(key));
    return true;
}

void FilterByRange(SetRef input, SetRef output, AttributeRef attribute, double minimum, double maximum,
                   bool invert)
{
    System::Pointer<Quilon_::ObjectSets::IScalarAttribute, 0> scalar(attribute);
    const std::vector<Key> keys = KeysOf(input);
    std::vector<bool> keep(keys.size());
    for (std::size_t row = 0; row < keys.size(); ++row) {
        double value = 0;
        const bool inRange =
            NumberOf(attribute, scalar.Get(), keys[row], value) && value >= minimum && value <= maximum;
        keep[row] = inRange != invert;
    }
    ReplaceContents(output, RowsOf(input, keep));
}

void FilterByKeys(SetRef input, SetRef output, const std::vector<Key>& listed, bool invert)
{
    System::Ref<Quilon_::ObjectSets::IObjectDictionary> rows = input->Objects();
    for (Key key : listed)
        if (!rows->ContainsKey(key))
            rows->Item(key); // raises the dictionary's message for a missing key
    const std::unordered_set<Key> chosen(listed.begin(), listed.end());
    const std::vector<Key> keys = KeysOf(input);
    std::vector<bool> keep(keys.size());
    for (std::size_t row = 0; row < keys.size(); ++row)
        keep[row] = (chosen.count(keys[row]) > 0) != invert;
    ReplaceContents(output, RowsOf(input, keep));
}

void RegisterFilter()
{
    namespace Filtering = Quilon_::ObjectSets::Filtering::Functions;
    Filtering::Filter.Overload<0>().Register(L"Filter by range", &FilterByRange);
    Filtering::Filter.Overload<1>().Register(L"Filter by keys", &FilterByKeys);
}

const System::Template::Initializer<::Library> filterOperator(&RegisterFilter, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets::Operators
