// Starts the reference implementation library the way an application does,
// from an initialisation file; for suites that run in a child process.
//
//   InChildProcess([] { StartBasic(); ... });
//
// The child is forked from the test program, which may have started the
// toolkit already (a suite that loads a test plug-in starts it in the
// parent); then Initialize does nothing and the reference library is loaded
// on its own, as a further library, unless it is loaded already.
#pragma once

#include "Quilon_/Library.h"
#include "Quilon_/System/String.h"

#include <dlfcn.h>

namespace Quilon_::Tests {

inline void StartBasic()
{
    Library::SetInitializationFileName(System::ToString(QUILON_TEST_FIXTURES_DIR) + L"/Basic.xml");
    Library::Initialize();
    constexpr const char* basic = QUILON_TEST_LIB_DIR "/libQuilon_.Basic.so";
    if (void* loaded = dlopen(basic, RTLD_NOW | RTLD_NOLOAD))
        dlclose(loaded);
    else
        Library::LoadLibraryW(System::ToString(basic));
}

} // namespace Quilon_::Tests
