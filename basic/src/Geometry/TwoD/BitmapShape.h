// The bitmap shapes of the reference library and the binary mask they hold.
// A mask keeps one byte per pixel (0 or 1, x fastest) over a box placed at
// an origin in image coordinates; pixel centres lie on integer locations.
// The labelling operators build masks directly and wrap them, so that a
// shape costs one allocation and no call per pixel; the measuring
// operators read the mask back the same way.
//
//   BinaryMask mask = BinaryMask::Over({10, 20, 0}, {3, 2, 1});
//   mask.Set(11, 21, 0, true);
//   Ref<QG::TwoD::IBitmapShape> blob = TwoD::NewBitmapShape(std::move(mask), QG::Axes::aXY);
//   const BinaryMask& again = *MaskOf(blob.Get());   // no copy for shapes made here
#pragma once

#include "Quilon_/Geometry/ThreeD/BitmapShape.h"
#include "Quilon_/Geometry/TwoD/BitmapShape.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace Quilon_::Basic::Geometry {

namespace QG = ::Quilon_::Geometry;
using Triple = std::array<std::int64_t, 3>;

struct BinaryMask {
    Triple origin{0, 0, 0};
    Triple size{0, 0, 1};
    std::vector<std::uint8_t> bits;

    // A cleared mask over the box at `origin` of extent `size`.
    static BinaryMask Over(Triple origin, Triple size);
    // The non-zero samples of the first X-Y-Z volume of `bitmap`, at `origin`.
    static BinaryMask Of(System::Ref<::Quilon_::Images::IBitmap> bitmap, Triple origin);

    std::int64_t Volume() const noexcept { return size[0] * size[1] * size[2]; }
    bool Inside(std::int64_t x, std::int64_t y, std::int64_t z) const noexcept
    {
        return x >= origin[0] && y >= origin[1] && z >= origin[2] && x < origin[0] + size[0] &&
               y < origin[1] + size[1] && z < origin[2] + size[2];
    }
    // The byte of (x, y, z), in image coordinates, which must be inside.
    std::int64_t IndexOf(std::int64_t x, std::int64_t y, std::int64_t z) const noexcept
    {
        return ((z - origin[2]) * size[1] + (y - origin[1])) * size[0] + (x - origin[0]);
    }
    bool At(std::int64_t x, std::int64_t y, std::int64_t z = 0) const noexcept
    {
        return Inside(x, y, z) && bits[std::size_t(IndexOf(x, y, z))] != 0;
    }
    // Grows the box when a set pixel falls outside it.
    void Set(std::int64_t x, std::int64_t y, std::int64_t z, bool value);
    std::int64_t Count() const noexcept;
    // The lowest and highest set pixel, or nothing for an empty mask.
    std::optional<std::pair<Triple, Triple>> SetBounds() const;
    // Shrinks the box to the set pixels (to nothing when none is set).
    void Crop();
    // A new bitmap of ntUInt8 samples, 255 where set, of 2 or 3 axes.
    System::Ref<::Quilon_::Images::IBitmap> ToBitmap(int dimension) const;

    // The number of pixel faces between a set pixel and an unset one (or
    // the outside) along X and Y, plane by plane: the crack length of a 2-D
    // shape. With `alongZ`, faces along Z count too: the surface of a solid.
    std::int64_t FaceCount(bool alongZ) const;
};

// A map of image coordinates, p' = A p + t.
struct AffineMap {
    std::array<std::array<double, 3>, 3> linear{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    std::array<double, 3> shift{0, 0, 0};

    std::array<double, 3> operator()(const std::array<double, 3>& p) const noexcept;
    bool IsTranslation() const noexcept;
};

// The mask moved through `map`: whole-pixel moves shift the origin; any
// other map samples the source at the nearest pixel under each target
// pixel's centre.
BinaryMask Mapped(const BinaryMask& mask, const AffineMap& map);

// What the bitmap shapes of this library give the operators: their mask,
// without a copy.
class CMaskHolder {
public:
    virtual const BinaryMask& Mask() const noexcept = 0;

protected:
    ~CMaskHolder() = default;
};

// The mask of a shape made here, or null for any other shape.
inline const BinaryMask* MaskOf(System::Interface* shape) noexcept
{
    const auto* holder = dynamic_cast<const CMaskHolder*>(shape);
    return holder ? &holder->Mask() : nullptr;
}

// The mask of any bitmap shape: the shape's own for shapes made here,
// otherwise read from its bitmap and origin. Empty for other shapes.
BinaryMask MaskOfShape(System::Ref<QG::IShapeND> shape);

namespace TwoD {
System::Ref<QG::TwoD::IBitmapShape> NewBitmapShape(BinaryMask mask, QG::Axes axes);
} // namespace TwoD

namespace ThreeD {
System::Ref<QG::ThreeD::IBitmapShape> NewBitmapShape(BinaryMask mask, QG::Axes axes);
} // namespace ThreeD

} // namespace Quilon_::Basic::Geometry
