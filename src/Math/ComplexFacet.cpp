#include "Quilon_/Math/ComplexFacet.h"

namespace Quilon_::System {

std::wstring ToString(Math::ComplexFacetEnum facet)
{
    static const wchar_t* const names[] = {L"cfReal", L"cfImaginary", L"cfMagnitude", L"cfPhase"};
    return facet >= Math::cfReal && facet <= Math::cfPhase ? names[facet] : L"";
}

} // namespace Quilon_::System
