// The one kind of failure of the toolkit.
//
// Failures are IException objects thrown as Pointer<IException,1> by value.
// Each carries a translated, formatted message and the function, file and
// line that raised it. Raise them with QUILON_RAISE (Raise.h):
//
//   try { ... }
//   catch (const Pointer<IException, 1>& e) { log(e->Message(), e->File(), e->Line()); }
#pragma once

#include "Quilon_/System/Pointer.h"

#include <cstdint>
#include <string>

namespace Quilon_::System {

class QUILON_API IException : public virtual Interface {
    QUILON_INTERFACE(IException)
public:
    virtual std::wstring Message() = 0;
    // The raising function's textual signature.
    virtual std::wstring Function() = 0;
    virtual std::wstring File() = 0;
    virtual std::int64_t Line() = 0;
    // Further text; empty unless a subclass sets it.
    virtual std::wstring Details() = 0;
};

// A failure that means the user has cancelled.
class QUILON_API ICancelException : public IException {
    QUILON_INTERFACE(ICancelException)
};

namespace Exception {
QUILON_API Pointer<IException, 1> New(const std::wstring& message, const std::wstring& function,
                                      const std::wstring& file, std::int64_t line);
QUILON_API Pointer<IException, 1> RawNew(const std::wstring& message, const std::wstring& function,
                                         const std::wstring& file, std::int64_t line);
// One object made ahead of time, so that running out of memory can be
// reported without memory: "Not enough memory to complete the operation".
QUILON_API Pointer<IException, 1> OutOfMemory();
} // namespace Exception

namespace CancelException {
QUILON_API Pointer<ICancelException, 1> New(const std::wstring& message, const std::wstring& function,
                                            const std::wstring& file, std::int64_t line);
QUILON_API Pointer<ICancelException, 1> RawNew(const std::wstring& message, const std::wstring& function,
                                               const std::wstring& file, std::int64_t line);
} // namespace CancelException

} // namespace Quilon_::System
