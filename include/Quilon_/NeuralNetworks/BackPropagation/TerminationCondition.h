// When back-propagation stops: conditions tested at the end of each epoch,
// held by an engine in a collection; the first that holds ends the
// learning. The concrete conditions come from an implementation library
// (see TerminationConditions/):
//
//   using namespace Quilon_::NeuralNetworks::BackPropagation;
//   System::Ref<ITerminationConditionCollection> conditions = TerminationConditionCollection::New();
//   conditions->Add(TerminationConditions::MaxEpochCount::New(std::int64_t(500)));
//   BackPropagationEngine::DefaultValues::SetTerminationConditionCollection(conditions);
#pragma once

#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Event.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <string>

namespace Quilon_::Math {
class IDeviationEvaluationFunction;
} // namespace Quilon_::Math

namespace Quilon_::NeuralNetworks {
class IDeviationsEvaluator;
} // namespace Quilon_::NeuralNetworks

namespace Quilon_::NeuralNetworks::BackPropagation {

class ITerminationCondition;

// What a condition is tested with: the epoch and the deviations of the
// network; the condition that holds says so here.
class QUILON_API ITerminationConditionEventArgs : public virtual System::Interface {
    QUILON_INTERFACE(ITerminationConditionEventArgs)
public:
    virtual std::int64_t Epoch() = 0;
    virtual System::Ref<IDeviationsEvaluator> DeviationsEvaluator() = 0;
    virtual bool& Terminate() = 0;
    virtual System::Pointer<ITerminationCondition, 0> TerminatingCondition() = 0;
    virtual void SetTerminatingCondition(System::Pointer<ITerminationCondition, 0> condition) = 0;
    // Why the learning ended, for logs and viewers.
    virtual std::wstring Reason() = 0;
    virtual void SetReason(const std::wstring& reason) = 0;
};

using TerminationConditionEvent = System::Event<System::Ref<ITerminationConditionEventArgs>>;

class QUILON_API ITerminationCondition : public virtual System::Interface {
    QUILON_INTERFACE(ITerminationCondition)
public:
    // Whether the learning ends at this epoch; marks the arguments if so.
    virtual bool Test(System::Ref<ITerminationConditionEventArgs> args) = 0;
    // Forgets what earlier epochs told, before a new learning.
    virtual void Reset() = 0;
};

// A condition on the cost that one deviation function gives.
class QUILON_API IDeviationEvaluationFunctionTerminationCondition : public virtual ITerminationCondition {
    QUILON_INTERFACE(IDeviationEvaluationFunctionTerminationCondition)
public:
    virtual System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction() = 0;
    virtual void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> function) = 0;
};

class QUILON_API ITerminationConditionCollection
    : public virtual System::Collections::Template::ICollection<ITerminationCondition> {
    QUILON_INTERFACE(ITerminationConditionCollection)
};

// The engine's event through which its conditions are tested.
class QUILON_API ITerminationConditionEvents : public virtual System::Interface {
    QUILON_INTERFACE(ITerminationConditionEvents)
public:
    virtual TerminationConditionEvent& TerminationConditionTest() = 0;
};

namespace TerminationConditionCollection {
using Factory = System::Functions::Template::Factory<System::Ref<ITerminationConditionCollection>()>;
extern QUILON_API Factory New;
} // namespace TerminationConditionCollection

namespace TerminationConditionEventArgs {
// (epoch, deviations).
using Factory = System::Functions::Template::Factory<System::Ref<ITerminationConditionEventArgs>(
    std::int64_t, System::Ref<IDeviationsEvaluator>)>;
extern QUILON_API Factory New;
} // namespace TerminationConditionEventArgs

} // namespace Quilon_::NeuralNetworks::BackPropagation
