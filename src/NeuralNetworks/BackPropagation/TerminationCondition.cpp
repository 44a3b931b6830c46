#include "Quilon_/NeuralNetworks/BackPropagation/TerminationCondition.h"

#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/NeuralNetworks/DeviationsEvaluator.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::BackPropagation {

QUILON_DEFINE_INTERFACE_TYPE(ITerminationConditionEventArgs,
                             L"Quilon_::NeuralNetworks::BackPropagation::ITerminationConditionEventArgs",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(ITerminationCondition,
                             L"Quilon_::NeuralNetworks::BackPropagation::ITerminationCondition",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(
    IDeviationEvaluationFunctionTerminationCondition,
    L"Quilon_::NeuralNetworks::BackPropagation::IDeviationEvaluationFunctionTerminationCondition",
    ITerminationCondition)
QUILON_DEFINE_INTERFACE_TYPE(ITerminationConditionCollection,
                             L"Quilon_::NeuralNetworks::BackPropagation::ITerminationConditionCollection",
                             System::Collections::Template::ICollection<ITerminationCondition>)
QUILON_DEFINE_INTERFACE_TYPE(ITerminationConditionEvents,
                             L"Quilon_::NeuralNetworks::BackPropagation::ITerminationConditionEvents",
                             System::Interface)

namespace {
[[maybe_unused]] const System::Type* const terminationConditionsViewType =
    &System::Collections::Template::ICollection<ITerminationCondition>::GetType();
} // namespace

TerminationConditionCollection::Factory TerminationConditionCollection::New;
TerminationConditionEventArgs::Factory TerminationConditionEventArgs::New;

} // namespace Quilon_::NeuralNetworks::BackPropagation
