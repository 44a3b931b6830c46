// The reference ToImage of ObjectSets::Utility: paints the objects of a
// spatial attribute into an image, the value of each being its cell in a
// second attribute (objects whose cell is unset are not painted) or one
// constant for all.
//
// The image keeps its size and sample type: every sample is cleared, then
// each object's value, saturated to the sample type, is written under its
// shape on every band and time step; parts of a shape outside the image
// are left out. Objects are painted in the set's order, so a later object
// wins where two overlap. An empty image is first given the extent that
// holds every shape, from the origin, with int32 samples.
#include "ObjectSets/Operators/Measurements.h"

#include "Images/Operators/OperatorSupport.h"

#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/Utility/Functions.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Helper.h"

#include <algorithm>
#include <optional>

namespace Quilon_::Basic::ObjectSets::Operators {

namespace {

namespace QOS = Quilon_::ObjectSets;
namespace QG = Quilon_::Geometry;
namespace PaintOps = Images::Operators;

// Gives an empty image the extent of the shapes.
void ShapeToHold(const PaintOps::ImageRef& image, const MeasuredShapes& shapes)
{
    if (!image->IsEmpty())
        return;
    Basic::Geometry::Triple extent{1, 1, 1};
    for (const BinaryMask* mask : shapes.masks)
        for (int axis = 0; axis < 3; ++axis)
            extent[axis] = std::max(extent[axis], mask->origin[axis] + mask->size[axis]);
    const auto size = shapes.dimension == 3
                          ? QG::Coordinates::New(extent[0], extent[1], extent[2], QG::Axes::aXYZ)
                          : QG::Coordinates::New(extent[0], extent[1], QG::Axes::aXY);
    PaintOps::Shape(image, size, System::ntInt32, image);
}

void PaintShapes(const MeasuredShapes& shapes, const std::vector<std::optional<double>>& values,
                 const PaintOps::ImageRef& image)
{
    ShapeToHold(image, shapes);
    PaintOps::DispatchRealSampleType(PaintOps::DataTypeOf(image), [&](auto tag) {
        using T = typename decltype(tag)::type;
        const Images::BitmapView<T> view = PaintOps::ViewOf<T>(image);
        Images::ForEachLine(view, [](T* line, std::int64_t count, std::int64_t step) {
            for (std::int64_t i = 0; i < count; ++i)
                line[i * step] = T(0);
        });
        for (std::size_t k = 0; k < shapes.masks.size(); ++k) {
            if (!values[k])
                continue;
            const T value = PaintOps::SaturateCast<T>(*values[k]);
            const BinaryMask& mask = *shapes.masks[k];
            PaintOps::ForEachVolume(view, [&](const Images::BitmapView<T>& volume, std::int64_t) {
                const std::uint8_t* bit = mask.bits.data();
                for (std::int64_t z = mask.origin[2]; z < mask.origin[2] + mask.size[2]; ++z)
                    for (std::int64_t y = mask.origin[1]; y < mask.origin[1] + mask.size[1]; ++y)
                        for (std::int64_t x = mask.origin[0]; x < mask.origin[0] + mask.size[0]; ++x, ++bit)
                            if (*bit && x >= 0 && y >= 0 && z >= 0 && x < volume.size[PaintOps::slotX] &&
                                y < volume.size[PaintOps::slotY] && z < volume.size[PaintOps::slotZ])
                                *volume.At(x, y, z) = value;
            });
        }
    });
}

void PaintAttributeValues(System::Ref<QOS::IAttribute> shapesAttribute, PaintOps::ImageRef image,
                          System::Ref<QOS::IAttribute> valuesAttribute)
{
    const MeasuredShapes shapes = MeasuredShapes::Of(shapesAttribute);
    System::Pointer<QOS::IScalarAttribute, 0> scalar = valuesAttribute;
    std::vector<std::optional<double>> values;
    values.reserve(shapes.keys.size());
    for (const QOS::Key& key : shapes.keys) {
        if (!valuesAttribute->HasValue(key))
            values.emplace_back();
        else if (scalar)
            values.emplace_back(scalar->ScalarValue(key));
        else
            values.emplace_back(System::Helper::ScalarValue(valuesAttribute->Value(key)));
    }
    PaintShapes(shapes, values, image);
}

void PaintConstant(System::Ref<QOS::IAttribute> shapesAttribute, PaintOps::ImageRef image,
                   const System::Any& value)
{
    const MeasuredShapes shapes = MeasuredShapes::Of(shapesAttribute);
    const double constant = System::Helper::ScalarValue(value);
    PaintShapes(shapes, std::vector<std::optional<double>>(shapes.keys.size(), constant), image);
}

void RegisterToImage()
{
    const System::LIString name(L"Reference painting");
    QOS::Utility::Functions::ToImage.Overload<0>().Register(name, &PaintAttributeValues);
    QOS::Utility::Functions::ToImage.Overload<1>().Register(name, &PaintConstant);
}

const System::Template::Initializer<::Library> toImageRegistration(&RegisterToImage, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets::Operators
