// The first tolerance of the process-wide approximator. Start-up runs on
// the main thread, so the setting reaches the process-wide value that every
// thread copies at its first read.
#include "Quilon_/Basic/Tolerance.h"
#include "Quilon_/Math/Approximator.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Basic {

namespace {

void SetFirstTolerance()
{
    using namespace Quilon_::Math::Approximator;
    SetDefaultApproximator(New(DefaultTolerance));
}

const System::Template::Initializer<::Library> tolerance(&SetFirstTolerance, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic
