// The reference object generators: Labels, Clusters and Threshold of
// ObjectSets::Bitmaps::Generation::Functions.
//
// - Labels: one object per distinct non-zero value of an integer image, its
//   key the value, connected or not; objects in ascending order of keys.
// - Clusters: the connected components of the non-zero samples.
// - Threshold: the connected components of the samples inside the closed
//   interval [Minimum(), Maximum()].
// Clusters and Threshold number their objects 1, 2, ... in raster order of
// each object's first pixel (x fastest, then y, then z).
//
// An image with an aZ axis gives 3-D shapes (ThreeD::IBitmapShape) on
// aXYZ, any other image 2-D shapes on aXY. Only the first band and time
// step are read. The attribute form replaces the cells of the result
// attribute and adds the objects its set lacks; the set form replaces the
// set's content by the objects and their attribute "Shape". Everything that
// can fail is done before the output is touched.
#include "ObjectSets/Operators/Labelling.h"

#include "Images/Operators/OperatorSupport.h"

#include "Quilon_/Math/Interval.h"
#include "Quilon_/ObjectSets/Bitmaps/Generation/Functions.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Basic::ObjectSets::Operators {

namespace {

namespace QOS = Quilon_::ObjectSets;
namespace QG = Quilon_::Geometry;
namespace Generation = Quilon_::ObjectSets::Bitmaps::Generation::Functions;
using Images::Operators::ImageRef;
using Images::Operators::slotX;
using Images::Operators::slotY;
using Images::Operators::slotZ;

// The objects found, before they are written anywhere.
struct FoundObjects {
    int dimension = 2;
    std::vector<QOS::Key> keys;
    std::vector<System::Ref<QG::IShapeND>> shapes;
};

bool IsLabelledVolume(const ImageRef& image)
{
    return (static_cast<unsigned char>(image->Size()->Axes()) & QG::aZ) != 0;
}

// The first band and time step of `image`, typed.
template <class T>
Images::BitmapView<T> FirstLabelledVolumeOf(const ImageRef& image)
{
    Images::BitmapView<T> view = Images::Operators::ViewOf<T>(image);
    view.size[Images::Operators::slotT] = 1;
    view.size[Images::Operators::slotB] = 1;
    return view;
}

template <class T>
Triple LabelledExtentOf(const Images::BitmapView<T>& view)
{
    return {view.size[slotX], view.size[slotY], view.size[slotZ]};
}

// Cuts each component out of the labelling as a shape.
FoundObjects CutOutShapes(const Labelling& labels, const ImageRef& image,
                          const std::vector<std::int64_t>* keys)
{
    FoundObjects found;
    found.dimension = IsLabelledVolume(image) ? 3 : 2;
    const std::size_t count = labels.components.size();
    found.keys.reserve(count);
    found.shapes.reserve(count);
    std::vector<BinaryMask> masks = labels.Masks();
    for (std::size_t k = 0; k < count; ++k) {
        found.keys.emplace_back(keys ? (*keys)[k] : std::int64_t(k + 1));
        if (found.dimension == 3)
            found.shapes.emplace_back(
                Basic::Geometry::ThreeD::NewBitmapShape(std::move(masks[k]), QG::Axes::aXYZ));
        else
            found.shapes.emplace_back(
                Basic::Geometry::TwoD::NewBitmapShape(std::move(masks[k]), QG::Axes::aXY));
    }
    return found;
}

FoundObjects FindLabels(const ImageRef& image)
{
    std::vector<std::int64_t> values;
    const Labelling labels =
        Images::Operators::DispatchIntegerSampleType(Images::Operators::DataTypeOf(image), [&](auto tag) {
            using T = typename decltype(tag)::type;
            const auto view = FirstLabelledVolumeOf<T>(image);
            return LabelValues(
                LabelledExtentOf(view),
                [&](std::int64_t y, std::int64_t z, std::int64_t* row) {
                    const T* in = view.At(0, y, z);
                    for (std::int64_t x = 0; x < view.size[slotX]; ++x)
                        row[x] = static_cast<std::int64_t>(in[x * view.stride[slotX]]);
                },
                values);
        });
    return CutOutShapes(labels, image, &values);
}

// The components of the samples for which inside(sample) holds, the
// sample read in the image's compute type.
template <class Inside>
FoundObjects FindComponents(const ImageRef& image, const Connectivity& connectivity, Inside inside)
{
    const Labelling labels =
        Images::Operators::DispatchRealSampleType(Images::Operators::DataTypeOf(image), [&](auto tag) {
            using T = typename decltype(tag)::type;
            const auto view = FirstLabelledVolumeOf<T>(image);
            return LabelRows(LabelledExtentOf(view), connectivity,
                             [&](std::int64_t y, std::int64_t z, std::uint8_t* row) {
                                 const T* in = view.At(0, y, z);
                                 const std::int64_t step = view.stride[slotX];
                                 for (std::int64_t x = 0; x < view.size[slotX]; ++x)
                                     row[x] = inside(in[x * step]) ? 1 : 0;
                             });
        });
    return CutOutShapes(labels, image, nullptr);
}

FoundObjects FindClusters(const ImageRef& image, const Connectivity& connectivity)
{
    return FindComponents(image, connectivity, [](auto sample) { return sample != 0; });
}

FoundObjects FindThreshold(const ImageRef& image, System::Ref<::Quilon_::Math::IIntervalD> interval,
                           const Connectivity& connectivity)
{
    const double low = interval->Minimum(), high = interval->Maximum();
    return FindComponents(image, connectivity, [low, high](auto sample) {
        const double value = double(sample);
        return low <= value && value <= high;
    });
}

const System::Type& BitmapShapeTypeOf(int dimension)
{
    return dimension == 3 ? QOS::DataTypeOf<QG::ThreeD::IBitmapShape>()
                          : QOS::DataTypeOf<QG::TwoD::IBitmapShape>();
}

void WriteFoundObjects(const System::Ref<QOS::IAttribute>& attribute, const FoundObjects& found)
{
    System::Pointer<QOS::ISpatialAttribute, 1> spatial = attribute;
    System::Pointer<QOS::IObjectSet, 0> set = attribute->ObjectSet();
    attribute->Clear();
    if (set) {
        System::Ref<QOS::IObjectDictionary> objects = set->Objects();
        for (const QOS::Key& key : found.keys)
            if (objects->IndexOf(key) < 0)
                set->AddObject(key);
    }
    for (std::size_t k = 0; k < found.keys.size(); ++k)
        spatial->SetShapeValue(found.keys[k], found.shapes[k]);
}

void WriteFoundObjects(const System::Ref<QOS::IObjectSet>& set, const FoundObjects& found)
{
    set->Clear();
    System::Pointer<QOS::ISpatialAttribute, 1> spatial =
        set->AddAttribute(L"Shape", BitmapShapeTypeOf(found.dimension));
    for (std::size_t k = 0; k < found.keys.size(); ++k) {
        set->AddObject(found.keys[k]);
        spatial->SetShapeValue(found.keys[k], found.shapes[k]);
    }
}

template <class Output>
void LabelsInto(ImageRef image, Output output)
{
    WriteFoundObjects(output, FindLabels(image));
}

template <class Output, class Neighbourhood>
void ClustersInto(ImageRef image, Output output, Neighbourhood neighbourhood)
{
    WriteFoundObjects(output, FindClusters(image, Connectivity::Of(neighbourhood)));
}

template <class Output, class Neighbourhood>
void ThresholdInto(ImageRef image, Output output, System::Ref<::Quilon_::Math::IIntervalD> interval,
                   Neighbourhood neighbourhood)
{
    WriteFoundObjects(output, FindThreshold(image, interval, Connectivity::Of(neighbourhood)));
}

using AttributeRef = System::Ref<QOS::IAttribute>;
using SetRef = System::Ref<QOS::IObjectSet>;
using GraphRef = System::Ref<QG::INgbGraph>;
using Predefined = QG::PredefinedNgbGraphEnum;

void RegisterObjectGenerators()
{
    const System::LIString name(L"Reference labelling");
    Generation::Labels.Overload<0>().Register(name, &LabelsInto<AttributeRef>);
    Generation::Labels.Overload<1>().Register(name, &LabelsInto<SetRef>);
    Generation::Clusters.Overload<0>().Register(name, &ClustersInto<AttributeRef, GraphRef>);
    Generation::Clusters.Overload<1>().Register(name, &ClustersInto<AttributeRef, Predefined>);
    Generation::Clusters.Overload<2>().Register(name, &ClustersInto<SetRef, GraphRef>);
    Generation::Clusters.Overload<3>().Register(name, &ClustersInto<SetRef, Predefined>);
    Generation::Threshold.Overload<0>().Register(name, &ThresholdInto<AttributeRef, GraphRef>);
    Generation::Threshold.Overload<1>().Register(name, &ThresholdInto<AttributeRef, Predefined>);
    Generation::Threshold.Overload<2>().Register(name, &ThresholdInto<SetRef, GraphRef>);
    Generation::Threshold.Overload<3>().Register(name, &ThresholdInto<SetRef, Predefined>);
}

const System::Template::Initializer<::Library> objectGeneratorsRegistration(&RegisterObjectGenerators,
                                                                            nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets::Operators
