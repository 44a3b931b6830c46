// Fuzzy-logic classifiers, a family apart: rules whose antecedents are
// ranges of the features, each voting for a class with its weight. The
// concrete classes come from an implementation library:
//
//   using namespace Quilon_::Math::Classification;
//   System::Ref<FuzzyLogic::IClassifier> fuzzy = FuzzyLogic::ClassifierGenerator::New()->Generate(base);
//   std::int64_t classIndex = fuzzy->Classify({0.3, 12.0});
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Math {
class IRangeD;
} // namespace Quilon_::Math

namespace Quilon_::Math::Classification {
class IBase;
} // namespace Quilon_::Math::Classification

namespace Quilon_::Math::Classification::FuzzyLogic {

using Antecedents = std::vector<System::Pointer<IRangeD, 0>>;

class QUILON_API IClassifier : public virtual System::Interface {
    QUILON_INTERFACE(IClassifier)
public:
    virtual std::int64_t FeatureCount() = 0;
    virtual std::int64_t ClassCount() = 0;
    virtual std::int64_t RuleCount() = 0;
    // A rule: one range per feature (empty: any value), its class and
    // weight; its index.
    virtual std::int64_t AddRule(const Antecedents& antecedents, std::int64_t classIndex, double weight) = 0;
    virtual void RemoveRule(std::int64_t rule) = 0;
    virtual void ClearRules() = 0;
    virtual Antecedents RuleAntecedents(std::int64_t rule) = 0;
    virtual std::int64_t RuleClass(std::int64_t rule) = 0;
    virtual double RuleWeight(std::int64_t rule) = 0;
    virtual void SetRuleWeight(std::int64_t rule, double weight) = 0;
    // The membership of a sample in each class.
    virtual std::vector<double> Membership(const std::vector<double>& features) = 0;
    virtual std::int64_t Classify(const std::vector<double>& features) = 0;
    virtual System::Pointer<IRangeD, 0> InputRange() = 0;
    virtual void SetInputRange(System::Pointer<IRangeD, 0> range) = 0;
};

class QUILON_API IClassifierGenerator : public virtual System::Interface {
    QUILON_INTERFACE(IClassifierGenerator)
public:
    virtual System::Ref<IClassifier> Generate(System::Ref<IBase> base) = 0;
    // Into how many fuzzy ranges each feature is divided.
    virtual std::int64_t PartitionCount() = 0;
    virtual void SetPartitionCount(std::int64_t count) = 0;
};

namespace ClassifierGenerator {
using Factory = System::Functions::Template::Factory<System::Ref<IClassifierGenerator>()>;
extern QUILON_API Factory New;
} // namespace ClassifierGenerator

} // namespace Quilon_::Math::Classification::FuzzyLogic
