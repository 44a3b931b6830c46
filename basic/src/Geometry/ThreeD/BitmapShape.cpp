// The 3-D bitmap shapes: the objects of labelled volumes. Geometry is that
// of the set voxels, as for the 2-D bitmap shapes: Bounds() runs from the
// first to the last set voxel centre, Volume() counts voxels, moves snap to
// whole voxels and other maps resample at the nearest voxel.
#include "Geometry/TwoD/BitmapShape.h"

#include "Quilon_/Geometry/ShapeEventArgs.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"

#include <algorithm>
#include <cmath>

namespace Quilon_::Basic::Geometry::ThreeD {

namespace {

using QG::ThreeD::IBitmapShape;

class CBitmapShape3D : public System::Template::ObjectImpl<CBitmapShape3D, IBitmapShape, System::ICloneable>,
                       public CMaskHolder {
public:
    CBitmapShape3D(BinaryMask mask, QG::Axes axes)
        : m_mask(std::move(mask)), m_axes(axes), m_moved(Sender()), m_resized(Sender()), m_changed(Sender())
    {
    }

    const BinaryMask& Mask() const noexcept override { return m_mask; }

    // ---- IShapeND
    QG::Axes Axes() override { return m_axes; }
    void SetAxes(QG::Axes axes) override { m_axes = axes; }
    std::int64_t Dimension() override { return 3; }
    System::Ref<QG::IBoxD> Bounds() override
    {
        const auto [low, high] = Extent();
        return QG::BoxD::New(low[0], low[1], low[2], high[0], high[1], high[2], m_axes);
    }
    System::Ref<QG::ICoordinatesD> Center() override
    {
        const auto [low, high] = Extent();
        return QG::CoordinatesD::New((low[0] + high[0]) / 2, (low[1] + high[1]) / 2, (low[2] + high[2]) / 2,
                                     m_axes);
    }
    void Move(System::Ref<QG::ICoordinatesD> offset) override
    {
        AffineMap shift;
        shift.shift = {offset->X(), offset->Y(), offset->Z()};
        m_mask = Mapped(m_mask, shift);
        if (m_moved)
            m_moved.Fire(QG::MoveEventArgs::New(offset));
        FireChanged();
    }
    // Row-vector convention: rows 0 to 2 are the linear part, row 3 the shift.
    void Transform(System::Ref<Math::IMatrixD> matrix) override
    {
        AffineMap map;
        for (int column = 0; column < 3; ++column) {
            for (int row = 0; row < 3; ++row)
                map.linear[column][row] = matrix->Value(row, column);
            map.shift[column] = matrix->Value(3, column);
        }
        m_mask = Mapped(m_mask, map);
        FireChanged();
    }
    bool Contains(System::Ref<QG::ICoordinatesD> location) override
    {
        return m_mask.At(std::llround(location->X()), std::llround(location->Y()),
                         std::llround(location->Z()));
    }
    bool IsEmpty() override { return m_mask.Count() == 0; }
    QG::MoveEvent& Moved() override { return m_moved; }
    QG::ResizeEvent& Resized() override { return m_resized; }
    QG::ShapeChangeEvent& Changed() override { return m_changed; }

    // ---- ISizeableND, ThreeD::IShape, ThreeD::IBoxedF
    System::Ref<QG::ICoordinatesD> Size() override
    {
        const auto [low, high] = Extent();
        return QG::CoordinatesD::New(high[0] - low[0], high[1] - low[1], high[2] - low[2], m_axes);
    }
    void SetSize(System::Ref<QG::ICoordinatesD> size) override
    {
        const auto [low, high] = Extent();
        Fit(low, {size->X(), size->Y(), size->Z()});
    }
    void FitTo(System::Ref<QG::IBoxD> bounds) override
    {
        System::Ref<QG::ICoordinatesD> lower = bounds->Lower(), upper = bounds->Upper();
        Fit({lower->X(), lower->Y(), lower->Z()},
            {upper->X() - lower->X(), upper->Y() - lower->Y(), upper->Z() - lower->Z()});
    }
    double Volume() override { return double(m_mask.Count()); }
    float Left() override { return float(Extent().first[0]); }
    void SetLeft(float value) override { MoveAxis(0, value); }
    float Top() override { return float(Extent().first[1]); }
    void SetTop(float value) override { MoveAxis(1, value); }
    float Front() override { return float(Extent().first[2]); }
    void SetFront(float value) override { MoveAxis(2, value); }
    float Width() override { return Length(0); }
    void SetWidth(float value) override { SizeAxis(0, value); }
    float Height() override { return Length(1); }
    void SetHeight(float value) override { SizeAxis(1, value); }
    float Depth() override { return Length(2); }
    void SetDepth(float value) override { SizeAxis(2, value); }

    // ---- ThreeD::IBitmapShape
    System::Ref<::Quilon_::Images::IBitmap> Bitmap() override { return m_mask.ToBitmap(3); }
    void SetBitmap(System::Ref<::Quilon_::Images::IBitmap> bitmap) override
    {
        m_mask = BinaryMask::Of(std::move(bitmap), m_mask.origin);
        FireResized();
    }
    System::Ref<QG::ICoordinates> Origin() override
    {
        return QG::Coordinates::New(m_mask.origin[0], m_mask.origin[1], m_mask.origin[2], m_axes);
    }
    void SetOrigin(System::Ref<QG::ICoordinates> origin) override
    {
        m_mask.origin = {origin->X(), origin->Y(), origin->Z()};
        FireChanged();
    }
    bool Value(std::int64_t x, std::int64_t y, std::int64_t z) override { return m_mask.At(x, y, z); }
    void SetValue(std::int64_t x, std::int64_t y, std::int64_t z, bool value) override
    {
        m_mask.Set(x, y, z, value);
        FireChanged();
    }
    std::int64_t VoxelCount() override { return m_mask.Count(); }
    void Fill(bool value) override
    {
        std::fill(m_mask.bits.begin(), m_mask.bits.end(), std::uint8_t(value ? 1 : 0));
        FireChanged();
    }
    void Invert() override
    {
        for (std::uint8_t& bit : m_mask.bits)
            bit ^= 1;
        FireChanged();
    }
    void Crop() override { m_mask.Crop(); }
    System::Ref<QG::TwoD::IBitmapShape> Slice(std::int64_t z) override
    {
        BinaryMask plane =
            BinaryMask::Over({m_mask.origin[0], m_mask.origin[1], z}, {m_mask.size[0], m_mask.size[1], 1});
        if (m_mask.Inside(m_mask.origin[0], m_mask.origin[1], z) && plane.Volume() > 0) {
            const auto from = m_mask.bits.begin() + m_mask.IndexOf(m_mask.origin[0], m_mask.origin[1], z);
            std::copy(from, from + plane.Volume(), plane.bits.begin());
        }
        return TwoD::NewBitmapShape(std::move(plane), QG::Axes::aXY);
    }
    bool Overlaps(System::Ref<IBitmapShape> other) override
    {
        const BinaryMask theirs = MaskOfShape(other);
        for (std::int64_t z = 0; z < theirs.size[2]; ++z)
            for (std::int64_t y = 0; y < theirs.size[1]; ++y)
                for (std::int64_t x = 0; x < theirs.size[0]; ++x)
                    if (theirs.bits[std::size_t((z * theirs.size[1] + y) * theirs.size[0] + x)] &&
                        m_mask.At(theirs.origin[0] + x, theirs.origin[1] + y, theirs.origin[2] + z))
                        return true;
        return false;
    }

    System::Pointer<System::ICloneable, 1> Clone() override
    {
        return System::Ref<System::ICloneable>(new CBitmapShape3D(m_mask, m_axes));
    }

private:
    System::Interface* Sender() { return static_cast<QG::IShapeND*>(this); }

    // The first and last set voxel centres; the origin twice when none is set.
    std::pair<std::array<double, 3>, std::array<double, 3>> Extent() const
    {
        const auto bounds = m_mask.SetBounds();
        const Triple low = bounds ? bounds->first : m_mask.origin,
                     high = bounds ? bounds->second : m_mask.origin;
        return {{double(low[0]), double(low[1]), double(low[2])},
                {double(high[0]), double(high[1]), double(high[2])}};
    }
    float Length(int axis) const
    {
        const auto [low, high] = Extent();
        return float(high[axis] - low[axis]);
    }
    void MoveAxis(int axis, double value)
    {
        auto offset = std::array<double, 3>{0, 0, 0};
        offset[axis] = value - Extent().first[axis];
        Move(QG::CoordinatesD::New(offset[0], offset[1], offset[2], m_axes));
    }
    void SizeAxis(int axis, double value)
    {
        auto [low, high] = Extent();
        std::array<double, 3> size{high[0] - low[0], high[1] - low[1], high[2] - low[2]};
        size[axis] = value;
        Fit(low, size);
    }
    // Maps the current extent onto the box at `low` of extent `size`; an
    // axis without extent is only moved.
    void Fit(const std::array<double, 3>& low, const std::array<double, 3>& size)
    {
        if (!m_mask.SetBounds())
            return;
        const auto [from, to] = Extent();
        AffineMap map;
        for (int axis = 0; axis < 3; ++axis) {
            const double length = to[axis] - from[axis];
            const double scale = length > 0 ? size[axis] / length : 1.0;
            map.linear[axis][axis] = scale;
            map.shift[axis] = low[axis] - from[axis] * scale;
        }
        m_mask = Mapped(m_mask, map);
        FireResized();
    }
    void FireResized()
    {
        if (m_resized)
            m_resized.Fire(QG::ResizeEventArgs::New(Bounds()));
        FireChanged();
    }
    void FireChanged()
    {
        if (m_changed)
            m_changed.Fire(System::EventArgs::Empty());
    }

    BinaryMask m_mask;
    QG::Axes m_axes;
    QG::MoveEvent m_moved;
    QG::ResizeEvent m_resized;
    QG::ShapeChangeEvent m_changed;
};

} // namespace

System::Ref<IBitmapShape> NewBitmapShape(BinaryMask mask, QG::Axes axes)
{
    return System::Ref<IBitmapShape>(new CBitmapShape3D(std::move(mask), axes));
}

} // namespace Quilon_::Basic::Geometry::ThreeD
