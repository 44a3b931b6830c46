// Ends the learning when the cost falls to a minimum:
//
//   using namespace Quilon_::NeuralNetworks::BackPropagation;
//   conditions->Add(TerminationConditions::MinCost::New(0.01, cost));
#pragma once

#include "Quilon_/NeuralNetworks/BackPropagation/TerminationCondition.h"

#include <cstdint>

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

class QUILON_API IMinCost : public virtual IDeviationEvaluationFunctionTerminationCondition {
    QUILON_INTERFACE(IMinCost)
public:
    virtual double MinCost() = 0;
    virtual void SetMinCost(double cost) = 0;
};

namespace MinCost {

using Factory = System::Functions::Template::Factory<System::Ref<IMinCost>(
    double, System::Ref<Math::IDeviationEvaluationFunction>)>;
extern QUILON_API Factory New;

namespace DefaultValues {
// v >= 0, else "Invalid minimum cost : %1%.".
QUILON_API double MinCost();
QUILON_API void SetMinCost(double value);
// Empty until a library sets it; reading it then raises.
QUILON_API System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction();
QUILON_API void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> value);
} // namespace DefaultValues

} // namespace MinCost

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
