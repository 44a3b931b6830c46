// The registered functions of Math::MatrixD, on dense copies of the
// arguments, so that any implementation of IMatrixD can be passed in.
#include "Math/EigenVectors.h"
#include "Math/MatrixImpl.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <cfloat>
#include <cmath>
#include <utility>

namespace Quilon_::Basic {

namespace {

Matrix IdentityOf(std::int64_t size)
{
    Dense identity(size, size);
    for (std::int64_t i = 0; i < size; ++i)
        identity(i, i) = 1.0;
    return identity.ToMatrix();
}

Matrix MultiplyMatrices(Matrix left, Matrix right)
{
    Dense a(*left), b(*right);
    if (a.columns != b.rows)
        QUILON_RAISE(L"Cannot multiply a %1% x %2% matrix by a %3% x %4% matrix", a.rows, a.columns, b.rows,
                     b.columns);
    Dense product(a.rows, b.columns);
    for (std::int64_t row = 0; row < a.rows; ++row)
        for (std::int64_t k = 0; k < a.columns; ++k)
            for (std::int64_t column = 0; column < b.columns; ++column)
                product(row, column) += a(row, k) * b(k, column);
    return product.ToMatrix();
}

std::vector<double> MultiplyVector(Matrix matrix, std::vector<double> vector)
{
    Dense a(*matrix);
    if (a.columns != static_cast<std::int64_t>(vector.size()))
        QUILON_RAISE(L"Cannot multiply a %1% x %2% matrix by a vector of %3% values", a.rows, a.columns,
                     static_cast<std::int64_t>(vector.size()));
    std::vector<double> product(static_cast<std::size_t>(a.rows));
    for (std::int64_t row = 0; row < a.rows; ++row)
        for (std::int64_t column = 0; column < a.columns; ++column)
            product[static_cast<std::size_t>(row)] +=
                a(row, column) * vector[static_cast<std::size_t>(column)];
    return product;
}

Matrix MultiplyScalar(Matrix matrix, double factor)
{
    Dense a(*matrix);
    for (double& value : a.values)
        value *= factor;
    return a.ToMatrix();
}

void CheckSquare(const Dense& a)
{
    if (a.rows != a.columns)
        QUILON_RAISE(L"The matrix must be square, not %1% x %2%", a.rows, a.columns);
}

std::int64_t PivotRow(Dense& a, std::int64_t column)
{
    std::int64_t pivot = column;
    for (std::int64_t row = column + 1; row < a.rows; ++row)
        if (std::fabs(a(row, column)) > std::fabs(a(pivot, column)))
            pivot = row;
    return pivot;
}

void SwapRows(Dense& a, std::int64_t first, std::int64_t second)
{
    for (std::int64_t column = 0; column < a.columns; ++column)
        std::swap(a(first, column), a(second, column));
}

// Gauss-Jordan elimination with partial pivoting. A pivot that is small
// against the largest element, at the precision of double, means the rows
// are dependent.
Matrix InverseOf(Matrix matrix)
{
    Dense a(*matrix);
    CheckSquare(a);
    const std::int64_t n = a.rows;
    double largest = 0;
    for (double value : a.values)
        largest = std::fmax(largest, std::fabs(value));
    const double negligible = largest * static_cast<double>(n) * DBL_EPSILON;

    Dense inverse(n, n);
    for (std::int64_t i = 0; i < n; ++i)
        inverse(i, i) = 1.0;
    for (std::int64_t column = 0; column < n; ++column) {
        const std::int64_t pivot = PivotRow(a, column);
        if (!(std::fabs(a(pivot, column)) > negligible))
            QUILON_RAISE(L"The matrix is singular and has no inverse");
        SwapRows(a, pivot, column);
        SwapRows(inverse, pivot, column);
        const double scale = 1.0 / a(column, column);
        for (std::int64_t k = 0; k < n; ++k) {
            a(column, k) *= scale;
            inverse(column, k) *= scale;
        }
        for (std::int64_t row = 0; row < n; ++row) {
            const double factor = a(row, column);
            if (row == column || factor == 0)
                continue;
            for (std::int64_t k = 0; k < n; ++k) {
                a(row, k) -= factor * a(column, k);
                inverse(row, k) -= factor * inverse(column, k);
            }
        }
    }
    return inverse.ToMatrix();
}

bool IsDiagonalWithin(Matrix matrix, double tolerance)
{
    Dense a(*matrix);
    for (std::int64_t row = 0; row < a.rows; ++row)
        for (std::int64_t column = 0; column < a.columns; ++column)
            if (row != column && !(std::fabs(a(row, column)) <= tolerance))
                return false;
    return true;
}

bool IsSymmetricalWithin(Matrix matrix, double tolerance)
{
    Dense a(*matrix);
    if (a.rows != a.columns)
        return false;
    for (std::int64_t row = 0; row < a.rows; ++row)
        for (std::int64_t column = row + 1; column < a.columns; ++column)
            if (!(std::fabs(a(row, column) - a(column, row)) <= tolerance))
                return false;
    return true;
}

Matrix EigenVectorsOf(Matrix matrix)
{
    Dense a(*matrix);
    CheckSquare(a);
    double largest = 0;
    for (double value : a.values)
        largest = std::fmax(largest, std::fabs(value));
    if (!IsSymmetricalWithin(matrix, largest * 1e-12))
        QUILON_RAISE(L"Eigenvectors are computed for symmetric matrices only");
    return SymmetricEigenVectors(std::move(a)).ToMatrix();
}

void RegisterMatrixFunctionsFunctions()
{
    namespace MatrixD = Quilon_::Math::MatrixD;
    MatrixD::SetIdentityFunction1(&IdentityOf);
    MatrixD::SetMultiplyFunction1(&MultiplyMatrices);
    MatrixD::SetMultiplyFunction2(&MultiplyVector);
    MatrixD::SetMultiplyFunction3(&MultiplyScalar);
    MatrixD::SetInverseFunction1(&InverseOf);
    MatrixD::SetIsDiagonalFunction1(&IsDiagonalWithin);
    MatrixD::SetIsSymmetricalFunction1(&IsSymmetricalWithin);
    MatrixD::SetEigenVectorsFunction1(&EigenVectorsOf);
}

const System::Template::Initializer<::Library> matrixFunctionsInitializer(&RegisterMatrixFunctionsFunctions,
                                                                          nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic
