#include "Quilon_/ObjectSets/Measurements/Functions.h"

#include "ObjectSets/Functions/CatalogueRules.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/Measurements/Histogram.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::ObjectSets::Measurements::Functions {

Function7 ChainMeasurements(L"ChainMeasurements");
Operator<void(Image, Set, DescriptorExtractorEnum, Set)> Descriptors(L"Descriptors");
Function4 FeretShapeMeasurements(L"FeretShapeMeasurements");
Function1 Histogram(L"Histogram");
Function8 LineMeasurements(L"LineMeasurements");
Operator<void(Attribute, Math::Moments&)> Moments(L"Moments");
Function5 ProjectionShapeMeasurements(L"ProjectionShapeMeasurements");
Function3 StandardShapeMeasurements(L"StandardShapeMeasurements");
Function2 Statistics(L"Statistics");
Function6 TextureMeasurements(L"TextureMeasurements");

namespace {

using namespace ObjectSets::Functions::Catalogue;
using System::Functions::RuleChain;

void FillMeasurementsChains()
{
    // The values of one scalar column.
    RuleChain values;
    values.Check({Scalar(0)});
    values.AssignTo(Histogram, Moments);

    // Shapes measured on their own.
    RuleChain shapes;
    shapes.Check({Spatial(0)});
    shapes.AssignTo(StandardShapeMeasurements.Overload<0>(), FeretShapeMeasurements.Overload<0>(),
                    ProjectionShapeMeasurements.Overload<0>(), ChainMeasurements.Overload<0>(),
                    LineMeasurements.Overload<0>());

    // Bitmap shapes laid on an image of their dimension.
    RuleChain shapesOnImage;
    shapesOnImage.Check({Spatial(0), BitmapCells(0, 1)});
    shapesOnImage.AssignTo(Statistics.Overload<0>(), TextureMeasurements.Overload<0>());

    // The set forms measure the set's "Shape" column.
    RuleChain sets;
    sets.Check({HasShape(0)});
    sets.AssignTo(Statistics.Overload<1>(), StandardShapeMeasurements.Overload<1>(),
                  FeretShapeMeasurements.Overload<1>(), ProjectionShapeMeasurements.Overload<1>(),
                  TextureMeasurements.Overload<1>(), ChainMeasurements.Overload<1>(),
                  LineMeasurements.Overload<1>());
}

const System::Functions::Template::ChainsInitializer<::Library> measurementsChains(&FillMeasurementsChains);

} // namespace

} // namespace Quilon_::ObjectSets::Measurements::Functions

namespace Quilon_::System {

// The selectors box as their own types, so that an implementation reads
// back exactly the vector the caller wrote.
Any ToAny(ObjectSets::Measurements::StatisticsEnum value)
{
    return Detail::Box(value);
}
Any ToAny(ObjectSets::Measurements::StandardShapeMeasurementEnum value)
{
    return Detail::Box(value);
}
Any ToAny(ObjectSets::Measurements::FeretShapeMeasurementEnum value)
{
    return Detail::Box(value);
}
Any ToAny(ObjectSets::Measurements::ProjectionShapeMeasurementEnum value)
{
    return Detail::Box(value);
}
Any ToAny(ObjectSets::Measurements::TextureMeasurementEnum value)
{
    return Detail::Box(value);
}
Any ToAny(ObjectSets::Measurements::ChainMeasurementEnum value)
{
    return Detail::Box(value);
}
Any ToAny(ObjectSets::Measurements::LineMeasurementEnum value)
{
    return Detail::Box(value);
}
Any ToAny(ObjectSets::Measurements::DescriptorExtractorEnum value)
{
    return Detail::Box(value);
}
Any ToAny(const std::vector<ObjectSets::Measurements::StatisticsEnum>& value)
{
    return Detail::Box(value);
}
Any ToAny(const std::vector<ObjectSets::Measurements::StandardShapeMeasurementEnum>& value)
{
    return Detail::Box(value);
}
Any ToAny(const std::vector<ObjectSets::Measurements::FeretShapeMeasurementEnum>& value)
{
    return Detail::Box(value);
}
Any ToAny(const std::vector<ObjectSets::Measurements::ProjectionShapeMeasurementEnum>& value)
{
    return Detail::Box(value);
}
Any ToAny(const std::vector<ObjectSets::Measurements::TextureMeasurementEnum>& value)
{
    return Detail::Box(value);
}
Any ToAny(const std::vector<ObjectSets::Measurements::ChainMeasurementEnum>& value)
{
    return Detail::Box(value);
}
Any ToAny(const std::vector<ObjectSets::Measurements::LineMeasurementEnum>& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
