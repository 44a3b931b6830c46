// The dense matrix of the reference library: the elements row after row in
// one vector.
#pragma once

#include "Quilon_/Math/Matrix.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Basic {

using Quilon_::Math::IMatrixD;
using Matrix = System::Pointer<IMatrixD, 1>;

class CMatrixD : public System::Template::ObjectImpl<CMatrixD, IMatrixD, System::ICloneable,
                                                     System::Serialization::Binary::ISerializable> {
public:
    // Raises for a negative dimension.
    CMatrixD(std::int64_t rows, std::int64_t columns);
    // Raises unless `values` holds rows x columns elements.
    CMatrixD(std::int64_t rows, std::int64_t columns, const std::vector<double>& values);

    std::int64_t Rows() override { return m_rows; }
    std::int64_t Columns() override { return m_columns; }
    std::vector<double> Values() override { return m_values; }
    void SetValues(const std::vector<double>& values) override;
    double Value(std::int64_t row, std::int64_t column) override { return m_values[Index(row, column)]; }
    void SetValue(std::int64_t row, std::int64_t column, double value) override
    {
        m_values[Index(row, column)] = value;
    }
    void Resize(std::int64_t rows, std::int64_t columns) override;
    Matrix Transposed() override;

    System::Pointer<System::ICloneable, 1> Clone() override;
    // The dimensions, then the elements row after row.
    void Serialize(System::Pointer<System::Serialization::Binary::IWriter, 1> writer) override;
    void Deserialize(System::Pointer<System::Serialization::Binary::IReader, 1> reader) override;

private:
    std::size_t Index(std::int64_t row, std::int64_t column) const;

    std::int64_t m_rows;
    std::int64_t m_columns;
    std::vector<double> m_values;
};

// The elements of any IMatrixD, row after row, with its dimensions: the
// functions compute on these and make the result through MatrixD::New.
struct Dense {
    explicit Dense(IMatrixD& matrix) : rows(matrix.Rows()), columns(matrix.Columns()), values(matrix.Values())
    {
    }
    Dense(std::int64_t rows, std::int64_t columns)
        : rows(rows), columns(columns), values(static_cast<std::size_t>(rows * columns))
    {
    }
    double& operator()(std::int64_t row, std::int64_t column)
    {
        return values[static_cast<std::size_t>(row * columns + column)];
    }
    Matrix ToMatrix() const;

    std::int64_t rows;
    std::int64_t columns;
    std::vector<double> values;
};

} // namespace Quilon_::Basic
