// The defaults of the classification classes: their documented values, the
// limits of the ratios with their messages, and the object defaults that
// stay empty until a library stores them.
#include "Quilon_/Math/Classification/Base.h"
#include "Quilon_/Math/Classification/Classifier.h"
#include "Quilon_/Math/Classification/FeatureSelector.h"
#include "Quilon_/Math/Classification/MOCA.h"
#include "Quilon_/Math/Range.h"

#include "../NeuralNetworks/DefaultLimits.h"
#include "../NeuralNetworks/LearningDoubles.h"
#include "../Support/InChildProcess.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::ClassificationDefaults {

using namespace Quilon_::Math::Classification;
using Learning::LimitRow;

using ClassificationDefaultsTest = RaisingTest;

TEST_F(ClassificationDefaultsTest, RatiosAreBoundedAndARefusalStoresNothing)
{
    const std::vector<LimitRow> rows = {
        {"Base::TestRatio",
         [] { return Base::DefaultValues::TestRatio(); },
         [](double v) { Base::DefaultValues::SetTestRatio(v); },
         0.25,
         {0, 1, 0.5},
         {-0.0001, 1.5},
         L"Invalid test ratio."},
        {"SFFSFeatureSelector::ValidationRatio",
         [] { return SFFSFeatureSelector::DefaultValues::ValidationRatio(); },
         [](double v) { SFFSFeatureSelector::DefaultValues::SetValidationRatio(v); },
         0.25,
         {0, 1},
         {-0.5, 2},
         L"Invalid validation ratio : %1%."},
    };
    for (const LimitRow& row : rows)
        Learning::CheckLimitRow(row);
}

TEST_F(ClassificationDefaultsTest, TestRatioIsReportedFromTheBaseSource)
{
    const auto raised = Raised([] { Base::DefaultValues::SetTestRatio(-1); });
    ASSERT_TRUE(raised);
    EXPECT_EQ(raised->File(), L"Math/Classification/Base.cpp");
}

TEST_F(ClassificationDefaultsTest, PlainDefaultsStartAsDocumented)
{
    EXPECT_FALSE(Base::DefaultValues::ComputeFeaturesLimitsOnLearningSamplesMapped());
    EXPECT_TRUE(Base::DefaultValues::LearnMultipleClassSamples());
    EXPECT_FALSE(Base::DefaultValues::IgnoreMultipleClassSamples());
    EXPECT_EQ(MOCAGenerator::DefaultValues::BinaryClassifierCombinationMethod(), 3);
    EXPECT_FALSE(MOCAGenerator::DefaultValues::ReuseClassifierGeneratorClassifier());
    EXPECT_TRUE(SFFSFeatureSelector::DefaultValues::FeatureSelectionEnabled());
    EXPECT_TRUE(SFFSFeatureSelector::DefaultValues::SplitSamples());
    EXPECT_TRUE(SFFSFeatureSelector::DefaultValues::BalanceLearnSamples());
    EXPECT_FALSE(SFFSFeatureSelector::DefaultValues::StopIfErrorIncrease());
}

TEST_F(ClassificationDefaultsTest, ObjectDefaultsAreEmptyUntilStoredAndReleasedAtTheEnd)
{
    InChildProcess([] {
        Library::SetLibraries({});
        Library::Initialize();
        // The optional one reads as empty; the others refuse to be read.
        EXPECT_FALSE(Base::DefaultValues::InputRange());
        const std::wstring empty =
            L"Pointer <Quilon_::Math::IDeviationEvaluationFunction> : attempt to assign 0 to a reference";
        EXPECT_EQ(RaisedMessage([] { MOCAGenerator::DefaultValues::DeviationEvaluationFunction(); }), empty);
        EXPECT_EQ(RaisedMessage([] { MOCAGenerator::DefaultValues::InnerDeviationEvaluationFunction(); }),
                  empty);
        EXPECT_EQ(RaisedMessage([] { SFFSFeatureSelector::DefaultValues::DeviationEvaluationFunction(); }),
                  empty);
        EXPECT_EQ(RaisedMessage([] { Classifier::DefaultValues::InputRange(); }),
                  L"Pointer <Quilon_::Math::IRangeD> : attempt to assign 0 to a reference");

        // A setter releases the object it replaces; the end releases the last.
        MOCAGenerator::DefaultValues::SetDeviationEvaluationFunction(
            System::Ref<Math::IDeviationEvaluationFunction>(new Learning::CCost));
        {
            System::Ref<Math::IDeviationEvaluationFunction> second(new Learning::CCost);
            MOCAGenerator::DefaultValues::SetDeviationEvaluationFunction(second);
            EXPECT_EQ(Learning::CCost::Live(), 1);
            EXPECT_TRUE(MOCAGenerator::DefaultValues::DeviationEvaluationFunction() == second);
        }
        EXPECT_EQ(Learning::CCost::Live(), 1);

        Library::Finalize();
        EXPECT_EQ(Learning::CCost::Live(), 0);
        EXPECT_EQ(RaisedMessage([] { MOCAGenerator::DefaultValues::DeviationEvaluationFunction(); }), empty);
    });
}

} // namespace Quilon_::Tests::ClassificationDefaults
