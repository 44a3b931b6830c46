// How faithfully a file format stores a given object: the answer a writer
// gives before it is asked to write, so that the writing operators can pick
// the writer that loses least.
//
//   IO::ConversionOptionsEnum how = IO::coLosslessConversion;
//   System::ToString(how);   // "coLosslessConversion"
#pragma once

#include "Quilon_/Config.h"

#include <cstdint>
#include <string>

namespace Quilon_::IO {

// Ordered from best to worst: a smaller value loses less.
enum ConversionOptionsEnumTag : std::int32_t {
    // The format stores the data as it is.
    coNoConversion = 0,
    // The data must be converted, nothing is lost.
    coLosslessConversion = 1,
    // The data must be converted with a loss.
    coLossyConversion = 2,
};
using ConversionOptionsEnum = ConversionOptionsEnumTag;

} // namespace Quilon_::IO

namespace Quilon_::System {
QUILON_API std::wstring ToString(IO::ConversionOptionsEnum value);
} // namespace Quilon_::System
