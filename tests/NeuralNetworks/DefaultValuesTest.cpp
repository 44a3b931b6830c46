// The defaults of the network classes: the limits of every bounded row
// with its message (shared rows such as the learning rate are checked in
// each class that has them), the documented starting values, the
// termination conditions that may not be empty, and the seed.
#include "Quilon_/NeuralNetworks/ActivationFunction.h"
#include "Quilon_/NeuralNetworks/BackPropagation/BackPropagationEngine.h"
#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MaxEpochCount.h"
#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MaxEpochCountSinceMinCost.h"
#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MaxEpochOfIncreasingCost.h"
#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MinAverageBlockDescent.h"
#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MinCost.h"
#include "Quilon_/NeuralNetworks/Classification/Classifier.h"
#include "Quilon_/NeuralNetworks/Initializer.h"
#include "Quilon_/NeuralNetworks/LearningEngine.h"
#include "Quilon_/NeuralNetworks/NeuralNetwork.h"

#include "../Support/InChildProcess.h"
#include "DefaultLimits.h"
#include "LearningDoubles.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace Quilon_::Tests::NetworkDefaults {

using namespace Quilon_::NeuralNetworks;
using namespace Quilon_::NeuralNetworks::BackPropagation;
using Learning::LimitRow;

using NetworkDefaultsTest = RaisingTest;

// An int64 setting in a row of doubles.
#define QUILON_INT_ROW(Ns, Name)                                                                             \
    [] { return static_cast<double>(Ns::DefaultValues::Name()); },                                           \
        [](double v) { Ns::DefaultValues::Set##Name(static_cast<std::int64_t>(v)); }
#define QUILON_DOUBLE_ROW(Ns, Name)                                                                          \
    [] { return Ns::DefaultValues::Name(); }, [](double v) { Ns::DefaultValues::Set##Name(v); }

TEST_F(NetworkDefaultsTest, EveryBoundedRowRefusesOutsideItsLimitAndKeepsItsValue)
{
    namespace TC = TerminationConditions;
    const std::wstring learningRate = L"Invalid learning rate : %1%.";
    const std::wstring momentum = L"Invalid momentum : %1%.";
    const std::wstring ratio = L"Invalid validation ratio : %1%.";
    const std::wstring updateValue = L"Invalid weight update value : %1%.";
    const std::wstring factor = L"Invalid update value value : %1%.";
    const std::wstring epoch = L"Invalid epoch : %1%.";
    const std::wstring blockSize = L"Invalid block size value : %1%.";
    const std::vector<LimitRow> rows = {
        {"BackPropagationEngine::ValidationRatio",
         QUILON_DOUBLE_ROW(BackPropagationEngine, ValidationRatio),
         0.25,
         {0, 1},
         {-0.0001, 1.5},
         ratio},
        {"Gradient::LearningRate",
         QUILON_DOUBLE_ROW(GradientBackPropagationEngine, LearningRate),
         0.01,
         {1, 0.5},
         {0, 1.0000001, -1},
         learningRate},
        {"Gradient::Momentum",
         QUILON_DOUBLE_ROW(GradientBackPropagationEngine, Momentum),
         0,
         {0, 1},
         {-0.1, 1.5},
         momentum},
        {"RProp::LearningRate",
         QUILON_DOUBLE_ROW(RPropGradientBackPropagationEngine, LearningRate),
         0.0001,
         {1},
         {0, 2},
         learningRate},
        {"RProp::Momentum",
         QUILON_DOUBLE_ROW(RPropGradientBackPropagationEngine, Momentum),
         0,
         {0, 1},
         {-1, 1.5},
         momentum},
        {"RProp::InitialUpdateValue",
         QUILON_DOUBLE_ROW(RPropGradientBackPropagationEngine, InitialUpdateValue),
         0.1,
         {1e-9, 1000},
         {0, -1},
         updateValue},
        {"RProp::MinUpdateValue",
         QUILON_DOUBLE_ROW(RPropGradientBackPropagationEngine, MinUpdateValue),
         0.000001,
         {0.5},
         {0},
         updateValue},
        {"RProp::MaxUpdateValue",
         QUILON_DOUBLE_ROW(RPropGradientBackPropagationEngine, MaxUpdateValue),
         50.0,
         {1},
         {0, -50},
         updateValue},
        {"RProp::UpdateValueIncreaseFactor",
         QUILON_DOUBLE_ROW(RPropGradientBackPropagationEngine, UpdateValueIncreaseFactor),
         1.2,
         {1.0001, 10},
         {1, 0.5},
         factor},
        {"RProp::UpdateValueDecreaseFactor",
         QUILON_DOUBLE_ROW(RPropGradientBackPropagationEngine, UpdateValueDecreaseFactor),
         0.5,
         {0.0001, 0.9999},
         {1, 0, 1.5},
         factor},
        {"MaxEpochCount", QUILON_INT_ROW(TC::MaxEpochCount, MaxEpochCount), 10000, {0, 5}, {-1}, epoch},
        {"MaxEpochCountSinceMinCost",
         QUILON_INT_ROW(TC::MaxEpochCountSinceMinCost, MaxEpochCountSinceMinCost),
         1000,
         {0},
         {-1},
         epoch},
        {"MaxEpochOfIncreasingCost",
         QUILON_INT_ROW(TC::MaxEpochOfIncreasingCost, MaxEpochOfIncreasingCost),
         1000,
         {0},
         {-1},
         epoch},
        {"MaxEpochOfIncreasingCost::BlockSize",
         QUILON_INT_ROW(TC::MaxEpochOfIncreasingCost, BlockSize),
         1,
         {1, 7},
         {0, -3},
         blockSize},
        {"MinAverageBlockDescent",
         QUILON_DOUBLE_ROW(TC::MinAverageBlockDescent, MinAverageBlockDescent),
         0.00001,
         {0},
         {-0.5},
         L"Invalid minimum average block descent : %1%."},
        {"MinAverageBlockDescent::BlockSize",
         QUILON_INT_ROW(TC::MinAverageBlockDescent, BlockSize),
         50,
         {1},
         {0},
         blockSize},
        {"MinAverageBlockDescent::BlockCount",
         QUILON_INT_ROW(TC::MinAverageBlockDescent, BlockCount),
         3,
         {2},
         {1, 0},
         L"Invalid block count value : %1%."},
        {"MinCost",
         QUILON_DOUBLE_ROW(TC::MinCost, MinCost),
         0,
         {0, 3},
         {-0.25},
         L"Invalid minimum cost : %1%."},
        {"SingleLayerNetworkOptimizer::MinNeurons",
         QUILON_INT_ROW(SingleLayerNetworkOptimizer, MinNeurons),
         1,
         {1, 9},
         {0},
         L"Invalid neurons count : %1%."},
        {"SingleLayerNetworkOptimizer::MaxNeurons",
         QUILON_INT_ROW(SingleLayerNetworkOptimizer, MaxNeurons),
         50,
         {1},
         {0, -2},
         L"Invalid neurons count : %1%."},
        {"SingleLayerNetworkOptimizer::ValidationRatio",
         QUILON_DOUBLE_ROW(SingleLayerNetworkOptimizer, ValidationRatio),
         0.25,
         {0, 1},
         {1.25},
         ratio},
    };
    for (const LimitRow& row : rows)
        Learning::CheckLimitRow(row);
}

TEST_F(NetworkDefaultsTest, UnboundedDefaultsStartAsDocumented)
{
    EXPECT_EQ(NeuralNetwork::DefaultValues::NeuronCount(), 50);
    EXPECT_TRUE(NeuralNetwork::DefaultValues::BiasEnabled());
    EXPECT_EQ(NeuralNetwork::DefaultValues::BiasValue(), 1.0);
    EXPECT_FALSE(NeuralNetwork::DefaultValues::OutputLayerActivationFunction());
    EXPECT_EQ(RandomInitializer::DefaultValues::Minimum(), -1.0);
    EXPECT_EQ(RandomInitializer::DefaultValues::Maximum(), 1.0);
    EXPECT_TRUE(BackPropagationEngine::DefaultValues::SplitSamples());
    EXPECT_TRUE(BackPropagationEngine::DefaultValues::LessOrEqual());
    EXPECT_EQ(BackPropagationEngine::DefaultValues::BalanceLearnSamplesMode(), 1);
    EXPECT_TRUE(
        BackPropagationEngine::DefaultValues::BestNeuralNetworksDeviationEvaluationFunctions().empty());
    EXPECT_EQ(GradientBackPropagationEngine::DefaultValues::LearningMode(), 1);
    EXPECT_TRUE(GradientBackPropagationEngine::DefaultValues::RandomizeSamples());
    EXPECT_TRUE(RPropGradientBackPropagationEngine::DefaultValues::UseBackTracking());
    EXPECT_EQ(SingleLayerNetworkOptimizer::DefaultValues::BalanceLearnSamplesMode(), 0);
    EXPECT_FALSE(SingleLayerNetworkOptimizer::DefaultValues::ConfirmResult());
    EXPECT_TRUE(SingleLayerNetworkOptimizer::DefaultValues::StopIfEvaluationIncrease());
    EXPECT_TRUE(SingleLayerNetworkOptimizer::DefaultValues::UseOneNeuronIfTwoClasses());
    EXPECT_FALSE(Classification::MONNAGenerator::DefaultValues::FeatureSelector());
}

TEST_F(NetworkDefaultsTest, SetSeedStoresTheSeedAndRestartsTheRandomSequence)
{
    InChildProcess([] {
        RandomInitializer::DefaultValues::SetSeed(5);
        EXPECT_EQ(RandomInitializer::DefaultValues::Seed(), 5);
        const int first = std::rand();
        std::rand();
        RandomInitializer::DefaultValues::SetSeed(5);
        EXPECT_EQ(std::rand(), first);
        std::srand(5);
        EXPECT_EQ(std::rand(), first);
    });
}

TEST_F(NetworkDefaultsTest, AnEmptyTerminationCollectionIsRefusedAndTheEarlierOneStays)
{
    InChildProcess([] {
        Library::SetLibraries({});
        Library::Initialize();
        namespace Engine = BackPropagationEngine::DefaultValues;
        EXPECT_EQ(RaisedMessage([] { Engine::TerminationConditionCollection(); }),
                  L"Pointer <Quilon_::NeuralNetworks::BackPropagation::ITerminationConditionCollection> : "
                  L"attempt to "
                  L"assign 0 to a reference");

        System::Ref<ITerminationConditionCollection> first(new Learning::CConditions);
        first->Add(System::Ref<ITerminationCondition>(new Learning::CCondition));
        Engine::SetTerminationConditionCollection(first);

        System::Ref<ITerminationConditionCollection> empty(new Learning::CConditions);
        EXPECT_EQ(RaisedMessage([&] { Engine::SetTerminationConditionCollection(empty); }),
                  L"Invalid termination condition collection size.");
        EXPECT_TRUE(Engine::TerminationConditionCollection() == first);

        // The other object defaults of the engines' families refuse to be
        // read until stored.
        EXPECT_NE(RaisedMessage([] { NeuralNetwork::DefaultValues::ActivationFunction(); }), L"");
        EXPECT_NE(RaisedMessage(
                      [] { TerminationConditions::MinCost::DefaultValues::DeviationEvaluationFunction(); }),
                  L"");
        EXPECT_NE(RaisedMessage([] { Classification::MONNAGenerator::DefaultValues::ClassifierGenerator(); }),
                  L"");

        Library::Finalize();
        EXPECT_NE(RaisedMessage([] { Engine::TerminationConditionCollection(); }), L"");
    });
}

} // namespace Quilon_::Tests::NetworkDefaults

#undef QUILON_INT_ROW
#undef QUILON_DOUBLE_ROW
