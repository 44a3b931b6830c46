#include "Quilon_/Images/Segmentation/Functions.h"

#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Color/ColorDistance.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/Segmentation/PartitionsHierarchy.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Segmentation::Functions {

Function10 AdaptivePercentileThreshold(L"AdaptivePercentileThreshold");
Function1 Clusters(L"Clusters");
Function12 ColorDistanceThreshold(L"ColorDistanceThreshold");
Function3 EntropyThreshold(L"EntropyThreshold");
Operator<void(Image, Image, Hierarchy, std::int64_t)> ExtractPartition(L"ExtractPartition");
Function15 GraphSegmentation(L"GraphSegmentation");
Function8 HierarchicalPartition(L"HierarchicalPartition");
Function4 HysteresisThreshold(L"HysteresisThreshold");
Function7 MaximumContrastThreshold(L"MaximumContrastThreshold");
Function14 MultiModalThreshold(L"MultiModalThreshold");
Operator<void(Image, Image, std::vector<System::Ref<::Quilon_::Math::IIntervalD>>)>
    MultiThreshold(L"MultiThreshold");
Function3 OtsuThreshold(L"OtsuThreshold");
Function5 RegionGrow(L"RegionGrow");
Function13 SeededColorRegionGrow(L"SeededColorRegionGrow");
Function6 SeededRegionGrow(L"SeededRegionGrow");
Function2 Threshold(L"Threshold");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

// The destination of a segmentation: the source's axes and size, with a
// category and an exact type; origin, linked data and region of interest
// carried over (0x16), not the source's category or palette.
System::Pointer<System::Functions::Rules::IRule, 1>
MakeOutput(std::int64_t output, std::int64_t input, const wchar_t* category, System::NumericTypeEnum type)
{
    MakeImageOptions options;
    options.Set(System::LIString(category));
    options.Set(TypeOptions(type, true));
    return MakeImageCompatible::New(output, input, mcAxesExact | mcSize, options,
                                    tpOrigin | tpLinkedData | tpROI);
}

void FillChains()
{
    // Binary results of one band of real values: 8-bit, 255 where set.
    RuleChain binary;
    binary.Check({CheckImageScalar::New(0, false, true, false)})
        .Make({MakeOutput(1, 0, L"Image.Category.Binary", System::ntUInt8)})
        .PreExecute({CheckImageCompatible::New(1, 0, mcAxesExact)});
    binary.AssignTo(Threshold, OtsuThreshold, EntropyThreshold, HysteresisThreshold, MaximumContrastThreshold,
                    AdaptivePercentileThreshold.Overload<0>(), AdaptivePercentileThreshold.Overload<1>());

    RuleChain colourBinary = binary.Clone();
    colourBinary.Check({CheckImageCategory::New(0, System::LIString(L"Image.Category.Color"))});
    colourBinary.AssignTo(ColorDistanceThreshold);

    // Classes of values: at most 255 of them, 8-bit labels.
    RuleChain classes = binary.Clone();
    classes.Make({MakeOutput(1, 0, L"Image.Category.Label", System::ntUInt8)});
    classes.AssignTo(MultiThreshold, MultiModalThreshold);

    // Regions: as many as there are samples, 32-bit labels.
    RuleChain regions = binary.Clone();
    regions.Make({MakeOutput(1, 0, L"Image.Category.Label", System::ntUInt32)});
    regions.AssignTo(GraphSegmentation, ExtractPartition);

    // Regions grown from seeds: (source, seed labels, destination).
    RuleChain seeded;
    seeded
        .Check({CheckImageScalar::New(0, false, true, false), CheckImageScalar::New(1, true, true, false),
                CheckImageCompatible::New(1, 0, mcAxesExact)})
        .Make({MakeOutput(2, 0, L"Image.Category.Label", System::ntUInt32)})
        .PreExecute({CheckImageCompatible::New(2, 0, mcAxesExact)});
    seeded.AssignTo(SeededRegionGrow);

    RuleChain seededColour = seeded.Clone();
    seededColour.Check({CheckImageCategory::New(0, System::LIString(L"Image.Category.Color")),
                        CheckImageScalar::New(1, true, true, false),
                        CheckImageCompatible::New(1, 0, mcAxesIgnoringBand)});
    seededColour.AssignTo(SeededColorRegionGrow);

    RuleChain hierarchy;
    hierarchy.Check({CheckImageScalar::New(0, false, false, false)});
    hierarchy.AssignTo(HierarchicalPartition);

    // These three take whatever they are given.
    RuleChain none;
    none.AssignTo(RegionGrow, Clusters, AdaptivePercentileThreshold.Overload<2>());
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Segmentation::Functions
