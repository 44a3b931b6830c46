// Starts the reference implementation library the way an application does,
// from an initialisation file; for suites that run in a child process.
//
//   InChildProcess([] { StartBasic(); ... });
#pragma once

#include "Quilon_/Library.h"
#include "Quilon_/System/String.h"

namespace Quilon_::Tests {

inline void StartBasic()
{
    Library::SetInitializationFileName(System::ToString(QUILON_TEST_FIXTURES_DIR) + L"/Basic.xml");
    Library::Initialize();
}

} // namespace Quilon_::Tests
