// Classifiers made of neural networks: one network with an output per
// class, and MONNA, the multi-class combination of binary networks. The
// concrete classes come from an implementation library:
//
//   using namespace Quilon_::NeuralNetworks::Classification;
//   System::Ref<IClassifier> classifier = Classifier::New(std::int64_t(4), std::int64_t(3), network);
//   std::int64_t classIndex = classifier->Classify({0.1, 0.5, 0.2, 0.9});
#pragma once

#include "Quilon_/Math/Classification/FeatureSelector.h"
#include "Quilon_/Math/Classification/MOCA.h"

#include <cstdint>
#include <vector>

namespace Quilon_::System::Serialization::Binary {
class IWriter;
class IReader;
} // namespace Quilon_::System::Serialization::Binary

namespace Quilon_::NeuralNetworks {
class INeuralNetwork;
} // namespace Quilon_::NeuralNetworks

namespace Quilon_::NeuralNetworks::Classification {

class QUILON_API IClassifier : public virtual Math::Classification::IClassifier {
    QUILON_INTERFACE(IClassifier)
public:
    virtual System::Ref<INeuralNetwork> Network() = 0;
    virtual void SetNetwork(System::Ref<INeuralNetwork> network) = 0;
};

class QUILON_API IMONNA : public virtual Math::Classification::IMOCA {
    QUILON_INTERFACE(IMONNA)
public:
    virtual System::Ref<IClassifier> NeuralClassifier(std::int64_t index) = 0;
    // The network classifier deciding between the classes `first` and
    // `second`; its index.
    virtual std::int64_t AddNeuralClassifier(System::Ref<IClassifier> classifier, std::int64_t first,
                                             std::int64_t second) = 0;
    // Above it a binary network's output counts as its first class.
    virtual double OutputThreshold() = 0;
    virtual void SetOutputThreshold(double threshold) = 0;
    // Whether the outputs are combined as they are rather than thresholded.
    virtual bool UseSoftOutputs() = 0;
    virtual void SetUseSoftOutputs(bool use) = 0;
    virtual void Write(System::Ref<System::Serialization::Binary::IWriter> writer) = 0;
    virtual void Read(System::Ref<System::Serialization::Binary::IReader> reader) = 0;
    // The outputs of each binary network for a sample.
    virtual std::vector<std::vector<double>> NetworkOutputs(const std::vector<double>& features) = 0;
    virtual std::int64_t TotalNeuronCount() = 0;
};

class QUILON_API IMONNAGenerator : public virtual Math::Classification::IMOCAGenerator {
    QUILON_INTERFACE(IMONNAGenerator)
};

namespace Classifier {
// (features, classes, network).
using Factory = System::Functions::Template::Factory<System::Ref<IClassifier>(std::int64_t, std::int64_t,
                                                                              System::Ref<INeuralNetwork>)>;
extern QUILON_API Factory New;
} // namespace Classifier

namespace MONNA {
using Factory = System::Functions::Template::Factory<System::Ref<IMONNA>()>;
extern QUILON_API Factory New;
} // namespace MONNA

namespace MONNAGenerator {

// (generator of the binary classifiers, feature selector or none).
using Factory = System::Functions::Template::Factory<System::Ref<IMONNAGenerator>(
    System::Ref<Math::Classification::IClassifierGenerator>,
    System::Pointer<Math::Classification::IFeatureSelector, 0>)>;
extern QUILON_API Factory New;

namespace DefaultValues {
// Empty until a library sets it; reading it then raises. The second setter
// also takes an empty pointer, which empties the default again.
QUILON_API System::Ref<Math::Classification::IClassifierGenerator> ClassifierGenerator();
QUILON_API void SetClassifierGenerator(System::Ref<Math::Classification::IClassifierGenerator> value);
QUILON_API void SetClassifierGenerator(System::Pointer<Math::Classification::IClassifierGenerator, 0> value);
// Empty unless set.
QUILON_API System::Pointer<Math::Classification::IFeatureSelector, 0> FeatureSelector();
QUILON_API void SetFeatureSelector(System::Pointer<Math::Classification::IFeatureSelector, 0> value);
} // namespace DefaultValues

} // namespace MONNAGenerator

} // namespace Quilon_::NeuralNetworks::Classification
