// The writer of object-set CSV files (the format is described in Csv.h),
// for ObjectSets::IO::Globals::ObjectSetWriters().
#include "ObjectSets/IO/Csv.h"
#include "ObjectSets/IO/Files.h"

#include "Quilon_/IO/Writer.h"
#include "Quilon_/Library.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/System/ErrorManager.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::Basic::ObjectSets::IO {

namespace {

using Quilon_::ObjectSets::IObjectSet;

std::wstring Joined(const std::vector<std::wstring>& names)
{
    std::wstring text;
    for (const std::wstring& name : names)
        text += (text.empty() ? L"'" : L", '") + name + L"'";
    return text;
}

class CCsvWriter : public System::Template::ObjectImpl<CCsvWriter, Quilon_::IO::IWriter> {
public:
    std::wstring Name() override { return L"CSV"; }
    std::vector<std::wstring> Extensions() override { return {L"csv"}; }

    // Columns without a text form are left out: a loss.
    System::Nullable<Quilon_::IO::ConversionOptionsEnum>
    Conversion(System::Ref<System::Interface> source) override
    {
        System::Pointer<IObjectSet, 0> set(source);
        if (!set)
            return System::Nullable<Quilon_::IO::ConversionOptionsEnum>();
        System::Ref<Quilon_::ObjectSets::IAttributeDictionary> columns = set->Attributes();
        for (std::int64_t i = 0; i < columns->Count(); ++i)
            if (!Csv::Writable(columns->ItemAt(i)))
                return Quilon_::IO::coLossyConversion;
        return Quilon_::IO::coNoConversion;
    }

    void Write(System::Ref<System::Interface> source, const std::wstring& fileName) override
    {
        System::Pointer<IObjectSet, 0> set(source);
        if (!set)
            QUILON_RAISE(L"The CSV writer writes object sets only");
        std::vector<std::wstring> leftOut;
        const std::string text = Csv::Write(System::Ref<IObjectSet>(set), leftOut);
        if (!leftOut.empty())
            Quilon_::Library::ErrorManager()->Warn(
                QUILON_MAKE_EXCEPTION(
                    L"The attributes %1% have no CSV form and are left out of the file '%2%'",
                    Joined(leftOut), fileName),
                System::wlWarning);
        SaveText(fileName, text);
    }
};

} // namespace

System::Ref<Quilon_::IO::IWriter> NewCsvWriter()
{
    return System::Ref<Quilon_::IO::IWriter>(new CCsvWriter());
}

} // namespace Quilon_::Basic::ObjectSets::IO
