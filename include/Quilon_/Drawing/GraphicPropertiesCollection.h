// The graphic properties of one drawable or context, at most one of each
// kind: a pen, a font, arrow heads.
//
//   Ref<Drawing::IGraphicPropertiesCollection> all = Drawing::GraphicPropertiesCollection::New();
//   all->SetProperties(Drawing::StandardProperties::New());   // adds, or replaces the standard ones
//   Pointer<Drawing::IStandardProperties, 0> pen = all->FindStandard();
//   all->Find(Drawing::ITextProperties::GetType());            // null: no text properties
//
// DefaultValues() is the collection that new drawables start with, per
// thread; ClearCollectionDefaultValues() empties it in place.
#pragma once

#include "Quilon_/Drawing/GraphicProperties.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"

#include <vector>

namespace Quilon_::Drawing {

class IStandardProperties;
class ITextProperties;
class IArrowProperties;
class ICenterProperties;
class ICircleProperties;
class IPointProperties;
class IEllipseProperties;

class QUILON_API IGraphicPropertiesCollection
    : public virtual System::Collections::Template::ICollection<IGraphicProperties> {
    QUILON_INTERFACE(IGraphicPropertiesCollection)
public:
    // The first item that implements `type`, or null.
    virtual System::Pointer<IGraphicProperties, 0> Find(const System::Type& type) = 0;
    virtual bool Contains(const System::Type& type) = 0;
    // Removes every item that implements `type`; false if there was none.
    virtual bool RemoveType(const System::Type& type) = 0;
    // Puts `properties` in the place of the first item that is of one of its
    // kinds, or appends it; its position.
    virtual std::int64_t SetProperties(const System::Ref<IGraphicProperties>& properties) = 0;
    virtual void AddRange(const std::vector<System::Ref<IGraphicProperties>>& properties) = 0;
    virtual std::vector<System::Ref<IGraphicProperties>> ToVector() = 0;
    // Copies the values of each item of `source` into the item of the same
    // kind here; kinds that are not held here are left out.
    virtual void CopyValuesFrom(const System::Ref<IGraphicPropertiesCollection>& source) = 0;
    // Reset() on every item.
    virtual void ResetAll() = 0;
    // Find for each kind of properties, cast.
    virtual System::Pointer<IStandardProperties, 0> FindStandard() = 0;
    virtual System::Pointer<ITextProperties, 0> FindText() = 0;
    virtual System::Pointer<IArrowProperties, 0> FindArrow() = 0;
    virtual System::Pointer<ICenterProperties, 0> FindCenter() = 0;
    virtual System::Pointer<ICircleProperties, 0> FindCircle() = 0;
    virtual System::Pointer<IPointProperties, 0> FindPoint() = 0;
    virtual System::Pointer<IEllipseProperties, 0> FindEllipse() = 0;
};

namespace GraphicPropertiesCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IGraphicPropertiesCollection>()>;
extern QUILON_API Factory New;
QUILON_API System::Ref<IGraphicPropertiesCollection> DefaultValues();
QUILON_API void SetDefaultValues(System::Ref<IGraphicPropertiesCollection> value);
QUILON_API void ClearDefaultValues();
// Empties the calling thread's DefaultValues() without replacing it.
QUILON_API void ClearCollectionDefaultValues();
} // namespace GraphicPropertiesCollection

} // namespace Quilon_::Drawing
