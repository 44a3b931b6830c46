// The process-wide record of failures and warnings.
//
// Every raised exception is recorded as the last error of the raising thread
// before it is thrown; warnings are recorded as the thread's last warning.
//
//   Library::ErrorManager()->Warn(QUILON_MAKE_EXCEPTION(L"Low contrast"), wlWarning);
//   Pointer<IException, 0> last = Library::ErrorManager()->TakeLastError();
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/System/Functions/Function.h"

namespace Quilon_::System {

// The level of a warning: a plain 32-bit value passed on to the listeners.
enum WarningLevelEnumTag : std::int32_t {
    wlInformation = 0,
    wlWarning = 1,
    wlSevere = 2,
};
using WarningLevelEnum = WarningLevelEnumTag;

class QUILON_API IWarningEventArgs : public virtual IEventArgs {
    QUILON_INTERFACE(IWarningEventArgs)
public:
    virtual Pointer<IException, 1> Warning() = 0;
    virtual WarningLevelEnum Level() = 0;
    virtual Any Tag() = 0;
};

class QUILON_API IErrorManager : public virtual Interface {
    QUILON_INTERFACE(IErrorManager)
public:
    virtual void Warn(Pointer<IException, 1> warning, WarningLevelEnum level, Any tag) = 0;
    virtual void Warn(Pointer<IException, 1> warning, WarningLevelEnum level) = 0;
    // The calling thread's last error, which is cleared.
    virtual Pointer<IException, 0> TakeLastError() = 0;
    // Stores `error` as the calling thread's last error.
    virtual void SetLastError(Pointer<IException, 0> error) = 0;
    // The calling thread's last warning, left in place.
    virtual Pointer<IWarningEventArgs, 0> LastWarning() = 0;
    // Fired by each Warn, with the lock of the manager held.
    virtual Event<Pointer<IWarningEventArgs, 1>>& WarningRaised() = 0;
};

namespace WarningEventArgs {
QUILON_API Pointer<IWarningEventArgs, 1> New(Pointer<IException, 1> warning, WarningLevelEnum level, Any tag);
QUILON_API Pointer<IWarningEventArgs, 1> New(Pointer<IException, 1> warning, WarningLevelEnum level);
} // namespace WarningEventArgs

namespace ErrorManager {
// Makes the default error manager.
extern QUILON_API Functions::Template::Function<Pointer<IErrorManager, 1> (*)()> New;
} // namespace ErrorManager

} // namespace Quilon_::System
