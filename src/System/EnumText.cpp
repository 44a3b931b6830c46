#include "Quilon_/System/EnumText.h"

#include "Quilon_/System/Formatter.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <string>

namespace Quilon_::System::Detail {

std::wstring EnumText(std::int64_t value, std::span<const EnumTextRow> rows, EnumFallback fallback)
{
    auto row = std::find_if(rows.begin(), rows.end(),
                            [value](const EnumTextRow& row) { return row.value == value; });
    if (row != rows.end())
        return row->name;
    if (fallback == EnumFallback::Empty)
        return {};
    return Formatter(L"%1%") % value;
}

std::optional<std::int64_t> EnumValue(const std::wstring& name, std::span<const EnumTextRow> rows)
{
    auto row =
        std::find_if(rows.begin(), rows.end(), [&name](const EnumTextRow& row) { return name == row.name; });
    if (row == rows.end())
        return std::nullopt;
    return row->value;
}

namespace {

// By the type's mangled name, which is the same in every library. Made on
// first use and never destroyed: libraries register during their static
// construction.
struct Tables {
    std::mutex lock;
    std::map<std::string, std::span<const EnumTextRow> (*)()> rows;
};

Tables& TheTables()
{
    static Tables* const tables = new Tables;
    return *tables;
}

} // namespace

EnumTextRegistration::EnumTextRegistration(const std::type_info& type, std::span<const EnumTextRow> (*rows)())
{
    Tables& tables = TheTables();
    std::lock_guard guard(tables.lock);
    tables.rows[type.name()] = rows;
}

std::span<const EnumTextRow> EnumTextRowsOf(const std::type_info& type)
{
    Tables& tables = TheTables();
    std::lock_guard guard(tables.lock);
    auto found = tables.rows.find(type.name());
    return found == tables.rows.end() ? std::span<const EnumTextRow>() : found->second();
}

} // namespace Quilon_::System::Detail
