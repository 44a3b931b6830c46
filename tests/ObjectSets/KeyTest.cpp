// Keys of objects in binary streams and in Any, and the type records by
// which object-set values and interfaces are known.
#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/Geometry/TwoD/BitmapShape.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/AttributeFactoryDictionary.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/KeyCollection.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/System/TypeDictionary.h"

#include "../Support/MemoryStreams.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <limits>

namespace Quilon_::Tests::ObjectSetKey {

using Quilon_::ObjectSets::Key;

struct KeyStreamCase {
    std::int64_t value;
    bool wide;
    std::size_t bytes;
    std::wstring message;
};

using ObjectSetKey = RaisingTest;

TEST_F(ObjectSetKey, GoesOutByTheStreamsIntegerRule)
{
    constexpr std::int64_t int32Max = std::numeric_limits<std::int32_t>::max();
    constexpr std::int64_t int32Min = std::numeric_limits<std::int32_t>::min();
    const KeyStreamCase cases[] = {
        {int32Max, false, 4, L""},
        {int32Max + 1, false, 0, L"Int value exceeds 32 bits storage: '2147483648'"},
        {int32Min, false, 4, L""},
        {int32Min - 1, false, 0, L"Int value exceeds 32 bits storage: '-2147483649'"},
        {int32Max + 1, true, 8, L""},
        {std::numeric_limits<std::int64_t>::min(), true, 8, L""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        MemoryWriter writer(c.wide);
        if (!c.message.empty()) {
            EXPECT_EQ(RaisedMessage([&] { writer.stream << Key(c.value); }), c.message);
            EXPECT_TRUE(writer.Written().empty());
            continue;
        }
        writer.stream << Key(c.value);
        ASSERT_EQ(writer.Written().size(), c.bytes);
        Key read(7);
        NewMemoryReader(writer.Written(), c.wide) >> read;
        EXPECT_EQ(read, Key(c.value));
    }
}

TEST_F(ObjectSetKey, TravelsInAnyAsItselfAndInVectors)
{
    const System::Any one = System::ToAny(Key(-5));
    EXPECT_EQ(one.CastTo<Key>(), Key(-5));
    EXPECT_TRUE(one == System::ToAny(Key(-5)));
    EXPECT_FALSE(one == System::ToAny(std::int64_t(-5)));
    const std::vector<Key> keys{Key(3), Key(1)};
    EXPECT_EQ(System::ToAny(keys).CastTo<std::vector<Key>>(), keys);
}

struct TypeRecordCase {
    System::Type type;
    std::wstring name;
    bool reference;
};

TEST(ObjectSetTypes, AreRegisteredUnderTheirPresentableNames)
{
    using namespace Quilon_::ObjectSets;
    const TypeRecordCase cases[] = {
        {DataTypeOf<std::int32_t>(), L"int", false},
        {DataTypeOf<float>(), L"float", false},
        {DataTypeOf<double>(), L"double", false},
        {DataTypeOf<std::wstring>(), L"std::wstring", false},
        {DataTypeOf<std::vector<std::int32_t>>(), L"std::vector<int>", false},
        {DataTypeOf<std::vector<Key>>(), L"std::vector<ObjectSets::Key>", false},
        {DataTypeOf<Quilon_::Geometry::TwoD::IBitmapShape>(), L"Quilon_::Geometry::TwoD::IBitmapShape", true},
        {IObjectDictionary::GetType(), L"Quilon_::ObjectSets::IObjectDictionary", true},
        {System::Collections::Template::IValueDictionary<System::Type, AttributeFactory>::GetType(),
         L"Quilon_::System::Collections::Template::IValueDictionary<Quilon_::System::Type,Quilon_::"
         L"ObjectSets::"
         L"AttributeFactory>",
         true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.type.Name(), c.name);
        EXPECT_EQ(c.type.IsReferenceType(), c.reference);
        EXPECT_TRUE(System::Type::Types()->ContainsKey(c.name));
    }
    EXPECT_FALSE(DataTypeOf<float>() == DataTypeOf<double>());
}

TEST(ObjectSetTypes, DeclareTheBasesOfTheirFamilies)
{
    using namespace Quilon_::ObjectSets;
    using System::Collections::Template::IDictionary;
    using System::Collections::Template::IValueCollection;
    const std::pair<System::Type, System::Type> derivedAndBase[] = {
        {IInt32Attribute::GetType(), IAttribute::GetType()},
        {IFloatAttribute::GetType(), IScalarAttribute::GetType()},
        {ISpatialAttribute::GetType(), IAttribute::GetType()},
        {IObjectDictionary::GetType(), IDictionary<Key, IObject>::GetType()},
        {IAttributeDictionary::GetType(), IDictionary<System::LIString, IAttribute>::GetType()},
        {IKeyCollection::GetType(), IValueCollection<Key>::GetType()},
    };
    for (const auto& [derived, base] : derivedAndBase) {
        SCOPED_TRACE(derived.Name());
        EXPECT_TRUE(derived.IsSubclassOf(base));
        EXPECT_TRUE(derived.IsSubclassOf(System::Interface::GetType()));
    }
}

} // namespace Quilon_::Tests::ObjectSetKey
