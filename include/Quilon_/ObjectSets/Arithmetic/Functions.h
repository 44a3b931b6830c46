// The arithmetic operators on attributes: cell by cell over the keys of the
// first attribute, with a second attribute or one constant. An
// implementation library registers their implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Arithmetic;
//   Functions::Add(area, System::ToAny(1.0), result);      // area + 1
//   Functions::Divide(System::ToAny(1.0), area, none);     // 1 / area
//
// Arguments are (left, right, result); the result attribute is written for
// every key of the left operand.
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Arithmetic {

using namespace ObjectSets::Functions::Arguments;

// Add, Multiply, Maximum, Minimum: [0] two attributes, [1] an attribute
// and a constant.
class QUILON_API Function1 : public Overloads<void(Attribute, Attribute, Attribute),
                                              void(Attribute, const System::Any&, Attribute)> {
public:
    using Overloads::Overloads;
};

// Subtract, Divide, which are not symmetric: [2] is the constant on the
// left, (constant, attribute, constant).
class QUILON_API Function2
    : public Overloads<void(Attribute, Attribute, Attribute), void(Attribute, const System::Any&, Attribute),
                       void(const System::Any&, Attribute, const System::Any&)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 Add;
extern QUILON_API Function2 Subtract;
extern QUILON_API Function1 Multiply;
extern QUILON_API Function2 Divide;
extern QUILON_API Function1 Maximum;
extern QUILON_API Function1 Minimum;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Arithmetic
