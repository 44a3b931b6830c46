// Ends the learning when the cost, averaged over blocks of epochs, falls by
// less than a minimum from one block to the next:
//
//   using namespace Quilon_::NeuralNetworks::BackPropagation;
//   conditions->Add(TerminationConditions::MinAverageBlockDescent::New(1e-5, cost, std::int64_t(50),
//   std::int64_t(3)));
#pragma once

#include "Quilon_/NeuralNetworks/BackPropagation/TerminationCondition.h"

#include <cstdint>

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

class QUILON_API IMinAverageBlockDescent : public virtual IDeviationEvaluationFunctionTerminationCondition {
    QUILON_INTERFACE(IMinAverageBlockDescent)
public:
    virtual double MinAverageBlockDescent() = 0;
    virtual void SetMinAverageBlockDescent(double descent) = 0;
    virtual std::int64_t BlockSize() = 0;
    virtual void SetBlockSize(std::int64_t size) = 0;
    // How many blocks the descent is averaged over.
    virtual std::int64_t BlockCount() = 0;
    virtual void SetBlockCount(std::int64_t count) = 0;
};

namespace MinAverageBlockDescent {

using Factory = System::Functions::Template::Factory<System::Ref<IMinAverageBlockDescent>(
    double, System::Ref<Math::IDeviationEvaluationFunction>, std::int64_t, std::int64_t)>;
extern QUILON_API Factory New;

namespace DefaultValues {
// v >= 0, else "Invalid minimum average block descent : %1%.".
QUILON_API double MinAverageBlockDescent();
QUILON_API void SetMinAverageBlockDescent(double value);
// v >= 1, else "Invalid block size value : %1%.".
QUILON_API std::int64_t BlockSize();
QUILON_API void SetBlockSize(std::int64_t value);
// v >= 2, else "Invalid block count value : %1%.".
QUILON_API std::int64_t BlockCount();
QUILON_API void SetBlockCount(std::int64_t value);
// Empty until a library sets it; reading it then raises.
QUILON_API System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction();
QUILON_API void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> value);
} // namespace DefaultValues

} // namespace MinAverageBlockDescent

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
