// A measuring tool: something that measures one kind of object and says
// what it measured. This is the measurement model's measurer; the
// process-wide collection of measurers and the measurement records join it
// there.
//
//   if (measurer->CanMeasure(shape))
//       System::Any value = measurer->Measure(shape);
#pragma once

#include "Quilon_/System/Any.h"

#include <string>

namespace Quilon_::Measurements {

class QUILON_API IMeasurer : public virtual System::Interface {
    QUILON_INTERFACE(IMeasurer)
public:
    // What is measured, for listings.
    virtual std::wstring Name() = 0;
    virtual bool CanMeasure(System::Ref<System::Interface> object) = 0;
    // The measured value; the kind of value is the measurer's own.
    virtual System::Any Measure(System::Ref<System::Interface> object) = 0;
};

} // namespace Quilon_::Measurements
