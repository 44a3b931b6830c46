// Float point lists for Drawing::PointFCollection::New.
#include "Geometry/TwoD/PointFCollectionImpl.h"

#include "Geometry/TwoD/PolygonMath.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Collections/CollectionImpl.h"

#include <algorithm>

namespace Quilon_::Basic::Geometry::TwoD {

namespace CollectionErrors = System::Collections::Template::Detail;

std::size_t CPointFCollection::Checked(std::int64_t index) const
{
    if (index < 0 || index >= static_cast<std::int64_t>(m_points.size()))
        CollectionErrors::RaiseIndexOutOfRange(index);
    return static_cast<std::size_t>(index);
}

std::int64_t CPointFCollection::IndexOf(const PointF& item)
{
    const auto found = std::find(m_points.begin(), m_points.end(), item);
    return found == m_points.end() ? -1 : found - m_points.begin();
}

Drawing::Point<float> CPointFCollection::Item(std::int64_t index)
{
    return m_points[Checked(index)];
}

void CPointFCollection::SetItem(std::int64_t index, const PointF& item)
{
    m_points[Checked(index)] = item;
}

std::int64_t CPointFCollection::Add(const PointF& item)
{
    m_points.push_back(item);
    return Count() - 1;
}

void CPointFCollection::Insert(std::int64_t index, const PointF& item)
{
    if (index < 0 || index > Count())
        CollectionErrors::RaiseInsertIndexOutOfRange(index);
    m_points.insert(m_points.begin() + index, item);
}

bool CPointFCollection::RemoveAt(std::int64_t index)
{
    if (index < 0 || index >= Count())
        return false;
    m_points.erase(m_points.begin() + index);
    return true;
}

bool CPointFCollection::Remove(const PointF& item)
{
    return RemoveAt(IndexOf(item));
}

void CPointFCollection::AddRange(const std::vector<PointF>& points)
{
    m_points.insert(m_points.end(), points.begin(), points.end());
}

bool CPointFCollection::RemoveRange(std::int64_t index, std::int64_t count)
{
    if (index < 0 || count < 0 || index + count > Count())
        return false;
    m_points.erase(m_points.begin() + index, m_points.begin() + index + count);
    return true;
}

void CPointFCollection::Reverse()
{
    std::reverse(m_points.begin(), m_points.end());
}

void CPointFCollection::Move(float dx, float dy)
{
    for (PointF& p : m_points)
        p = PointF(p.x + dx, p.y + dy);
}

void CPointFCollection::Transform(System::Ref<Math::IMatrixD> matrix)
{
    // Nine virtual reads, then plain arithmetic over the points.
    double m[3][2];
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 2; ++column)
            m[row][column] = matrix->Value(row, column);
    for (PointF& p : m_points)
        p = PointF(float(m[0][0] * p.x + m[1][0] * p.y + m[2][0]),
                   float(m[0][1] * p.x + m[1][1] * p.y + m[2][1]));
}

Drawing::Point<float> CPointFCollection::Minimum()
{
    if (m_points.empty())
        return PointF();
    PointF low = m_points.front();
    for (PointF p : m_points)
        low = PointF(std::min(low.x, p.x), std::min(low.y, p.y));
    return low;
}

Drawing::Point<float> CPointFCollection::Maximum()
{
    if (m_points.empty())
        return PointF();
    PointF high = m_points.front();
    for (PointF p : m_points)
        high = PointF(std::max(high.x, p.x), std::max(high.y, p.y));
    return high;
}

double CPointFCollection::Length(bool closed)
{
    return PathLength(m_points, closed);
}

namespace {

System::Ref<Drawing::IPointFCollection> NewEmptyPointList()
{
    return CPointFCollection::Make({});
}

System::Ref<Drawing::IPointFCollection> NewPointListOf(const std::vector<Drawing::Point<float>>& points)
{
    return CPointFCollection::Make(points);
}

void RegisterPointFCollection()
{
    Drawing::PointFCollection::New.Register(L"Point list", &NewEmptyPointList);
    Drawing::PointFCollection::New.Register(L"Point list", &NewPointListOf);
}

const System::Template::Initializer<::Library> pointFCollectionInitializer(&RegisterPointFCollection, nullptr,
                                                                           0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry::TwoD
