// The object-set operator catalogue as start-up leaves it: every operator
// under its exported name with its own name and number of overloads, the
// documented chains entered rule for rule (compared through their
// presentation, as a listing shows them), and the records and selectors
// that travel in the operators' arguments.
#include "Quilon_/Geometry/TwoD/BitmapShape.h"
#include "Quilon_/Library.h"
#include "Quilon_/ObjectSets/Arithmetic/Functions.h"
#include "Quilon_/ObjectSets/Bitmaps/Logic/Functions.h"
#include "Quilon_/ObjectSets/Bitmaps/Morphology/Functions.h"
#include "Quilon_/ObjectSets/Chains/Generation/EdgelsToChainsOptions.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckAttributeCompatible.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckBitmapAttribute.h"
#include "Quilon_/ObjectSets/Functions/Rules/CheckObjectSetCompatible.h"
#include "Quilon_/ObjectSets/KeyVectorAttribute.h"
#include "Quilon_/ObjectSets/Matching/DescriptorMatchingOptions.h"
#include "Quilon_/ObjectSets/Matching/DescriptorMatchingResults.h"
#include "Quilon_/ObjectSets/Measurements/Functions.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/ObjectSets/VectorAttribute.h"
#include "Quilon_/System/Functions/FunctionRegistry.h"
#include "Quilon_/System/Functions/RuleChain.h"
#include "Quilon_/System/Functions/Rules/CheckInterfaceSupported.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"

#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"
#include "ObjectSetDoubles.h"

#include <gtest/gtest.h>

#include <map>

namespace Quilon_::Tests::ObjectSetCatalogue {

using namespace Quilon_::ObjectSets;
using System::Functions::RuleChain;
using System::Functions::Detail::Function;

const std::wstring prefix = L"Quilon_::ObjectSets::";

// Every overload of each object-set operator by its exported name, in order.
std::map<std::wstring, std::vector<const Function*>> Catalogue()
{
    std::map<std::wstring, std::vector<const Function*>> operators;
    for (const auto& entry : System::Functions::FunctionRegistry::Entries()) {
        const bool operatorObject = entry.name.starts_with(prefix) &&
                                    entry.name.find(L"::Functions::") != std::wstring::npos &&
                                    entry.name.find(L"::Rules::") == std::wstring::npos;
        if (operatorObject)
            operators[entry.name.substr(prefix.size())].push_back(entry.function);
    }
    return operators;
}

struct OperatorRow {
    const wchar_t* area;
    const wchar_t* name;
    std::size_t overloads;
};

TEST(ObjectSetCatalogue, EveryOperatorIsExportedUnderItsNameWithItsOverloads)
{
    const std::vector<OperatorRow> rows = {
        {L"Arithmetic", L"Add", 2},
        {L"Arithmetic", L"Subtract", 3},
        {L"Arithmetic", L"Multiply", 2},
        {L"Arithmetic", L"Divide", 3},
        {L"Arithmetic", L"Maximum", 2},
        {L"Arithmetic", L"Minimum", 2},
        {L"Bitmaps::Generation", L"Labels", 2},
        {L"Bitmaps::Generation", L"Clusters", 4},
        {L"Bitmaps::Generation", L"Threshold", 4},
        {L"Bitmaps::Generation", L"HysteresisThreshold", 4},
        {L"Bitmaps::Generation", L"RegionGrow", 4},
        {L"Bitmaps::Generation", L"SeededRegionGrow", 4},
        {L"Bitmaps::Generation", L"ZeroCrossing", 4},
        {L"Bitmaps::Generation", L"MaximumContrastThreshold", 2},
        {L"Bitmaps::Generation", L"ExtractPartition", 2},
        {L"Bitmaps::Generation", L"AdaptivePercentileThreshold", 4},
        {L"Bitmaps::Generation", L"EntropyThreshold", 4},
        {L"Bitmaps::Generation", L"OtsuThreshold", 4},
        {L"Bitmaps::Logic", L"And", 2},
        {L"Bitmaps::Logic", L"Or", 2},
        {L"Bitmaps::Logic", L"XOr", 2},
        {L"Bitmaps::Logic", L"Difference", 2},
        {L"Bitmaps::Logic", L"Overlap", 3},
        {L"Bitmaps::Morphology", L"Erode", 4},
        {L"Bitmaps::Morphology", L"Dilate", 4},
        {L"Bitmaps::Morphology", L"Open", 4},
        {L"Bitmaps::Morphology", L"Close", 4},
        {L"Bitmaps::Morphology", L"HoleFill", 4},
        {L"Chains::Generation", L"BitmapsToChains", 4},
        {L"Chains::Generation", L"EdgelsToChains", 2},
        {L"Circles::Generation", L"BitmapsToCircles", 1},
        {L"Circles::Generation", L"HoughCircles", 3},
        {L"Edgels::Generation", L"EdgesToEdgels", 2},
        {L"Edgels::Grouping", L"EdgelNeighbors", 2},
        {L"Filtering", L"Filter", 2},
        {L"Geometry", L"AffineMap", 2},
        {L"Geometry", L"Rotate", 2},
        {L"Geometry", L"Scale", 3},
        {L"Geometry", L"Translate", 2},
        {L"Lines::Generation", L"BitmapLineFit", 2},
        {L"Lines::Generation", L"ChainLineFit", 2},
        {L"Lines::Generation", L"EdgesToLines", 2},
        {L"Lines::Generation", L"HoughLines", 2},
        {L"Matching", L"Register", 1},
        {L"Measurements", L"Histogram", 2},
        {L"Measurements", L"Moments", 1},
        {L"Measurements", L"Statistics", 2},
        {L"Measurements", L"StandardShapeMeasurements", 2},
        {L"Measurements", L"FeretShapeMeasurements", 2},
        {L"Measurements", L"ProjectionShapeMeasurements", 2},
        {L"Measurements", L"TextureMeasurements", 2},
        {L"Measurements", L"ChainMeasurements", 2},
        {L"Measurements", L"LineMeasurements", 2},
        {L"Measurements", L"Descriptors", 1},
        {L"Points::Generation", L"DetectKeyPoints", 1},
        {L"Polygons::Generation", L"ConvexHull", 2},
        {L"Rectangles::Generation", L"SelectiveSearch", 1},
        {L"Skeletons", L"Skeleton", 2},
        {L"Skeletons", L"Filter", 1},
        {L"Skeletons", L"TreeSkeleton", 2},
        {L"Skeletons", L"TreeSkeletonSetRoot", 1},
        {L"Utility", L"Append", 1},
        {L"Utility", L"Merge", 1},
        {L"Utility", L"Copy", 2},
        {L"Utility", L"Set", 1},
        {L"Utility", L"ToImage", 2},
    };
    auto catalogue = Catalogue();
    for (const OperatorRow& row : rows) {
        const std::wstring full = std::wstring(row.area) + L"::Functions::" + row.name;
        const auto found = catalogue.find(full);
        if (found == catalogue.end()) {
            ADD_FAILURE() << "missing operator " << System::ToAnsi(full);
            continue;
        }
        EXPECT_EQ(found->second.size(), row.overloads) << System::ToAnsi(full);
        for (const Function* overload : found->second)
            EXPECT_EQ(overload->Name(), row.name) << System::ToAnsi(full);
        catalogue.erase(found);
    }
    // Reading and writing belong to the files' library side; nothing else
    // may be listed beyond the table.
    std::erase_if(catalogue, [](const auto& entry) { return entry.first.starts_with(L"IO::"); });
    for (const auto& [name, overloads] : catalogue)
        ADD_FAILURE() << "operator not in the table: " << System::ToAnsi(name);
}

RuleChain::Rule Supports(std::int64_t index, const System::Type& type)
{
    return System::Functions::Rules::CheckInterfaceSupported::New(index, type);
}
RuleChain::Rule AttributesAgree(std::int64_t index, std::int64_t reference, unsigned short flags)
{
    return Functions::Rules::CheckAttributeCompatible::New(index, reference, flags);
}
RuleChain::Rule SetsAgree(std::int64_t index, std::int64_t reference, unsigned short flags)
{
    return Functions::Rules::CheckObjectSetCompatible::New(index, reference, flags);
}

struct ChainRow {
    const wchar_t* area;
    std::vector<const wchar_t*> operators; // "Overlap[1]" for one overload, "And" for all
    std::vector<RuleChain::Rule> check;
};

TEST(ObjectSetCatalogue, TheDocumentedChainsAreEnteredRuleForRule)
{
    InChildProcess([] {
        // The chains are the core's: no other library is needed.
        Library::SetLibraries({});
        Library::Initialize();
        const System::Type& spatial = ISpatialAttribute::GetType();
        const std::vector<ChainRow> rows = {
            {L"Bitmaps::Logic",
             {L"Overlap[0]"},
             {Supports(0, spatial), Supports(1, spatial), Supports(2, IKeyVectorAttribute::GetType()),
              AttributesAgree(2, 0, 3)}},
            {L"Bitmaps::Logic",
             {L"Overlap[1]"},
             {Supports(0, spatial), Supports(1, spatial), Supports(2, IKeyVectorAttribute::GetType()),
              Supports(3, IFloatVectorAttribute::GetType()), AttributesAgree(2, 0, 3),
              AttributesAgree(3, 0, 3)}},
            {L"Bitmaps::Logic",
             {L"And[0]", L"Or[0]", L"XOr[0]", L"Difference[0]"},
             {Supports(0, spatial), Supports(1, spatial), Supports(2, spatial), AttributesAgree(1, 0, 3),
              AttributesAgree(2, 0, 11)}},
            {L"Bitmaps::Logic",
             {L"And[1]", L"Or[1]", L"XOr[1]", L"Difference[1]"},
             {SetsAgree(1, 0, 3), SetsAgree(2, 0, 11)}},
            // The typical generator: bitmaps of the source's dimension, with
            // its keys unless it is empty.
            {L"Bitmaps::Morphology",
             {L"Erode[0]", L"Erode[1]", L"Dilate[0]", L"Open[1]", L"Close[0]", L"HoleFill[1]"},
             {Supports(0, spatial), Functions::Rules::CheckBitmapAttribute::New(1, 0),
              AttributesAgree(1, 0, 11)}},
            {L"Arithmetic",
             {L"Add[0]", L"Subtract[0]", L"Divide[0]", L"Minimum[0]"},
             {Supports(0, IScalarAttribute::GetType()), Supports(1, IScalarAttribute::GetType()),
              Supports(2, IScalarAttribute::GetType()), AttributesAgree(1, 0, 3), AttributesAgree(2, 0, 11)}},
            {L"Arithmetic", {L"Subtract[2]", L"Divide[2]"}, {Supports(1, IScalarAttribute::GetType())}},
            // Forms that create everything they write take what they are given.
            {L"Bitmaps::Morphology", {L"Erode[2]", L"HoleFill[3]"}, {}},
            {L"Utility", {L"Append", L"Merge"}, {}},
        };
        const auto catalogue = Catalogue();
        for (const ChainRow& row : rows) {
            // "Check: rule, rule, ...", as RuleChain::Present writes one moment.
            std::wstring text;
            for (std::size_t i = 0; i < row.check.size(); ++i)
                text += (i == 0 ? L"Check: " : L", ") + System::Functions::Rules::Present(row.check[i]);
            for (const std::wstring name : row.operators) {
                const auto bracket = name.find(L'[');
                const std::wstring full = std::wstring(row.area) + L"::Functions::" + name.substr(0, bracket);
                const auto found = catalogue.find(full);
                if (found == catalogue.end()) {
                    ADD_FAILURE() << "missing operator " << System::ToAnsi(full);
                    continue;
                }
                std::vector<const Function*> overloads = found->second;
                if (bracket != std::wstring::npos) {
                    const std::size_t index = std::stoul(name.substr(bracket + 1));
                    ASSERT_LT(index, overloads.size()) << System::ToAnsi(name);
                    overloads = {overloads[index]};
                }
                for (const Function* overload : overloads)
                    EXPECT_EQ(System::ToAnsi(RuleChain::Present(overload->AllRules())), System::ToAnsi(text))
                        << System::ToAnsi(row.area) << "::" << System::ToAnsi(name);
            }
        }
        Library::Finalize();
    });
}

void IgnoreOverlap(Functions::Arguments::Attribute, Functions::Arguments::Attribute,
                   Functions::Arguments::Attribute)
{
}

TEST(ObjectSetCatalogue, ACallIsRefusedByItsChainBeforeTheImplementationRuns)
{
    InChildProcess([] {
        Library::SetLibraries({});
        Library::Initialize();
        namespace Doubles = ObjectSetDoubles;
        const auto set = Doubles::MakeSet({1, 2});
        const auto cells =
            Doubles::AddSpatialColumn(set, L"Cells", Geometry::TwoD::IBitmapShape::GetType(), 2);
        const auto nuclei =
            Doubles::AddSpatialColumn(set, L"Nuclei", Geometry::TwoD::IBitmapShape::GetType(), 2);
        const auto plain = Doubles::AddColumn(set, L"Plain", DataTypeOf<float>());
        auto& overlap = Bitmaps::Logic::Functions::Overlap.Overload<0>();

        EXPECT_TRUE(RaisedMessage([&] {
                        overlap(cells, nuclei, plain);
                    }).starts_with(L"No implementation available for function 'Overlap'"));

        overlap.Register(L"test", &IgnoreOverlap);
        const std::wstring refused = RaisedMessage([&] { overlap(cells, nuclei, plain); });
        EXPECT_NE(refused.find(L"Argument #3 must implement"), std::wstring::npos) << System::ToAnsi(refused);
        EXPECT_NE(refused.find(L"IKeyVectorAttribute"), std::wstring::npos) << System::ToAnsi(refused);
        overlap.Unregister(&IgnoreOverlap);
        Library::Finalize();
    });
}

TEST(ObjectSetCatalogue, EdgelOptionsCompareTheNameAsTextAndTheWeightsExactly)
{
    using Chains::Generation::EdgelsToChainsOptions;
    const auto with = [](void (EdgelsToChainsOptions::*set)(double), double value) {
        EdgelsToChainsOptions options;
        (options.*set)(value);
        return options;
    };
    EdgelsToChainsOptions named;
    named.SetMemberEdgelsAttributeName(System::LIString(L"Edgels"));
    EdgelsToChainsOptions namedToo;
    namedToo.SetMemberEdgelsAttributeName(System::LIString(L"Edgels", false));
    const struct {
        const char* what;
        EdgelsToChainsOptions a, b;
        bool equal;
    } cases[] = {
        {"defaults", {}, {}, true},
        {"a name", named, {}, false},
        {"the same name, translated or not", named, namedToo, true},
        {"link length", with(&EdgelsToChainsOptions::SetLinkLengthWeight, 1e-300), {}, false},
        {"link angle", with(&EdgelsToChainsOptions::SetEdgelToLinkAngleWeight, 0.5), {}, false},
        {"edgel angle", with(&EdgelsToChainsOptions::SetEdgelToEdgelAngleWeight, -1), {}, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.a == c.b, c.equal) << c.what;
        EXPECT_EQ(System::ToAny(c.a) == System::ToAny(c.b), c.equal) << c.what << ", boxed";
    }
}

TEST(ObjectSetCatalogue, MatchingRecordsStartAsDocumentedAndTravelInAnAny)
{
    Matching::DescriptorMatchingOptions options;
    EXPECT_EQ(options.PreselectionMatchesCount(), 50);
    EXPECT_TRUE(options.GetAllMatches() && options.GetPreselectedMatches() && options.FullAffineTransform());
    options.SetGetPreselectedMatches(false);
    EXPECT_FALSE(
        System::ToAny(options).CastTo<Matching::DescriptorMatchingOptions>().GetPreselectedMatches());

    Matching::DescriptorMatchingResults results;
    results.AllMatches().emplace_back(Key(1), Key(7));
    results.SetMatchedPairCount(1);
    const auto back = System::ToAny(results).CastTo<Matching::DescriptorMatchingResults>();
    EXPECT_TRUE(back == results);
    EXPECT_TRUE(back.PreselectedMatches().empty());
    EXPECT_EQ(back.AllMatches().at(0).second, Key(7));
}

TEST(ObjectSetCatalogue, SelectorsKeepTheirOrderAndBoxAsTheirOwnVectors)
{
    using namespace ObjectSets::Measurements;
    // The reference library names its attributes after these positions.
    EXPECT_EQ(ssmArea, 0);
    EXPECT_EQ(ssmCentroidZ, 4);
    EXPECT_EQ(ssmBoundingBoxDepth, 10);
    EXPECT_EQ(ssmElongation, 12);
    EXPECT_EQ(stMedian, 5);
    EXPECT_EQ(stPercentile, 6);

    const std::vector<StatisticsEnum> wanted{stPercentile, stMean};
    EXPECT_EQ(System::ToAny(wanted).CastTo<std::vector<StatisticsEnum>>(), wanted);
    EXPECT_EQ(System::ToAny(ssmPerimeter).CastTo<StandardShapeMeasurementEnum>(), ssmPerimeter);
    EXPECT_TRUE(System::ToAny(std::vector<StandardShapeMeasurementEnum>{})
                    .CastTo<std::vector<StandardShapeMeasurementEnum>>()
                    .empty());
}

} // namespace Quilon_::Tests::ObjectSetCatalogue
