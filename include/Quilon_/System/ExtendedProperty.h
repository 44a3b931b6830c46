// Extended properties: named values with flags that any object may carry as
// free-form metadata (an image's acquisition date, an object's name, tags).
//
//   Pointer<IExtendedProperty, 1> owner = ExtendedProperty::New(LIString(L"Owner"), ToAny(L"me"), false,
//   false); Any value; owner->GetValue(value);
//
// The classes come from another library; ExtendedPropertiesHelper.h reaches
// the properties of an object without testing its interfaces.
#pragma once

#include "Quilon_/Math/Range.h"
#include "Quilon_/System/Any.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/String.h"

namespace Quilon_::System {

// The bits of an extended property's flags byte.
enum ExtendedPropertyFlagsEnum : unsigned char {
    // Kept when the object is written to an archive.
    epfPersistent = 1,
    // Copied by ExtendedPropertiesHelper::CopyCopiableExtendedProperties.
    epfCopiable = 2,
    // Left out of the lists that tools show.
    epfHidden = 4,
};

class QUILON_API IExtendedProperty : public virtual Interface {
    QUILON_INTERFACE(IExtendedProperty)
public:
    virtual LIString Name() = 0;
    // Copies the value into `value`; empty when the property has none.
    virtual void GetValue(Any& value) = 0;
    virtual void SetValue(const Any& value) = 0;
    virtual bool IsReadOnly() = 0;
    virtual void SetReadOnly(bool readOnly) = 0;
    // A combination of ExtendedPropertyFlagsEnum bits.
    virtual unsigned char Flags() = 0;
    virtual void SetFlags(unsigned char flags) = 0;
    virtual LIString Description() = 0;
    virtual void SetDescription(const LIString& description) = 0;
    virtual bool HasValue() = 0;
};

// A property whose value is a number, with the range and step that editors
// offer.
class QUILON_API IScalarExtendedProperty : public IExtendedProperty {
    QUILON_INTERFACE(IScalarExtendedProperty)
public:
    // Null when the value is not bounded.
    virtual Pointer<Math::IRangeD, 0> Range() = 0;
    virtual void SetRange(Pointer<Math::IRangeD, 0> range) = 0;
    virtual double Increment() = 0;
    virtual void SetIncrement(double increment) = 0;
    // The value as a number; 0 when it has none.
    virtual double ScalarValue() = 0;
    // Whether `value` lies in the range, bounds included; true without one.
    virtual bool IsInRange(double value) = 0;
};

class QUILON_API IExtendedPropertyCollection : public Collections::Template::ICollection<IExtendedProperty> {
    QUILON_INTERFACE(IExtendedPropertyCollection)
};

// A property whose value is a list of properties.
class QUILON_API ICompositeExtendedProperty : public IExtendedProperty, public IExtendedPropertyCollection {
    QUILON_INTERFACE(ICompositeExtendedProperty)
};

namespace ExtendedProperty {
// (name, readOnly); (name, value, readOnly, hidden).
using Factory = Functions::Template::Factory<Pointer<IExtendedProperty, 1>(LIString name, bool readOnly),
                                             Pointer<IExtendedProperty, 1>(LIString name, Any value,
                                                                           bool readOnly, bool hidden)>;
extern QUILON_API Factory New;
} // namespace ExtendedProperty

namespace ScalarExtendedProperty {
// (name, value, readOnly); (name, value, range, increment).
using Factory =
    Functions::Template::Factory<Pointer<IScalarExtendedProperty, 1>(LIString name, Any value, bool readOnly),
                                 Pointer<IScalarExtendedProperty, 1>(LIString name, Any value,
                                                                     Pointer<Math::IRangeD, 0> range,
                                                                     double increment)>;
extern QUILON_API Factory New;
} // namespace ScalarExtendedProperty

namespace CompositeExtendedProperty {
extern QUILON_API Functions::Template::Function<Pointer<ICompositeExtendedProperty, 1> (*)(
    LIString name, Pointer<IExtendedPropertyCollection, 1> properties)>
    New;
} // namespace CompositeExtendedProperty

namespace ExtendedPropertyCollection {
extern QUILON_API Functions::Template::Function<Pointer<IExtendedPropertyCollection, 1> (*)()> New;
} // namespace ExtendedPropertyCollection

// The keys that every object may carry.
namespace ExtendedPropertyKeys {
// An LIString: what the object is called.
QUILON_API const LIString& Name();
// A DateTime: when the object was made or taken.
QUILON_API const LIString& DateTime();
} // namespace ExtendedPropertyKeys

} // namespace Quilon_::System
