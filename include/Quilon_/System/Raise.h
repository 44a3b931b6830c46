// The raising sequence, written once for the whole toolkit.
//
// QUILON_RAISE translates the literal message (the literal is the key),
// fills its placeholders, makes the exception with the raising function's
// signature, file and line, records it as the thread's last error, and
// throws it as Pointer<IException,1>:
//
//   if (index >= count)
//       QUILON_RAISE(L"Index out of range: '%1%'", index);
//
// QUILON_MAKE_EXCEPTION does the same but returns the recorded exception
// instead of throwing it.
#pragma once

#include "Quilon_/System/Exception.h"
#include "Quilon_/System/Formatter.h"

namespace Quilon_::System::Detail {

// Library::Translator()->Translate(message).
QUILON_API std::wstring TranslateMessage(const wchar_t* message);
// Makes the exception from the formatted text and records it with the
// error manager.
QUILON_API Pointer<IException, 1> MakeReported(const Formatter& formatter);
// Checks `exception` and throws it (it has been recorded already).
[[noreturn]] QUILON_API void Throw(const Pointer<IException, 1>& exception);

// Steps 1 to 3: the signature and file as wide text, the translated
// message, and the formatter fed with the arguments.
template <class... Args>
Formatter FormatMessage(const char* function, const char* file, std::int64_t line, const wchar_t* message,
                        const Args&... arguments)
{
    Formatter formatter(TranslateMessage(message), ToStringLenient(function), ToStringLenient(file), line);
    static_cast<void>((formatter % ... % arguments));
    return formatter;
}

template <class... Args>
Pointer<IException, 1> MakeException(const char* function, const char* file, std::int64_t line,
                                     const wchar_t* message, const Args&... arguments)
{
    return MakeReported(FormatMessage(function, file, line, message, arguments...));
}

template <class... Args>
[[noreturn]] void Raise(const char* function, const char* file, std::int64_t line, const wchar_t* message,
                        const Args&... arguments)
{
    Throw(MakeException(function, file, line, message, arguments...));
}

} // namespace Quilon_::System::Detail

#define QUILON_RAISE(message, ...)                                                                \
    ::Quilon_::System::Detail::Raise(QUILON_FUNCTION, __FILE__, __LINE__, message __VA_OPT__(, ) __VA_ARGS__)

#define QUILON_MAKE_EXCEPTION(message, ...)                                                       \
    ::Quilon_::System::Detail::MakeException(QUILON_FUNCTION, __FILE__, __LINE__,                 \
                                             message __VA_OPT__(, ) __VA_ARGS__)
