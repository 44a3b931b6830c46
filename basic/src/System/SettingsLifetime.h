// The start and stop of what the reference library keeps in the toolkit's
// settings (palettes, units, default properties, converters...):
//
//   void StartPalettes();   // Drawing::Globals::SetPalettes(...)
//   void StopPalettes();    // Drawing::Globals::ClearPalettes()
//   const Basic::SettingsLifetime palettes(&StartPalettes, &StopPalettes, 0.3f);
//
// The start runs from the library's own queue at `rank`, after the classes it
// makes objects of are registered. The stop cannot run from there: each
// library's own queue of finalisers ends in the shut-down state, in which a
// released object is no longer destroyed, so the objects of the settings
// would be lost. It runs from the global queue instead, ranked above the
// libraries' own entries (0.7), whose finalisers run later; the stops keep
// among themselves the order of their ranks.
#pragma once

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Initializer.h"

namespace Quilon_::Basic {

class SettingsLifetime {
public:
    SettingsLifetime(void (*start)(), void (*stop)(), float rank)
        : m_start(start, nullptr, rank), m_stop(nullptr, stop, 0.9f + rank / 20.0f)
    {
    }

private:
    System::Template::Initializer<::Library> m_start;
    System::Template::Initializer<Quilon_::Library> m_stop;
};

} // namespace Quilon_::Basic
