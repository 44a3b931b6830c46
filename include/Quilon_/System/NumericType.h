// The element types of bitmaps and numeric operators.
//
// Each value encodes its own width, sign and family, so that classifying a
// type is a bit test and the plain integer order of the values is the order
// of width: the low 12 bits are the number of magnitude bits (a signed type
// is its width less one, an unsigned type its width, ntUInt1 the
// exception), bit 12 marks floating point, bit 13 complex.
//
//   ContainingNumericType(ntUInt8, ntInt8);   // ntInt16: holds both
//   ContainingNumericType(1000.5);            // ntUInt16
//   SuperNumericType(ntInt16);                // ntInt32
//   NumericTypeRange(ntInt8);                 // [-128, 127]
#pragma once

#include "Quilon_/Math/Range.h"
#include "Quilon_/System/Pointer.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::System {

enum NumericTypeEnumTag : std::int32_t {
    ntUInt1 = 0x1,
    ntUInt2 = 0x2,
    ntUInt4 = 0x4,
    ntInt8 = 0x7,
    ntUInt8 = 0x8,
    ntInt16 = 0xF,
    ntUInt16 = 0x10,
    ntInt32 = 0x1F,
    ntUInt32 = 0x20,
    ntInt64 = 0x3F,
    ntUInt64 = 0x40,
    ntFloat = 0x101F,
    ntDouble = 0x103F,
    ntComplexF = 0x203F,
    ntComplexD = 0x207F,
};
using NumericTypeEnum = NumericTypeEnumTag;

// The classifiers take any value and only test its bits.
QUILON_API bool IsInteger(NumericTypeEnum type);
QUILON_API bool IsFloatingPoint(NumericTypeEnum type);
QUILON_API bool IsComplex(NumericTypeEnum type);
QUILON_API bool IsSigned(NumericTypeEnum type);
QUILON_API std::int64_t BitSize(NumericTypeEnum type);

// The enumerator's name; empty for any other value.
QUILON_API std::wstring ToString(NumericTypeEnum type);

// Whether `outer` holds every value of `inner`.
QUILON_API bool Contains(NumericTypeEnum outer, NumericTypeEnum inner);
// The type that holds the values of both. Mixing signed and unsigned
// integers doubles the unsigned one into a signed type, which for
// ntUInt64 lands on ntFloat.
QUILON_API NumericTypeEnum ContainingNumericType(NumericTypeEnum a, NumericTypeEnum b);
// Folded over the list from 0, an unsigned type narrower than all; 0 when
// the list is empty.
QUILON_API NumericTypeEnum ContainingNumericType(const std::vector<NumericTypeEnum>& types);
// The smallest type that holds `value`; its fraction plays no part.
QUILON_API NumericTypeEnum ContainingNumericType(double value);
// The next wider type; raises "Invalid numeric type: '%1%'" for a value
// that is no type.
QUILON_API NumericTypeEnum SuperNumericType(NumericTypeEnum type);
// The values of the type, made by Math::RangeD::New; raises "Range cannot
// be computed on numeric type: '%1%'" for a value that is no type.
QUILON_API Pointer<Math::IRangeD, 1> NumericTypeRange(NumericTypeEnum type);

} // namespace Quilon_::System
