#include "Quilon_/Images/Matching/Records.h"

#include "Quilon_/System/EnumText.h"

namespace Quilon_::System {

Any ToAny(const Images::Matching::BBFAffineMatchingOptions& value)
{
    return Detail::Box(value);
}

Any ToAny(const Images::Matching::BBFAffineMatchingResults& value)
{
    return Detail::Box(value);
}

Any ToAny(const Images::Matching::DAMatchingOptions& value)
{
    return Detail::Box(value);
}

Any ToAny(const Images::Matching::DAMatchingResults& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System

QUILON_DEFINE_ENUM_TEXT(Images::Matching::DAMatchingOptions::ImageTypeEnum, Number,
                        {Images::Matching::DAMatchingOptions::itDarkField, L"itDarkField"},
                        {Images::Matching::DAMatchingOptions::itBrightField, L"itBrightField"},
                        {Images::Matching::DAMatchingOptions::itFluorescence, L"itFluorescence"})
QUILON_DEFINE_ENUM_TEXT(Images::Matching::DAMatchingOptions::LayoutTypeEnum, Number,
                        {Images::Matching::DAMatchingOptions::ltAuto, L"ltAuto"},
                        {Images::Matching::DAMatchingOptions::ltGrid, L"ltGrid"},
                        {Images::Matching::DAMatchingOptions::ltFree, L"ltFree"})
QUILON_DEFINE_ENUM_TEXT(Images::Matching::DAMatchingResults::TransformTypeEnum, Number,
                        {Images::Matching::DAMatchingResults::ttNone, L"ttNone"},
                        {Images::Matching::DAMatchingResults::ttTranslation, L"ttTranslation"},
                        {Images::Matching::DAMatchingResults::ttRigid, L"ttRigid"},
                        {Images::Matching::DAMatchingResults::ttSimilarity, L"ttSimilarity"},
                        {Images::Matching::DAMatchingResults::ttAffine, L"ttAffine"},
                        {Images::Matching::DAMatchingResults::ttProjective, L"ttProjective"})
