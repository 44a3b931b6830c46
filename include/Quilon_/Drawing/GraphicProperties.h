// Graphic properties: how a drawable is drawn. Each kind of properties
// (standard pen and fill, text, arrow heads, ...) is an interface of its
// own, and a drawable holds the kinds it uses in an
// IGraphicPropertiesCollection.
//
//   Ref<Drawing::IStandardProperties> pen = Drawing::StandardProperties::New();
//   pen->SetPenColor(Drawing::Color(255, 0, 0));
//   other->CopyFrom(pen);     // the same values, if other is of the same kind
//   pen->Reset();             // back to StandardProperties::DefaultValues()
#pragma once

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <vector>

namespace Quilon_::Drawing {

class QUILON_API IGraphicProperties : public virtual System::Interface {
    QUILON_INTERFACE(IGraphicProperties)
public:
    // Takes the values of `source` where it is of the same kind; a source of
    // another kind leaves these properties as they are.
    virtual void CopyFrom(System::Ref<IGraphicProperties> source) = 0;
    // Takes the values of the calling thread's DefaultValues() of this kind.
    virtual void Reset() = 0;
};

// Says which kinds of graphic properties an object is drawn with, so that
// an editor offers those and no others.
class QUILON_API IPropertiesTypesProvider : public virtual System::Interface {
    QUILON_INTERFACE(IPropertiesTypesProvider)
public:
    // The interface types, such as IStandardProperties::GetType().
    virtual std::vector<System::Type> PropertiesTypes() = 0;
};

} // namespace Quilon_::Drawing
