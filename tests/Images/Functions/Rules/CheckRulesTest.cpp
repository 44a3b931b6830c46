// The rules that test image arguments, run through operator calls as a
// catalogue chain runs them: what they accept, the messages with which they
// refuse, and which argument a refusal names.
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageDimension.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/CopyExtendedProperties.h"
#include "Quilon_/Images/Math/MatrixRules.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"

#include "../../../Support/BasicLibrary.h"
#include "../../../Support/InChildProcess.h"
#include "ImageRuleSupport.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace Quilon_;
using namespace Quilon_::Images::Functions::Rules;
using namespace Quilon_::Tests::ImageRules;
using namespace Quilon_::System;
using Quilon_::System::Functions::rtCheck;
using Quilon_::System::Functions::rtPostExecute;
using Quilon_::System::Functions::Rules::IRule;
using Quilon_::System::Functions::Rules::RuleFailures;
using Tests::Chain;
using Tests::InChildProcess;
using Tests::StartBasic;

// What a Check chain of `rule` says about (first, second).
std::wstring Check(const Pointer<IRule>& rule, const ImageRef& first, const ImageRef& second)
{
    ImageOperator op(&Receive2);
    op.SetRules(rtCheck, Chain({rule}));
    return Refusal([&] { op(first, second); });
}

struct Case {
    const char* what;
    std::function<ImageRef()> first;
    std::function<ImageRef()> second;
    std::function<Pointer<IRule>()> rule;
    std::wstring message;
};

void RunCases(const std::vector<Case>& cases)
{
    for (const Case& c : cases)
        EXPECT_EQ(Check(c.rule(), c.first(), c.second()), c.message) << c.what;
}

TEST(ImageCheckRules, ScalarRefusesByTypeAndBandsInOrder)
{
    InChildProcess([] {
        StartBasic();
        auto image = [](NumericTypeEnum type) { return [type] { return Plain(type, 4, 3); }; };
        auto scalar = [](bool integral, bool singleBand, bool unsignedOnly) {
            return [=] { return CheckImageScalar::New(0, integral, singleBand, unsignedOnly); };
        };
        auto other = image(ntUInt8);
        RunCases({
            {"float, integral asked", image(ntFloat), other, scalar(true, false, false),
             L"Invalid image data type 'ntFloat': integral type expected"},
            {"signed, unsigned asked", image(ntInt16), other, scalar(false, false, true),
             L"Invalid image data type 'ntInt16': unsigned type expected"},
            {"complex, nothing asked", image(ntComplexF), other, scalar(false, false, false),
             L"Invalid image data type 'ntComplexF': scalar type expected"},
            {"complex, integral asked: the integral test comes first", image(ntComplexF), other,
             scalar(true, false, false), L"Invalid image data type 'ntComplexF': integral type expected"},
            {"a band axis of one value is not single-band", [] { return Banded(ntUInt8, 4, 3, 1); }, other,
             scalar(false, true, false), L"Single band image expected"},
            {"unsigned single-band integers", image(ntUInt16), other, scalar(true, true, true), L""},
            {"three signed bands, nothing asked", [] { return Banded(ntInt8, 4, 3, 3); }, other,
             scalar(false, false, false), L""},
        });
    });
}

TEST(ImageCheckRules, CompatibleTestsAxesThenTypeThenColour)
{
    InChildProcess([] {
        StartBasic();
        const std::wstring xy = Geometry::AxesToString(Axes::aXY);
        auto plain = [](NumericTypeEnum type) { return [type] { return Plain(type, 4, 3); }; };
        auto banded = [] { return Banded(ntUInt8, 4, 3, 3); };
        auto colour = [] { return Colour(4, 3); };
        auto compat = [](unsigned short options) {
            return [options] { return CheckImageCompatible::New(0, 1, options); };
        };
        RunCases({
            {"ignoring the band axis", plain(ntUInt8), banded, compat(mcAxesIgnoringBand), L""},
            {"exact axes name the image's own", plain(ntUInt8), banded, compat(mcAxesExact),
             L"Image axes mismatch: " + xy},
            {"bit 2 alone tests no axes", plain(ntUInt8), banded, compat(2), L""},
            {"size and category bits test nothing", [] { return Volume(ntUInt16, 4, 3, 2); }, plain(ntUInt8),
             compat(mcSize | mcCategory), L""},
            {"equality pairs with the 'contain' text, and wins over containment", plain(ntUInt16),
             plain(ntUInt8), compat(mcSameType | mcContainingType),
             L"Image data type should contain 'ntUInt8'"},
            {"containment that holds", plain(ntUInt16), plain(ntUInt8), compat(mcContainingType), L""},
            {"containment pairs with the 'be' text", plain(ntUInt8), plain(ntUInt16),
             compat(mcContainingType), L"Image data type should be 'ntUInt16'"},
            {"the axes fail before the type", plain(ntUInt8), [] { return Banded(ntUInt16, 4, 3, 3); },
             compat(mcAxesExact | mcSameType), L"Image axes mismatch: " + xy},
            {"colour against grey", colour, plain(ntUInt8), compat(mcColorSpace),
             L"Color spaces do not match"},
            {"grey against colour", plain(ntUInt8), colour, compat(mcColorSpace),
             L"Color spaces do not match"},
            {"two colour formats without spaces", colour, colour, compat(mcColorSpace), L""},
        });
    });
}

TEST(ImageCheckRules, DimensionCountsSpatialAxesOnly)
{
    InChildProcess([] {
        StartBasic();
        auto other = [] { return Plain(ntUInt8, 2, 2); };
        auto dim = [](std::int64_t dimension, ImageDimensionRelationEnum relation) {
            return [=] { return CheckImageDimension::New(0, dimension, relation); };
        };
        auto timeAndBands = [] {
            return MakeImage(ntUInt8, Geometry::Coordinates::New(4, 3, 2, 3, Axes(Axes::aXYT | Geometry::aB)),
                             L"XYTB");
        };
        RunCases({
            {"XYB is plane", [] { return Banded(ntUInt8, 4, 3, 3); }, other, dim(2, idrEqual), L""},
            {"XYTB is a plane", timeAndBands, other, dim(2, idrEqual), L""},
            {"a volume is not a plane", [] { return Volume(ntUInt8, 4, 3, 2); }, other, dim(2, idrEqual),
             L"Invalid image dimension: 3 (2 expected)"},
            {"at most a plane", [] { return Volume(ntUInt8, 4, 3, 2); }, other, dim(2, idrLessOrEqual),
             L"Invalid image dimension: 3 (<= 2 expected)"},
            {"at least a volume", [] { return Plain(ntUInt8, 4, 3); }, other, dim(3, idrGreaterOrEqual),
             L"Invalid image dimension: 2 (>= 3 expected)"},
            {"an unknown relation accepts", [] { return Volume(ntUInt8, 4, 3, 2); }, other,
             dim(2, static_cast<ImageDimensionRelationEnum>(7)), L""},
        });
    });
}

TEST(ImageCheckRules, CategoryNamesTheExpectedCategory)
{
    InChildProcess([] {
        StartBasic();
        ImageRef none = Plain(ntUInt8, 4, 3);
        ImageRef binary = Plain(ntUInt8, 4, 3);
        Images::Image::SetCategory(binary, Images::picBinary, false);
        EXPECT_EQ(Check(CheckImageCategory::New(0, LIString(L"Image.Category.Edge")), none, none),
                  L"Image.Category.Edge image expected");
        EXPECT_EQ(Check(CheckImageBinary::New(0), none, none), L"Image.Category.Binary image expected");
        EXPECT_EQ(Check(CheckImageBinary::New(0), binary, none), L"");
        EXPECT_EQ(Check(CheckImageCategory::New(1, LIString(L"Image.Category.Grey")), none, binary),
                  L"Image.Category.Grey image expected");
    });
}

// Each rule names the argument at its first index, counted from 0 in the
// failure and, where a message numbers it, from 1 in the text.
TEST(ImageCheckRules, RefusalsNameTheRulesFirstIndex)
{
    InChildProcess([] {
        StartBasic();
        ImageRef grey = Plain(ntUInt8, 4, 3);
        ImageRef complex = Plain(ntComplexD, 4, 3);
        ImageRef colour = Colour(4, 3);
        std::vector<Any> arguments{ToAny(grey), ToAny(complex), ToAny(colour),
                                   ToAny(Math::MatrixD::New(3, 3))};
        const std::vector<std::pair<Pointer<IRule>, std::int64_t>> cases{
            {CheckImageScalar::New(1, false, false, false), 1},
            {CheckImageCompatible::New(2, 0, mcAxesExact), 2},
            {CheckImageCompatible::New(0, 1, mcContainingType), 0},
            {CheckImageDimension::New(2, 3, idrEqual), 2},
            {CheckImageBinary::New(1), 1},
            {Images::Math::Detail::CheckImageAgainstMatrix::New(0, 3), 0},
        };
        for (const auto& [rule, index] : cases) {
            RuleFailures failures;
            EXPECT_FALSE(rule->Apply(arguments, failures)) << ToAnsi(Functions::Rules::Present(rule));
            ASSERT_EQ(failures.size(), 1u);
            EXPECT_EQ(failures[0].first, index) << ToAnsi(failures[0].second);
        }
    });
}

void AcceptMatrix(ImageRef, Pointer<Math::IMatrixD>) {}

TEST(ImageCheckRules, MatrixRowsMatchTheBands)
{
    InChildProcess([] {
        StartBasic();
        using MatrixOperator = Functions::Template::Function<void (*)(ImageRef, Pointer<Math::IMatrixD>)>;
        auto check = [](const ImageRef& image, std::int64_t rows) {
            MatrixOperator op(&AcceptMatrix);
            op.SetRules(rtCheck, Chain({Images::Math::Detail::CheckImageAgainstMatrix::New(0, 1)}));
            return Refusal([&] { op(image, Math::MatrixD::New(rows, std::int64_t(2))); });
        };
        EXPECT_EQ(check(Plain(ntUInt8, 4, 3), 3), L"multi-band image expected");
        EXPECT_EQ(check(Banded(ntUInt8, 4, 3, 3), 2), L"Matrix row count does not match image B size");
        EXPECT_EQ(check(Banded(ntUInt8, 4, 3, 3), 3), L"");
    });
}

TEST(ImageCheckRules, CopyExtendedPropertiesCopiesTheCopiableOnes)
{
    InChildProcess([] {
        StartBasic();
        ImageRef source = Plain(ntUInt8, 4, 3);
        ImageRef destination = Plain(ntUInt8, 4, 3);
        ExtendedPropertiesHelper::SetValue(source, LIString(L"Test.Copied"), ToAny(std::int64_t(7)), 7);
        ExtendedPropertiesHelper::SetValue(source, LIString(L"Test.Kept"), ToAny(std::int64_t(8)), 0);
        ImageOperator op(&Receive2);
        op.SetRules(rtPostExecute, Chain({CopyExtendedProperties::New(1, 0)}));
        op(source, destination);
        EXPECT_EQ(
            ExtendedPropertiesHelper::Value(destination, LIString(L"Test.Copied")).CastTo<std::int64_t>(), 7);
        EXPECT_FALSE(ExtendedPropertiesHelper::Find(destination, LIString(L"Test.Kept")));
    });
}

// Tools list chains in the words of the catalogue: flags as numbers,
// words in hexadecimal.
TEST(ImageCheckRules, RulesPresentThemselvesAsTheCatalogueWritesThem)
{
    EXPECT_EQ(Functions::Rules::Present(CheckImageScalar::New(0, false, true, false)),
              L"CCheckImageScalar(0, 0, 1, 0)");
    EXPECT_EQ(Functions::Rules::Present(CheckImageCompatible::New(1, 0, 0x4C)),
              L"CCheckImageCompatible(1, 0, 0x4C)");
    EXPECT_EQ(Functions::Rules::Present(CheckImageBinary::New(1)),
              L"CCheckImageCategory(1, Image.Category.Binary)");
}

} // namespace
