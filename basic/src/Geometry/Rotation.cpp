// Rotations about a center in two and three dimensions, for the core's New
// objects. The rotation is kept as its d x d matrix acting on column
// vectors; the homogeneous matrix of the geometry helpers (row vectors) is
// its transpose with the translation that keeps the center in place.
#include "Quilon_/Geometry/Rotation.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <cmath>

namespace Quilon_::Basic::Geometry {

using namespace ::Quilon_::Geometry;
using System::Ref;
namespace QG = ::Quilon_::Geometry;

namespace {

// How far a matrix may be from orthonormal and still count as a rotation.
constexpr double rotationTolerance = 1e-9;

class CRotation : public System::Template::ObjectImpl<CRotation, IRotation> {
public:
    // `rotation` holds d x d values row after row.
    CRotation(std::vector<double> rotation, Ref<ICoordinatesD> center)
        : m_dimension(center->AxisCount()), m_rotation(std::move(rotation)), m_axes(center->Axes()),
          m_center(Values(*center))
    {
    }

    std::int64_t Dimension() override { return m_dimension; }
    Ref<Math::IMatrixD> Matrix() override { return Math::MatrixD::New(m_dimension, m_dimension, m_rotation); }
    Ref<ICoordinatesD> Center() override { return ToCoordinates(m_center); }
    void SetCenter(Ref<ICoordinatesD> center) override
    {
        if (center->AxisCount() != m_dimension)
            QUILON_RAISE(L"A rotation in %1% dimensions needs a center of %1% axes, not '%2%'", m_dimension,
                         center->Axes().ToString());
        m_axes = center->Axes();
        m_center = Values(*center);
    }
    Ref<IRotation> Inverse() override
    {
        std::vector<double> transposed(m_rotation.size());
        for (std::int64_t r = 0; r < m_dimension; ++r)
            for (std::int64_t c = 0; c < m_dimension; ++c)
                transposed[At(c, r)] = m_rotation[At(r, c)];
        return Ref<IRotation>(new CRotation(std::move(transposed), Center()));
    }
    Ref<Math::IMatrixD> HomogeneousMatrix() override
    {
        const std::int64_t n = m_dimension;
        Ref<Math::IMatrixD> m = Math::MatrixD::New(n + 1, n + 1);
        const std::vector<double> shift = Apply(std::vector<double>(static_cast<std::size_t>(n), 0.0));
        for (std::int64_t b = 0; b < n; ++b) {
            for (std::int64_t a = 0; a < n; ++a)
                m->SetValue(a, b, m_rotation[At(b, a)]);
            m->SetValue(n, b, shift[static_cast<std::size_t>(b)]);
        }
        m->SetValue(n, n, 1.0);
        return m;
    }
    Ref<ICoordinatesD> Rotate(Ref<ICoordinatesD> point) override
    {
        if (point->Axes() != m_axes)
            QUILON_RAISE(L"The point's axes '%1%' differ from the center's '%2%'", point->Axes().ToString(),
                         m_axes.ToString());
        return ToCoordinates(Apply(Values(*point)));
    }

private:
    std::size_t At(std::int64_t row, std::int64_t column) const
    {
        return static_cast<std::size_t>(row * m_dimension + column);
    }
    static std::vector<double> Values(ICoordinatesD& c)
    {
        std::vector<double> values;
        for (std::int64_t i = 0; i < c.AxisCount(); ++i)
            values.push_back(c.Value(i));
        return values;
    }
    Ref<ICoordinatesD> ToCoordinates(const std::vector<double>& values) const
    {
        Ref<ICoordinatesD> result = CoordinatesD::New(m_axes);
        for (std::size_t i = 0; i < values.size(); ++i)
            result->SetValue(static_cast<std::int64_t>(i), values[i]);
        return result;
    }
    // R (p - c) + c.
    std::vector<double> Apply(const std::vector<double>& p) const
    {
        std::vector<double> result(m_center);
        for (std::int64_t r = 0; r < m_dimension; ++r)
            for (std::int64_t c = 0; c < m_dimension; ++c)
                result[static_cast<std::size_t>(r)] +=
                    m_rotation[At(r, c)] *
                    (p[static_cast<std::size_t>(c)] - m_center[static_cast<std::size_t>(c)]);
        return result;
    }

    std::int64_t m_dimension;
    std::vector<double> m_rotation;
    QG::Axes m_axes;
    std::vector<double> m_center;
};

void CheckCenter(const Ref<ICoordinatesD>& center, std::int64_t dimension)
{
    if (center->AxisCount() != dimension)
        QUILON_RAISE(L"A rotation in %1% dimensions needs a center of %1% axes, not '%2%'", dimension,
                     center->Axes().ToString());
}

// R R^T = I and det R = 1, within the tolerance.
void CheckRotation(const std::vector<double>& r, std::int64_t n)
{
    bool orthonormal = true;
    for (std::int64_t i = 0; i < n; ++i)
        for (std::int64_t j = 0; j < n; ++j) {
            double dot = 0;
            for (std::int64_t k = 0; k < n; ++k)
                dot += r[static_cast<std::size_t>(i * n + k)] * r[static_cast<std::size_t>(j * n + k)];
            orthonormal = orthonormal && std::abs(dot - (i == j ? 1.0 : 0.0)) <= rotationTolerance;
        }
    const double determinant = n == 2
                                   ? r[0] * r[3] - r[1] * r[2]
                                   : r[0] * (r[4] * r[8] - r[5] * r[7]) - r[1] * (r[3] * r[8] - r[5] * r[6]) +
                                         r[2] * (r[3] * r[7] - r[4] * r[6]);
    if (!orthonormal || std::abs(determinant - 1.0) > rotationTolerance)
        QUILON_RAISE(L"The matrix is not a rotation");
}

Ref<IRotation> NewPlanarRotation(double angle, Ref<ICoordinatesD> center)
{
    CheckCenter(center, 2);
    const double c = std::cos(angle), s = std::sin(angle);
    return Ref<IRotation>(new CRotation({c, -s, s, c}, center));
}

// Rz(c) Ry(b) Rx(a): about X first, then Y, then Z, the axes staying fixed.
Ref<IRotation> NewSolidRotation(double a, double b, double c, Ref<ICoordinatesD> center)
{
    CheckCenter(center, 3);
    const double ca = std::cos(a), sa = std::sin(a), cb = std::cos(b), sb = std::sin(b), cc = std::cos(c),
                 sc = std::sin(c);
    return Ref<IRotation>(new CRotation({cc * cb, cc * sb * sa - sc * ca, cc * sb * ca + sc * sa, //
                                         sc * cb, sc * sb * sa + cc * ca, sc * sb * ca - cc * sa, //
                                         -sb, cb * sa, cb * ca},
                                        center));
}

Ref<IRotation> NewRotationFromMatrix(Ref<Math::IMatrixD> matrix, Ref<ICoordinatesD> center)
{
    const std::int64_t n = matrix->Rows();
    if (n != matrix->Columns() || (n != 2 && n != 3))
        QUILON_RAISE(L"A rotation matrix is 2 x 2 or 3 x 3, not %1% x %2%", n, matrix->Columns());
    CheckCenter(center, n);
    std::vector<double> values = matrix->Values();
    CheckRotation(values, n);
    return Ref<IRotation>(new CRotation(std::move(values), center));
}

Ref<IRotation> NewFromMatrixAtOrigin(Ref<Math::IMatrixD> matrix)
{
    const std::int64_t n = matrix->Rows();
    return NewRotationFromMatrix(matrix, CoordinatesD::New(n == 3 ? QG::Axes::aXYZ : QG::Axes::aXY));
}

void RegisterRotations()
{
    const wchar_t* name = L"Rotation";
    Rotation::New.Register(name, &NewPlanarRotation);
    Rotation::New.Register(name, &NewSolidRotation);
    Rotation::New.Register(name, &NewRotationFromMatrix);
    Rotation::New.Register(name, &NewFromMatrixAtOrigin);
}

const System::Template::Initializer<::Library> rotations(&RegisterRotations, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry
