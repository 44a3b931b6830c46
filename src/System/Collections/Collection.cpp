#include "Quilon_/System/Collections/Collection.h"

#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::System::Collections {

QUILON_DEFINE_INTERFACE_TYPE(ICollectionItem, L"Quilon_::System::Collections::ICollectionItem", Interface)
QUILON_DEFINE_INTERFACE_TYPE(ICollectionEvents, L"Quilon_::System::Collections::ICollectionEvents", Interface)

std::wstring Detail::CollectionTypeName(const wchar_t* templateName, const wchar_t* untypedName, const Type& item)
{
    if (item == Interface::GetType())
        return untypedName;
    return std::wstring(templateName) + L"<" + item.Name() + L">";
}

namespace {
// Registers the untyped view by name during static construction, as the
// macro does for other interfaces.
[[maybe_unused]] const Type& untypedCollectionType = ICollection::GetType();
} // namespace

Functions::Template::Function<Pointer<ICollection, 1> (*)()> Collection::New(L"New");

namespace Template::Detail {

void RaiseReadOnly()
{
    QUILON_RAISE(L"Collection is read-only");
}

void RaiseInsertIndexOutOfRange(std::int64_t index)
{
    QUILON_RAISE(L"Index is out of range (%1%)", index);
}

void RaiseIndexOutOfRange(std::int64_t index)
{
    QUILON_RAISE(L"Collection index is out of range (%1%)", index);
}

void RaiseAlreadyInCollection()
{
    QUILON_RAISE(L"Item is already in the collection");
}

// The text has been translated and formatted by the collection's message
// operation; it is placed as it is, so that a reason holding '%' survives.
void RaiseMessage(const std::wstring& text)
{
    System::Detail::Throw(System::Detail::MakeReported(
        System::Detail::Formatter(L"%1%", System::ToString(QUILON_FUNCTION), System::ToString(__FILE__), __LINE__) % text));
}

std::wstring DeniedMessage(const wchar_t* format, const Pointer<ICollectionEventArgs, 1>& args)
{
    return System::Detail::Formatter(System::Detail::TranslateMessage(format)) % args->Reason();
}

std::wstring NotInCollectionMessage()
{
    return System::Detail::TranslateMessage(L"Item is not in the collection");
}

void ReleaseItems(const Pointer<ICollectionEventArgs, 1>& args)
{
    Pointer<ICollectionEventArgsInternal, 1>(args)->ReleaseItems();
}

Interface* CloneItem(Interface* item, const Type& itemType)
{
    Interface* clone = System::Detail::CloneVariable(item);
    if (!clone)
        System::Detail::RaiseNotCloneable(itemType);
    return clone;
}

} // namespace Template::Detail

} // namespace Quilon_::System::Collections
