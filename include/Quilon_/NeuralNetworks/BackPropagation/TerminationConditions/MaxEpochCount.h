// Ends the learning after a number of epochs:
//
//   using namespace Quilon_::NeuralNetworks::BackPropagation;
//   conditions->Add(TerminationConditions::MaxEpochCount::New(std::int64_t(500)));
#pragma once

#include "Quilon_/NeuralNetworks/BackPropagation/TerminationCondition.h"

#include <cstdint>

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

class QUILON_API IMaxEpochCount : public virtual ITerminationCondition {
    QUILON_INTERFACE(IMaxEpochCount)
public:
    virtual std::int64_t MaxEpochCount() = 0;
    virtual void SetMaxEpochCount(std::int64_t count) = 0;
};

namespace MaxEpochCount {

using Factory = System::Functions::Template::Factory<System::Ref<IMaxEpochCount>(std::int64_t)>;
extern QUILON_API Factory New;

namespace DefaultValues {
// v >= 0, else "Invalid epoch : %1%.".
QUILON_API std::int64_t MaxEpochCount();
QUILON_API void SetMaxEpochCount(std::int64_t value);
} // namespace DefaultValues

} // namespace MaxEpochCount

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
