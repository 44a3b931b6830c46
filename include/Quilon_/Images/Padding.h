// How the samples that a reshaping adds, or the samples outside a region,
// are filled.
//
// A Padding is a plain value: a type and, for the constant type, the value
// written. Every reshaping inside the toolkit passes zeros:
//
//   Images::Padding zeros(Images::ptConstant, System::ToAny(std::int64_t(0)));
//   Images::Bitmap::Pad(bitmap, Images::Padding(Images::ptReplicate, System::Any()));
//
// The value is held by a holder of its own: copies never share it, so a copy
// outlives its source.
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images {

enum PaddingTypeEnumTag : std::int32_t {
    // Every padded sample takes the padding value.
    ptConstant = 0,
    // A padded sample takes the value of the nearest sample of the region.
    ptReplicate = 1,
    // The region is mirrored at its border, the border sample not repeated:
    // ... c b | a b c | b a ...
    ptMirror = 2,
    // Padded samples are left as they are: new memory holds what it holds.
    ptNone = 3,
};
using PaddingTypeEnum = PaddingTypeEnumTag;

class QUILON_API Padding {
public:
    // Constant zeros, of type int64.
    Padding();
    // Copies `paddingValue` into a holder of its own.
    Padding(PaddingTypeEnum paddingType, const System::Any& paddingValue);
    // Any copies by cloning its holder, so the defaults clone as required.
    Padding(const Padding& other) = default;
    Padding& operator=(const Padding& other) = default;
    ~Padding() = default;

    PaddingTypeEnum PaddingType() const { return paddingType; }
    System::Any PaddingValue() const { return paddingValue; }

    // Equal types and equal values; two empty values are equal, and a value
    // compares with another by the equality of its holder.
    bool operator==(const Padding& other) const;
    bool operator!=(const Padding& other) const { return !(*this == other); }

private:
    PaddingTypeEnum paddingType;
    System::Any paddingValue;
};

} // namespace Quilon_::Images

namespace Quilon_::System {
QUILON_API std::wstring ToString(Images::PaddingTypeEnum value);
QUILON_API Any ToAny(const Images::Padding& value);
} // namespace Quilon_::System
