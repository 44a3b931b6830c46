// Ends the learning when the least cost is that many epochs old:
//
//   using namespace Quilon_::NeuralNetworks::BackPropagation;
//   conditions->Add(TerminationConditions::MaxEpochCountSinceMinCost::New(std::int64_t(100), cost));
#pragma once

#include "Quilon_/NeuralNetworks/BackPropagation/TerminationCondition.h"

#include <cstdint>

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

class QUILON_API IMaxEpochCountSinceMinCost
    : public virtual IDeviationEvaluationFunctionTerminationCondition {
    QUILON_INTERFACE(IMaxEpochCountSinceMinCost)
public:
    virtual std::int64_t MaxEpochCountSinceMinCost() = 0;
    virtual void SetMaxEpochCountSinceMinCost(std::int64_t count) = 0;
};

namespace MaxEpochCountSinceMinCost {

using Factory = System::Functions::Template::Factory<System::Ref<IMaxEpochCountSinceMinCost>(
    std::int64_t, System::Ref<Math::IDeviationEvaluationFunction>)>;
extern QUILON_API Factory New;

namespace DefaultValues {
// v >= 0, else "Invalid epoch : %1%.".
QUILON_API std::int64_t MaxEpochCountSinceMinCost();
QUILON_API void SetMaxEpochCountSinceMinCost(std::int64_t value);
// Empty until a library sets it; reading it then raises.
QUILON_API System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction();
QUILON_API void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> value);
} // namespace DefaultValues

} // namespace MaxEpochCountSinceMinCost

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
