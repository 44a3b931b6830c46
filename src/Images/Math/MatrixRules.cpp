#include "Quilon_/Images/Math/MatrixRules.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/System/Equatable.h"
#include "Quilon_/System/Functions/Rules/Refuse.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Images::Math::Detail {

namespace {

using Images::Functions::Rules::Detail::Cloned;
using Images::Functions::Rules::Detail::HasBand;
using Images::Functions::Rules::Detail::ImageAt;
using System::Pointer;
using System::Ref;
using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::Refuse;
using System::Functions::Rules::RuleFailures;
using MatrixRef = Ref<Quilon_::Math::IMatrixD>;

MatrixRef MatrixAt(const std::vector<System::Any>& arguments, std::int64_t index)
{
    return arguments.at(static_cast<std::size_t>(index)).CastTo<MatrixRef>();
}

// The number of bands of a size: 1 without the band axis.
std::int64_t BandCount(const Ref<Quilon_::Geometry::ICoordinates>& size)
{
    return HasBand(size->Axes()) ? size->B() : 1;
}

class CCheckImageAgainstMatrix
    : public System::Template::ObjectImpl<CCheckImageAgainstMatrix, IRule, IRulePresentation> {
public:
    CCheckImageAgainstMatrix(std::int64_t image, std::int64_t matrix) : image(image), matrix(matrix) {}

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        Ref<Quilon_::Geometry::ICoordinates> size = ImageAt(arguments, image)->Size();
        MatrixRef m = MatrixAt(arguments, matrix);
        if (!HasBand(size->Axes()))
            return Refuse(failures, image, L"multi-band image expected");
        if (size->B() != m->Rows())
            return Refuse(failures, image, L"Matrix row count does not match image B size");
        return true;
    }

    std::wstring ClassName() override { return L"CCheckImageAgainstMatrix"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(image, matrix);
    }

private:
    const std::int64_t image;
    const std::int64_t matrix;
};

class CMakeImageAgainstMatrix
    : public System::Template::ObjectImpl<CMakeImageAgainstMatrix, IRule, IRulePresentation> {
public:
    CMakeImageAgainstMatrix(std::int64_t output, std::int64_t input, std::int64_t matrix)
        : output(output), input(input), matrix(matrix)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures&) override
    {
        Ref<IImage> in = ImageAt(arguments, input);
        Ref<IImage> out = ImageAt(arguments, output);
        const std::int64_t columns = MatrixAt(arguments, matrix)->Columns();
        if (Fits(*in, *out, columns))
            return true;

        // A fresh output has no format worth keeping: take the input's.
        Ref<IFormat> format = Cloned<IFormat>(
            Quilon_::Geometry::Coordinates::IsNull(out->Size()) ? in->Format() : out->Format());
        Ref<Quilon_::Geometry::ICoordinates> size = Cloned<Quilon_::Geometry::ICoordinates>(in->Size());
        const Quilon_::Geometry::Axes axes = size->Axes();
        if (columns > 1) {
            // A colour format keeps its meaning only with one band per
            // component of its space.
            Pointer<Color::IColorFormat, 0> color(format);
            if (color && ComponentCount(*color) != columns)
                format = Uniform(format, format->StorageOrder());
            format->SetStorageOrder(StorageOrder::Add(format->StorageOrder(), Quilon_::Geometry::aB));
            size->SetAxes(static_cast<unsigned char>(axes | Quilon_::Geometry::aB));
            size->SetValue(Quilon_::Geometry::aB, columns);
        } else {
            format = Uniform(format, StorageOrder::Remove(format->StorageOrder(), Quilon_::Geometry::aB));
            size->SetAxes(static_cast<unsigned char>(axes & ~Quilon_::Geometry::aB));
        }
        out->Reshape(format, size, false, Padding(ptConstant, System::ToAny(std::int64_t(0))));
        return true;
    }

    std::wstring ClassName() override { return L"CMakeImageAgainstMatrix"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(output, input, matrix);
    }

private:
    static bool Fits(IImage& in, IImage& out, std::int64_t columns)
    {
        using Images::Functions::Rules::Detail::WithoutBand;
        return System::Equals(WithoutBand(in.Size()), WithoutBand(out.Size())) &&
               BandCount(in.Size()) == columns;
    }

    // The components of the format's space; a format without a space has
    // as many as it has bands.
    static std::int64_t ComponentCount(Color::IColorFormat& format)
    {
        Pointer<Color::IColorSpace, 0> space = format.ColorSpace();
        return space ? space->BandCount() : format.BandCount();
    }

    // A plain format in `order` with the data type of `format`.
    static Ref<IFormat> Uniform(const Ref<IFormat>& format, StorageOrder::Order order)
    {
        Ref<IFormat> uniform = UniformFormat::New(std::move(order));
        uniform->SetDataType(format->DataType());
        return uniform;
    }

    const std::int64_t output;
    const std::int64_t input;
    const std::int64_t matrix;
};

Pointer<IRule, 1> NewCheckImageAgainstMatrix(std::int64_t image, std::int64_t matrix)
{
    return Pointer<IRule, 1>(new CCheckImageAgainstMatrix(image, matrix));
}

Pointer<IRule, 1> NewMakeImageAgainstMatrix(std::int64_t output, std::int64_t input, std::int64_t matrix)
{
    return Pointer<IRule, 1>(new CMakeImageAgainstMatrix(output, input, matrix));
}

} // namespace

System::Functions::Template::Function<Pointer<IRule, 1> (*)(std::int64_t, std::int64_t)>
    CheckImageAgainstMatrix::New(&NewCheckImageAgainstMatrix);
System::Functions::Template::Function<Pointer<IRule, 1> (*)(std::int64_t, std::int64_t, std::int64_t)>
    MakeImageAgainstMatrix::New(&NewMakeImageAgainstMatrix);

} // namespace Quilon_::Images::Math::Detail
