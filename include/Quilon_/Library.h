// The toolkit as a whole: start-up and shut-down, the further libraries it
// loads, its version and its process-wide managers.
//
// An application brings the toolkit up once and down once, on one thread:
//
//   std::vector<Pointer<IException, 1>> failures;
//   Library::Initialize(failures);   // libraries that failed do not stop it
//   ...
//   Library::Finalize(nullptr);
//
// Initialize reads the initialisation file (by default Quilon.xml next to
// the core library), runs the ranked initialisers and loads each library
// named there; a library adds its own initialisers through
// Quilon_/PrivateLibrary.h. Finalize runs the finalisers from the highest
// rank down; afterwards no object is destroyed any more.
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
#include "Quilon_/System/Initializer.h"
#include "Quilon_/System/Localization/Translator.h"
#include "Quilon_/System/MemoryManager.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_ {

class QUILON_API Library {
public:
    // Throws the first failure, after every library was tried.
    static void Initialize();
    // The start-up: sets the initialisation state 0 to 4 on the way. A library
    // that fails to load or to initialise is appended to `errors`; a failing
    // initialiser of the libraries already loaded propagates.
    static void Initialize(std::vector<System::Pointer<System::IException, 1>>& errors);
    // Runs the finalisers, telling `progress` (may be null) the rank left
    // behind at each change of rank and 0 at the end; then sets the state -1.
    static void Finalize(void (*progress)(float) = nullptr);

    // The version of the library and of the archives it writes: 4401.
    static std::int64_t Version();

    // The file Initialize reads, once; by default Quilon.xml in the folder of
    // the core library.
    static std::wstring InitializationFileName();
    static void SetInitializationFileName(const std::wstring& fileName);
    // The libraries to load and those loaded. Set before Initialize, the list
    // takes the place of the file's.
    static std::vector<std::wstring> Libraries();
    static void SetLibraries(const std::vector<std::wstring>& libraries);

    // Loads one library and runs the initialisers it adds. A name without '/'
    // is looked for in the folder of the core library first. Raises "Failed
    // to load library" or "Failed to initialize library".
    static void LoadLibraryW(const std::wstring& name);
    // The same, with the failure stored in `error` instead of thrown. After a
    // failed initialiser no initialiser or finaliser registered so far runs.
    static void LoadLibraryW(const std::wstring& name, System::Pointer<System::IException, 0>& error);

    static System::Pointer<System::IErrorManager, 1> ErrorManager();
    static void SetErrorManager(System::Pointer<System::IErrorManager, 0> manager);
    static System::Pointer<System::Diagnostic::ITraceManager, 1> TraceManager();
    static void SetTraceManager(System::Pointer<System::Diagnostic::ITraceManager, 0> manager);
    static System::Pointer<System::Localization::ITranslator, 1> Translator();
    static void SetTranslator(System::Pointer<System::Localization::ITranslator, 0> translator);
    // Null unless the host sets one.
    static System::Pointer<System::IMemoryManager, 0> MemoryManager();
    static void SetMemoryManager(System::Pointer<System::IMemoryManager, 0> manager);

    // The global queues: one entry per library (rank 0.7 for the core) and
    // whatever else asks to be run at this level.
    static System::Initializer::InitializerQueue& Initializers();
    static System::Initializer::FinalizerQueue& Finalizers();
};

} // namespace Quilon_
