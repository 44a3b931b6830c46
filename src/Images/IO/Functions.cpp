#include "Quilon_/Images/IO/Functions.h"

#include "Quilon_/Images/Image.h"

namespace Quilon_::Images::IO::Functions {

System::Functions::Template::Function<void (*)(Image, const std::wstring&)> Read(L"Read");
System::Functions::Template::Function<void (*)(Image, const std::wstring&)> Write(L"Write");
System::Functions::Template::Function<void (*)(Image, const std::wstring&, Quilon_::Geometry::AxisEnum,
                                               std::int64_t)>
    Import(L"Import");
System::Functions::Template::Function<void (*)(Image, const std::wstring&, Quilon_::Geometry::AxisEnum,
                                               std::int64_t)>
    Export(L"Export");

} // namespace Quilon_::Images::IO::Functions
