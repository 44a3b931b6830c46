// The rules of operators over object sets: which argument lists they pass,
// the failure each records (index and message), and how tools present them.
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/ThreeD/BitmapShape.h"
#include "Quilon_/Geometry/ThreeD/Vector.h"
#include "Quilon_/Geometry/TwoD/BitmapShape.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckAttributeCompatible.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckAttributeDataType.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckAttributeDimension.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckBitmapAttribute.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckObjectSetCompatible.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"
#include "ObjectSetDoubles.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::ObjectSetRules {

using namespace ObjectSetDoubles;
using namespace Quilon_::ObjectSets::Functions::Rules;
using System::Any;
using System::ToAny;
using System::Functions::Rules::IRule;
using System::Functions::Rules::RuleFailures;
namespace TwoD = Quilon_::Geometry::TwoD;
namespace ThreeD = Quilon_::Geometry::ThreeD;

struct RuleCase {
    const char* what;
    Ref<IRule> rule;
    std::vector<Any> arguments;
    std::int64_t failedIndex; // -1: the rule passes
    std::wstring message;
};

void ExpectOutcome(const RuleCase& c)
{
    SCOPED_TRACE(c.what);
    RuleFailures failures;
    std::vector<Any> arguments = c.arguments;
    const bool passed = c.rule->Apply(arguments, failures);
    if (c.failedIndex < 0) {
        EXPECT_TRUE(passed);
        EXPECT_TRUE(failures.empty());
        return;
    }
    EXPECT_FALSE(passed);
    ASSERT_EQ(failures.size(), 1u);
    EXPECT_EQ(failures[0].first, c.failedIndex);
    EXPECT_EQ(failures[0].second, c.message);
}

class ObjectSetRules : public RaisingTest {
protected:
    Ref<IObjectSet> input = MakeSet({1, 2, 3});
    Ref<IObjectSet> sameKeys = MakeSet({1, 2, 3});
    Ref<IObjectSet> reordered = MakeSet({3, 2, 1});
    Ref<IObjectSet> empty = MakeSet({});
    Ref<IAttribute> area = AddColumn(input, L"Area", DataTypeOf<float>());
    Ref<IAttribute> shape = AddSpatialColumn(input, L"Shape", TwoD::IBitmapShape::GetType(), 2);
    Ref<IAttribute> twin = AddColumn(sameKeys, L"Twin", DataTypeOf<float>());
    Ref<IAttribute> backwards = AddColumn(reordered, L"Backwards", DataTypeOf<float>());
    Ref<IAttribute> nothing = AddColumn(empty, L"Nothing", DataTypeOf<float>());
    Ref<IAttribute> loose = DetachedColumn(L"Loose", DataTypeOf<float>());

    static Any Arg(const Ref<IAttribute>& attribute) { return ToAny(attribute); }
    static Any Arg(const Ref<IObjectSet>& set) { return ToAny(set); }
};

TEST_F(ObjectSetRules, CompatibilityOfAttributesFollowsTheLevelTheFlagsSelect)
{
    // Argument 1 is the one the others must agree with; a failure names the
    // argument that disagrees.
    auto rule = [](unsigned short flags) { return CheckAttributeCompatible::New(1, 0, flags); };
    const RuleCase cases[] = {
        {"one set, keys", rule(3), {Arg(area), Arg(shape)}, -1, L""},
        {"one set, same set", rule(7), {Arg(area), Arg(shape)}, -1, L""},
        {"reordered keys",
         rule(3),
         {Arg(area), Arg(backwards)},
         0,
         L"ObjectSets '' and '' must have the same keys"},
        {"reordered keys, count only", rule(1), {Arg(area), Arg(backwards)}, -1, L""},
        {"equal keys, other set",
         rule(7),
         {Arg(area), Arg(twin)},
         0,
         L"Attributes 'Twin' and 'Area' must belong to the same ObjectSet"},
        {"count differs",
         rule(1),
         {Arg(area), Arg(nothing)},
         0,
         L"ObjectSets '' and '' must have the same number of objects"},
        {"detached first",
         rule(1),
         {Arg(area), Arg(loose)},
         0,
         L"Attribute 'Loose' is not attached to any ObjectSet"},
        {"detached other",
         rule(1),
         {Arg(loose), Arg(area)},
         0,
         L"Attribute 'Loose' is not attached to any ObjectSet"},
        {"empty first, waived", rule(9), {Arg(loose), Arg(nothing)}, -1, L""},
        {"empty first, not waived",
         rule(3),
         {Arg(area), Arg(nothing)},
         0,
         L"ObjectSets '' and '' must have the same keys"},
        {"bit 2 alone", rule(2), {Arg(area), Arg(nothing)}, -1, L""},
        {"bit 4 alone", rule(4), {Arg(area), Arg(loose)}, -1, L""},
        {"bits 2 and 4", rule(6), {Arg(area), Arg(loose)}, -1, L""},
        {"third argument fails",
         CheckAttributeCompatible::New({0, 1, 2}, 3),
         {Arg(area), Arg(twin), Arg(backwards)},
         2,
         L"ObjectSets '' and '' must have the same keys"},
    };
    for (const auto& c : cases)
        ExpectOutcome(c);
}

TEST_F(ObjectSetRules, CompatibilityOfSetsHasCountAndKeysOnly)
{
    auto rule = [](unsigned short flags) { return CheckObjectSetCompatible::New(0, 1, flags); };
    const RuleCase cases[] = {
        {"same keys", rule(3), {Arg(input), Arg(sameKeys)}, -1, L""},
        {"same set object", rule(7), {Arg(input), Arg(input)}, -1, L""},
        {"reordered",
         rule(3),
         {Arg(input), Arg(reordered)},
         1,
         L"ObjectSets '' and '' must have the same keys"},
        {"reordered, count only", rule(1), {Arg(input), Arg(reordered)}, -1, L""},
        {"reordered, bit 4 adds nothing",
         rule(7),
         {Arg(input), Arg(reordered)},
         1,
         L"ObjectSets '' and '' must have the same keys"},
        {"count differs",
         rule(1),
         {Arg(input), Arg(empty)},
         1,
         L"ObjectSets '' and '' must have the same number of objects"},
        {"empty first, waived", rule(11), {Arg(empty), Arg(input)}, -1, L""},
        {"empty first, not waived",
         rule(3),
         {Arg(empty), Arg(input)},
         1,
         L"ObjectSets '' and '' must have the same keys"},
    };
    for (const auto& c : cases)
        ExpectOutcome(c);
}

TEST_F(ObjectSetRules, CompatibilityNeedsTwoIndexesAndAttachedFirstWhenWaiving)
{
    EXPECT_EQ(RaisedMessage([] { CheckAttributeCompatible::New({4}, 3); }),
              L"At least two argument indexes expected (1 provided)");
    EXPECT_EQ(RaisedMessage([] { CheckObjectSetCompatible::New(std::vector<std::int64_t>{}, 3); }),
              L"At least two argument indexes expected (0 provided)");
    // Only with the waiver is the first attribute's set read: detached, the
    // rule cannot decide and raises.
    RuleFailures failures;
    std::vector<Any> arguments{Arg(loose), Arg(area)};
    EXPECT_NE(Raised([&] { CheckAttributeCompatible::New(0, 1, 9)->Apply(arguments, failures); }), nullptr);
}

TEST_F(ObjectSetRules, DataTypeAndDimensionOfAttributes)
{
    Ref<IAttribute> vectors = AddColumn(input, L"Vectors", ThreeD::IVectorF::GetType());
    Ref<IAttribute> volume = AddSpatialColumn(reordered, L"Volume", ThreeD::IBitmapShape::GetType(), 3);
    auto dimension = [](std::int64_t expected, AttributeDimensionRelationEnum relation) {
        return CheckAttributeDimension::New(0, expected, relation);
    };
    const RuleCase cases[] = {
        {"data type", CheckAttributeDataType::New(1, DataTypeOf<float>()), {Arg(shape), Arg(area)}, -1, L""},
        {"other data type",
         CheckAttributeDataType::New(1, DataTypeOf<std::int32_t>()),
         {Arg(shape), Arg(area)},
         1,
         L"Data Type of attribute #2 ('Area') must be of type 'int'"},
        {"equal", dimension(2, adrEqual), {Arg(shape)}, -1, L""},
        {"not equal",
         dimension(2, adrEqual),
         {Arg(volume)},
         0,
         L"Invalid attribute dimension: 3 (2 expected)"},
        {"vectors at most",
         dimension(2, adrAtMost),
         {Arg(vectors)},
         0,
         L"Invalid attribute dimension: 3 (<= 2 expected)"},
        {"at most", dimension(3, adrAtMost), {Arg(shape)}, -1, L""},
        {"at least",
         dimension(3, adrAtLeast),
         {Arg(shape)},
         0,
         L"Invalid attribute dimension: 2 (>= 3 expected)"},
        {"unknown relation",
         dimension(9, static_cast<AttributeDimensionRelationEnum>(7)),
         {Arg(shape)},
         -1,
         L""},
        {"not spatial",
         dimension(2, adrEqual),
         {Arg(area)},
         0,
         L"Attribute 'Area' is not a spatial attribute"},
        {"named in a set", CheckAttributeDimension::New(0, L"Shape", 2, adrEqual), {Arg(input)}, -1, L""},
        {"missing in a set",
         CheckAttributeDimension::New(0, L"Contour", 2, adrEqual),
         {Arg(input)},
         0,
         L"Attribute not found 'Contour'"},
        {"neither",
         dimension(2, adrEqual),
         {ToAny(std::int64_t(2))},
         0,
         L"Argument must implement IAttribute or IObjectSet"},
    };
    for (const auto& c : cases)
        ExpectOutcome(c);
}

TEST_F(ObjectSetRules, BitmapAttributesFollowTheDimensionOfTheirSource)
{
    Ref<IAttribute> planar = AddColumn(sameKeys, L"Planar", TwoD::IBitmapShape::GetType());
    Ref<IAttribute> solid = AddColumn(sameKeys, L"Solid", ThreeD::IBitmapShape::GetType());
    Ref<IAttribute> volume = AddSpatialColumn(reordered, L"Volume", ThreeD::IBitmapShape::GetType(), 3);
    const Ref<IRule> rule = CheckBitmapAttribute::New(1, 0);
    const RuleCase cases[] = {
        {"2-D attribute", rule, {Arg(shape), Arg(planar)}, -1, L""},
        {"3-D attribute", rule, {Arg(volume), Arg(solid)}, -1, L""},
        {"3-D cells for 2-D",
         rule,
         {Arg(shape), Arg(solid)},
         1,
         L"Data of attribute #2 ('Solid') must be of type 'Quilon_::Geometry::TwoD::IBitmapShape'"},
        {"first spatial of a set", rule, {Arg(input), Arg(planar)}, -1, L""},
        {"set without spatial", rule, {Arg(sameKeys), Arg(planar)}, 1, L"Dimension argument not available"},
        {"plain attribute", rule, {Arg(area), Arg(planar)}, 1, L"Dimension argument not available"},
        {"set to fill", rule, {Arg(shape), Arg(empty)}, -1, L""},
    };
    for (const auto& c : cases)
        ExpectOutcome(c);
}

TEST_F(ObjectSetRules, BitmapAttributesOfImagesCountSpatialAxesOnly)
{
    InChildProcess([] {
        StartBasic();
        using Quilon_::Geometry::Axes;
        Ref<IObjectSet> set = MakeSet({1});
        Ref<IAttribute> planar = AddColumn(set, L"Planar", TwoD::IBitmapShape::GetType());
        auto image = [](Axes axes) {
            return ToAny(Quilon_::Images::Image::New(Quilon_::Geometry::Coordinates::New(4, 4, 2, axes)));
        };
        const RuleCase cases[] = {
            {"XY and band", CheckBitmapAttribute::New(1, 0), {image(Axes::aXYB), Arg(planar)}, -1, L""},
            {"XY and time", CheckBitmapAttribute::New(1, 0), {image(Axes::aXYT), Arg(planar)}, -1, L""},
            {"XYZ",
             CheckBitmapAttribute::New(1, 0),
             {image(Axes::aXYZ), Arg(planar)},
             1,
             L"Data of attribute #2 ('Planar') must be of type 'Quilon_::Geometry::ThreeD::IBitmapShape'"},
        };
        for (const auto& c : cases)
            ExpectOutcome(c);
    });
}

TEST_F(ObjectSetRules, AnOperatorRefusedByItsChecksRaisesTheRulesMessage)
{
    using Attribute = Ref<IAttribute>;
    System::Functions::Template::Function<void (*)(Attribute, Attribute)> pair(L"TestPairOfAttributes");
    pair.Register(
        L"Test implementation", +[](Attribute, Attribute) {});
    auto checks = System::Functions::Rules::RuleCollection::New();
    checks->Add(CheckAttributeCompatible::New(1, 0, 3));
    pair.SetRules(System::Functions::rtCheck, checks);

    pair(area, twin);
    EXPECT_EQ(RaisedMessage([&] { pair(area, backwards); }), L"ObjectSets '' and '' must have the same keys");
}

TEST(ObjectSetRulePresentation, ReadsLikeTheCallThatMadeTheRule)
{
    using System::Functions::Rules::Present;
    const std::pair<Ref<IRule>, std::wstring> cases[] = {
        {CheckAttributeCompatible::New(2, 0, 11), L"CCheckAttributeCompatible({2, 0}, 0xB)"},
        {CheckObjectSetCompatible::New({0, 1, 2}, 3), L"CCheckObjectSetCompatible({0, 1, 2}, 0x3)"},
        {CheckAttributeDataType::New(1, DataTypeOf<float>()), L"CCheckAttributeDataType(1, float)"},
        {CheckAttributeDimension::New(0, 2, adrAtMost), L"CCheckAttributeDimension(0, 2, adrAtMost)"},
        {CheckAttributeDimension::New(0, L"Shape", 3, adrEqual),
         L"CCheckAttributeDimension(0, \"Shape\", 3, adrEqual)"},
        {CheckBitmapAttribute::New(1, 0), L"CCheckBitmapAttribute(1, 0)"},
    };
    for (const auto& [rule, text] : cases)
        EXPECT_EQ(Present(rule), text);
}

} // namespace Quilon_::Tests::ObjectSetRules
