// The checks of object sets: what each accepts, its message, and the two
// ways a failure comes back (thrown, or left in the caller's slot).
#include "Quilon_/ObjectSets/Helper.h"
#include "Quilon_/Geometry/TwoD/BitmapShape.h"
#include "Quilon_/Library.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/System/ErrorManager.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"
#include "ObjectSetDoubles.h"

#include <gtest/gtest.h>

#include <functional>

namespace Quilon_::Tests::ObjectSetHelper {

using namespace ObjectSetDoubles;
using Slot = Quilon_::ObjectSets::Helper::ExceptionSlot;

struct HelperCase {
    const char* what;
    std::function<bool(Slot)> check;
    std::wstring message; // empty: the check passes
};

class ObjectSetHelper : public RaisingTest {
protected:
    Ref<IObjectSet> first = MakeSet({1, 2, 3});
    Ref<IObjectSet> sameKeys = MakeSet({1, 2, 3});
    Ref<IObjectSet> reordered = MakeSet({3, 2, 1});
    Ref<IObjectSet> shorter = MakeSet({7, 8});
    Ref<IAttribute> area = AddColumn(first, L"Area", DataTypeOf<float>());
    Ref<IAttribute> label = AddColumn(first, L"Label", DataTypeOf<std::int32_t>());
    Ref<IAttribute> shape =
        AddSpatialColumn(first, L"Shape", Quilon_::Geometry::TwoD::IBitmapShape::GetType(), 2);
    Ref<IAttribute> twin = AddColumn(sameKeys, L"Twin", DataTypeOf<float>());
    Ref<IAttribute> backwards = AddColumn(reordered, L"Backwards", DataTypeOf<float>());
    Ref<IAttribute> few = AddColumn(shorter, L"Few", DataTypeOf<float>());
    Ref<IAttribute> loose = DetachedColumn(L"Loose", DataTypeOf<float>());

    std::vector<HelperCase> Cases()
    {
        using namespace Quilon_::ObjectSets::Helper;
        return {
            {"attached", [&](Slot e) { return CheckObjectSetNotNull(area, e); }, L""},
            {"detached", [&](Slot e) { return CheckObjectSetNotNull(loose, e); },
             L"Attribute 'Loose' is not attached to any ObjectSet"},
            {"one set", [&](Slot e) { return CheckSameObjectSet(area, label, e); }, L""},
            {"two sets", [&](Slot e) { return CheckSameObjectSet(area, twin, e); },
             L"Attributes 'Area' and 'Twin' must belong to the same ObjectSet"},
            {"second detached", [&](Slot e) { return CheckSameObjectSet(area, loose, e); },
             L"Attribute 'Loose' is not attached to any ObjectSet"},
            {"equal keys", [&](Slot e) { return CheckSameObjectKeys(first, sameKeys, e); }, L""},
            {"keys reordered", [&](Slot e) { return CheckSameObjectKeys(first, reordered, e); },
             L"ObjectSets '' and '' must have the same keys"},
            {"fewer keys", [&](Slot e) { return CheckSameObjectKeys(shorter, first, e); },
             L"ObjectSets '' and '' must have the same keys"},
            {"keys of attributes", [&](Slot e) { return CheckSameObjectKeys(area, twin, e); }, L""},
            {"keys of attributes reordered", [&](Slot e) { return CheckSameObjectKeys(area, backwards, e); },
             L"ObjectSets '' and '' must have the same keys"},
            {"keys of a detached attribute", [&](Slot e) { return CheckSameObjectKeys(loose, area, e); },
             L"Attribute 'Loose' is not attached to any ObjectSet"},
            {"counts", [&](Slot e) { return CheckSameObjectCount(first, reordered, e); }, L""},
            {"counts differ", [&](Slot e) { return CheckSameObjectCount(first, shorter, e); },
             L"ObjectSets '' and '' must have the same number of objects"},
            {"counts of attributes", [&](Slot e) { return CheckSameObjectCount(area, backwards, e); }, L""},
            {"counts of attributes differ", [&](Slot e) { return CheckSameObjectCount(few, area, e); },
             L"ObjectSets '' and '' must have the same number of objects"},
            {"counts of a detached attribute", [&](Slot e) { return CheckSameObjectCount(area, loose, e); },
             L"Attribute 'Loose' is not attached to any ObjectSet"},
            {"type", [&](Slot e) { return CheckType(label, DataTypeOf<std::int32_t>(), e); }, L""},
            {"other type", [&](Slot e) { return CheckType(area, DataTypeOf<std::int32_t>(), e); },
             L"Attribute 'Area' must be of type 'int'"},
            {"spatial", [&](Slot e) { return CheckSpatial(shape, e); }, L""},
            {"not spatial", [&](Slot e) { return CheckSpatial(area, e); },
             L"Attribute 'Area' must be a spatial attribute"},
        };
    }
};

TEST_F(ObjectSetHelper, WithASlotFailuresAreLeftThere)
{
    for (const auto& c : Cases()) {
        SCOPED_TRACE(c.what);
        Pointer<System::IException, 0> failure;
        const bool passed = c.check(&failure);
        EXPECT_EQ(passed, c.message.empty());
        EXPECT_EQ(failure ? failure->Message() : std::wstring(), c.message);
        if (failure) {
            EXPECT_EQ(failure->File(), L"ObjectSets/Helper.cpp");
            // Reported when it was made, though not thrown.
            EXPECT_EQ(Library::ErrorManager()->TakeLastError().Get(), failure.Get());
        }
    }
}

TEST_F(ObjectSetHelper, WithoutASlotFailuresAreThrown)
{
    for (const auto& c : Cases()) {
        SCOPED_TRACE(c.what);
        if (c.message.empty())
            EXPECT_TRUE(c.check(nullptr));
        else
            EXPECT_EQ(RaisedMessage([&] { c.check(nullptr); }), c.message);
    }
}

TEST(ObjectSetHelperOnLibrarySets, NamesSetsAndSeesDetachedAttributes)
{
    InChildProcess([] {
        using namespace Quilon_::ObjectSets::Helper;
        StartBasic();
        auto namedSet = [](const wchar_t* name, std::vector<std::int64_t> keys) {
            Ref<IObjectSet> set = Quilon_::ObjectSets::ObjectSet::New();
            System::ExtendedPropertiesHelper::SetName(set, LIString(name));
            for (std::int64_t key : keys)
                set->AddObject(Key(key));
            return set;
        };
        Ref<IObjectSet> left = namedSet(L"Left", {1, 2});
        Ref<IObjectSet> right = namedSet(L"Right", {2, 1});
        Ref<IAttribute> area = left->AddAttribute(L"Area", DataTypeOf<float>());
        Ref<IAttribute> size = right->AddAttribute(L"Size", DataTypeOf<float>());
        EXPECT_TRUE(CheckSameObjectCount(area, size));
        EXPECT_EQ(RaisedMessage([&] { CheckSameObjectKeys(area, size); }),
                  L"ObjectSets 'Left' and 'Right' must have the same keys");
        EXPECT_TRUE(CheckSameObjectSet(area, left->AddAttribute(L"Label", DataTypeOf<std::int32_t>())));
        right->RemoveAttribute(L"Size");
        EXPECT_EQ(RaisedMessage([&] { CheckSameObjectCount(area, size); }),
                  L"Attribute 'Size' is not attached to any ObjectSet");
    });
}

} // namespace Quilon_::Tests::ObjectSetHelper
