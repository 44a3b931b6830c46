// The toolkit as a whole: its version and its process-wide managers.
//
// The getters of the error manager, the trace manager and the translator
// never fail: with nothing set they return what the default New operator
// makes, so that any check can report from the first moment on.
//
//   Library::SetTraceManager(myTraceManager);
//   Library::ErrorManager()->TakeLastError();
#pragma once

#include "Quilon_/System/Diagnostic/TraceManager.h"
#include "Quilon_/System/ErrorManager.h"
#include "Quilon_/System/Localization/Translator.h"

#include <cstdint>

namespace Quilon_ {

class QUILON_API Library {
public:
    // The version of the library and of the archives it writes: 4401.
    static std::int64_t Version();

    static System::Pointer<System::IErrorManager, 1> ErrorManager();
    static void SetErrorManager(System::Pointer<System::IErrorManager, 0> manager);
    static System::Pointer<System::Diagnostic::ITraceManager, 1> TraceManager();
    static void SetTraceManager(System::Pointer<System::Diagnostic::ITraceManager, 0> manager);
    static System::Pointer<System::Localization::ITranslator, 1> Translator();
    static void SetTranslator(System::Pointer<System::Localization::ITranslator, 0> translator);
};

} // namespace Quilon_
