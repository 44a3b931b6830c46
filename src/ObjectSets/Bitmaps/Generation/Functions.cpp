#include "Quilon_/ObjectSets/Bitmaps/Generation/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/Segmentation/PartitionsHierarchy.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Bitmaps::Generation::Functions {

Function10 AdaptivePercentileThreshold(L"AdaptivePercentileThreshold");
Function2 Clusters(L"Clusters");
Function11 EntropyThreshold(L"EntropyThreshold");
Function9 ExtractPartition(L"ExtractPartition");
Function4 HysteresisThreshold(L"HysteresisThreshold");
Function1 Labels(L"Labels");
Function8 MaximumContrastThreshold(L"MaximumContrastThreshold");
Function11 OtsuThreshold(L"OtsuThreshold");
Function5 RegionGrow(L"RegionGrow");
Function6 SeededRegionGrow(L"SeededRegionGrow");
Function3 Threshold(L"Threshold");
Function7 ZeroCrossing(L"ZeroCrossing");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillBitmapsGenerationChains()
{
    // The result attribute receives bitmap shapes of the image's dimension;
    // the set forms make their own "Shape" attribute.
    RuleChain intoAttribute;
    intoAttribute.Check({Spatial(1), BitmapCells(1, 0)});
    intoAttribute.AssignTo(
        Labels.Overload<0>(), Clusters.Overload<0>(), Clusters.Overload<1>(), Threshold.Overload<0>(),
        Threshold.Overload<1>(), HysteresisThreshold.Overload<0>(), HysteresisThreshold.Overload<1>(),
        RegionGrow.Overload<0>(), RegionGrow.Overload<1>(), ZeroCrossing.Overload<0>(),
        ZeroCrossing.Overload<1>(), MaximumContrastThreshold.Overload<0>(), ExtractPartition.Overload<0>(),
        AdaptivePercentileThreshold.Overload<0>(), AdaptivePercentileThreshold.Overload<1>(),
        EntropyThreshold.Overload<0>(), EntropyThreshold.Overload<1>(), OtsuThreshold.Overload<0>(),
        OtsuThreshold.Overload<1>());

    // (image, seeds, result, ...).
    RuleChain seededIntoAttribute;
    seededIntoAttribute.Check({Spatial(2), BitmapCells(2, 0)});
    seededIntoAttribute.AssignTo(SeededRegionGrow.Overload<0>(), SeededRegionGrow.Overload<1>());
}

const System::Functions::Template::ChainsInitializer<::Library>
    bitmapsGenerationChains(&FillBitmapsGenerationChains);

} // namespace

} // namespace Quilon_::ObjectSets::Bitmaps::Generation::Functions
