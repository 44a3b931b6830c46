#include "Quilon_/NeuralNetworks/Initializer.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/NeuralNetworks/NeuralNetwork.h"
#include "Quilon_/System/Type.h"

#include <cstdlib>

namespace Quilon_::NeuralNetworks {

QUILON_DEFINE_INTERFACE_TYPE(IInitializer, L"Quilon_::NeuralNetworks::IInitializer", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IRandomInitializer, L"Quilon_::NeuralNetworks::IRandomInitializer", IInitializer)

namespace RandomInitializer {

Factory New;

namespace DefaultValues {

QUILON_DEFINE_DEFAULT_VALUE(Minimum, SetMinimum, double, -1.0)
QUILON_DEFINE_DEFAULT_VALUE(Maximum, SetMaximum, double, 1.0)

namespace {
std::int64_t seedValue = 0;
} // namespace

std::int64_t Seed()
{
    return seedValue;
}

// The weights an initializer draws come from rand(): seeding it here makes
// a learning run repeatable from the seed alone.
void SetSeed(std::int64_t value)
{
    seedValue = value;
    std::srand(static_cast<unsigned>(value));
}

} // namespace DefaultValues

} // namespace RandomInitializer

} // namespace Quilon_::NeuralNetworks
