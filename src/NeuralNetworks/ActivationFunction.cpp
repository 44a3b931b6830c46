#include "Quilon_/NeuralNetworks/ActivationFunction.h"

#include "Quilon_/Math/Range.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks {

QUILON_DEFINE_INTERFACE_TYPE(IActivationFunction, L"Quilon_::NeuralNetworks::IActivationFunction",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IFastDerived, L"Quilon_::NeuralNetworks::IFastDerived", System::Interface)

namespace ActivationFunctions {

QUILON_DEFINE_INTERFACE_TYPE(IIdentity, L"Quilon_::NeuralNetworks::ActivationFunctions::IIdentity",
                             IActivationFunction)
QUILON_DEFINE_INTERFACE_TYPE(ILinear, L"Quilon_::NeuralNetworks::ActivationFunctions::ILinear",
                             IActivationFunction)
QUILON_DEFINE_INTERFACE_TYPE(ISigmoid, L"Quilon_::NeuralNetworks::ActivationFunctions::ISigmoid",
                             IActivationFunction, IFastDerived)
QUILON_DEFINE_INTERFACE_TYPE(IHyperbolicTangent,
                             L"Quilon_::NeuralNetworks::ActivationFunctions::IHyperbolicTangent",
                             IActivationFunction)
QUILON_DEFINE_INTERFACE_TYPE(IThreshold, L"Quilon_::NeuralNetworks::ActivationFunctions::IThreshold",
                             IActivationFunction)

Identity::Factory Identity::New;
Linear::Factory Linear::New;
Sigmoid::Factory Sigmoid::New;
HyperbolicTangent::Factory HyperbolicTangent::New;
Threshold::Factory Threshold::New;

} // namespace ActivationFunctions

} // namespace Quilon_::NeuralNetworks
