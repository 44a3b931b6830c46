#include "Math/MatrixImpl.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"
#include "Quilon_/System/Serialization/FactoryDictionary.h"

#include <algorithm>

namespace Quilon_::Basic {

namespace {

void CheckDimensions(std::int64_t rows, std::int64_t columns)
{
    if (rows < 0 || columns < 0)
        QUILON_RAISE(L"Invalid matrix size: %1% x %2%", rows, columns);
}

void CheckValueCount(std::int64_t rows, std::int64_t columns, const std::vector<double>& values)
{
    if (static_cast<std::int64_t>(values.size()) != rows * columns)
        QUILON_RAISE(L"A %1% x %2% matrix needs %3% values, not %4%", rows, columns, rows * columns,
                     static_cast<std::int64_t>(values.size()));
}

} // namespace

CMatrixD::CMatrixD(std::int64_t rows, std::int64_t columns) : m_rows(rows), m_columns(columns)
{
    CheckDimensions(rows, columns);
    m_values.resize(static_cast<std::size_t>(rows * columns));
}

CMatrixD::CMatrixD(std::int64_t rows, std::int64_t columns, const std::vector<double>& values)
    : m_rows(rows), m_columns(columns)
{
    CheckDimensions(rows, columns);
    CheckValueCount(rows, columns, values);
    m_values = values;
}

void CMatrixD::Serialize(System::Pointer<System::Serialization::Binary::IWriter, 1> writer)
{
    writer << m_rows << m_columns << m_values;
}

// The dimensions come from an archive, which may be damaged: they are
// checked against the elements read, without multiplying them.
void CMatrixD::Deserialize(System::Pointer<System::Serialization::Binary::IReader, 1> reader)
{
    std::int64_t rows = 0, columns = 0;
    std::vector<double> values;
    reader >> rows >> columns >> values;
    const auto count = static_cast<std::int64_t>(values.size());
    const bool consistent = rows >= 0 && columns >= 0 &&
                            (columns == 0 ? count == 0 : count % columns == 0 && count / columns == rows);
    if (!consistent)
        QUILON_RAISE(L"A %1% x %2% matrix needs %1% times %2% values, not %3%", rows, columns, count);
    m_rows = rows;
    m_columns = columns;
    m_values = std::move(values);
}

void CMatrixD::SetValues(const std::vector<double>& values)
{
    CheckValueCount(m_rows, m_columns, values);
    m_values = values;
}

void CMatrixD::Resize(std::int64_t rows, std::int64_t columns)
{
    CheckDimensions(rows, columns);
    std::vector<double> values(static_cast<std::size_t>(rows * columns));
    for (std::int64_t row = 0; row < std::min(rows, m_rows); ++row)
        for (std::int64_t column = 0; column < std::min(columns, m_columns); ++column)
            values[static_cast<std::size_t>(row * columns + column)] = m_values[Index(row, column)];
    m_values.swap(values);
    m_rows = rows;
    m_columns = columns;
}

Matrix CMatrixD::Transposed()
{
    auto* transposed = new CMatrixD(m_columns, m_rows);
    Matrix result(transposed);
    for (std::int64_t row = 0; row < m_rows; ++row)
        for (std::int64_t column = 0; column < m_columns; ++column)
            transposed->SetValue(column, row, m_values[Index(row, column)]);
    return result;
}

System::Pointer<System::ICloneable, 1> CMatrixD::Clone()
{
    return System::Pointer<System::ICloneable, 1>(new CMatrixD(m_rows, m_columns, m_values));
}

std::size_t CMatrixD::Index(std::int64_t row, std::int64_t column) const
{
    if (row < 0 || row >= m_rows || column < 0 || column >= m_columns)
        QUILON_RAISE(L"Element (%1%, %2%) is outside a %3% x %4% matrix", row, column, m_rows, m_columns);
    return static_cast<std::size_t>(row * m_columns + column);
}

Matrix Dense::ToMatrix() const
{
    return Matrix(new CMatrixD(rows, columns, values));
}

namespace {

Matrix NewMatrix(std::int64_t rows, std::int64_t columns)
{
    return Matrix(new CMatrixD(rows, columns));
}

Matrix NewMatrixOf(std::int64_t rows, std::int64_t columns, const std::vector<double>& values)
{
    return Matrix(new CMatrixD(rows, columns, values));
}

System::Pointer<System::Interface, 1> NewEmptyMatrix()
{
    return System::Pointer<System::Interface, 1>(static_cast<IMatrixD*>(new CMatrixD(0, 0)));
}

void RegisterMatrix()
{
    System::Serialization::RegisterClass<CMatrixD>(&NewEmptyMatrix);
    Quilon_::Math::MatrixD::New.Register(L"Dense matrix", &NewMatrix);
    Quilon_::Math::MatrixD::New.Register(L"Dense matrix", &NewMatrixOf);
}

const System::Template::Initializer<::Library> matrix(&RegisterMatrix, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic
