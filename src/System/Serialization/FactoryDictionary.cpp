#include "Quilon_/System/Serialization/FactoryDictionary.h"

#include "Quilon_/System/Collections/ValueDictionaryImpl.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include <unordered_map>

namespace Quilon_::System {

namespace Collections::Template {
template <>
const Type& IValueDictionary<std::wstring, Serialization::Factory>::GetType()
{
    static const Type type{Type::ReferenceType<IValueDictionary<std::wstring, Serialization::Factory>>(
        L"Quilon_::System::Collections::Template::IValueDictionary<std::wstring,Quilon_::System::Serialization::"
        L"Factory>")};
    return type;
}
} // namespace Collections::Template

namespace Serialization {

QUILON_DEFINE_INTERFACE_TYPE(IFactoryDictionary, L"Quilon_::System::Serialization::IFactoryDictionary",
                             Collections::Template::IValueDictionary<std::wstring, Factory>)

namespace {

// Filled by the initialisers of the libraries, one after the other: no
// lock of its own.
class CFactoryDictionary
    : public Template::ObjectImpl<
          CFactoryDictionary,
          Collections::Template::IValueDictionaryImpl<IFactoryDictionary, std::unordered_map<std::wstring, Factory>>> {
};

Pointer<IFactoryDictionary, 1> NewFactoryDictionary()
{
    return Pointer<IFactoryDictionary, 1>(new CFactoryDictionary);
}

} // namespace

Functions::Template::Function<Pointer<IFactoryDictionary, 1> (*)()> FactoryDictionary::New(&NewFactoryDictionary);

// Made once and never freed: libraries unloaded late may still look names
// up.
Pointer<IFactoryDictionary, 1> Factories()
{
    static IFactoryDictionary* const dictionary = [] {
        Pointer<IFactoryDictionary, 1> made = FactoryDictionary::New();
        made->AddReference();
        return made.Get();
    }();
    return Pointer<IFactoryDictionary, 1>(dictionary);
}

} // namespace Serialization

} // namespace Quilon_::System
