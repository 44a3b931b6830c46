#include "Math/Classification/DefaultValue.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/Initializer.h"

#include <vector>

namespace Quilon_::Math::Classification::Detail {

namespace {

// Built on first use: the defaults register during static construction, in
// whatever order the sources are initialised.
std::vector<std::function<void()>>& DefaultObjectReleases()
{
    static std::vector<std::function<void()>> releases;
    return releases;
}

// From the global queue, before the libraries' own finalisers (0.7) run and
// while a released object is still destroyed.
const System::Template::Initializer<Quilon_::Library> defaultObjectsRelease(nullptr, &ReleaseDefaultObjects,
                                                                            0.95f);

} // namespace

void AddDefaultObjectRelease(std::function<void()> release)
{
    DefaultObjectReleases().push_back(std::move(release));
}

void ReleaseDefaultObjects()
{
    for (const auto& release : DefaultObjectReleases())
        release();
}

} // namespace Quilon_::Math::Classification::Detail
