#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/Geometry/ShapeSet.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/ImageAxes.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/System/ExtendedProperty.h"
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
// that changes nothing copies nothing. The size of an image is read in
// place (its axes) and asked of the image only when it is to be copied.
class Shape {
public:
    Shape(Ref<IFormat> format, IImage& sizeOf, Axes axes) : format(std::move(format))
    {
        SetSizeOf(sizeOf, axes);
    }

    IFormat& Format() const { return *format; }
    Axes SizeAxes() const { return size ? size->Axes() : sizeAxes; }

    IFormat& FormatToChange()
    {
        if (!formatOwned)
            SetFormat(Cloned<IFormat>(format));
        return *format;
    }
    Quilon_::Geometry::ICoordinates& SizeToChange()
    {
        if (!sizeOwned) {
            if (!size)
                size = sizeOf->Size();
            SetSize(Cloned<Quilon_::Geometry::ICoordinates>(size));
        }
        return *size;
    }
    // A format of its own, or another image's, still to be copied.
    void SetFormat(Ref<IFormat> value, bool owned = true)
    {
        format = std::move(value);
        formatOwned = owned;
    }
    void SetSize(Ref<Quilon_::Geometry::ICoordinates> value)
    {
        size = std::move(value);
        sizeOwned = true;
    }
    // The size of `image`, still to be copied.
    void SetSizeOf(IImage& image, Axes axes)
    {
        sizeOf = &image;
        sizeAxes = axes;
        size = nullptr;
        sizeOwned = false;
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
        return Ref<Quilon_::Geometry::ICoordinates>(size);
    }

    bool changed = false;

private:
    Ref<IFormat> format;
    // Null until the size is asked of `sizeOf` or set.
    Pointer<Quilon_::Geometry::ICoordinates, 0> size;
    IImage* sizeOf = nullptr;
    Axes sizeAxes;
    bool formatOwned = false;
    bool sizeOwned = false;
};

using Extent = ImageAxes::Extent;

// Whether two sizes have the same axes and values once the band axis is
// left out of both: the equality of their copies without it.
bool SameExtentIgnoringBand(const Extent& a, const Extent& b)
{
    const Axes axes = a.axes;
    if (((axes ^ b.axes) & ~Quilon_::Geometry::aB) != 0)
        return false;
    for (Quilon_::Geometry::AxisEnum axis :
         {Quilon_::Geometry::aX, Quilon_::Geometry::aY, Quilon_::Geometry::aZ, Quilon_::Geometry::aT})
        if ((axes & axis) && a.Value(axis) != b.Value(axis))
            return false;
    return true;
}

// The product of the values of a size, in the order of its axes.
std::int64_t Product(const Extent& extent)
{
    std::int64_t product = 1;
    for (int position = 0; position < 5; ++position)
        if (extent.axes & (1 << position))
            product *= extent.values[position];
    return product;
}

// The extended properties of one image, for the transfer: it reads them
// as the property helpers do, but asks for the container once, where the
// helpers cast the image and count references again for every key. Only an
// image that the helpers would read through its container is read here
// (`Known`); anything else goes through the helpers.
class Properties {
public:
    explicit Properties(const Ref<IImage>& image)
        : container(image), known(container && !Pointer<System::IExtendedPropertyDictionary, 0>(image))
    {
    }

    // Carries no extended property at all.
    bool Bare() const { return container && !container->HasExtendedProperties(); }
    bool Known() const { return known; }
    // Known and without a property of `key`: reading it gives nothing and
    // removing it changes nothing. Asks without making a dictionary.
    bool Lacks(const LIString& key) const
    {
        return known && (!container->HasExtendedProperties() || !container->ExtendedProperties()->Find(key));
    }
    // Known and already of `category`: setting it again changes nothing.
    // A value of another type is left to Image::SetCategory, which raises.
    bool HasCategory(const LIString& category) const
    {
        if (!known || !container->HasExtendedProperties())
            return false;
        Pointer<System::IExtendedProperty, 0> property =
            container->ExtendedProperties()->Find(Image::CategoryKey());
        if (!property)
            return false;
        Any value;
        property->GetValue(value);
        const void* held = value.Holder() ? value.Holder()->ValuePointer(typeid(LIString)) : nullptr;
        return held && *static_cast<const LIString*>(held) == category;
    }

private:
    Pointer<System::IExtendedPropertiesContainer, 0> container;
    bool known;
};

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
        // image, on every call. Read in its box, without a reference.
        using Object = Pointer<System::Interface, 0>;
        const void* boxed = argument.Holder() ? argument.Holder()->ValuePointer(typeid(Object)) : nullptr;
        const System::Interface* held =
            boxed ? static_cast<const Object*>(boxed)->Get() : argument.CastTo<Object>().Get();
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

    // Carries the properties of the first input over as the word says. A
    // property that the first input lacks is removed from the output, which
    // is skipped when the output lacks it too; a category that the output
    // has already is not set again.
    void TransferProperties(const std::vector<Any>& arguments, const Ref<IImage>& image,
                            const Ref<IImage>& first) const
    {
        const unsigned short word = Transfers();
        const Properties from(first);
        const Properties to(image);
        // With no property on either image, every step below would remove
        // what is not there; a call on plain images skips them.
        bool bare = from.Bare() && to.Bare();
        if (!(options & mcCategory) && !(word & tpCategory)) {
            if (HasCategoryOption()) {
                const System::Nullable<LIString>& category = makeOptions.Value().category;
                if (!to.HasCategory(category.Value()))
                    Image::SetCategory(image, category, false);
                bare = false;
            }
        } else if (!bare) {
            Image::SetCategory(image, Image::Category(first), false);
        }
        if (word & tpLinkedData)
            image->SetLinkedData(first->LinkedData());
        if (bare)
            return;
        // What a known, bare first input gives: nothing, on every key.
        const bool fromNothing = from.Known() && from.Bare();
        if (word & tpPalette) {
            if (!fromNothing)
                Image::SetPalette(image, Image::Palette(first));
            else if (!to.Lacks(Image::PaletteKey()))
                Image::SetPalette(image, Pointer<Drawing::IPalette, 0>());
        }
        // In place, the output keeps its own origin and region.
        if (UsedInPlace(arguments, image))
            return;
        if (word & tpNewOrigin) {
            Pointer<Quilon_::Geometry::ICoordinates, 0> origin = fromNothing ? nullptr : Image::Origin(first);
            if (origin && !Image::Origin(image))
                Image::SetOrigin(image, Cloned<Quilon_::Geometry::ICoordinates>(origin));
        } else if (word & tpOrigin) {
            Pointer<Quilon_::Geometry::ICoordinates, 0> origin = fromNothing ? nullptr : Image::Origin(first);
            // A missing origin removes the output's.
            if (origin)
                Image::SetOrigin(image, Cloned<Quilon_::Geometry::ICoordinates>(origin));
            else if (!to.Lacks(Image::OriginKey()))
                Image::SetOrigin(image, Pointer<Quilon_::Geometry::ICoordinates, 0>());
        }
        if (word & tpNewROI) {
            if (!to.Lacks(Image::ROIKey())) {
                Pointer<Quilon_::Geometry::IShapeSet, 0> roi = Image::ROI(image);
                if (roi && roi->Count() > 0)
                    Image::SetROI(image, RoiOf(first));
            }
        } else if (word & tpROI) {
            Pointer<Quilon_::Geometry::IShapeSet, 0> roi = fromNothing ? nullptr : RoiOf(first);
            if (roi || !to.Lacks(Image::ROIKey()))
                Image::SetROI(image, roi);
        }
    }

    // The format and size that the output is to have, and whether it must
    // be reshaped to get them.
    Shape Decide(const Ref<IImage>& image, const std::vector<Ref<IImage>>& images)
    {
        const Ref<IImage>& first = images.front();
        const Extent firstSize = ImageAxes::ExtentOf(*first);
        const Extent outputSize = ImageAxes::ExtentOf(*image);
        Shape shape(first->Format(), *first, firstSize.axes);

        NumericTypeEnum type = image->Format()->DataType();
        // An empty 8-bit image is a fresh output: it takes everything.
        if (type == System::ntUInt8 && Product(outputSize) == 0) {
            type = shape.Format().DataType();
            shape.changed = true;
        }
        if (options & mcSize) {
            if (!SameExtentIgnoringBand(firstSize, outputSize))
                shape.changed = true;
        } else {
            shape.SetSizeOf(*image, outputSize.axes);
        }
        DecideAxes(shape, firstSize.axes, outputSize.axes);
        type = DecideType(shape, type, images);
        if (makeOptions.HasValue()) {
            const MakeImageOptions& made = makeOptions.Value();
            if (made.typeOptions.HasValue())
                type = TypeFromOptions(shape, type, made.typeOptions.Value());
            if (made.category.HasValue())
                ShapeForCategory(shape, type, made.category.Value(), *image, outputSize.axes);
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
            const Axes axes = shape.SizeAxes();
            if (HasBand(axes)) {
                shape.SizeToChange().SetAxes(static_cast<unsigned char>(axes & ~Quilon_::Geometry::aB));
                shape.SetFormat(UniformFormat::New(
                    StorageOrder::Remove(shape.Format().StorageOrder(), Quilon_::Geometry::aB)));
                shape.Format().SetDataType(bandType);
            }
            if (shape.SizeAxes() != outputAxes)
                shape.changed = true;
            // A binary output shows itself in black and white.
            if (category == binaryCategory)
                ClearTransfers(tpPalette);
        } else if (category == colorCategory) {
            const Axes axes = shape.SizeAxes();
            if (!HasBand(axes)) {
                Quilon_::Geometry::ICoordinates& size = shape.SizeToChange();
                size.SetAxes(static_cast<unsigned char>(axes | Quilon_::Geometry::aB));
                size.SetB(3);
            }
            Ref<IFormat> outputFormat = image.Format();
            if (shape.SizeAxes() == outputAxes && Pointer<Color::IColorFormat, 0>(outputFormat)) {
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
