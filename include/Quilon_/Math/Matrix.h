// Dense matrices of doubles, and the registered functions that compute with
// them. The concrete matrix and the functions come from an implementation
// library; geometry maps points with these matrices:
//
//   Pointer<Math::IMatrixD> m = Math::MatrixD::New(std::int64_t(2), std::int64_t(2));   // zeros
//   m->SetValue(0, 0, 2.0);
//   m->SetValue(1, 1, 4.0);
//   Pointer<Math::IMatrixD> inverse = Math::MatrixD::Inverse(m);   // diag(0.5, 0.25)
//
// Indices are (row, column), from 0.
#pragma once

#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Functions/FunctionSlot.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Math {

class QUILON_API IMatrixD : public virtual System::Interface {
    QUILON_INTERFACE(IMatrixD)
public:
    virtual std::int64_t Rows() = 0;
    virtual std::int64_t Columns() = 0;
    // The elements row after row.
    virtual std::vector<double> Values() = 0;
    // Replaces the elements, row after row; `values` must hold Rows() x
    // Columns() of them.
    virtual void SetValues(const std::vector<double>& values) = 0;
    virtual double Value(std::int64_t row, std::int64_t column) = 0;
    virtual void SetValue(std::int64_t row, std::int64_t column, double value) = 0;
    // New dimensions; the elements that stay in both keep their place, the
    // others are 0.
    virtual void Resize(std::int64_t rows, std::int64_t columns) = 0;
    // A new matrix, the transpose of this one.
    virtual System::Pointer<IMatrixD, 1> Transposed() = 0;
};

namespace MatrixD {

// New(rows, columns) is filled with zeros; New(rows, columns, values) takes
// the elements row after row.
using Factory = System::Functions::Template::Factory<
    System::Pointer<IMatrixD, 1>(std::int64_t, std::int64_t),
    System::Pointer<IMatrixD, 1>(std::int64_t, std::int64_t, const std::vector<double>&)>;
extern QUILON_API Factory New;

using Matrix = System::Pointer<IMatrixD, 1>;

// The n x n identity.
QUILON_API Matrix Identity(std::int64_t size);
QUILON_DECLARE_FUNCTION_SLOT(Identity, 1, Matrix (*)(std::int64_t));

// The matrix product a b.
QUILON_API Matrix Multiply(Matrix a, Matrix b);
QUILON_DECLARE_FUNCTION_SLOT(Multiply, 1, Matrix (*)(Matrix, Matrix));
// The matrix times a column vector.
QUILON_API std::vector<double> Multiply(Matrix a, std::vector<double> vector);
QUILON_DECLARE_FUNCTION_SLOT(Multiply, 2, std::vector<double> (*)(Matrix, std::vector<double>));
// Every element times `factor`.
QUILON_API Matrix Multiply(Matrix a, double factor);
QUILON_DECLARE_FUNCTION_SLOT(Multiply, 3, Matrix (*)(Matrix, double));

QUILON_API Matrix Inverse(Matrix a);
QUILON_DECLARE_FUNCTION_SLOT(Inverse, 1, Matrix (*)(Matrix));

// Whether every element off the diagonal is within `tolerance` of 0.
QUILON_API bool IsDiagonal(Matrix a, double tolerance);
QUILON_DECLARE_FUNCTION_SLOT(IsDiagonal, 1, bool (*)(Matrix, double));

// Whether a(i, j) and a(j, i) differ by at most `tolerance` everywhere.
QUILON_API bool IsSymmetrical(Matrix a, double tolerance);
QUILON_DECLARE_FUNCTION_SLOT(IsSymmetrical, 1, bool (*)(Matrix, double));

// The unit eigenvectors of a symmetric matrix, one per column, ordered by
// their eigenvalues from the greatest down.
QUILON_API Matrix EigenVectors(Matrix a);
QUILON_DECLARE_FUNCTION_SLOT(EigenVectors, 1, Matrix (*)(Matrix));

} // namespace MatrixD

} // namespace Quilon_::Math
