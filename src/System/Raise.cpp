#include "Quilon_/System/Raise.h"

#include "Quilon_/Library.h"

namespace Quilon_::System::Detail {

std::wstring TranslateMessage(const wchar_t* message)
{
    return Library::Translator()->Translate(message);
}

Pointer<IException, 1> MakeReported(const Formatter& formatter)
{
    Pointer<IException, 1> exception =
        Exception::RawNew(formatter, formatter.Function(), formatter.File(), formatter.Line());
    Library::ErrorManager()->SetLastError(exception);
    return exception;
}

void Throw(const Pointer<IException, 1>& exception)
{
    Template::Policy<1>::CheckInterface(exception.Get());
    throw exception;
}

} // namespace Quilon_::System::Detail
