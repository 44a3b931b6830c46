// Ordered, index-addressed lists of objects.
//
// Every list of interface objects in the toolkit is an ICollection<T>. The
// untyped view, ICollection, holds the same items as Pointer<Interface>, so
// that code that knows nothing of T can count, walk and change any
// collection:
//
//   Pointer<Template::ICollection<IImage>, 1> images = ...;
//   images->Add(image);                       // position of the new item
//   for (std::int64_t i = 0; i < images->Count(); ++i) use(images->Item(i));
//   Pointer<ICollection, 1> untyped = images; // the same store, untyped
//
// Changes are observable and can be vetoed (CollectionEvents.h); the
// implementation template is Detail::ICollectionImpl (CollectionImpl.h).
#pragma once

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <cstdint>
#include <string>

namespace Quilon_::System {

namespace Functions::Template {
template <class Signature>
class Function;
} // namespace Functions::Template

namespace Collections {

namespace Detail {
// "<name><<T's name>>", or `untypedName` when T is Interface.
QUILON_API std::wstring CollectionTypeName(const wchar_t* templateName, const wchar_t* untypedName,
                                           const Type& item);
} // namespace Detail

namespace Template {

// The slot order of the twelve operations is fixed: other libraries are
// binary clients of it.
template <class T>
class QUILON_API ICollection : public virtual Interface {
public:
    using ItemType = T;
    using ItemPointer = Pointer<T, 1>;

    static const Type& GetType();

    virtual std::int64_t Count() = 0;
    // First position of that very object, -1 if none.
    virtual std::int64_t IndexOf(const ItemPointer& item) = 0;
    virtual ItemPointer Item(std::int64_t index) = 0;
    virtual void SetItem(std::int64_t index, const ItemPointer& item) = 0;
    // Appends; the position of the new item.
    virtual std::int64_t Add(const ItemPointer& item) = 0;
    // Inserts before `index`; Count() appends.
    virtual void Insert(std::int64_t index, const ItemPointer& item) = 0;
    virtual bool RemoveAt(std::int64_t index) = 0;
    // Removes the first occurrence; false if absent.
    virtual bool Remove(const ItemPointer& item) = 0;
    virtual void Clear() = 0;
    // Whether one object may stand at several positions.
    virtual bool AllowMultipleInsertion() = 0;
    virtual void SetAllowMultipleInsertion(bool allow) = 0;
    virtual bool IsReadOnly() = 0;
};

// One record per instantiation and process, built on first use.
template <class T>
const Type& ICollection<T>::GetType()
{
    static const Type type = [] {
        Type made{Type::ReferenceType<ICollection<T>>(Collections::Detail::CollectionTypeName(
            L"Quilon_::System::Collections::Template::ICollection", L"Quilon_::System::Collections::ICollection",
            T::GetType()))};
        made.AddBase(Interface::GetType());
        return made;
    }();
    return type;
}

} // namespace Template

// The untyped view of every collection.
using ICollection = Template::ICollection<Interface>;

namespace Collection {
// Makes an untyped collection; implemented by the libraries that the core
// loads (include Functions/Function.h to call it).
extern QUILON_API Functions::Template::Function<Pointer<ICollection, 1> (*)()> New;
} // namespace Collection

} // namespace Collections

} // namespace Quilon_::System
