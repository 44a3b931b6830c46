// Binary masks and the 2-D bitmap shapes behind Geometry::TwoD::BitmapShape::New.
//
// A shape's geometry is that of its set pixels: Bounds() runs from the
// first to the last set pixel centre, Area() counts pixels and Perimeter()
// is the crack length, the number of pixel edges between the shape and the
// rest of the plane. Moves snap to whole pixels; scaling and other affine
// maps resample the mask at the nearest pixel.
#include "Geometry/TwoD/BitmapShape.h"

#include "Geometry/TwoD/ShapeImpl.h"
#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"

#include <algorithm>
#include <cmath>

namespace Quilon_::Basic::Geometry {

BinaryMask BinaryMask::Over(Triple origin, Triple size)
{
    BinaryMask mask;
    mask.origin = origin;
    for (int axis = 0; axis < 3; ++axis)
        mask.size[axis] = std::max<std::int64_t>(size[axis], 0);
    mask.bits.assign(std::size_t(mask.Volume()), 0);
    return mask;
}

BinaryMask BinaryMask::Of(System::Ref<::Quilon_::Images::IBitmap> bitmap, Triple origin)
{
    return Images::DispatchSampleType(bitmap->Format()->DataType(), [&](auto tag) {
        using T = typename decltype(tag)::type;
        const auto view = Images::BitmapView<T>::Of(bitmap);
        BinaryMask mask = Over(origin, {view.size[0], view.size[1], view.size[2]});
        std::uint8_t* out = mask.bits.data();
        for (std::int64_t z = 0; z < view.size[2]; ++z)
            for (std::int64_t y = 0; y < view.size[1]; ++y) {
                const T* row = view.At(0, y, z);
                for (std::int64_t x = 0; x < view.size[0]; ++x)
                    *out++ = row[x * view.stride[0]] != T(0) ? 1 : 0;
            }
        return mask;
    });
}

void BinaryMask::Set(std::int64_t x, std::int64_t y, std::int64_t z, bool value)
{
    if (Inside(x, y, z)) {
        bits[std::size_t(IndexOf(x, y, z))] = value ? 1 : 0;
        return;
    }
    if (!value)
        return;
    const Triple at{x, y, z};
    Triple low = at, high = at;
    if (Volume() > 0)
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] = std::min(origin[axis], at[axis]);
            high[axis] = std::max(origin[axis] + size[axis] - 1, at[axis]);
        }
    BinaryMask grown = Over(low, {high[0] - low[0] + 1, high[1] - low[1] + 1, high[2] - low[2] + 1});
    for (std::int64_t k = 0; k < size[2]; ++k)
        for (std::int64_t j = 0; j < size[1]; ++j) {
            const std::uint8_t* from = bits.data() + (k * size[1] + j) * size[0];
            std::copy(from, from + size[0],
                      grown.bits.begin() + grown.IndexOf(origin[0], origin[1] + j, origin[2] + k));
        }
    grown.bits[std::size_t(grown.IndexOf(x, y, z))] = 1;
    *this = std::move(grown);
}

std::int64_t BinaryMask::Count() const noexcept
{
    return std::count(bits.begin(), bits.end(), std::uint8_t(1));
}

std::optional<std::pair<Triple, Triple>> BinaryMask::SetBounds() const
{
    Triple low{}, high{};
    bool any = false;
    std::size_t index = 0;
    for (std::int64_t z = 0; z < size[2]; ++z)
        for (std::int64_t y = 0; y < size[1]; ++y)
            for (std::int64_t x = 0; x < size[0]; ++x, ++index) {
                if (!bits[index])
                    continue;
                const Triple p{origin[0] + x, origin[1] + y, origin[2] + z};
                for (int axis = 0; axis < 3; ++axis) {
                    low[axis] = any ? std::min(low[axis], p[axis]) : p[axis];
                    high[axis] = any ? std::max(high[axis], p[axis]) : p[axis];
                }
                any = true;
            }
    if (!any)
        return std::nullopt;
    return std::make_pair(low, high);
}

void BinaryMask::Crop()
{
    const auto bounds = SetBounds();
    if (!bounds) {
        *this = Over(origin, {0, 0, size[2] > 0 ? 1 : 0});
        return;
    }
    const auto [low, high] = *bounds;
    BinaryMask cropped = Over(low, {high[0] - low[0] + 1, high[1] - low[1] + 1, high[2] - low[2] + 1});
    for (std::int64_t z = low[2]; z <= high[2]; ++z)
        for (std::int64_t y = low[1]; y <= high[1]; ++y) {
            const auto from = bits.begin() + IndexOf(low[0], y, z);
            std::copy(from, from + cropped.size[0], cropped.bits.begin() + cropped.IndexOf(low[0], y, z));
        }
    *this = std::move(cropped);
}

System::Ref<::Quilon_::Images::IBitmap> BinaryMask::ToBitmap(int dimension) const
{
    const auto extent = dimension == 3 ? QG::Coordinates::New(size[0], size[1], size[2], QG::Axes::aXYZ)
                                       : QG::Coordinates::New(size[0], size[1], QG::Axes::aXY);
    System::Ref<::Quilon_::Images::IBitmap> bitmap = ::Quilon_::Images::Bitmap::New(extent);
    const auto view = Images::BitmapView<std::uint8_t>::Of(bitmap);
    const std::uint8_t* in = bits.data();
    for (std::int64_t z = 0; z < (dimension == 3 ? size[2] : 1); ++z)
        for (std::int64_t y = 0; y < size[1]; ++y) {
            std::uint8_t* row = view.At(0, y, z);
            for (std::int64_t x = 0; x < size[0]; ++x)
                row[x * view.stride[0]] = *in++ ? 255 : 0;
        }
    return bitmap;
}

std::int64_t BinaryMask::FaceCount(bool alongZ) const
{
    const std::int64_t w = size[0], h = size[1], d = size[2];
    std::int64_t faces = 0;
    auto set = [&](std::int64_t x, std::int64_t y, std::int64_t z) {
        return x >= 0 && y >= 0 && z >= 0 && x < w && y < h && z < d &&
               bits[std::size_t((z * h + y) * w + x)];
    };
    for (std::int64_t z = 0; z < d; ++z)
        for (std::int64_t y = 0; y < h; ++y)
            for (std::int64_t x = 0; x < w; ++x) {
                if (!set(x, y, z))
                    continue;
                faces += !set(x - 1, y, z) + !set(x + 1, y, z) + !set(x, y - 1, z) + !set(x, y + 1, z);
                if (alongZ)
                    faces += !set(x, y, z - 1) + !set(x, y, z + 1);
            }
    return faces;
}

std::array<double, 3> AffineMap::operator()(const std::array<double, 3>& p) const noexcept
{
    std::array<double, 3> q{};
    for (int row = 0; row < 3; ++row)
        q[row] = linear[row][0] * p[0] + linear[row][1] * p[1] + linear[row][2] * p[2] + shift[row];
    return q;
}

bool AffineMap::IsTranslation() const noexcept
{
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            if (std::abs(linear[row][column] - (row == column ? 1.0 : 0.0)) > 1e-9)
                return false;
    return true;
}

namespace {

// The inverse of a 3x3 matrix by cofactors; a singular map gives nothing.
std::optional<std::array<std::array<double, 3>, 3>>
InverseOfLinearPart(const std::array<std::array<double, 3>, 3>& m)
{
    std::array<std::array<double, 3>, 3> c{};
    for (int r = 0; r < 3; ++r)
        for (int k = 0; k < 3; ++k)
            c[k][r] = m[(r + 1) % 3][(k + 1) % 3] * m[(r + 2) % 3][(k + 2) % 3] -
                      m[(r + 1) % 3][(k + 2) % 3] * m[(r + 2) % 3][(k + 1) % 3];
    const double det = m[0][0] * c[0][0] + m[0][1] * c[1][0] + m[0][2] * c[2][0];
    if (std::abs(det) < 1e-12)
        return std::nullopt;
    for (auto& row : c)
        for (double& value : row)
            value /= det;
    return c;
}

} // namespace

BinaryMask Mapped(const BinaryMask& mask, const AffineMap& map)
{
    const auto bounds = mask.SetBounds();
    if (!bounds)
        return mask;
    if (map.IsTranslation()) {
        BinaryMask moved = mask;
        for (int axis = 0; axis < 3; ++axis)
            moved.origin[axis] += std::llround(map.shift[axis]);
        return moved;
    }
    const auto inverse = InverseOfLinearPart(map.linear);
    if (!inverse)
        return BinaryMask::Over(mask.origin, {0, 0, 1});
    // The target box holds the images of the corners of the source's box.
    std::array<double, 3> low{}, high{};
    for (int corner = 0; corner < 8; ++corner) {
        std::array<double, 3> p{};
        for (int axis = 0; axis < 3; ++axis)
            p[axis] = double((corner >> axis) & 1 ? bounds->second[axis] : bounds->first[axis]);
        const auto q = map(p);
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] = corner ? std::min(low[axis], q[axis]) : q[axis];
            high[axis] = corner ? std::max(high[axis], q[axis]) : q[axis];
        }
    }
    Triple origin{}, extent{};
    for (int axis = 0; axis < 3; ++axis) {
        origin[axis] = std::llround(low[axis]);
        extent[axis] = std::llround(high[axis]) - origin[axis] + 1;
    }
    BinaryMask result = BinaryMask::Over(origin, extent);
    for (std::int64_t z = 0; z < extent[2]; ++z)
        for (std::int64_t y = 0; y < extent[1]; ++y)
            for (std::int64_t x = 0; x < extent[0]; ++x) {
                std::array<double, 3> d{double(origin[0] + x) - map.shift[0],
                                        double(origin[1] + y) - map.shift[1],
                                        double(origin[2] + z) - map.shift[2]};
                std::array<double, 3> source{};
                for (int r = 0; r < 3; ++r)
                    source[r] = (*inverse)[r][0] * d[0] + (*inverse)[r][1] * d[1] + (*inverse)[r][2] * d[2];
                if (mask.At(std::llround(source[0]), std::llround(source[1]), std::llround(source[2])))
                    result.bits[std::size_t((z * extent[1] + y) * extent[0] + x)] = 1;
            }
    return result;
}

BinaryMask MaskOfShape(System::Ref<QG::IShapeND> shape)
{
    if (const BinaryMask* own = MaskOf(shape.Get()))
        return *own;
    if (System::Pointer<QG::IBitmapShapeND, 0> flat = shape) {
        System::Ref<QG::ICoordinates> at = flat->Origin();
        return BinaryMask::Of(flat->Bitmap(), {at->X(), at->Y(), 0});
    }
    if (System::Pointer<QG::ThreeD::IBitmapShape, 0> solid = shape) {
        System::Ref<QG::ICoordinates> at = solid->Origin();
        return BinaryMask::Of(solid->Bitmap(), {at->X(), at->Y(), at->Z()});
    }
    return BinaryMask{};
}

namespace TwoD {

namespace {

using Basic::Geometry::TwoD::PointF;
using QG::TwoD::IBitmapShape;

class CBitmapShape2D
    : public Basic::Geometry::TwoD::CBoxedShape2D<CBitmapShape2D, IBitmapShape, System::ICloneable>,
      public CMaskHolder {
public:
    CBitmapShape2D(BinaryMask mask, QG::Axes axes) : CBoxedShape2D(axes), m_mask(std::move(mask)) {}

    const BinaryMask& Mask() const noexcept override { return m_mask; }

    bool Value(std::int64_t x, std::int64_t y) override { return m_mask.At(x, y); }
    void SetValue(std::int64_t x, std::int64_t y, bool value) override
    {
        m_mask.Set(x, y, m_mask.origin[2], value);
        FireChanged();
    }
    System::Pointer<::Quilon_::Windows::IViewable, 0> Viewable() override { return {}; }

    System::Ref<::Quilon_::Images::IBitmap> Bitmap() override { return m_mask.ToBitmap(2); }
    void SetBitmap(System::Ref<::Quilon_::Images::IBitmap> bitmap) override
    {
        m_mask = BinaryMask::Of(std::move(bitmap), m_mask.origin);
        FireResized();
    }
    System::Ref<QG::ICoordinates> Origin() override
    {
        return QG::Coordinates::New(m_mask.origin[0], m_mask.origin[1], Axes());
    }
    void SetOrigin(System::Ref<QG::ICoordinates> origin) override
    {
        m_mask.origin[0] = origin->X();
        m_mask.origin[1] = origin->Y();
        FireChanged();
    }

    System::Pointer<System::ICloneable, 1> Clone() override
    {
        return System::Ref<System::ICloneable>(new CBitmapShape2D(m_mask, Axes()));
    }

protected:
    // The first and last set pixel centres carry all the extent the sizing
    // operations need.
    std::vector<PointF> AllPoints() override
    {
        const auto bounds = m_mask.SetBounds();
        if (!bounds)
            return {};
        return {PointF(float(bounds->first[0]), float(bounds->first[1])),
                PointF(float(bounds->second[0]), float(bounds->second[1]))};
    }
    void MapPoints(const Basic::Geometry::TwoD::PointMap& map) override
    {
        const PointF o = map(PointF(0, 0)), ex = map(PointF(1, 0)), ey = map(PointF(0, 1));
        AffineMap affine;
        affine.linear[0] = {double(ex.x) - o.x, double(ey.x) - o.x, 0};
        affine.linear[1] = {double(ex.y) - o.y, double(ey.y) - o.y, 0};
        affine.shift = {double(o.x), double(o.y), 0};
        m_mask = Mapped(m_mask, affine);
    }
    double ShapeArea() override { return double(m_mask.Count()); }
    double ShapePerimeter() override { return double(m_mask.FaceCount(false)); }
    bool ShapeContains(PointF point) override
    {
        return m_mask.At(std::lround(point.x), std::lround(point.y));
    }

private:
    BinaryMask m_mask;
};

System::Ref<IBitmapShape> NewBitmapShape2DOf(System::Ref<::Quilon_::Images::IBitmap> bitmap,
                                             System::Ref<QG::ICoordinates> origin)
{
    return NewBitmapShape(BinaryMask::Of(std::move(bitmap), {origin->X(), origin->Y(), 0}), origin->Axes());
}

// An empty shape over the pixels from `lower` to `upper`, both included.
System::Ref<IBitmapShape> NewBitmapShape2DOver(System::Ref<QG::ICoordinates> lower,
                                               System::Ref<QG::ICoordinates> upper)
{
    return NewBitmapShape(BinaryMask::Over({lower->X(), lower->Y(), 0},
                                           {upper->X() - lower->X() + 1, upper->Y() - lower->Y() + 1, 1}),
                          lower->Axes());
}

void RegisterBitmapShape2D()
{
    QG::TwoD::BitmapShape::New.Register(L"Bitmap shape", &NewBitmapShape2DOf);
    QG::TwoD::BitmapShape::New.Register(L"Bitmap shape", &NewBitmapShape2DOver);
}

const System::Template::Initializer<::Library> bitmapShape2DRegistration(&RegisterBitmapShape2D, nullptr,
                                                                         0.2f);

} // namespace

System::Ref<IBitmapShape> NewBitmapShape(BinaryMask mask, QG::Axes axes)
{
    return System::Ref<IBitmapShape>(new CBitmapShape2D(std::move(mask), axes));
}

} // namespace TwoD

} // namespace Quilon_::Basic::Geometry
