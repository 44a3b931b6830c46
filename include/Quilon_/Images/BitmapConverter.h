// Converters: turn a bitmap into another format, for example a colour
// bitmap into grey values or one data type into another.
//
// The toolkit keeps the converters it knows in a collection, which
// implementation libraries fill:
//
//   Pointer<IBitmapConverterCollection> converters = BitmapConverterCollection::New();
//   converters->Add(myConverter);
//   for (std::int64_t i = 0; i < converters->Count(); ++i)
//       if (converters->Item(i)->CanConvert(source->Format(), target))
//           return converters->Item(i)->Convert(source, target);
#pragma once

#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/System/Collections/Collection.h"

#include <string>

namespace Quilon_::Images {

class QUILON_API IBitmapConverter : public virtual System::Interface {
    QUILON_INTERFACE(IBitmapConverter)
public:
    // The converter's name, for lists and messages.
    virtual std::wstring Name() = 0;
    virtual bool CanConvert(System::Pointer<IFormat, 1> from, System::Pointer<IFormat, 1> to) = 0;
    // A new bitmap of the size of `source` in `format`.
    virtual System::Pointer<IBitmap, 1> Convert(System::Pointer<IBitmap, 1> source,
                                                System::Pointer<IFormat, 1> format) = 0;
};

class QUILON_API IBitmapConverterCollection
    : public System::Collections::Template::ICollection<IBitmapConverter> {
    QUILON_INTERFACE(IBitmapConverterCollection)
};

namespace BitmapConverterCollection {
using Factory = System::Functions::Template::Factory<System::Pointer<IBitmapConverterCollection, 1>()>;
extern QUILON_API Factory New;
} // namespace BitmapConverterCollection

} // namespace Quilon_::Images
