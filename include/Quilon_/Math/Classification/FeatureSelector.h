// Feature selection: the subset of features with which a classifier
// generator does best. SFFS (sequential floating forward selection) adds
// the feature that helps most, then drops features while that helps. The
// concrete selector comes from an implementation library:
//
//   using namespace Quilon_::Math::Classification;
//   System::Ref<ISFFSFeatureSelector> selector = SFFSFeatureSelector::New(generator);
//   std::vector<bool> kept = selector->Select(base);
#pragma once

#include "Quilon_/Math/Classification/ProgressEventArgs.h"

namespace Quilon_::Math {
class IDeviationEvaluationFunction;
} // namespace Quilon_::Math

namespace Quilon_::Math::Classification {

class IBase;
class IClassifierGenerator;

class QUILON_API IFeatureSelector : public virtual System::Interface {
    QUILON_INTERFACE(IFeatureSelector)
public:
    virtual System::Ref<IClassifierGenerator> ClassifierGenerator() = 0;
    virtual void SetClassifierGenerator(System::Ref<IClassifierGenerator> generator) = 0;
    // Runs the selection on the base; the features kept.
    virtual std::vector<bool> Select(System::Ref<IBase> base) = 0;
    // The result of the last selection.
    virtual std::vector<bool> SelectedFeatures() = 0;
    virtual double BestCost() = 0;
    // Disabled, a selection keeps every feature.
    virtual bool Enabled() = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual System::Ref<IDeviationEvaluationFunction> DeviationEvaluationFunction() = 0;
    virtual void SetDeviationEvaluationFunction(System::Ref<IDeviationEvaluationFunction> function) = 0;
    virtual FeatureSelectorEvent& Progress() = 0;
};

class QUILON_API ISFFSFeatureSelector : public virtual IFeatureSelector {
    QUILON_INTERFACE(ISFFSFeatureSelector)
public:
    // The share of learning samples kept aside to evaluate each subset.
    virtual double ValidationRatio() = 0;
    virtual void SetValidationRatio(double ratio) = 0;
    virtual bool StopIfErrorIncrease() = 0;
    virtual void SetStopIfErrorIncrease(bool stop) = 0;
};

namespace SFFSFeatureSelector {

using Factory = System::Functions::Template::Factory<System::Ref<ISFFSFeatureSelector>(
    System::Ref<IClassifierGenerator>)>;
extern QUILON_API Factory New;

namespace DefaultValues {
QUILON_API bool FeatureSelectionEnabled();
QUILON_API void SetFeatureSelectionEnabled(bool value);
// 0 <= ratio <= 1, else "Invalid validation ratio : %1%.".
QUILON_API double ValidationRatio();
QUILON_API void SetValidationRatio(double value);
QUILON_API bool SplitSamples();
QUILON_API void SetSplitSamples(bool value);
QUILON_API bool BalanceLearnSamples();
QUILON_API void SetBalanceLearnSamples(bool value);
// Empty until a library sets it; reading it then raises.
QUILON_API System::Ref<IDeviationEvaluationFunction> DeviationEvaluationFunction();
QUILON_API void SetDeviationEvaluationFunction(System::Ref<IDeviationEvaluationFunction> value);
QUILON_API bool StopIfErrorIncrease();
QUILON_API void SetStopIfErrorIncrease(bool value);
} // namespace DefaultValues

} // namespace SFFSFeatureSelector

} // namespace Quilon_::Math::Classification
