// Classifiers: what a generator learns from a base, and what assigns a
// class to a vector of features. The concrete classifiers come from an
// implementation library:
//
//   System::Ref<Math::Classification::IClassifier> classifier = generator->Generate(base);
//   std::int64_t classIndex = classifier->Classify({0.3, 12.0});
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Math {
class IRangeD;
class IDeviationEvaluationFunction;
} // namespace Quilon_::Math

namespace Quilon_::Math::Classification {

class IBase;

class QUILON_API IClassifier : public virtual System::Interface {
    QUILON_INTERFACE(IClassifier)
public:
    virtual std::int64_t FeatureCount() = 0;
    virtual std::int64_t ClassCount() = 0;
    virtual std::vector<std::wstring> ClassNames() = 0;
    virtual void SetClassNames(const std::vector<std::wstring>& names) = 0;
    virtual std::vector<std::wstring> FeatureNames() = 0;
    virtual void SetFeatureNames(const std::vector<std::wstring>& names) = 0;
    // The features the classifier reads; the others are ignored.
    virtual std::vector<bool> SelectedFeatures() = 0;
    virtual void SetSelectedFeatures(const std::vector<bool>& selected) = 0;
    // The range features are mapped into before classifying.
    virtual System::Pointer<IRangeD, 0> InputRange() = 0;
    virtual void SetInputRange(System::Pointer<IRangeD, 0> range) = 0;
    virtual std::vector<System::Pointer<IRangeD, 0>> FeatureRanges() = 0;
    virtual void SetFeatureRanges(const std::vector<System::Pointer<IRangeD, 0>>& ranges) = 0;
    // The class of a sample, -1 when rejected.
    virtual std::int64_t Classify(const std::vector<double>& features) = 0;
    // The score of each class for a sample.
    virtual std::vector<double> Evaluate(const std::vector<double>& features) = 0;
    // The class of each sample of a base.
    virtual std::vector<std::int64_t> ClassifyBase(System::Ref<IBase> base) = 0;
    // The deviation over the learning or the test samples of a base.
    virtual double Test(System::Ref<IBase> base, System::Ref<IDeviationEvaluationFunction> function,
                        bool learningSamples) = 0;
    // Below this score a sample is rejected.
    virtual double RejectThreshold() = 0;
    virtual void SetRejectThreshold(double threshold) = 0;
    virtual std::wstring Description() = 0;
};

namespace Classifier::DefaultValues {
// Empty until a library sets it; reading it then raises.
QUILON_API System::Ref<IRangeD> InputRange();
QUILON_API void SetInputRange(System::Ref<IRangeD> value);
} // namespace Classifier::DefaultValues

// What builds a classifier from the learning samples of a base.
class QUILON_API IClassifierGenerator : public virtual System::Interface {
    QUILON_INTERFACE(IClassifierGenerator)
public:
    virtual System::Ref<IClassifier> Generate(System::Ref<IBase> base) = 0;
    // The same, reading only the selected features (for feature selection).
    virtual System::Ref<IClassifier> GenerateOnFeatures(System::Ref<IBase> base,
                                                        const std::vector<bool>& features) = 0;
};

} // namespace Quilon_::Math::Classification
