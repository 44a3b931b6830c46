// The reader of object-set CSV files (the format is described in Csv.h),
// for ObjectSets::IO::Globals::ObjectSetReaders().
#include "ObjectSets/IO/Csv.h"
#include "ObjectSets/IO/Files.h"
#include "ObjectSets/SetContents.h"

#include "Quilon_/IO/Reader.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Memory.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::Basic::ObjectSets::IO {

namespace {

using Quilon_::ObjectSets::IObjectSet;

class CCsvReader : public System::Template::ObjectImpl<CCsvReader, Quilon_::IO::IReader, System::ICloneable> {
public:
    std::wstring Name() override { return L"CSV"; }
    std::vector<std::wstring> Extensions() override { return {L"csv"}; }
    bool Supports(const System::Type& type) override { return type == IObjectSet::GetType(); }

    // The header of the files this library writes: "Key" and a separator.
    bool CanRead(const std::uint8_t* bytes, std::int64_t count) override
    {
        std::string_view text(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
        if (text.substr(0, 3) == "\xEF\xBB\xBF")
            text.remove_prefix(3);
        return text.size() > 3 && text.substr(0, 3) == "Key" &&
               (text[3] == ',' || text[3] == '\n' || text[3] == '\r');
    }

    void Open(const std::wstring& fileName) override
    {
        m_bytes = LoadText(fileName);
        m_name = fileName;
        m_open = true;
    }

    void OpenMemory(System::Ref<System::IMemory> bytes, const std::wstring& name) override
    {
        m_bytes.assign(static_cast<const char*>(bytes->Data()), static_cast<std::size_t>(bytes->Size()));
        m_name = name;
        m_open = true;
    }

    void Close() override
    {
        m_bytes.clear();
        m_name.clear();
        m_open = false;
    }

    // The table is read into a set of its own, and given to `target` only
    // once it is complete.
    void Read(System::Ref<System::Interface> target) override
    {
        if (!m_open)
            QUILON_RAISE(L"The CSV reader has no file open");
        System::Pointer<IObjectSet, 0> set(target);
        if (!set)
            QUILON_RAISE(L"The CSV reader reads object sets only");
        ReplaceContents(System::Ref<IObjectSet>(set), Csv::Read(m_bytes, m_name));
    }

    // A reader of its own, with no file open.
    System::Pointer<System::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::ICloneable, 1>(new CCsvReader());
    }

private:
    std::string m_bytes;
    std::wstring m_name;
    bool m_open = false;
};

} // namespace

System::Ref<Quilon_::IO::IReader> NewCsvReader()
{
    return System::Ref<Quilon_::IO::IReader>(new CCsvReader());
}

} // namespace Quilon_::Basic::ObjectSets::IO
