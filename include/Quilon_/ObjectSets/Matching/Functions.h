// The operator that registers one object set onto another: the transform
// that maps the first onto the second. An implementation library registers
// its implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Matching;
//   System::Pointer<System::Interface, 0> transform;
//   Functions::Register(model, scene, transform, System::ToAny(DescriptorMatchingOptions()));
//
// The options travel in an Any so that each kind of matching takes its own
// record (DescriptorMatchingOptions for key points with descriptors).
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Matching::Functions {

using namespace ObjectSets::Functions::Arguments;

// (model, scene, the transform found, options).
extern QUILON_API Operator<void(Set, Set, System::Pointer<System::Interface, 0>&, const System::Any&)>
    Register;

} // namespace Quilon_::ObjectSets::Matching::Functions
