#include "Quilon_/System/Collections/Dictionary.h"

#include "Quilon_/System/Collections/ValueDictionaryImpl.h"

namespace Quilon_::System::Collections::Template::Detail {

void RaiseDictionaryReadOnly()
{
    QUILON_RAISE(L"Dictionary is read-only");
}

// The text has been translated and formatted by the dictionary's message
// operation; it is placed as it is, so that a key or a reason holding '%'
// survives.
void RaiseDictionaryMessage(const std::wstring& text)
{
    System::Detail::Throw(System::Detail::MakeReported(
        System::Detail::Formatter(L"%1%", System::ToString(QUILON_FUNCTION), System::ToString(__FILE__), __LINE__) % text));
}

} // namespace Quilon_::System::Collections::Template::Detail
