#include "Quilon_/System/EnumText.h"

#include "Quilon_/System/Formatter.h"

#include <algorithm>

namespace Quilon_::System::Detail {

std::wstring EnumText(std::int64_t value, std::span<const EnumTextRow> rows, EnumFallback fallback)
{
    auto row = std::find_if(rows.begin(), rows.end(), [value](const EnumTextRow& row) { return row.value == value; });
    if (row != rows.end())
        return row->name;
    if (fallback == EnumFallback::Empty)
        return {};
    return Formatter(L"%1%") % value;
}

std::optional<std::int64_t> EnumValue(const std::wstring& name, std::span<const EnumTextRow> rows)
{
    auto row = std::find_if(rows.begin(), rows.end(), [&name](const EnumTextRow& row) { return name == row.name; });
    if (row == rows.end())
        return std::nullopt;
    return row->value;
}

} // namespace Quilon_::System::Detail
