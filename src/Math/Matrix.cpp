#include "Quilon_/Math/Matrix.h"

#include "Quilon_/System/Type.h"

#include <utility>

namespace Quilon_::Math {

QUILON_DEFINE_INTERFACE_TYPE(IMatrixD, L"Quilon_::Math::IMatrixD", System::Interface)

namespace MatrixD {

Factory New;

QUILON_DEFINE_FUNCTION_SLOT(Identity, 1, Matrix (*)(std::int64_t))
QUILON_DEFINE_FUNCTION_SLOT(Multiply, 1, Matrix (*)(Matrix, Matrix))
QUILON_DEFINE_FUNCTION_SLOT(Multiply, 2, std::vector<double> (*)(Matrix, std::vector<double>))
QUILON_DEFINE_FUNCTION_SLOT(Multiply, 3, Matrix (*)(Matrix, double))
QUILON_DEFINE_FUNCTION_SLOT(Inverse, 1, Matrix (*)(Matrix))
QUILON_DEFINE_FUNCTION_SLOT(IsDiagonal, 1, bool (*)(Matrix, double))
QUILON_DEFINE_FUNCTION_SLOT(IsSymmetrical, 1, bool (*)(Matrix, double))
QUILON_DEFINE_FUNCTION_SLOT(EigenVectors, 1, Matrix (*)(Matrix))

Matrix Identity(std::int64_t size)
{
    return QUILON_FUNCTION_SLOT(Identity, 1)(size);
}

Matrix Multiply(Matrix a, Matrix b)
{
    return QUILON_FUNCTION_SLOT(Multiply, 1)(std::move(a), std::move(b));
}

std::vector<double> Multiply(Matrix a, std::vector<double> vector)
{
    return QUILON_FUNCTION_SLOT(Multiply, 2)(std::move(a), std::move(vector));
}

Matrix Multiply(Matrix a, double factor)
{
    return QUILON_FUNCTION_SLOT(Multiply, 3)(std::move(a), factor);
}

Matrix Inverse(Matrix a)
{
    return QUILON_FUNCTION_SLOT(Inverse, 1)(std::move(a));
}

bool IsDiagonal(Matrix a, double tolerance)
{
    return QUILON_FUNCTION_SLOT(IsDiagonal, 1)(std::move(a), tolerance);
}

bool IsSymmetrical(Matrix a, double tolerance)
{
    return QUILON_FUNCTION_SLOT(IsSymmetrical, 1)(std::move(a), tolerance);
}

Matrix EigenVectors(Matrix a)
{
    return QUILON_FUNCTION_SLOT(EigenVectors, 1)(std::move(a));
}

} // namespace MatrixD

} // namespace Quilon_::Math
