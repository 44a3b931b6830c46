// The image operator catalogue as start-up leaves it: the chains of the
// documented table entered rule for rule (compared through the rules'
// presentation, so that a chain is found wrong by what a listing shows),
// refusals that need no implementation, and operators described and
// called from boxed arguments, as the command-line tool calls them.
#include "Quilon_/Geometry/PredefinedStructuringElement.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Arithmetic/Functions.h"
#include "Quilon_/Images/Frequency/Functions.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageDimension.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/CopyExtendedProperties.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageEdge.h"
#include "Quilon_/Images/Logic/Functions.h"
#include "Quilon_/Images/Matching/Records.h"
#include "Quilon_/Images/Morphology/Basic/Functions.h"
#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Functions/FunctionRegistry.h"
#include "Quilon_/System/Functions/RuleChain.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "Functions/Rules/ImageRuleSupport.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using namespace Quilon_;
using namespace Quilon_::Images::Functions::Rules;
using System::Functions::RuleChain;
using System::Functions::Detail::Function;
using Tests::ImageRules::Colour;
using Tests::ImageRules::ImageRef;
using Tests::ImageRules::Plain;
using Tests::ImageRules::Refusal;

// The table's notation.
RuleChain::Rule Scalar(std::int64_t i, bool a, bool b, bool c)
{
    return CheckImageScalar::New(i, a, b, c);
}
RuleChain::Rule Compat(std::int64_t t, std::int64_t r, unsigned short w)
{
    return CheckImageCompatible::New(t, r, w);
}
RuleChain::Rule Make(std::int64_t o, std::int64_t i, unsigned short w1, unsigned short w2)
{
    return MakeImageCompatible::New(o, i, w1, w2);
}
RuleChain::Rule MakeGrey(std::int64_t o, std::int64_t i, unsigned short w1, unsigned short w2)
{
    MakeImageOptions grey;
    grey.Set(System::LIString(L"Image.Category.Grey"));
    return MakeImageCompatible::New(o, i, w1, grey, w2);
}
RuleChain::Rule Cat(std::int64_t i, const wchar_t* category)
{
    return CheckImageCategory::New(i, System::LIString(category));
}
RuleChain::Rule Binary(std::int64_t i)
{
    return CheckImageBinary::New(i);
}
RuleChain::Rule Dim(std::int64_t i, std::int64_t d)
{
    return CheckImageDimension::New(i, d, idrEqual);
}

// Every overload of each operator by its exported name, in order.
std::map<std::wstring, std::vector<const Function*>> Catalogue()
{
    std::map<std::wstring, std::vector<const Function*>> operators;
    for (const auto& entry : System::Functions::FunctionRegistry::Entries())
        operators[entry.name].push_back(entry.function);
    return operators;
}

struct TableRow {
    const wchar_t* family;
    std::vector<const wchar_t*> operators; // "Add[1]" for one overload, "Erode" for all
    RuleChain chain;
};

std::vector<TableRow> Table()
{
    const unsigned short x = 0x1F;
    auto chain = [](std::initializer_list<RuleChain::Rule> check, std::initializer_list<RuleChain::Rule> make,
                    std::initializer_list<RuleChain::Rule> pre,
                    std::initializer_list<RuleChain::Rule> post = {}) {
        RuleChain c;
        c.Check(check).Make(make).PreExecute(pre).PostExecute(post);
        return c;
    };
    return {
        {L"Arithmetic",
         {L"Abs", L"Invert"},
         chain({Scalar(0, 0, 0, 0)}, {Make(1, 0, 0x2C, x)}, {Compat(1, 0, 0xC)})},
        {L"Arithmetic",
         {L"Add[0]", L"Subtract[0]", L"Multiply[0]", L"Divide[0]"},
         chain({}, {Make(2, 0, 0x2C, x)}, {Compat(2, 0, 0xC)})},
        {L"Arithmetic",
         {L"Add[1]", L"Subtract[1]", L"Multiply[1]", L"Divide[1]", L"Blend"},
         chain({Compat(1, 0, 0x4C)}, {Make(2, 0, 0x2C, x)}, {Compat(2, 0, 0xC)})},
        {L"Arithmetic",
         {L"Maximum[0]", L"Minimum[0]"},
         chain({Scalar(0, 0, 0, 0)}, {Make(2, 0, 0x2C, x)}, {Compat(2, 0, 0xC)})},
        {L"Arithmetic",
         {L"Maximum[1]", L"Minimum[1]"},
         chain({Compat(1, 0, 0x4C), Scalar(0, 0, 0, 0), Scalar(1, 0, 0, 0)}, {Make(2, 0, 0x2C, x)},
               {Compat(2, 0, 0xC)})},
        {L"Logic",
         {L"And", L"Or", L"XOr", L"XNOr", L"NAnd", L"NOr", L"Difference"},
         chain({Binary(0), Binary(1), Compat(1, 0, 0xC)}, {Make(2, 0, 0x1C, x)}, {Compat(2, 0, 0xC)})},
        {L"Logic", {L"Not"}, chain({Binary(0)}, {Make(1, 0, 0x1C, x)}, {Compat(1, 0, 0xC)})},
        {L"Logic",
         {L"BitAnd[0]", L"BitOr[0]", L"BitXOr[0]", L"BitXNOr[0]", L"BitDifference[0]"},
         chain({Scalar(0, 1, 0, 0)}, {Make(2, 0, 0x1C, x)}, {Compat(2, 0, 0xC)})},
        {L"Logic",
         {L"BitAnd[1]", L"BitOr[1]", L"BitXOr[1]", L"BitXNOr[1]", L"BitDifference[1]"},
         chain({Scalar(0, 1, 0, 0), Scalar(1, 1, 0, 0), Compat(1, 0, 4)}, {Make(2, 0, 0x1C, x)},
               {Compat(2, 0, 0xC)})},
        {L"Logic",
         {L"BitNot", L"RightShift"},
         chain({Scalar(0, 1, 0, 0)}, {Make(1, 0, 0x1C, x)}, {Compat(1, 0, 0xC)})},
        {L"Morphology::Basic",
         {L"Erode", L"Dilate"},
         chain({Scalar(0, 0, 0, 0)}, {Make(1, 0, 0x2F, x)}, {Compat(1, 0, 0xF)})},
        {L"Morphology::Basic",
         {L"HitOrMiss", L"Thin", L"Thicken"},
         chain({Scalar(0, 0, 0, 0), Scalar(0, 1, 1, 1)}, {Make(1, 0, 0x2F, x)}, {Compat(1, 0, 0xF)})},
        {L"Morphology::Basic",
         {L"ConstrainedThin"},
         chain({Scalar(0, 0, 0, 0), Scalar(1, 0, 0, 0)}, {Make(2, 0, 0x2C, x), Make(1, 0, 4, x)},
               {Compat(2, 0, 0xC)})},
        {L"Morphology::Distance", {L"Distance"}, chain({Binary(0)}, {MakeGrey(1, 0, 4, 0x16)}, {})},
        {L"Morphology::Geodesy", {L"Reconstruct"}, chain({}, {Make(2, 0, 0x2C, x)}, {Compat(2, 0, 0xC)})},
        {L"Morphology::Geodesy", {L"Dilate"}, chain({}, {Make(2, 0, 0x2C, 0x16)}, {Compat(2, 0, 0xC)})},
        {L"Morphology::Geodesy", {L"Distance"}, chain({Binary(0), Binary(1)}, {MakeGrey(2, 0, 4, 0x16)}, {})},
        {L"Utility", {L"Copy", L"Clip", L"MapThroughLUT"}, chain({}, {Make(1, 0, 7, x)}, {Compat(1, 0, 7)})},
        {L"Utility",
         {L"Mask"},
         chain({Scalar(0, 0, 0, 0), Binary(1), Compat(1, 0, 4)}, {Make(2, 0, 0xC, x)}, {Compat(2, 0, 0xC)})},
        {L"Utility", {L"CopyBand"}, chain({Scalar(0, 0, 1, 0), Compat(0, 1, 4)}, {}, {})},
        {L"Utility", {L"ExtractBand"}, chain({}, {MakeGrey(1, 0, 4, x)}, {Compat(1, 0, 4)})},
        {L"Utility", {L"ExtractSlice"}, chain({Dim(0, 3)}, {}, {})},
        {L"EdgeDetection",
         {L"SobelEdges", L"PrewittEdges", L"RobertsEdges", L"CannyDericheEdges", L"RidgeValleyEdges",
          L"ZeroCrossing"},
         chain({Scalar(0, 0, 1, 0)}, {MakeImageEdge::New(1, 0)}, {})},
        {L"EdgeDetection", {L"EdgesThin"}, chain({Cat(0, L"Image.Category.Edge")}, {}, {})},
        {L"Enhancement",
         {L"EqualizeHistogram[0]"},
         chain({Scalar(0, 0, 0, 0)}, {Make(1, 0, 0x27, x)}, {Compat(1, 0, 7)})},
        {L"Enhancement",
         {L"EqualizeHistogram[1]", L"EqualizeHistogram[2]"},
         chain({Compat(1, 0, 8), Scalar(0, 0, 0, 0), Scalar(1, 0, 0, 0), Dim(0, 2)}, {Make(1, 0, 0xF, x)}, {},
               {Compat(1, 0, 0xB)})},
        {L"Color::Enhancement",
         {L"StainCorrection"},
         chain({Cat(0, L"Image.Category.Color"), Scalar(0, 1, 0, 1), Scalar(1, 0, 0, 0)},
               {Make(1, 0, 0xC, x)}, {})},
        {L"Frequency", {L"FFT"}, chain({Scalar(0, 0, 1, 0)}, {}, {})},
        {L"Frequency", {L"InverseFFT"}, chain({Cat(0, L"Image.Category.Frequency")}, {}, {})},
        {L"Frequency",
         {L"ButterworthFilter", L"ExponentialFilter", L"RectangularFilter", L"TrapezoidalFilter"},
         chain({Cat(0, L"Image.Category.Frequency")},
               {Make(1, 0, 0x2C, x), CopyExtendedProperties::New(1, 0)}, {})},
        {L"Matching",
         {L"AutoCorrelate", L"CrossCorrelate", L"HoughCirclesAccumulator", L"HoughLinesAccumulator"},
         chain({Scalar(0, 0, 1, 0), Dim(0, 2)}, {}, {})},
        {L"Matching", {L"Register"}, chain({}, {}, {Compat(1, 0, 1)})},
        {L"Matching", {L"Cooccurrence"}, chain({}, {Make(1, 0, 3, x)}, {Compat(1, 0, 3)})},
        {L"Measurements",
         {L"Range", L"Histogram", L"Profile", L"Moments[0]", L"MultiBandHistogram", L"Distance", L"Euler",
          L"Volume"},
         chain({Scalar(0, 0, 0, 0)}, {}, {})},
        {L"Measurements", {L"Area", L"Intercepts", L"ObjectCount"}, chain({Binary(0)}, {}, {})},
        {L"Measurements", {L"Correlation", L"Moments[2]"}, chain({Compat(1, 0, 0xF)}, {}, {})},
        {L"Measurements", {L"Moments[1]"}, chain({Scalar(0, 0, 0, 0), Binary(1), Compat(1, 0, 4)}, {}, {})},
        {L"Measurements", {L"LocalMoments"}, chain({Scalar(0, 0, 1, 0)}, {Make(1, 0, 0x2C, x)}, {})},
        {L"Segmentation", {L"RegionGrow", L"Clusters", L"AdaptivePercentileThreshold[2]"}, chain({}, {}, {})},
    };
}

TEST(OperatorCatalogue, EveryChainOfTheTableIsEnteredAsWritten)
{
    Tests::InChildProcess([] {
        // The chains are the core's: no other library is needed.
        Library::SetLibraries({});
        Library::Initialize();
        const auto catalogue = Catalogue();
        for (const TableRow& row : Table()) {
            const std::wstring expected = RuleChain::Present(row.chain.Collections());
            for (const std::wstring name : row.operators) {
                const auto bracket = name.find(L'[');
                const std::wstring full = L"Quilon_::Images::" + std::wstring(row.family) + L"::Functions::" +
                                          name.substr(0, bracket);
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
                    EXPECT_EQ(System::ToAnsi(RuleChain::Present(overload->AllRules())),
                              System::ToAnsi(expected))
                        << System::ToAnsi(row.family) << "::" << System::ToAnsi(name);
            }
        }
        Library::Finalize();
    });
}

void Ignore2(ImageRef, ImageRef) {}
void Ignore3(ImageRef, ImageRef, ImageRef) {}
void IgnoreElement(ImageRef, ImageRef, System::Ref<Geometry::IStructuringElement>) {}

TEST(OperatorCatalogue, RulesRefuseBeforeAnyImplementationOrOutputIsTouched)
{
    Tests::InChildProcess([] {
        Tests::StartBasic();
        using System::ntComplexF;
        using System::ntUInt8;
        // Implementations that accept anything, so that only the rules refuse.
        Images::Arithmetic::Functions::Add.Overload<1>().Register(L"test", &Ignore3);
        Images::Logic::Functions::And.Register(L"test", &Ignore3);
        Images::Frequency::Functions::InverseFFT.Register(L"test", &Ignore2);
        Images::Morphology::Basic::Functions::Erode.Overload<0>().Register(L"test", &IgnoreElement);

        EXPECT_NE(Refusal([] {
                      Images::Arithmetic::Functions::Add(Colour(4, 3), Plain(ntUInt8, 4, 3),
                                                         Images::Image::New());
                  }).find(L"Color spaces do not match"),
                  std::wstring::npos);
        EXPECT_NE(Refusal([] {
                      Images::Logic::Functions::And(Plain(ntUInt8, 4, 3), Plain(ntUInt8, 4, 3),
                                                    Images::Image::New());
                  }).find(L"Image.Category.Binary"),
                  std::wstring::npos);
        EXPECT_NE(Refusal([] {
                      Images::Frequency::Functions::InverseFFT(Plain(ntComplexF, 4, 4), Images::Image::New());
                  }).find(L"Image.Category.Frequency"),
                  std::wstring::npos);

        // The Check moment runs before Make: the output keeps its shape.
        ImageRef output = Plain(ntUInt8, 2, 2);
        const std::wstring refused = Refusal([&] {
            Images::Morphology::Basic::Functions::Erode(
                Plain(ntComplexF, 5, 5), output, Geometry::StructuringElement::New(Geometry::pseSquare, 1.0));
        });
        EXPECT_NE(refused.find(L"ntComplexF"), std::wstring::npos) << System::ToAnsi(refused);
        EXPECT_EQ(Tests::ImageRules::Values(output->Size()), (std::vector<std::int64_t>{2, 2}));
        Library::Finalize();
    });
}

TEST(OperatorCatalogue, OperatorsDescribeTheirSignatures)
{
    const auto parameters = Images::Frequency::Functions::ButterworthFilter.Parameters();
    std::vector<std::wstring> types;
    for (const auto& parameter : parameters)
        types.push_back(parameter.type);
    EXPECT_EQ(types, (std::vector<std::wstring>{L"Ref<IImage>", L"Ref<IImage>", L"Ref<IShapeND>",
                                                L"Images::Frequency::SymmetriesEnum", L"int64", L"bool"}));
    EXPECT_EQ(Images::Frequency::Functions::FFT.ResultType(), L"void");

    // Enumerators are found by the type alone, as a tool parsing text needs.
    const auto rows = System::Detail::EnumTextRowsOf(*parameters[3].valueType);
    EXPECT_EQ(System::Detail::EnumValue(L"sCentral", rows),
              std::optional<std::int64_t>(Images::Frequency::sCentral));
    ASSERT_NE(parameters[3].fromInteger, nullptr);
    EXPECT_EQ(parameters[3].fromInteger(2).CastTo<Images::Frequency::SymmetriesEnum>(),
              Images::Frequency::sAxes);
}

double Scaled(double value, std::int64_t& calls)
{
    ++calls;
    return value * 2;
}

TEST(OperatorCatalogue, InvokeCallsWithBoxedArgumentsAndHandsOutputsBack)
{
    System::Functions::Template::Function<double (*)(double, std::int64_t&)> scale(&Scaled);
    const auto parameters = scale.Parameters();
    ASSERT_EQ(parameters.size(), 2u);
    EXPECT_FALSE(parameters[0].output);
    EXPECT_TRUE(parameters[1].output);
    EXPECT_EQ(parameters[1].type, L"int64");

    std::vector<System::Any> arguments{System::ToAny(1.5), parameters[1].makeDefault()};
    EXPECT_EQ(scale.Invoke(arguments).CastTo<double>(), 3.0);
    EXPECT_EQ(arguments[1].CastTo<std::int64_t>(), 1);

    std::vector<System::Any> tooFew{System::ToAny(1.5)};
    EXPECT_NE(Refusal([&] { scale.Invoke(tooFew); }).find(L"takes 2 arguments, not 1"), std::wstring::npos);
}

TEST(MatchingRecords, DefaultsAndComparisonFieldByField)
{
    Images::Matching::BBFAffineMatchingOptions options;
    EXPECT_TRUE(options.Deterministic());
    EXPECT_EQ(options.Threshold(), 50);
    Images::Matching::DAMatchingOptions da;
    EXPECT_EQ(da.ImagesType(), 1);
    EXPECT_EQ(da.LayoutPrefForAuto(), 50);
    EXPECT_TRUE(da.UseDistortionCorrection());

    Images::Matching::BBFAffineMatchingResults a;
    Images::Matching::BBFAffineMatchingResults b;
    b.SetMatchedKeyPoints2({Drawing::Point<int>(1, 2)});
    EXPECT_FALSE(a == b);
    a.SetMatchedKeyPoints2({Drawing::Point<int>(1, 2)});
    EXPECT_TRUE(System::ToAny(a) == System::ToAny(b)) << "boxed records compare by value";
    EXPECT_EQ(
        System::ToAny(b).CastTo<Images::Matching::BBFAffineMatchingResults>().MatchedKeyPoints2().size(), 1u);
}

} // namespace
