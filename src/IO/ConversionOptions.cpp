#include "Quilon_/IO/ConversionOptions.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(IO::ConversionOptionsEnum, Number, {IO::coNoConversion, L"coNoConversion"},
                        {IO::coLosslessConversion, L"coLosslessConversion"},
                        {IO::coLossyConversion, L"coLossyConversion"})
