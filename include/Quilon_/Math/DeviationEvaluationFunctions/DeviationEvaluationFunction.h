// The cost measures that classifier generators and learning engines
// minimise: the deviation of a classifier's answers from the expected
// classes. The concrete kinds come from an implementation library, which
// registers them on the New objects:
//
//   using namespace Quilon_::Math;
//   System::Ref<IDeviationEvaluationFunction> cost = DeviationEvaluationFunctions::BalancedErrorRate::New();
//   double rate = cost->Evaluate(expected, obtained);
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Math {

class QUILON_API IDeviationEvaluationFunction : public virtual System::Interface {
    QUILON_INTERFACE(IDeviationEvaluationFunction)
public:
    // The deviation of the obtained outputs from the expected ones, one row
    // of outputs per sample.
    virtual double Evaluate(const std::vector<std::vector<double>>& expected,
                            const std::vector<std::vector<double>>& obtained) = 0;
};

} // namespace Quilon_::Math

namespace Quilon_::Math::DeviationEvaluationFunctions {

// The share of samples whose class is wrong.
class QUILON_API IErrorRate : public virtual IDeviationEvaluationFunction {
    QUILON_INTERFACE(IErrorRate)
};

// The mean over the classes of each class's error rate.
class QUILON_API IBalancedErrorRate : public virtual IDeviationEvaluationFunction {
    QUILON_INTERFACE(IBalancedErrorRate)
};

class QUILON_API IMeanSquareError : public virtual IDeviationEvaluationFunction {
    QUILON_INTERFACE(IMeanSquareError)
};

// The mean over the classes of each class's mean square error.
class QUILON_API IBalancedMeanSquareError : public virtual IDeviationEvaluationFunction {
    QUILON_INTERFACE(IBalancedMeanSquareError)
};

namespace ErrorRate {
using Factory = System::Functions::Template::Factory<System::Ref<IErrorRate>()>;
extern QUILON_API Factory New;
} // namespace ErrorRate

namespace BalancedErrorRate {
using Factory = System::Functions::Template::Factory<System::Ref<IBalancedErrorRate>()>;
extern QUILON_API Factory New;
} // namespace BalancedErrorRate

namespace MeanSquareError {
using Factory = System::Functions::Template::Factory<System::Ref<IMeanSquareError>()>;
extern QUILON_API Factory New;
} // namespace MeanSquareError

namespace BalancedMeanSquareError {
using Factory = System::Functions::Template::Factory<System::Ref<IBalancedMeanSquareError>()>;
extern QUILON_API Factory New;
} // namespace BalancedMeanSquareError

} // namespace Quilon_::Math::DeviationEvaluationFunctions
