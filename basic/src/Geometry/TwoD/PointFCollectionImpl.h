// The reference library's list of float points, for the polygon classes
// that make lists of their own.
#pragma once

#include "Quilon_/Drawing/PointFCollection.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"

#include <vector>

namespace Quilon_::Basic::Geometry::TwoD {

class CPointFCollection
    : public System::Template::ObjectImpl<CPointFCollection, Drawing::IPointFCollection, System::ICloneable> {
public:
    using PointF = Drawing::Point<float>;

    CPointFCollection() = default;
    explicit CPointFCollection(std::vector<PointF> points) : m_points(std::move(points)) {}

    static System::Ref<Drawing::IPointFCollection> Make(std::vector<PointF> points)
    {
        return System::Ref<Drawing::IPointFCollection>(new CPointFCollection(std::move(points)));
    }

    std::int64_t Count() override { return static_cast<std::int64_t>(m_points.size()); }
    std::int64_t IndexOf(const PointF& item) override;
    PointF Item(std::int64_t index) override;
    void SetItem(std::int64_t index, const PointF& item) override;
    std::int64_t Add(const PointF& item) override;
    void Insert(std::int64_t index, const PointF& item) override;
    bool RemoveAt(std::int64_t index) override;
    bool Remove(const PointF& item) override;
    void Clear() override { m_points.clear(); }
    bool IsReadOnly() override { return false; }

    std::vector<PointF> Points() override { return m_points; }
    void SetPoints(const std::vector<PointF>& points) override { m_points = points; }
    void AddRange(const std::vector<PointF>& points) override;
    bool RemoveRange(std::int64_t index, std::int64_t count) override;
    void Reverse() override;
    void Move(float dx, float dy) override;
    void Transform(System::Ref<Math::IMatrixD> matrix) override;
    PointF Minimum() override;
    PointF Maximum() override;
    double Length(bool closed) override;

    System::Ref<System::ICloneable> Clone() override
    {
        return System::Ref<System::ICloneable>(new CPointFCollection(m_points));
    }

private:
    std::size_t Checked(std::int64_t index) const;

    std::vector<PointF> m_points;
};

} // namespace Quilon_::Basic::Geometry::TwoD
