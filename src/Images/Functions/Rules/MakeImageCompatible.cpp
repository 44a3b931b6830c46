#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/Geometry/ShapeSet.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/System/ExtendedPropertyDictionary.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"
#include "System/Functions/Rules/DisableEventsWrapper.h"

#include <atomic>
#include <typeinfo>
#include <utility>

namespace Quilon_::Images::Functions::Rules {

namespace {

using Detail::Cloned;
using Detail::HasBand;
using Quilon_::Geometry::Axes;
using System::Any;
using System::LIString;
using System::NumericTypeEnum;
using System::Pointer;
using System::Ref;
using System::Functions::Rules::CDisableEventsWrapper;
using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::RuleFailures;

const LIString binaryCategory(L"Image.Category.Binary");
const LIString greyCategory(L"Image.Category.Grey");
const LIString labelCategory(L"Image.Category.Label");
const LIString colorCategory(L"Image.Category.Color");

// The region of interest that an output takes over from `image`: none for a
// missing or empty one; an attribute of an object set is shared, since it
// belongs to its set; any other set is copied.
Pointer<Quilon_::Geometry::IShapeSet, 0> RoiOf(const Ref<IImage>& image)
{
    Pointer<Quilon_::Geometry::IShapeSet, 0> roi = Image::ROI(image);
    if (!roi || roi->Count() == 0)
        return nullptr;
    if (Pointer<ObjectSets::IAttribute, 0>(roi))
        return roi;
    return Cloned<Quilon_::Geometry::IShapeSet>(roi);
}

// What the output is to become: a format and a size that start as those
// of another image and are copied before the first change, so that a call
// that changes nothing copies nothing.
class Shape {
public:
    Shape(Ref<IFormat> format, Ref<Quilon_::Geometry::ICoordinates> size)
        : format(std::move(format)), size(std::move(size))
    {
    }

    IFormat& Format() const { return *format; }
    Quilon_::Geometry::ICoordinates& Size() const { return *size; }

    IFormat& FormatToChange()
    {
        if (!formatOwned)
            SetFormat(Cloned<IFormat>(format));
        return *format;
    }
    Quilon_::Geometry::ICoordinates& SizeToChange()
    {
        if (!sizeOwned)
            SetSize(Cloned<Quilon_::Geometry::ICoordinates>(size));
        return *size;
    }
    // A format or size of its own, or another image's, still to be copied.
    void SetFormat(Ref<IFormat> value, bool owned = true)
    {
        format = std::move(value);
        formatOwned = owned;
    }
    void SetSize(Ref<Quilon_::Geometry::ICoordinates> value, bool owned = true)
    {
        size = std::move(value);
        sizeOwned = owned;
    }

    // The copies that the output is reshaped to.
    Ref<IFormat> FormatCopy()
    {
        FormatToChange();
        return format;
    }
    Ref<Quilon_::Geometry::ICoordinates> SizeCopy()
    {
        SizeToChange();
        return size;
    }

    bool changed = false;

private:
    Ref<IFormat> format;
    Ref<Quilon_::Geometry::ICoordinates> size;
    bool formatOwned = false;
    bool sizeOwned = false;
};

// Whether two sizes have the same axes and values once the band axis is
// left out of both: the equality of their copies without it.
bool SameExtentIgnoringBand(Quilon_::Geometry::ICoordinates& a, Quilon_::Geometry::ICoordinates& b)
{
    const Axes axes = a.Axes();
    if (((axes ^ b.Axes()) & ~Quilon_::Geometry::aB) != 0)
        return false;
    for (Quilon_::Geometry::AxisEnum axis :
         {Quilon_::Geometry::aX, Quilon_::Geometry::aY, Quilon_::Geometry::aZ, Quilon_::Geometry::aT})
        if ((axes & axis) && a.Value(axis) != b.Value(axis))
            return false;
    return true;
}

// Whether an image carries no extended property at all.
bool Bare(const Ref<IImage>& image)
{
    Pointer<System::IExtendedPropertiesContainer, 0> container(image);
    return container && !container->HasExtendedProperties();
}

class CMakeImageCompatible
    : public System::Template::ObjectImpl<CMakeImageCompatible, IRule, IRulePresentation> {
public:
    CMakeImageCompatible(std::int64_t output, std::vector<std::int64_t> inputs, unsigned short options,
                         System::Nullable<MakeImageOptions> makeOptions, unsigned short transfers)
        : output(output), inputs(std::move(inputs)), options(options), makeOptions(std::move(makeOptions))
    {
        // The output is made after the first input: there must be one.
        if (this->inputs.empty())
            QUILON_RAISE(L"At least one input image index expected");
        CheckConsistency(transfers);
        this->transfers.store(transfers, std::memory_order_relaxed);
    }

    bool Apply(std::vector<Any>& arguments, RuleFailures&) override
    {
        std::vector<Ref<IImage>> images;
        images.reserve(inputs.size());
        for (std::int64_t input : inputs)
            images.push_back(Detail::ImageAt(arguments, input));
        Any& outputArgument = arguments.at(static_cast<std::size_t>(output));
        Ref<IImage> image = outputArgument.CastTo<Ref<IImage>>();
        SilenceEvents(outputArgument, image);

        Shape shape = Decide(image, images);
        if (shape.changed) {
            KeepAliasedInputs(arguments, image);
            image->Reshape(shape.FormatCopy(), shape.SizeCopy(), false,
                           Padding(ptConstant, System::ToAny(std::int64_t(0))));
        }
        TransferProperties(arguments, image, images.front());
        return true;
    }

    std::wstring ClassName() override { return L"CMakeImageCompatible"; }
    std::vector<std::wstring> Arguments() override
    {
        using System::Functions::Rules::Detail::Text;
        std::vector<std::wstring> texts{Text(output),
                                        inputs.size() == 1 ? Text(inputs.front()) : Text(inputs),
                                        Detail::WordText(options)};
        if (makeOptions.HasValue())
            texts.push_back(OptionsText(makeOptions.Value()));
        texts.push_back(Detail::WordText(Transfers()));
        return texts;
    }

private:
    unsigned short Transfers() const { return transfers.load(std::memory_order_relaxed); }

    // Clears bits of the second word that cannot apply to this rule. Calls
    // that share the rule store the same value, so they agree on the word
    // whichever stores first.
    void ClearTransfers(unsigned short bits)
    {
        transfers.fetch_and(~bits & 0xFFFF, std::memory_order_relaxed);
    }

    bool HasCategoryOption() const
    {
        return makeOptions.HasValue() && makeOptions.Value().category.HasValue();
    }

    // Runs when the chain is built, so that a contradictory chain fails at
    // start-up rather than at the first call.
    void CheckConsistency(unsigned short& word) const
    {
        if ((word & tpROI) && (word & tpNewROI))
            QUILON_RAISE(L"tpROI and tpNewROI are mutually exclusive");
        if (HasCategoryOption()) {
            const LIString& category = makeOptions.Value().category.Value();
            // These categories come with palettes of their own.
            if (category == colorCategory || category == labelCategory || category == binaryCategory)
                word &= static_cast<unsigned short>(~tpPalette);
        }
    }

    // The output's events stay off until the boxed arguments are released,
    // after the implementation has run; the wrapper answers the cast back to
    // IImage. An output that an earlier rule of this call wrapped already
    // keeps that wrapper: a second one would release the first and switch
    // the events on while the call still runs.
    static void SilenceEvents(Any& argument, const Ref<IImage>& image)
    {
        // Compared by type, not cast: a failing cast walks every base of the
        // image, on every call.
        const System::Interface* held = argument.CastTo<Pointer<System::Interface, 0>>().Get();
        if (held && typeid(*held) == typeid(CDisableEventsWrapper))
            return;
        Pointer<System::IDisableEvents, 0> events(image);
        if (events)
            argument = System::ToAny(Pointer<System::Interface, 1>(
                new CDisableEventsWrapper(Ref<System::IDisableEvents>(events))));
    }

    // An input that is the output itself would be reshaped under the
    // implementation's feet: it is replaced by one copy, made before the
    // reshaping and shared by all such inputs.
    void KeepAliasedInputs(std::vector<Any>& arguments, const Ref<IImage>& image) const
    {
        Pointer<IImage, 0> copy;
        for (std::size_t i = 0; i < static_cast<std::size_t>(output); ++i) {
            if (Detail::HeldImage(arguments[i]) != image.Get())
                continue;
            if (!copy)
                copy = Cloned<IImage>(image);
            arguments[i] = System::ToAny(copy);
        }
    }

    // Whether the output is also passed in another place: used in place.
    bool UsedInPlace(const std::vector<Any>& arguments, const Ref<IImage>& image) const
    {
        for (std::size_t i = 0; i < arguments.size(); ++i)
            if (i != static_cast<std::size_t>(output) && Detail::HeldImage(arguments[i]) == image.Get())
                return true;
        return false;
    }

    void TransferProperties(const std::vector<Any>& arguments, const Ref<IImage>& image,
                            const Ref<IImage>& first) const
    {
        const unsigned short word = Transfers();
        // With no property on either image, every step below would remove
        // what is not there; a call on plain images skips them.
        bool bare = Bare(first) && Bare(image);
        if (!(options & mcCategory) && !(word & tpCategory)) {
            if (HasCategoryOption()) {
                Image::SetCategory(image, makeOptions.Value().category, false);
                bare = false;
            }
        } else if (!bare) {
            Image::SetCategory(image, Image::Category(first), false);
        }
        if (word & tpLinkedData)
            image->SetLinkedData(first->LinkedData());
        if (bare)
            return;
        if (word & tpPalette)
            Image::SetPalette(image, Image::Palette(first));
        // In place, the output keeps its own origin and region.
        if (UsedInPlace(arguments, image))
            return;
        if (word & tpNewOrigin) {
            Pointer<Quilon_::Geometry::ICoordinates, 0> origin = Image::Origin(first);
            if (!Image::Origin(image) && origin)
                Image::SetOrigin(image, Cloned<Quilon_::Geometry::ICoordinates>(origin));
        } else if (word & tpOrigin) {
            Pointer<Quilon_::Geometry::ICoordinates, 0> origin = Image::Origin(first);
            // A missing origin removes the output's.
            Image::SetOrigin(image, origin ? Pointer<Quilon_::Geometry::ICoordinates, 0>(
                                                 Cloned<Quilon_::Geometry::ICoordinates>(origin))
                                           : Pointer<Quilon_::Geometry::ICoordinates, 0>());
        }
        if (word & tpNewROI) {
            Pointer<Quilon_::Geometry::IShapeSet, 0> roi = Image::ROI(image);
            if (roi && roi->Count() > 0)
                Image::SetROI(image, RoiOf(first));
        } else if (word & tpROI) {
            Image::SetROI(image, RoiOf(first));
        }
    }

    // The format and size that the output is to have, and whether it must
    // be reshaped to get them.
    Shape Decide(const Ref<IImage>& image, const std::vector<Ref<IImage>>& images)
    {
        const Ref<IImage>& first = images.front();
        const Ref<Quilon_::Geometry::ICoordinates> firstSize = first->Size();
        const Ref<Quilon_::Geometry::ICoordinates> outputSize = image->Size();
        Shape shape(first->Format(), firstSize);

        NumericTypeEnum type = image->Format()->DataType();
        // An empty 8-bit image is a fresh output: it takes everything.
        if (type == System::ntUInt8 && Quilon_::Geometry::Coordinates::Product(outputSize) == 0) {
            type = shape.Format().DataType();
            shape.changed = true;
        }
        if (options & mcSize) {
            if (!SameExtentIgnoringBand(*firstSize, *outputSize))
                shape.changed = true;
        } else {
            shape.SetSize(outputSize, false);
        }
        DecideAxes(shape, firstSize->Axes(), outputSize->Axes());
        type = DecideType(shape, type, images);
        if (makeOptions.HasValue()) {
            const MakeImageOptions& made = makeOptions.Value();
            if (made.typeOptions.HasValue())
                type = TypeFromOptions(shape, type, made.typeOptions.Value());
            if (made.category.HasValue())
                ShapeForCategory(shape, type, made.category.Value(), *image, outputSize->Axes());
        }
        if (type != shape.Format().DataType())
            shape.FormatToChange().SetDataType(type);
        return shape;
    }

    void DecideAxes(Shape& shape, Axes firstAxes, Axes outputAxes) const
    {
        if ((options & mcAxesExact) == mcAxesExact) {
            if (firstAxes != outputAxes) {
                shape.SizeToChange().SetAxes(firstAxes);
                shape.changed = true;
            }
        } else if (options & mcAxesIgnoringBand) {
            if (((firstAxes ^ outputAxes) & ~Quilon_::Geometry::aB) != 0) {
                // The truth value of the condition, a mask of aX or of
                // nothing, and not a union of axes: kept as designed.
                const bool value = (firstAxes & ~Quilon_::Geometry::aB) != 0 || HasBand(outputAxes);
                shape.SizeToChange().SetAxes(value ? 1 : 0);
                shape.changed = true;
            }
        }
    }

    NumericTypeEnum DecideType(Shape& shape, NumericTypeEnum type,
                               const std::vector<Ref<IImage>>& images) const
    {
        if (options & mcSameType) {
            const NumericTypeEnum firstType = shape.Format().DataType();
            if (type != firstType) {
                shape.changed = true;
                return firstType;
            }
        } else if (options & mcContainingType) {
            NumericTypeEnum containing = System::ntUInt1;
            for (const Ref<IImage>& input : images)
                containing = System::ContainingNumericType(containing, input->Format()->DataType());
            if (!System::Contains(type, containing)) {
                shape.changed = true;
                return containing;
            }
        }
        return type;
    }

    static NumericTypeEnum TypeFromOptions(Shape& shape, NumericTypeEnum type, const TypeOptions& typeOptions)
    {
        const NumericTypeEnum wanted =
            typeOptions.exact ? typeOptions.type : System::ContainingNumericType(type, typeOptions.type);
        if (wanted != type)
            shape.changed = true;
        return wanted;
    }

    void ShapeForCategory(Shape& shape, NumericTypeEnum type, const LIString& category, IImage& image,
                          Axes outputAxes)
    {
        const NumericTypeEnum bandType = shape.changed ? type : shape.Format().DataType();
        if (category == greyCategory || category == binaryCategory) {
            const Axes axes = shape.Size().Axes();
            if (HasBand(axes)) {
                shape.SizeToChange().SetAxes(static_cast<unsigned char>(axes & ~Quilon_::Geometry::aB));
                shape.SetFormat(UniformFormat::New(
                    StorageOrder::Remove(shape.Format().StorageOrder(), Quilon_::Geometry::aB)));
                shape.Format().SetDataType(bandType);
            }
            if (shape.Size().Axes() != outputAxes)
                shape.changed = true;
            // A binary output shows itself in black and white.
            if (category == binaryCategory)
                ClearTransfers(tpPalette);
        } else if (category == colorCategory) {
            const Axes axes = shape.Size().Axes();
            if (!HasBand(axes)) {
                Quilon_::Geometry::ICoordinates& size = shape.SizeToChange();
                size.SetAxes(static_cast<unsigned char>(axes | Quilon_::Geometry::aB));
                size.SetB(3);
            }
            Ref<IFormat> outputFormat = image.Format();
            if (shape.Size().Axes() == outputAxes && Pointer<Color::IColorFormat, 0>(outputFormat)) {
                // Copied before a change, so that the output's own stays.
                shape.SetFormat(outputFormat, false);
            } else {
                shape.SetFormat(Color::UniformColorFormat::New(StorageOrder::BFirst(
                    StorageOrder::Add(shape.Format().StorageOrder(), Quilon_::Geometry::aB))));
                shape.Format().SetDataType(bandType);
                shape.changed = true;
            }
        }
        // The category of the options wins over the input's.
        ClearTransfers(tpCategory);
    }

    static std::wstring OptionsText(const MakeImageOptions& made)
    {
        std::wstring text;
        if (made.category.HasValue())
            text = made.category.Value().Value();
        if (made.typeOptions.HasValue()) {
            const TypeOptions& type = made.typeOptions.Value();
            text +=
                (text.empty() ? L"" : L", ") + System::ToString(type.type) + (type.exact ? L" exact" : L"");
        }
        return L"{" + text + L"}";
    }

    const std::int64_t output;
    const std::vector<std::int64_t> inputs;
    const unsigned short options;
    // The second word; the decider clears bits of it that do not apply.
    std::atomic<unsigned short> transfers{0};
    const System::Nullable<MakeImageOptions> makeOptions;
};

Pointer<IRule, 1> NewForInput(std::int64_t output, std::int64_t input, unsigned short options,
                              unsigned short transfers)
{
    return Pointer<IRule, 1>(new CMakeImageCompatible(output, {input}, options, {}, transfers));
}

Pointer<IRule, 1> NewForInputWithOptions(std::int64_t output, std::int64_t input, unsigned short options,
                                         const MakeImageOptions& makeOptions, unsigned short transfers)
{
    return Pointer<IRule, 1>(new CMakeImageCompatible(output, {input}, options, makeOptions, transfers));
}

Pointer<IRule, 1> NewForInputs(std::int64_t output, const std::vector<std::int64_t>& inputs,
                               unsigned short options, unsigned short transfers)
{
    return Pointer<IRule, 1>(new CMakeImageCompatible(output, inputs, options, {}, transfers));
}

Pointer<IRule, 1> NewForInputsWithOptions(std::int64_t output, const std::vector<std::int64_t>& inputs,
                                          unsigned short options, const MakeImageOptions& makeOptions,
                                          unsigned short transfers)
{
    return Pointer<IRule, 1>(new CMakeImageCompatible(output, inputs, options, makeOptions, transfers));
}

} // namespace

MakeImageCompatible::Factory MakeImageCompatible::New(&NewForInput, &NewForInputWithOptions, &NewForInputs,
                                                      &NewForInputsWithOptions);

} // namespace Quilon_::Images::Functions::Rules
