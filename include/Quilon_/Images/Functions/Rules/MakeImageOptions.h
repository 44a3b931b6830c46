// What a make rule is told beyond its two words: the category that the
// output is to have, and a data type for it. Both parts are optional:
//
//   MakeImageOptions grey;
//   grey.Set(System::LIString(L"Image.Category.Grey"));       // one band, grey
//   MakeImageOptions wide;
//   wide.Set(TypeOptions(System::ntInt32, false));            // a type holding int32 and the input's
//
// Options travel in an Any like other arguments of a factory. They carry no
// comparison: operator== says true for any two, which is what the holder of
// an Any needs and all it is used for.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Nullable.h"
#include "Quilon_/System/NumericType.h"
#include "Quilon_/System/String.h"

namespace Quilon_::Images::Functions::Rules {

// A data type for the output: `type` itself when `exact`, otherwise the
// type that contains both `type` and what the output would have had.
class QUILON_API TypeOptions {
public:
    TypeOptions() = default;
    TypeOptions(System::NumericTypeEnum type, bool exact) : type(type), exact(exact) {}

    bool operator==(const TypeOptions& other) const = default;

    System::NumericTypeEnum type = System::ntUInt8;
    bool exact = false;
};

class QUILON_API MakeImageOptions {
public:
    MakeImageOptions() = default;
    MakeImageOptions(const MakeImageOptions& other) = default;
    MakeImageOptions& operator=(const MakeImageOptions& other) = default;
    ~MakeImageOptions() = default;

    void Set(const System::LIString& value) { category = value; }
    void Set(const TypeOptions& value) { typeOptions = value; }

    // Deliberately no comparison: any two options are equal.
    bool operator==(const MakeImageOptions&) const { return true; }

    System::Nullable<System::LIString> category;
    System::Nullable<TypeOptions> typeOptions;
};

} // namespace Quilon_::Images::Functions::Rules

namespace Quilon_::System {
QUILON_API Any ToAny(const Images::Functions::Rules::TypeOptions& value);
QUILON_API Any ToAny(const Images::Functions::Rules::MakeImageOptions& value);
} // namespace Quilon_::System
