// Object sets of the reference library as an application meets them: rows
// by key in insertion order, typed columns made by data type, lookups by
// name with the case setting of the moment the set was made, deep copies,
// and the rules that keep rows, columns and cells consistent.
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/TwoD/BitmapShape.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/AttributeFactoryDictionary.h"
#include "Quilon_/ObjectSets/AttributeValue.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/Globals.h"
#include "Quilon_/ObjectSets/KeyCollection.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSetAvailableEventArgs.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/ObjectSets/StringAttribute.h"
#include "Quilon_/ObjectSets/VectorAttribute.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <map>
#include <thread>

namespace Quilon_::Tests::ObjectSetModel {

using namespace Quilon_::ObjectSets;
using System::Any;
using System::Pointer;
using System::Ref;
using System::ToAny;

std::vector<Key> KeysOf(const Ref<IObjectSet>& set)
{
    std::vector<Key> keys;
    for (std::int64_t i = 0; i < set->Count(); ++i)
        keys.push_back(set->Objects()->KeyAt(i));
    return keys;
}

TEST(ObjectSetModel, RowsKeepTheirOrderAndKeysFollowTheLargest)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> set = ObjectSet::New();
        EXPECT_EQ(set->Objects()->NextKey(), Key(1));
        set->AddObject(Key(7));
        set->AddObject(Key(3));
        EXPECT_EQ(set->AddObject()->ObjectKey(), Key(8));
        EXPECT_EQ(KeysOf(set), (std::vector<Key>{Key(7), Key(3), Key(8)}));
        EXPECT_EQ(set->Objects()->Keys(), KeysOf(set));
        EXPECT_EQ(set->Objects()->IndexOf(Key(3)), 1);
        EXPECT_EQ(set->Objects()->IndexOf(Key(4)), -1);
        EXPECT_EQ(set->Objects()->ItemAt(2)->ObjectKey(), Key(8));
        EXPECT_EQ(set->Objects()->Item(Key(3))->ObjectSet().Get(), set.Get());

        // Removing the largest makes the next key smaller again.
        EXPECT_TRUE(set->RemoveObject(Key(8)));
        EXPECT_FALSE(set->RemoveObject(Key(8)));
        EXPECT_EQ(set->Objects()->NextKey(), Key(8));
        EXPECT_TRUE(set->RemoveObject(Key(7)));
        EXPECT_EQ(set->Objects()->NextKey(), Key(4));
        EXPECT_EQ(set->Count(), 1);

        EXPECT_EQ(RaisedMessage([&] { set->AddObject(Key(3)); }), L"There is already an item of key 3");
        EXPECT_EQ(RaisedMessage([&] { set->Objects()->Item(Key(99)); }),
                  L"The dictionary does not contain key '99'");
        EXPECT_EQ(RaisedMessage([&] { set->Objects()->ItemAt(1); }), L"Collection index is out of range (1)");
    });
}

// One row per kind: what a cell reads as through Any when written with a
// value of that kind, or of another numeric kind, and what an unset cell
// reads as.
struct CellCase {
    const char* kind;
    System::Type (*dataType)();
    Any written;
    Any readBack;
};

TEST(ObjectSetModel, CellsAreStoredInTheColumnsType)
{
    InChildProcess([] {
        StartBasic();
        const std::vector<CellCase> cases = {
            {"int32", [] { return DataTypeOf<std::int32_t>(); }, ToAny(7), ToAny(7)},
            {"int32 from double", [] { return DataTypeOf<std::int32_t>(); }, ToAny(7.9), ToAny(7)},
            {"float from int", [] { return DataTypeOf<float>(); }, ToAny(2), ToAny(2.0f)},
            {"double", [] { return DataTypeOf<double>(); }, ToAny(0.1), ToAny(0.1)},
            {"string", [] { return DataTypeOf<std::wstring>(); }, ToAny(std::wstring(L"cell")),
             ToAny(std::wstring(L"cell"))},
            {"float vector", [] { return DataTypeOf<std::vector<float>>(); }, ToAny(std::vector<float>{1, 2}),
             ToAny(std::vector<float>{1, 2})},
            {"key vector", [] { return DataTypeOf<std::vector<Key>>(); }, ToAny(std::vector<Key>{Key(4)}),
             ToAny(std::vector<Key>{Key(4)})},
        };
        for (const CellCase& cell : cases) {
            SCOPED_TRACE(cell.kind);
            Ref<IObjectSet> set = ObjectSet::New();
            Ref<IAttribute> column = set->AddAttribute(L"Value", cell.dataType());
            EXPECT_TRUE(column->DataType() == cell.dataType());
            Ref<IObject> row = set->AddObject();
            EXPECT_TRUE(row->Value(L"Value").IsEmpty());
            EXPECT_FALSE(column->HasValue(row->ObjectKey()));
            row->SetValue(L"Value", cell.written);
            EXPECT_TRUE(column->Value(row->ObjectKey()) == cell.readBack);
            EXPECT_TRUE(column->Cell(row->ObjectKey())->Value() == cell.readBack);
            column->SetValue(row->ObjectKey(), Any());
            EXPECT_FALSE(column->HasValue(row->ObjectKey()));
        }
    });
}

TEST(ObjectSetModel, TypedReadsOfUnsetCellsAreEmptyAndWrongKindsRaise)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> set = ObjectSet::New();
        Ref<IInt32Attribute> count(set->AddAttribute(L"Count", DataTypeOf<std::int32_t>()));
        Ref<IStringAttribute> name(set->AddAttribute(L"Name", DataTypeOf<std::wstring>()));
        Ref<IFloatVectorAttribute> profile(set->AddAttribute(L"Profile", DataTypeOf<std::vector<float>>()));
        const Key key = set->AddObject()->ObjectKey();
        EXPECT_EQ(count->Int32Value(key), 0);
        EXPECT_EQ(count->ScalarValue(key), 0.0);
        EXPECT_EQ(name->StringValue(key), L"");
        EXPECT_TRUE(profile->FloatValues(key).empty());
        count->SetScalarValue(key, -2.7);
        EXPECT_EQ(count->Int32Value(key), -2);
        profile->SetFloatValues(key, {0.5f, 1.5f});
        EXPECT_EQ(profile->VectorValue(key), (std::vector<double>{0.5, 1.5}));

        EXPECT_NE(RaisedMessage([&] { count->SetValue(key, ToAny(std::wstring(L"3"))); }), L"");
        EXPECT_NE(RaisedMessage([&] { name->SetValue(key, ToAny(3)); }), L"");
        EXPECT_EQ(count->Int32Value(key), -2);
        EXPECT_EQ(RaisedMessage([&] { set->AddAttribute(L"Odd", DataTypeOf<IObjectSet>()); }),
                  L"The dictionary does not contain key 'Quilon_::ObjectSets::IObjectSet'");
    });
}

// A long run of writes and removals must leave exactly the cells a plain
// map would hold, rows in their order: over keys that share their low bits
// (hashing), keys that start in sequence (found by position until the
// sequence breaks) and the extremes of the key's range.
TEST(ObjectSetModel, CellsAndRowsMatchAPlainMapAfterManyChanges)
{
    InChildProcess([] {
        StartBasic();
        std::vector<std::int64_t> spaced, sequence, extremes;
        for (std::int64_t i = 0; i < 300; ++i)
            spaced.push_back(i * 4096 - 50000);
        // Keys 1, 2, 3, ... are stored by position until one comes out of
        // sequence; these runs start in sequence and then leave it.
        for (std::int64_t i = 1; i <= 64; ++i)
            sequence.push_back(i);
        extremes = {std::numeric_limits<std::int64_t>::max() - 1,
                    std::numeric_limits<std::int64_t>::max(),
                    std::numeric_limits<std::int64_t>::min(),
                    std::numeric_limits<std::int64_t>::min() + 1,
                    0,
                    1};
        for (const std::vector<std::int64_t>* candidates : {&spaced, &sequence, &extremes}) {
            Ref<IObjectSet> set = ObjectSet::New();
            Ref<IInt32Attribute> column(set->AddAttribute(L"Value", DataTypeOf<std::int32_t>()));
            std::map<std::int64_t, std::int32_t> cells;
            std::vector<std::int64_t> rows;
            for (std::size_t i = 0; i < candidates->size() / 2; ++i) {
                set->AddObject(Key((*candidates)[i]));
                rows.push_back((*candidates)[i]);
                column->SetInt32Value(Key((*candidates)[i]), std::int32_t(i));
                cells[(*candidates)[i]] = std::int32_t(i);
            }
            std::uint32_t state = 12345;
            auto next = [&state] { return state = state * 1664525u + 1013904223u; };
            for (int step = 0; step < 20000; ++step) {
                const std::int64_t key = (*candidates)[next() % candidates->size()];
                switch (next() % 4) {
                case 0:
                    if (std::find(rows.begin(), rows.end(), key) == rows.end()) {
                        set->AddObject(Key(key));
                        rows.push_back(key);
                    }
                    break;
                case 1:
                    if (set->RemoveObject(Key(key))) {
                        rows.erase(std::find(rows.begin(), rows.end(), key));
                        cells.erase(key);
                    }
                    break;
                case 2:
                    column->SetInt32Value(Key(key), step);
                    cells[key] = step;
                    break;
                default:
                    column->RemoveValue(Key(key));
                    cells.erase(key);
                }
            }
            std::vector<std::int64_t> keys;
            for (Key key : set->Objects()->Keys())
                keys.push_back(key.Value());
            EXPECT_EQ(keys, rows);
            for (std::int64_t key : *candidates) {
                auto found = cells.find(key);
                ASSERT_EQ(column->HasValue(Key(key)), found != cells.end()) << key;
                if (found != cells.end()) {
                    EXPECT_EQ(column->Int32Value(Key(key)), found->second) << key;
                }
                EXPECT_EQ(set->Objects()->IndexOf(Key(key)),
                          std::find(rows.begin(), rows.end(), key) == rows.end()
                              ? -1
                              : std::find(rows.begin(), rows.end(), key) - rows.begin());
            }
        }
    });
}

TEST(ObjectSetModel, RemovingARowTakesItsCellsFromEveryColumn)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> set = ObjectSet::New();
        Ref<IAttribute> area = set->AddAttribute(L"Area", DataTypeOf<float>());
        Ref<IAttribute> name = set->AddAttribute(L"Name", DataTypeOf<std::wstring>());
        for (int i = 1; i <= 3; ++i) {
            Ref<IObject> row = set->AddObject();
            row->SetValue(L"Area", ToAny(float(i)));
            row->SetValue(L"Name", ToAny(std::wstring(L"n")));
        }
        set->Objects()->Remove(Key(2));
        set->AddObject(Key(2));
        EXPECT_FALSE(area->HasValue(Key(2)));
        EXPECT_FALSE(name->HasValue(Key(2)));
        EXPECT_TRUE(area->Value(Key(3)) == ToAny(3.0f));

        set->Objects()->Clear();
        EXPECT_FALSE(area->HasValue(Key(1)));
        EXPECT_EQ(set->Attributes()->Count(), 2);
        set->Clear();
        EXPECT_EQ(set->Attributes()->Count(), 0);
        EXPECT_FALSE(area->ObjectSet());
    });
}

// The setting is read when a set is made: a set keeps the rule it was born
// with.
TEST(ObjectSetModel, NamesAreMatchedWithTheCaseRuleOfTheirSet)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            bool caseSensitive;
            bool foundInOtherCase;
        };
        for (const Case& rule : {Case{false, true}, Case{true, false}}) {
            Globals::SetCaseSensitiveAttributes(rule.caseSensitive);
            Ref<IObjectSet> set = ObjectSet::New();
            Globals::SetCaseSensitiveAttributes(!rule.caseSensitive);
            set->AddAttribute(L"Area", DataTypeOf<float>());
            EXPECT_EQ(set->Attributes()->CaseSensitive(), rule.caseSensitive);
            EXPECT_EQ(bool(set->Attributes()->Find(L"AREA")), rule.foundInOtherCase);
            if (rule.foundInOtherCase)
                EXPECT_EQ(RaisedMessage([&] { set->AddAttribute(L"area", DataTypeOf<float>()); }),
                          L"There is already an item of key area");
            else
                EXPECT_NO_THROW(set->AddAttribute(L"area", DataTypeOf<float>()));
        }
    });
}

TEST(ObjectSetModel, RenamingKeepsThePlaceFromEitherSide)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> set = ObjectSet::New();
        set->AddAttribute(L"A", DataTypeOf<float>());
        Ref<IAttribute> b = set->AddAttribute(L"B", DataTypeOf<float>());
        set->AddAttribute(L"C", DataTypeOf<float>());
        b->SetName(L"Size");
        EXPECT_EQ(set->Attributes()->IndexOf(L"Size"), 1);
        EXPECT_FALSE(set->Attributes()->ContainsKey(L"B"));
        set->Attributes()->Rename(L"Size", L"Width");
        EXPECT_EQ(b->Name().Value(), L"Width");
        EXPECT_EQ(set->Attributes()->ItemAt(1).Get(), b.Get());
        EXPECT_EQ(RaisedMessage([&] { b->SetName(L"C"); }), L"There is already an item of key C");
        EXPECT_EQ(RaisedMessage([&] { set->Attributes()->Rename(L"Gone", L"X"); }),
                  L"The dictionary does not contain key 'Gone'");
        EXPECT_EQ(b->Name().Value(), L"Width");
    });
}

TEST(ObjectSetModel, ColumnsBelongToOneSetAndCopiesAreDeep)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> set = ObjectSet::New();
        Ref<IFloatAttribute> area(set->AddAttribute(L"Area", DataTypeOf<float>()));
        set->AddObject(Key(5));
        area->SetFloatValue(Key(5), 2.5f);

        Ref<IObjectSet> copy = set->Copy();
        Ref<IFloatAttribute> copied(copy->Attributes()->Item(L"Area"));
        EXPECT_NE(copied.Get(), area.Get());
        EXPECT_EQ(copied->ObjectSet().Get(), copy.Get());
        copied->SetFloatValue(Key(5), 9.0f);
        EXPECT_EQ(area->FloatValue(Key(5)), 2.5f);
        EXPECT_EQ(KeysOf(copy), KeysOf(set));

        Ref<IAttribute> clone = area->Clone();
        EXPECT_FALSE(clone->ObjectSet());
        EXPECT_TRUE(clone->Value(Key(5)) == ToAny(2.5f));

        Ref<IObjectSet> other = ObjectSet::New();
        EXPECT_EQ(RaisedMessage([&] { other->Attributes()->Add(L"Area", area); }),
                  L"Attribute 'Area' is already attached to an ObjectSet");
        EXPECT_TRUE(set->RemoveAttribute(L"area"));
        EXPECT_FALSE(area->ObjectSet());
        other->Attributes()->Add(L"Surface", area);
        EXPECT_EQ(area->Name().Value(), L"Surface");
        EXPECT_EQ(area->ObjectSet().Get(), other.Get());
    });
}

TEST(ObjectSetModel, RowsAndColumnsOutliveTheirSetDetached)
{
    InChildProcess([] {
        StartBasic();
        Pointer<IObject, 0> row;
        Pointer<IAttribute, 0> column;
        {
            Ref<IObjectSet> set = ObjectSet::New();
            column = set->AddAttribute(L"Area", DataTypeOf<float>());
            row = set->AddObject();
        }
        EXPECT_FALSE(row->ObjectSet());
        EXPECT_FALSE(column->ObjectSet());
        EXPECT_EQ(RaisedMessage([&] { row->Value(L"Area"); }), L"Object 1 belongs to no object set");
        Ref<IObject> loose = Object::New(Key(3), Pointer<IObjectSet, 0>());
        EXPECT_EQ(loose->ObjectKey(), Key(3));
        EXPECT_FALSE(loose->ObjectSet());
    });
}

TEST(ObjectSetModel, SpatialColumnsHoldShapesOfTheirInterface)
{
    InChildProcess([] {
        StartBasic();
        using Geometry::Coordinates::New;
        Ref<IObjectSet> set = ObjectSet::New();
        Ref<ISpatialAttribute> shapes(set->AddAttribute(L"Shape", Geometry::TwoD::IBitmapShape::GetType()));
        EXPECT_EQ(shapes->Dimension(), 2);
        const Key key = set->AddObject()->ObjectKey();
        EXPECT_FALSE(shapes->ShapeValue(key));
        EXPECT_FALSE(shapes->ShapeBounds(key));
        Ref<Geometry::TwoD::IBitmapShape> blob =
            Geometry::TwoD::BitmapShape::New(New(std::int64_t(2), std::int64_t(3), Geometry::Axes::aXY),
                                             New(std::int64_t(6), std::int64_t(5), Geometry::Axes::aXY));
        shapes->SetShapeValue(key, blob);
        EXPECT_EQ(shapes->ShapeValue(key).Get(), static_cast<Geometry::IShapeND*>(blob.Get()));
        EXPECT_TRUE(shapes->ShapeBounds(key));
    });
}

TEST(ObjectSetModel, FactoryTableKeyListsAndEventArgs)
{
    InChildProcess([] {
        StartBasic();
        Ref<IAttributeFactoryDictionary> table = Globals::AttributeFactories();
        for (const System::Type& type :
             {DataTypeOf<std::int32_t>(), DataTypeOf<float>(), DataTypeOf<std::wstring>(),
              DataTypeOf<std::vector<std::int32_t>>(), DataTypeOf<std::vector<Key>>(),
              Geometry::TwoD::IBitmapShape::GetType()})
            EXPECT_TRUE(table->Supports(type)) << System::ToAnsi(type.Name());
        EXPECT_EQ(table->Create(DataTypeOf<float>(), L"Area")->Name().Value(), L"Area");

        // Another thread starts from a clone of the main thread's table.
        bool supported = false;
        std::thread([&] { supported = Globals::AttributeFactories()->Supports(DataTypeOf<float>()); }).join();
        EXPECT_TRUE(supported);

        Ref<IObjectSet> set = ObjectSet::New();
        Ref<IKeyCollection> keys = KeyCollection::New(set, std::vector<Key>{Key(2), Key(9)});
        EXPECT_EQ(keys->Count(), 2);
        EXPECT_EQ(keys->IndexOf(Key(9)), 1);
        EXPECT_EQ(KeyCollection::New(set)->Count(), 0);
        EXPECT_EQ(ObjectSetAvailableEventArgs::New(set)->ObjectSet().Get(), set.Get());
    });
}

} // namespace Quilon_::Tests::ObjectSetModel
