// Eigenvectors of a symmetric matrix by cyclic Jacobi rotations: slow for
// large matrices, but exact to rounding and simple, which is what the small
// matrices of geometry and moments need.
#pragma once

#include "Math/MatrixImpl.h"

namespace Quilon_::Basic {

// The unit eigenvectors of the symmetric `a`, one per column, ordered by
// eigenvalue from the greatest down. Only the upper triangle is read.
Dense SymmetricEigenVectors(Dense a);

} // namespace Quilon_::Basic
