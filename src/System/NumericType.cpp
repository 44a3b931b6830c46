#include "Quilon_/System/NumericType.h"

#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace Quilon_::System {

namespace {

constexpr std::int32_t MagnitudeBits = 0xFFF;
constexpr std::int32_t FloatingPointBit = 0x1000;
constexpr std::int32_t ComplexBit = 0x2000;

constexpr double FloatMaximum = 3.4028234663852886e38;
constexpr double FloatSmallestNormal = 1.1754943508222875e-38;
constexpr double DoubleMaximum = 1.7976931348623157e308;

struct NumericTypeRow {
    NumericTypeEnum type;
    const wchar_t* name;
    NumericTypeEnum super;
    double minimum;
    double maximum;
};

// clang-format off
constexpr NumericTypeRow Rows[] = {
    {ntUInt1,    L"ntUInt1",    ntUInt2,    0, 1},
    {ntUInt2,    L"ntUInt2",    ntUInt4,    0, 3},
    {ntUInt4,    L"ntUInt4",    ntUInt8,    0, 15},
    {ntInt8,     L"ntInt8",     ntInt16,    -128, 127},
    {ntUInt8,    L"ntUInt8",    ntUInt16,   0, 255},
    {ntInt16,    L"ntInt16",    ntInt32,    -32768, 32767},
    {ntUInt16,   L"ntUInt16",   ntUInt32,   0, 65535},
    {ntInt32,    L"ntInt32",    ntFloat,    -2147483648.0, 2147483647.0},
    {ntUInt32,   L"ntUInt32",   ntFloat,    0, 4294967295.0},
    {ntInt64,    L"ntInt64",    ntFloat,    static_cast<double>(std::numeric_limits<std::int64_t>::min()),
                                            static_cast<double>(std::numeric_limits<std::int64_t>::max())},
    {ntUInt64,   L"ntUInt64",   ntFloat,    0, static_cast<double>(std::numeric_limits<std::uint64_t>::max())},
    {ntFloat,    L"ntFloat",    ntDouble,   -FloatMaximum, FloatMaximum},
    {ntDouble,   L"ntDouble",   ntDouble,   -DoubleMaximum, DoubleMaximum},
    {ntComplexF, L"ntComplexF", ntComplexD, -FloatMaximum, FloatMaximum},
    {ntComplexD, L"ntComplexD", ntComplexD, -DoubleMaximum, DoubleMaximum},
};
// clang-format on

const NumericTypeRow* RowOf(NumericTypeEnum type)
{
    auto found = std::find_if(std::begin(Rows), std::end(Rows), [type](const auto& row) { return row.type == type; });
    return found == std::end(Rows) ? nullptr : found;
}

bool Between(double value, double minimum, double maximum)
{
    return value >= minimum && value <= maximum;
}

} // namespace

bool IsInteger(NumericTypeEnum type)
{
    return (type & (FloatingPointBit | ComplexBit)) == 0;
}

bool IsFloatingPoint(NumericTypeEnum type)
{
    return (type & FloatingPointBit) != 0;
}

bool IsComplex(NumericTypeEnum type)
{
    return (type & ComplexBit) != 0;
}

bool IsSigned(NumericTypeEnum type)
{
    return type != ntUInt1 && (type & 1) != 0;
}

std::int64_t BitSize(NumericTypeEnum type)
{
    if (type == ntUInt1)
        return 1;
    return (type & MagnitudeBits) + (type & 1);
}

std::wstring ToString(NumericTypeEnum type)
{
    const NumericTypeRow* row = RowOf(type);
    return row ? row->name : L"";
}

bool Contains(NumericTypeEnum outer, NumericTypeEnum inner)
{
    return ContainingNumericType(outer, inner) == outer;
}

NumericTypeEnum ContainingNumericType(NumericTypeEnum a, NumericTypeEnum b)
{
    if (IsInteger(a) && IsInteger(b) && IsSigned(a) != IsSigned(b)) {
        if (IsSigned(a) && a > b)
            return a;
        if (IsSigned(b) && b > a)
            return b;
        // The signed type of twice the unsigned one's width; there is none
        // beyond 64 bits, and the answer then stays ntFloat (not ntDouble).
        std::int32_t twice = 2 * (IsSigned(a) ? b : a) - 1;
        return twice < 64 ? static_cast<NumericTypeEnum>(twice) : ntFloat;
    }
    return std::max(a, b);
}

NumericTypeEnum ContainingNumericType(const std::vector<NumericTypeEnum>& types)
{
    return std::accumulate(types.begin(), types.end(), static_cast<NumericTypeEnum>(0),
                           [](NumericTypeEnum a, NumericTypeEnum b) { return ContainingNumericType(a, b); });
}

NumericTypeEnum ContainingNumericType(double value)
{
    if (value >= 0 && value <= 255)
        return value <= 1 ? ntUInt1 : value <= 3 ? ntUInt2 : value <= 15 ? ntUInt4 : ntUInt8;
    if (Between(value, -128, 127))
        return ntInt8;
    if (Between(value, 0, 65535))
        return ntUInt16;
    if (Between(value, -32768, 32767))
        return ntInt16;
    if (Between(value, 0, 4294967295.0))
        return ntUInt32;
    if (Between(value, -2147483648.0, 2147483647.0))
        return ntInt32;
    if (Between(value, -0x1p63, 0x1p63))
        return ntInt64;
    // Every remaining negative value, and NaN.
    if (!(value >= FloatSmallestNormal))
        return ntDouble;
    return value <= FloatMaximum ? ntFloat : ntDouble;
}

NumericTypeEnum SuperNumericType(NumericTypeEnum type)
{
    const NumericTypeRow* row = RowOf(type);
    if (!row)
        QUILON_RAISE(L"Invalid numeric type: '%1%'", static_cast<std::int32_t>(type));
    return row->super;
}

Pointer<Math::IRangeD, 1> NumericTypeRange(NumericTypeEnum type)
{
    const NumericTypeRow* row = RowOf(type);
    if (!row)
        QUILON_RAISE(L"Range cannot be computed on numeric type: '%1%'", ToString(type));
    return Math::RangeD::New(row->minimum, row->maximum);
}

} // namespace Quilon_::System
