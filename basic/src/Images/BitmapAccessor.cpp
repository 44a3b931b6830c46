// Accessors and locators, for BitmapAccessor::New, BitmapLocator::New and
// UniformFormatLocator::New.
#include "Images/BitmapImpl.h"
#include "Images/SampleValue.h"

#include "Quilon_/Images/BitmapAccessor.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::Basic::Images {

using Quilon_::Images::IBitmapAccessor;
using Quilon_::Images::IBitmapLocator;

namespace {

class CBitmapAccessor : public System::Template::ObjectImpl<CBitmapAccessor, IBitmapAccessor> {
public:
    explicit CBitmapAccessor(BitmapRef bitmap) : m_bitmap(std::move(bitmap)) {}

    BitmapRef Bitmap() override { return m_bitmap; }
    System::Any Value(CoordinatesRef location) override
    {
        const SampleBlock block = BlockOf(*m_bitmap);
        const char* sample = SampleAt(block, *location);
        return DispatchSampleType(block.type, [&](auto tag) {
            using T = typename decltype(tag)::type;
            const T value = *reinterpret_cast<const T*>(sample);
            // Signed bytes box as char, the toolkit's signed 8-bit scalar.
            if constexpr (std::is_same_v<T, std::int8_t>)
                return System::ToAny(static_cast<char>(value));
            else
                return System::ToAny(value);
        });
    }
    void SetValue(CoordinatesRef location, const System::Any& value) override
    {
        const SampleBlock block = BlockOf(*m_bitmap);
        char* sample = SampleAt(block, *location);
        DispatchSampleType(block.type, [&](auto tag) {
            using T = typename decltype(tag)::type;
            *reinterpret_cast<T*>(sample) = SampleFromAny<T>(value);
        });
    }
    void* Address(CoordinatesRef location) override { return SampleAt(BlockOf(*m_bitmap), *location); }

private:
    static char* SampleAt(const SampleBlock& block, Geometry::ICoordinates& location)
    {
        return static_cast<char*>(block.data) + block.layout.Offset(location);
    }

    BitmapRef m_bitmap;
};

// A cursor over the bitmap's layout, taken when the locator is made.
class CBitmapLocator : public System::Template::ObjectImpl<CBitmapLocator, IBitmapLocator> {
public:
    explicit CBitmapLocator(BitmapRef bitmap) : m_bitmap(std::move(bitmap)), m_block(BlockOf(*m_bitmap)) {}

    void SetLocation(CoordinatesRef location) override
    {
        const std::int64_t offset = m_block.layout.Offset(*location);
        for (int i = 0; i < m_block.layout.axisCount; ++i)
            m_location[i] = location->Value(std::int64_t(i));
        m_offset = offset;
    }
    void Move(Geometry::AxisEnum axis, std::int64_t steps) override
    {
        const int i = m_block.layout.IndexOf(axis);
        if (i < 0)
            QUILON_RAISE(L"The bitmap has no axis %1%", System::ToString(axis));
        const std::int64_t to = m_location[i] + steps;
        if (to < 0 || to >= m_block.layout.size[i])
            QUILON_RAISE(L"Moving %1% steps along %2% leaves the bitmap of size %3%", steps,
                         System::ToString(axis), m_block.layout.SizeText());
        m_location[i] = to;
        m_offset += steps * m_block.layout.stride[i];
    }
    void* Address() override { return static_cast<char*>(m_block.data) + m_offset; }

private:
    BitmapRef m_bitmap;
    SampleBlock m_block;
    Extent m_location{};
    std::int64_t m_offset = m_block.layout.origin;
};

System::Pointer<IBitmapAccessor, 1> NewAccessor(BitmapRef bitmap)
{
    return System::Pointer<IBitmapAccessor, 1>(new CBitmapAccessor(std::move(bitmap)));
}

System::Pointer<IBitmapLocator, 1> NewLocator(BitmapRef bitmap)
{
    return System::Pointer<IBitmapLocator, 1>(new CBitmapLocator(std::move(bitmap)));
}

System::Pointer<IBitmapLocator, 1> NewUniformLocator(BitmapRef bitmap)
{
    System::Pointer<Quilon_::Images::IUniformFormat, 0> uniform = bitmap->Format();
    if (!uniform)
        QUILON_RAISE(L"The format %1% is not uniform", bitmap->Format()->ToString());
    return NewLocator(std::move(bitmap));
}

void RegisterAccessors()
{
    Quilon_::Images::BitmapAccessor::New.Register(L"Bitmap accessor", &NewAccessor);
    Quilon_::Images::BitmapLocator::New.Register(L"Bitmap locator", &NewLocator);
    Quilon_::Images::UniformFormatLocator::New.Register(L"Uniform format locator", &NewUniformLocator);
}

const System::Template::Initializer<::Library> accessors(&RegisterAccessors, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images
