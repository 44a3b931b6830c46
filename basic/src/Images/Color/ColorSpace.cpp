// Colour spaces and their dictionary, behind ColorSpace::New and
// ColorSpaceDictionary::New, and the spaces this library ships with.
//
// At start-up the process' dictionary gets "RGB": three bands "Red",
// "Green", "Blue" of ntUInt8, each over [0, 255] with 8 significant bits.
// No default space is set: a colour image without one keeps its bands
// without a declared meaning.
#include "Quilon_/Images/Color/ColorSpaceDictionary.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/ValueDictionaryImpl.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"
#include "System/SettingsLifetime.h"

#include <unordered_map>

namespace Quilon_::Basic::Images::Color {

using namespace Quilon_::Images::Color;
using System::LIString;
using System::Pointer;
using System::Ref;
using RangeList = std::vector<Pointer<Math::IRangeD, 0>>;

namespace {

class CColorSpace : public System::Template::ObjectImpl<CColorSpace, IColorSpace, System::ICloneable> {
public:
    CColorSpace(std::wstring name, LIString displayName, std::int64_t bandCount, RangeList ranges,
                std::vector<LIString> bandNames, System::NumericTypeEnum type, std::vector<std::int64_t> bits)
        : m_name(std::move(name)), m_displayName(std::move(displayName)), m_ranges(std::move(ranges)),
          m_bandNames(std::move(bandNames)), m_type(type), m_bits(std::move(bits))
    {
        const auto count = static_cast<std::size_t>(bandCount);
        if (bandCount < 1 || m_ranges.size() != count || m_bandNames.size() != count ||
            (!m_bits.empty() && m_bits.size() != count))
            QUILON_RAISE(
                L"Colour space '%1%' of %2% bands needs one range, one name and one bit count per band",
                m_name, bandCount);
    }
    CColorSpace(const CColorSpace& other)
        : ObjectImpl(), m_name(other.m_name), m_displayName(other.m_displayName), m_ranges(other.m_ranges),
          m_bandNames(other.m_bandNames), m_type(other.m_type), m_bits(other.m_bits)
    {
    }

    std::wstring Name() override { return m_name; }
    LIString DisplayName() override { return m_displayName; }
    std::int64_t BandCount() override { return static_cast<std::int64_t>(m_bandNames.size()); }
    LIString BandName(std::int64_t band) override { return m_bandNames[Checked(band)]; }
    std::vector<LIString> BandNames() override { return m_bandNames; }
    std::int64_t BandIndex(const LIString& name) override
    {
        for (std::size_t i = 0; i < m_bandNames.size(); ++i) {
            if (m_bandNames[i].Value() == name.Value())
                return static_cast<std::int64_t>(i);
        }
        return -1;
    }
    Pointer<Math::IRangeD, 0> Range(std::int64_t band) override { return m_ranges[Checked(band)]; }
    RangeList Ranges() override { return m_ranges; }
    System::NumericTypeEnum NumericType() override { return m_type; }
    std::vector<std::int64_t> SignificantBits() override { return m_bits; }
    bool IsCompatible(Pointer<IColorSpace, 0> other) override
    {
        return other && other->Name() == m_name && other->BandCount() == BandCount();
    }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new CColorSpace(*this));
    }

private:
    std::size_t Checked(std::int64_t band)
    {
        if (band < 0 || band >= BandCount())
            QUILON_RAISE(L"Band %1% is outside colour space '%2%' of %3% bands", band, m_name, BandCount());
        return static_cast<std::size_t>(band);
    }

    std::wstring m_name;
    LIString m_displayName;
    RangeList m_ranges;
    std::vector<LIString> m_bandNames;
    System::NumericTypeEnum m_type;
    std::vector<std::int64_t> m_bits;
};

Ref<IColorSpace> NewNamedBands(const std::wstring& name, const LIString& displayName, std::int64_t bandCount,
                               const RangeList& ranges, const std::vector<LIString>& bandNames,
                               System::NumericTypeEnum type, std::vector<std::int64_t> bits)
{
    return Ref<IColorSpace>(
        new CColorSpace(name, displayName, bandCount, ranges, bandNames, type, std::move(bits)));
}

Ref<IColorSpace> NewNumberedBands(const std::wstring& name, const LIString& displayName,
                                  std::int64_t bandCount, const RangeList& ranges,
                                  System::NumericTypeEnum type, std::vector<std::int64_t> bits)
{
    std::vector<LIString> names;
    for (std::int64_t band = 0; band < bandCount; ++band)
        names.emplace_back(L"Band " + std::to_wstring(band), false);
    return NewNamedBands(name, displayName, bandCount, ranges, names, type, std::move(bits));
}

using SpaceMap = std::unordered_map<std::wstring, Ref<IColorSpace>>;

class CColorSpaceDictionary
    : public System::Template::ObjectImpl<
          CColorSpaceDictionary,
          System::Collections::Template::IValueDictionaryImpl<IColorSpaceDictionary, SpaceMap>,
          System::ICloneable> {
    using SpaceList = std::vector<Ref<IColorSpace>>;

public:
    CColorSpaceDictionary() = default;
    // Spaces are descriptions that nobody changes in place: a copy shares
    // them.
    CColorSpaceDictionary(const CColorSpaceDictionary& other) : ObjectImpl() { m_map = other.m_map; }

    Pointer<IColorSpace, 0> Find(const std::wstring& name) override
    {
        auto found = m_map.find(name);
        if (found == m_map.end())
            return nullptr;
        return found->second;
    }
    void Add(Ref<IColorSpace> space) override { Add(space->Name(), space); }
    void SetSpace(Ref<IColorSpace> space) override { SetItem(space->Name(), space); }
    void AddRange(const SpaceList& spaces) override
    {
        for (const auto& space : spaces)
            Add(space);
    }
    bool RemoveSpace(Ref<IColorSpace> space) override
    {
        for (const auto& [name, held] : m_map) {
            if (held == space)
                return Remove(std::wstring(name));
        }
        return false;
    }
    bool ContainsSpace(Ref<IColorSpace> space) override
    {
        for (const auto& entry : m_map) {
            if (entry.second == space)
                return true;
        }
        return false;
    }
    SpaceList Spaces() override
    {
        SpaceList spaces;
        for (const std::wstring& name : Keys())
            spaces.push_back(m_map.at(name));
        return spaces;
    }
    Pointer<IColorSpace, 0> FindByDisplayName(const LIString& name) override
    {
        for (const auto& space : Spaces()) {
            if (space->DisplayName().Value() == name.Value())
                return space;
        }
        return nullptr;
    }
    SpaceList WithBandCount(std::int64_t count) override
    {
        SpaceList found;
        for (const auto& space : Spaces()) {
            if (space->BandCount() == count)
                found.push_back(space);
        }
        return found;
    }
    Pointer<IColorSpace, 0> FindCompatible(Ref<IColorSpace> space) override
    {
        for (const auto& held : Spaces()) {
            if (held->IsCompatible(space))
                return held;
        }
        return nullptr;
    }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new CColorSpaceDictionary(*this));
    }

    using IValueDictionaryImpl::Add;
};

Ref<IColorSpaceDictionary> NewDictionary()
{
    return Ref<IColorSpaceDictionary>(new CColorSpaceDictionary);
}

Ref<IColorSpace> NewRgb()
{
    RangeList ranges;
    for (int band = 0; band < 3; ++band)
        ranges.push_back(Math::RangeD::New(0.0, 255.0));
    return ColorSpace::New(L"RGB", LIString(L"RGB"), 3, ranges,
                           std::vector<LIString>{LIString(L"Red"), LIString(L"Green"), LIString(L"Blue")},
                           System::ntUInt8, std::vector<std::int64_t>{8, 8, 8});
}

void RegisterColorSpaces()
{
    ColorSpace::New.Register(L"Colour space", &NewNumberedBands);
    ColorSpace::New.Register(L"Colour space", &NewNamedBands);
    ColorSpaceDictionary::New.Register(L"Colour space dictionary", &NewDictionary);
}

void StartColorSpaces()
{
    Ref<IColorSpaceDictionary> spaces = ColorSpaceDictionary::New();
    spaces->Add(NewRgb());
    Quilon_::Images::Color::Globals::SetColorSpaces(spaces);
}

void StopColorSpaces()
{
    Quilon_::Images::Color::Globals::ClearDefaultColorSpace();
    Quilon_::Images::Color::Globals::ClearColorSpaces();
}

const System::Template::Initializer<::Library> colorSpaceInitializer(&RegisterColorSpaces, nullptr, 0.2f);
// After the classes and the ranges are registered (0.2).
const SettingsLifetime colorSpaces(&StartColorSpaces, &StopColorSpaces, 0.3f);

} // namespace

} // namespace Quilon_::Basic::Images::Color
