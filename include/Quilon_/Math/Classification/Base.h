// The learning base of supervised classification: labelled samples (a
// vector of features and the classes it belongs to), split into learning
// and test samples, with the names and ranges of features and classes. The
// concrete base comes from an implementation library:
//
//   using namespace Quilon_::Math::Classification;
//   System::Ref<IBase> base = Base::New(std::int64_t(2), std::vector<std::wstring>{L"round", L"long"},
//                                       std::vector<System::Pointer<Math::IRangeD, 0>>(2));
//   base->AddSample({0.3, 12.0}, {1});
//   Base::DefaultValues::SetTestRatio(0.2);   // bases made from now on
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Math {
class IRangeD;
} // namespace Quilon_::Math

namespace Quilon_::Math::Classification {

using OptionalRange = System::Pointer<IRangeD, 0>;

class QUILON_API IBase : public virtual System::Interface {
    QUILON_INTERFACE(IBase)
public:
    virtual std::int64_t FeatureCount() = 0;
    virtual std::wstring FeatureName(std::int64_t feature) = 0;
    virtual void SetFeatureName(std::int64_t feature, const std::wstring& name) = 0;
    virtual std::vector<std::wstring> FeatureNames() = 0;
    virtual std::int64_t ClassCount() = 0;
    virtual std::wstring ClassName(std::int64_t classIndex) = 0;
    virtual void SetClassName(std::int64_t classIndex, const std::wstring& name) = 0;
    virtual std::vector<std::wstring> ClassNames() = 0;
    // Appends a class; its index.
    virtual std::int64_t AddClass(const std::wstring& name) = 0;
    // The range the feature's values are expected in; empty: found from the
    // samples.
    virtual OptionalRange FeatureRange(std::int64_t feature) = 0;
    virtual void SetFeatureRange(std::int64_t feature, OptionalRange range) = 0;

    virtual std::int64_t SampleCount() = 0;
    // Appends a sample with the classes it belongs to; its index.
    virtual std::int64_t AddSample(const std::vector<double>& features,
                                   const std::vector<std::int64_t>& classes) = 0;
    virtual void RemoveSample(std::int64_t sample) = 0;
    virtual void ClearSamples() = 0;
    virtual std::vector<double> SampleFeatures(std::int64_t sample) = 0;
    virtual void SetSampleFeatures(std::int64_t sample, const std::vector<double>& features) = 0;
    virtual std::vector<std::int64_t> SampleClasses(std::int64_t sample) = 0;
    virtual void SetSampleClasses(std::int64_t sample, const std::vector<std::int64_t>& classes) = 0;
    virtual std::int64_t ClassSampleCount(std::int64_t classIndex) = 0;

    // Learning samples train, the others test.
    virtual bool IsLearningSample(std::int64_t sample) = 0;
    virtual void SetLearningSample(std::int64_t sample, bool learning) = 0;
    virtual std::int64_t LearningSampleCount() = 0;
    virtual std::int64_t TestSampleCount() = 0;
    // Draws the test samples at random, `testRatio` of them.
    virtual void SplitSamples(double testRatio) = 0;

    // The features' ranges from the samples, and a sample mapped from them
    // into the input range.
    virtual void ComputeFeaturesLimits() = 0;
    virtual std::vector<double> MapFeatures(const std::vector<double>& features) = 0;
    virtual OptionalRange InputRange() = 0;
    virtual void SetInputRange(OptionalRange range) = 0;

    // Samples that belong to several classes: learnt once per class, or
    // left out.
    virtual bool LearnMultipleClassSamples() = 0;
    virtual void SetLearnMultipleClassSamples(bool learn) = 0;
    virtual bool IgnoreMultipleClassSamples() = 0;
    virtual void SetIgnoreMultipleClassSamples(bool ignore) = 0;
};

namespace Base {

// [0] empty; [1] (feature count, class names, feature ranges); [2]
// (feature names, class names, feature ranges).
using Factory = System::Functions::Template::Factory<
    System::Ref<IBase>(),
    System::Ref<IBase>(std::int64_t, const std::vector<std::wstring>&, const std::vector<OptionalRange>&),
    System::Ref<IBase>(const std::vector<std::wstring>&, const std::vector<std::wstring>&,
                       const std::vector<OptionalRange>&)>;
extern QUILON_API Factory New;

namespace DefaultValues {
QUILON_API OptionalRange InputRange();
QUILON_API void SetInputRange(OptionalRange value);
QUILON_API bool ComputeFeaturesLimitsOnLearningSamplesMapped();
QUILON_API void SetComputeFeaturesLimitsOnLearningSamplesMapped(bool value);
QUILON_API bool LearnMultipleClassSamples();
QUILON_API void SetLearnMultipleClassSamples(bool value);
QUILON_API bool IgnoreMultipleClassSamples();
QUILON_API void SetIgnoreMultipleClassSamples(bool value);
// 0 <= ratio <= 1, else "Invalid test ratio.".
QUILON_API double TestRatio();
QUILON_API void SetTestRatio(double value);
} // namespace DefaultValues

} // namespace Base

} // namespace Quilon_::Math::Classification
