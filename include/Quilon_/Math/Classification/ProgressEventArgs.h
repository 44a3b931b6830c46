// The progress events of feature selection and of the multi-class
// generator: each step tells its number, whether it improved on the best so
// far, the cost reached and what it tried; a handler may ask to stop.
//
//   selector->Progress().Add(handler);   // handler(sender, Ref<IFeatureSelectorEventArgs>)
//   // in the handler:
//   if (args->Cost() < 0.01) args->Cancel() = true;
#pragma once

#include "Quilon_/System/Event.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace Quilon_::Math::Classification {

// Where in its run a generator is.
enum LearningStageEnumTag : std::int32_t {
    lsStarted = 0,
    lsStepCompleted = 1,
    lsCompleted = 2,
};
using LearningStageEnum = LearningStageEnumTag;

class QUILON_API IFeatureSelectorEventArgs : public virtual System::Interface {
    QUILON_INTERFACE(IFeatureSelectorEventArgs)
public:
    virtual std::int64_t Iteration() = 0;
    virtual bool IsImproved() = 0;
    virtual double Cost() = 0;
    virtual std::vector<bool> SelectedFeatures() = 0;
    virtual LearningStageEnum Stage() = 0;
    // Set by a handler to stop the selection after this step.
    virtual bool& Cancel() = 0;
};

// As above; the step is the binary classifier of a pair of classes.
class QUILON_API IMOCAGeneratorEventArgs : public virtual System::Interface {
    QUILON_INTERFACE(IMOCAGeneratorEventArgs)
public:
    virtual std::int64_t Iteration() = 0;
    virtual bool IsImproved() = 0;
    virtual double Cost() = 0;
    virtual std::pair<std::int64_t, std::int64_t> ClassPair() = 0;
    virtual LearningStageEnum Stage() = 0;
    virtual bool& Cancel() = 0;
};

using FeatureSelectorEvent = System::Event<System::Ref<IFeatureSelectorEventArgs>>;
using MOCAGeneratorEvent = System::Event<System::Ref<IMOCAGeneratorEventArgs>>;

namespace FeatureSelectorEventArgs {
// (iteration, improved, cost, selected features, stage).
using Factory = System::Functions::Template::Factory<System::Ref<IFeatureSelectorEventArgs>(
    std::int64_t, bool, double, const std::vector<bool>&, LearningStageEnum)>;
extern QUILON_API Factory New;
} // namespace FeatureSelectorEventArgs

namespace MOCAGeneratorEventArgs {
// (iteration, improved, cost, pair of classes, stage).
using Factory = System::Functions::Template::Factory<System::Ref<IMOCAGeneratorEventArgs>(
    std::int64_t, bool, double, const std::pair<std::int64_t, std::int64_t>&, LearningStageEnum)>;
extern QUILON_API Factory New;
} // namespace MOCAGeneratorEventArgs

} // namespace Quilon_::Math::Classification
