// Filter, Copy, Append, Merge and Set of the reference library on small
// tables whose results are known by hand; and the rule every one of them
// keeps: a failing call leaves its output as it was.
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/Filtering/Functions.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/StringAttribute.h"
#include "Quilon_/ObjectSets/Utility/Functions.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Quilon_::Tests::ObjectSetDataOperators {

using namespace Quilon_::ObjectSets;
using System::Ref;
using System::ToAny;
namespace Filtering = Quilon_::ObjectSets::Filtering::Functions;
namespace Utility = Quilon_::ObjectSets::Utility::Functions;

// Rows with keys `keys` and an "Area" float column with `areas` (NaN for
// an unset cell), and a "Name" string column naming each row by its key.
Ref<IObjectSet> Table(const std::vector<std::int64_t>& keys, const std::vector<float>& areas)
{
    Ref<IObjectSet> set = ObjectSet::New();
    Ref<IFloatAttribute> area(set->AddAttribute(L"Area", DataTypeOf<float>()));
    Ref<IStringAttribute> name(set->AddAttribute(L"Name", DataTypeOf<std::wstring>()));
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const Key key(keys[i]);
        set->AddObject(key);
        if (!std::isnan(areas[i]))
            area->SetFloatValue(key, areas[i]);
        name->SetStringValue(key, L"k" + std::to_wstring(keys[i]));
    }
    return set;
}

std::vector<std::int64_t> KeysOf(const Ref<IObjectSet>& set)
{
    std::vector<std::int64_t> keys;
    for (Key key : set->Objects()->Keys())
        keys.push_back(key.Value());
    return keys;
}

const float unset = NAN;

TEST(ObjectSetDataOperators, FilterKeepsRowsInRangeOrOutsideIt)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            double minimum, maximum;
            bool invert;
            std::vector<std::int64_t> kept;
        };
        const std::vector<Case> cases = {
            {2, 10, false, {2, 3}}, // both bounds belong to the range
            {2, 10, true, {1, 4}},  // an unset cell is in no range
            {11, 20, false, {}},
            {-1e9, 1e9, false, {1, 2, 3}},
        };
        for (const Case& c : cases) {
            SCOPED_TRACE(::testing::Message() << c.minimum << ".." << c.maximum << " invert " << c.invert);
            Ref<IObjectSet> input = Table({1, 2, 3, 4}, {1, 2, 10, unset});
            Ref<IObjectSet> output = ObjectSet::New();
            Filtering::Filter(input, output, input->Attributes()->Item(L"Area"), c.minimum, c.maximum,
                              c.invert);
            EXPECT_EQ(KeysOf(output), c.kept);
            EXPECT_EQ(output->Attributes()->Keys(), input->Attributes()->Keys());
            for (std::int64_t key : c.kept)
                EXPECT_TRUE(output->Objects()->Item(Key(key))->Value(L"Name") ==
                            ToAny(L"k" + std::to_wstring(key)));
            EXPECT_EQ(input->Count(), 4);
        }
    });
}

TEST(ObjectSetDataOperators, FilterByKeysKeepsOrDropsThemInTheInputsOrder)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> input = Table({5, 6, 7}, {1, 2, 3});
        Ref<IObjectSet> output = ObjectSet::New();
        Filtering::Filter(input, output, std::vector<Key>{Key(7), Key(5)}, false);
        EXPECT_EQ(KeysOf(output), (std::vector<std::int64_t>{5, 7}));
        Filtering::Filter(input, output, std::vector<Key>{Key(7), Key(5)}, true);
        EXPECT_EQ(KeysOf(output), (std::vector<std::int64_t>{6}));
        EXPECT_FALSE(output->Attributes()->Item(L"Area")->HasValue(Key(5)));

        // The output may be the input itself.
        Filtering::Filter(input, input, std::vector<Key>{Key(6)}, false);
        EXPECT_EQ(KeysOf(input), (std::vector<std::int64_t>{6}));
        EXPECT_TRUE(input->Attributes()->Item(L"Area")->Value(Key(6)) == ToAny(2.0f));

        EXPECT_EQ(RaisedMessage([&] { Filtering::Filter(input, output, std::vector<Key>{Key(9)}, false); }),
                  L"The dictionary does not contain key '9'");
        EXPECT_EQ(KeysOf(output), (std::vector<std::int64_t>{6}));
    });
}

TEST(ObjectSetDataOperators, CopyConvertsCellsAndRefusesWithoutChange)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> set = Table({1, 2}, {2.75f, unset});
        Ref<IInt32Attribute> count(set->AddAttribute(L"Count", DataTypeOf<std::int32_t>()));
        count->SetInt32Value(Key(2), 9);
        Utility::Copy(set->Attributes()->Item(L"Area"), count);
        EXPECT_EQ(count->Int32Value(Key(1)), 2);
        EXPECT_FALSE(count->HasValue(Key(2)));

        count->SetInt32Value(Key(2), 9);
        EXPECT_NE(RaisedMessage([&] { Utility::Copy(set->Attributes()->Item(L"Name"), count); }), L"");
        EXPECT_EQ(count->Int32Value(Key(2)), 9);
        EXPECT_EQ(count->Int32Value(Key(1)), 2);

        Ref<IObjectSet> copy = ObjectSet::New();
        Utility::Copy(set, copy);
        EXPECT_EQ(KeysOf(copy), KeysOf(set));
        EXPECT_EQ(copy->Attributes()->Keys(), set->Attributes()->Keys());
        EXPECT_NE(copy->Attributes()->Item(L"Area").Get(), set->Attributes()->Item(L"Area").Get());
    });
}

TEST(ObjectSetDataOperators, AppendRenumbersClashingKeysAndJoinsColumns)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> first = Table({1, 2}, {1, 2});
        Ref<IObjectSet> second = Table({2, 9}, {20, 90});
        second->AddAttribute(L"Extra", DataTypeOf<std::int32_t>())->SetValue(Key(2), ToAny(5));
        Ref<IObjectSet> output = ObjectSet::New();
        Utility::Append(first, second, output);
        EXPECT_EQ(KeysOf(output), (std::vector<std::int64_t>{1, 2, 3, 9}));
        Ref<IAttribute> area = output->Attributes()->Item(L"Area");
        EXPECT_TRUE(area->Value(Key(2)) == ToAny(2.0f));
        EXPECT_TRUE(area->Value(Key(3)) == ToAny(20.0f));
        EXPECT_TRUE(output->Attributes()->Item(L"Extra")->Value(Key(3)) == ToAny(5));
        EXPECT_FALSE(output->Attributes()->Item(L"Extra")->HasValue(Key(1)));

        Ref<IObjectSet> clash = ObjectSet::New();
        clash->AddAttribute(L"Area", DataTypeOf<std::wstring>());
        EXPECT_EQ(
            RaisedMessage([&] { Utility::Append(first, clash, output); }),
            L"The attribute 'Area' has the data type 'float' in the first set and 'std::wstring' in the "
            L"second");
        EXPECT_EQ(KeysOf(output), (std::vector<std::int64_t>{1, 2, 3, 9}));
    });
}

TEST(ObjectSetDataOperators, MergeKeepsCommonKeysWithColumnsOfBoth)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> first = Table({3, 1, 2}, {3, 1, 2});
        Ref<IObjectSet> second = ObjectSet::New();
        Ref<IInt32Attribute> label(second->AddAttribute(L"Label", DataTypeOf<std::int32_t>()));
        second->AddAttribute(L"Area", DataTypeOf<float>())->SetValue(Key(2), ToAny(99.0f));
        for (std::int64_t key : {2, 3, 8}) {
            second->AddObject(Key(key));
            label->SetInt32Value(Key(key), int(key) * 10);
        }
        Ref<IObjectSet> output = ObjectSet::New();
        Utility::Merge(first, second, output);
        EXPECT_EQ(KeysOf(output), (std::vector<std::int64_t>{3, 2}));
        EXPECT_EQ(output->Attributes()->Keys(), (std::vector<System::LIString>{L"Area", L"Name", L"Label"}));
        EXPECT_TRUE(output->Attributes()->Item(L"Area")->Value(Key(2)) == ToAny(2.0f));
        EXPECT_TRUE(output->Attributes()->Item(L"Label")->Value(Key(3)) == ToAny(30));
        EXPECT_FALSE(output->Attributes()->Item(L"Label")->HasValue(Key(8)));
    });
}

TEST(ObjectSetDataOperators, SetFillsEveryRowOrNone)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> set = Table({1, 2, 3}, {1, unset, 3});
        Ref<IAttribute> area = set->Attributes()->Item(L"Area");
        Utility::Set(area, ToAny(0.5));
        for (std::int64_t key : {1, 2, 3})
            EXPECT_TRUE(area->Value(Key(key)) == ToAny(0.5f));
        EXPECT_NE(RaisedMessage([&] { Utility::Set(area, ToAny(std::wstring(L"big"))); }), L"");
        EXPECT_TRUE(area->Value(Key(2)) == ToAny(0.5f));
        Utility::Set(area, System::Any());
        EXPECT_FALSE(area->HasValue(Key(1)));
        EXPECT_EQ(RaisedMessage([&] { Utility::Set(area->Clone(), ToAny(1.0)); }),
                  L"Attribute 'Area' is not attached to any ObjectSet");
    });
}

} // namespace Quilon_::Tests::ObjectSetDataOperators
