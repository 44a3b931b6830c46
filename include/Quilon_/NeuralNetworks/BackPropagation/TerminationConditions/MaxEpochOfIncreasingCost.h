// Ends the learning when the cost, averaged over blocks of epochs, has risen
// for that many epochs:
//
//   using namespace Quilon_::NeuralNetworks::BackPropagation;
//   conditions->Add(TerminationConditions::MaxEpochOfIncreasingCost::New(std::int64_t(50), cost,
//   std::int64_t(5)));
#pragma once

#include "Quilon_/NeuralNetworks/BackPropagation/TerminationCondition.h"

#include <cstdint>

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

class QUILON_API IMaxEpochOfIncreasingCost : public virtual IDeviationEvaluationFunctionTerminationCondition {
    QUILON_INTERFACE(IMaxEpochOfIncreasingCost)
public:
    virtual std::int64_t MaxEpochOfIncreasingCost() = 0;
    virtual void SetMaxEpochOfIncreasingCost(std::int64_t count) = 0;
    virtual std::int64_t BlockSize() = 0;
    virtual void SetBlockSize(std::int64_t size) = 0;
    // For how many epochs the cost has risen so far.
    virtual std::int64_t EpochsOfIncreasingCost() = 0;
};

namespace MaxEpochOfIncreasingCost {

using Factory = System::Functions::Template::Factory<System::Ref<IMaxEpochOfIncreasingCost>(
    std::int64_t, System::Ref<Math::IDeviationEvaluationFunction>, std::int64_t)>;
extern QUILON_API Factory New;

namespace DefaultValues {
// v >= 0, else "Invalid epoch : %1%.".
QUILON_API std::int64_t MaxEpochOfIncreasingCost();
QUILON_API void SetMaxEpochOfIncreasingCost(std::int64_t value);
// v >= 1, else "Invalid block size value : %1%.".
QUILON_API std::int64_t BlockSize();
QUILON_API void SetBlockSize(std::int64_t value);
// Empty until a library sets it; reading it then raises.
QUILON_API System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction();
QUILON_API void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> value);
} // namespace DefaultValues

} // namespace MaxEpochOfIncreasingCost

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
