// quilon run: an operator called from the command line. Each argument is
// made from its text by the parameter's type: an image is a file, read when
// the operator takes it as input and written when it gives it as output;
// numbers, booleans ("true", "false") and enumerator names ("pseDisk") are
// parsed. The direction of an image argument comes from the operator
// itself:
//
//   1. the output of its Make rule (CMakeImageCompatible(1, ...) makes 1),
//   2. otherwise, when the signature hands values back through references
//      (a measurement), every image is an input,
//   3. otherwise the last of two or more images is the output,
//   4. and a single image is read and written back (Clear, Fill).
//
// An object set is a CSV file (or any format of the object-set writers):
// the last set given is the output, written to its file, or printed as CSV
// on standard output when its text is "-"; the others are read. A single
// set whose file exists is read first and written back (a measurement adds
// columns to the objects it is given). A vector of enumerators is a list of
// names or numbers separated by commas ("ssmArea,ssmPerimeter"; "" is the
// empty vector, which an operator takes for "all"), an interval is
// "low,high".
#include "Commands.h"
#include "Progress.h"

#include "Quilon_/IO/Writer.h"
#include "Quilon_/Images/IO/Functions.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/ObjectSets/IO/Functions.h"
#include "Quilon_/ObjectSets/IO/Globals.h"
#include "Quilon_/ObjectSets/Measurements/Functions.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/String.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace Quilon_::Tool {

namespace {

using System::Any;
using System::Functions::Detail::ArgumentDescription;
using ImageRef = System::Ref<Images::IImage>;
using ObjectSetRef = System::Ref<ObjectSets::IObjectSet>;

enum class Direction { Input, Output, Both };

bool IsImage(const ArgumentDescription& parameter)
{
    return parameter.type == L"Ref<IImage>" || parameter.type == L"Pointer<IImage,0>";
}

bool IsObjectSet(const ArgumentDescription& parameter)
{
    return parameter.type == L"Ref<IObjectSet>" || parameter.type == L"Pointer<IObjectSet,0>";
}

// Arguments read from or written to files.
bool IsFileArgument(const ArgumentDescription& parameter)
{
    return IsImage(parameter) || IsObjectSet(parameter);
}

bool FileExists(const std::wstring& path)
{
    return ::access(System::ToAnsi(path).c_str(), F_OK) == 0;
}

// The direction of each object set given: the last is the output; a single
// one is also read when its file exists.
void ObjectSetDirections(const std::vector<ArgumentDescription>& parameters,
                         const std::vector<std::optional<std::size_t>>& given,
                         const std::vector<std::wstring>& texts, std::vector<Direction>& directions)
{
    std::vector<std::size_t> sets;
    for (std::size_t i = 0; i < parameters.size(); ++i)
        if (IsObjectSet(parameters[i]) && given[i])
            sets.push_back(i);
    if (sets.empty())
        return;
    const std::size_t output = sets.back();
    const std::wstring& text = texts[*given[output]];
    directions[output] =
        sets.size() == 1 && text != L"-" && FileExists(text) ? Direction::Both : Direction::Output;
}

// The texts of a comma-separated list; the empty text is the empty list.
std::vector<std::wstring> SplitAtCommas(const std::wstring& text)
{
    std::vector<std::wstring> items;
    if (text.empty())
        return items;
    std::size_t start = 0;
    for (std::size_t comma; (comma = text.find(L',', start)) != std::wstring::npos; start = comma + 1)
        items.push_back(text.substr(start, comma - start));
    items.push_back(text.substr(start));
    return items;
}

template <class E>
std::optional<Any> EnumeratorList(const std::wstring& text)
{
    std::vector<E> values;
    const auto rows = System::Detail::EnumTextRowsOf(typeid(E));
    for (const std::wstring& item : SplitAtCommas(text)) {
        std::optional<std::int64_t> value = System::Detail::EnumValue(item, rows);
        if (!value) {
            wchar_t* end = nullptr;
            const long long number = std::wcstoll(item.c_str(), &end, 10);
            if (item.empty() || *end != L'\0')
                return std::nullopt;
            value = number;
        }
        values.push_back(static_cast<E>(*value));
    }
    return System::ToAny(values);
}

// The vectors of enumerators that operators take, by type.
struct ListParser {
    const std::type_info& type;
    std::optional<Any> (*parse)(const std::wstring&);
};

std::optional<Any> ParseList(const ArgumentDescription& parameter, const std::wstring& text)
{
    namespace M = ObjectSets::Measurements;
    static const ListParser parsers[] = {
        {typeid(std::vector<M::StatisticsEnum>), &EnumeratorList<M::StatisticsEnum>},
        {typeid(std::vector<M::StandardShapeMeasurementEnum>),
         &EnumeratorList<M::StandardShapeMeasurementEnum>},
        {typeid(std::vector<M::FeretShapeMeasurementEnum>), &EnumeratorList<M::FeretShapeMeasurementEnum>},
        {typeid(std::vector<M::ProjectionShapeMeasurementEnum>),
         &EnumeratorList<M::ProjectionShapeMeasurementEnum>},
        {typeid(std::vector<M::TextureMeasurementEnum>), &EnumeratorList<M::TextureMeasurementEnum>},
        {typeid(std::vector<M::ChainMeasurementEnum>), &EnumeratorList<M::ChainMeasurementEnum>},
    };
    if (!parameter.valueType)
        return std::nullopt;
    for (const ListParser& parser : parsers)
        if (*parameter.valueType == parser.type)
            return parser.parse(text);
    return std::nullopt;
}

// "low,high" as an interval.
std::optional<Any> ParseInterval(const std::wstring& text)
{
    const std::vector<std::wstring> bounds = SplitAtCommas(text);
    if (bounds.size() != 2)
        return std::nullopt;
    double values[2];
    for (int i = 0; i < 2; ++i) {
        wchar_t* end = nullptr;
        values[i] = std::wcstod(bounds[i].c_str(), &end);
        if (bounds[i].empty() || *end != L'\0')
            return std::nullopt;
    }
    return System::ToAny(System::Ref<Math::IIntervalD>(Math::IntervalD::New(values[0], values[1])));
}

// The argument that the Make rules shape, if any.
std::optional<std::size_t> MadeOutput(const Overload& overload)
{
    const auto& make = overload.function->Rules(System::Functions::rtMake);
    for (const std::wstring& rule : System::Functions::Rules::PresentRules(make)) {
        if (rule.rfind(L"CMakeImage", 0) != 0)
            continue;
        const auto open = rule.find(L'(');
        if (open != std::wstring::npos)
            return static_cast<std::size_t>(std::wcstoll(rule.c_str() + open + 1, nullptr, 10));
    }
    return std::nullopt;
}

// The direction of each image given by name; `given` tells which are.
std::vector<Direction> ImageDirections(const Overload& overload,
                                       const std::vector<ArgumentDescription>& parameters,
                                       const std::vector<std::optional<std::size_t>>& given,
                                       const std::vector<std::wstring>& texts)
{
    std::vector<Direction> directions(parameters.size(), Direction::Input);
    std::vector<std::size_t> images;
    bool handsBack = false;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (IsImage(parameters[i]) && given[i])
            images.push_back(i);
        else if (parameters[i].output && !IsObjectSet(parameters[i]))
            handsBack = true;
    }
    if (const auto made = MadeOutput(overload); made && *made < parameters.size())
        directions[*made] = Direction::Output;
    else if (handsBack || images.empty())
        ;
    else if (images.size() >= 2)
        directions[images.back()] = Direction::Output;
    else
        directions[images.front()] = Direction::Both;
    ObjectSetDirections(parameters, given, texts, directions);
    return directions;
}

std::optional<Any> Number(const std::wstring& text, bool integral)
{
    if (text.empty())
        return std::nullopt;
    wchar_t* end = nullptr;
    if (integral) {
        const long long value = std::wcstoll(text.c_str(), &end, 10);
        if (*end != L'\0')
            return std::nullopt;
        return System::ToAny(static_cast<std::int64_t>(value));
    }
    const double value = std::wcstod(text.c_str(), &end);
    if (*end != L'\0')
        return std::nullopt;
    return System::ToAny(value);
}

// The value of a parameter other than an image, from its text.
std::optional<Any> Parse(const ArgumentDescription& parameter, const std::wstring& text)
{
    const std::wstring& type = parameter.type;
    if (parameter.fromInteger) {
        const auto rows = System::Detail::EnumTextRowsOf(*parameter.valueType);
        if (const auto value = System::Detail::EnumValue(text, rows))
            return parameter.fromInteger(*value);
        if (const auto number = Number(text, true))
            return parameter.fromInteger(number->CastTo<std::int64_t>());
        return std::nullopt;
    }
    if (type == L"bool") {
        if (text == L"true" || text == L"1")
            return System::ToAny(true);
        if (text == L"false" || text == L"0")
            return System::ToAny(false);
        return std::nullopt;
    }
    if (type == L"double" || type == L"float") {
        auto number = Number(text, false);
        if (number && type == L"float")
            return System::ToAny(static_cast<float>(number->CastTo<double>()));
        return number;
    }
    if (type == L"int64")
        return Number(text, true);
    if (type == L"int") {
        auto number = Number(text, true);
        return number ? std::optional<Any>(System::ToAny(static_cast<int>(number->CastTo<std::int64_t>())))
                      : std::nullopt;
    }
    if (type == L"std::wstring")
        return System::ToAny(text);
    if (type == L"Ref<IIntervalD>")
        return ParseInterval(text);
    if (auto list = ParseList(parameter, text))
        return list;
    if (type == L"Any") {
        if (auto number = Number(text, false))
            return number;
        return System::ToAny(text);
    }
    return std::nullopt;
}

// The arguments of one overload, or nothing when the texts do not fit it.
// A value handed back (a measurement's result) takes no text: it is printed.
bool HandedBack(const ArgumentDescription& parameter)
{
    return parameter.output && parameter.makeDefault && !IsFileArgument(parameter);
}

// The text of each parameter, by position: values handed back take none,
// and nullable images at the end (masks) may be left out, which passes
// them as null. Nothing when the count of texts does not fit.
std::optional<std::vector<std::optional<std::size_t>>>
TextPositions(const std::vector<ArgumentDescription>& parameters, std::size_t textCount)
{
    std::vector<std::size_t> takers;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (!HandedBack(parameters[i]))
            takers.push_back(i);
    }
    if (textCount > takers.size())
        return std::nullopt;
    for (std::size_t k = textCount; k < takers.size(); ++k) {
        if (parameters[takers[k]].type != L"Pointer<IImage,0>")
            return std::nullopt;
    }
    std::vector<std::optional<std::size_t>> positions(parameters.size());
    for (std::size_t k = 0; k < textCount; ++k)
        positions[takers[k]] = k;
    return positions;
}

struct Call {
    Overload overload;
    std::vector<ArgumentDescription> parameters;
    std::vector<std::optional<std::size_t>> texts;
    std::vector<Direction> directions;
    std::vector<Any> arguments;
};

std::optional<Call> Prepare(const Overload& overload, const std::vector<std::wstring>& texts)
{
    Call call{overload, overload.function->Parameters(), {}, {}, {}};
    auto positions = TextPositions(call.parameters, texts.size());
    if (!positions)
        return std::nullopt;
    call.texts = std::move(*positions);
    call.directions = ImageDirections(overload, call.parameters, call.texts, texts);
    for (std::size_t i = 0; i < call.parameters.size(); ++i) {
        const ArgumentDescription& parameter = call.parameters[i];
        if (!call.texts[i]) {
            call.arguments.push_back(HandedBack(parameter)
                                         ? parameter.makeDefault()
                                         : System::ToAny(System::Pointer<Images::IImage, 0>()));
            continue;
        }
        if (IsFileArgument(parameter)) {
            // Read or made once every argument fits.
            call.arguments.emplace_back();
            continue;
        }
        std::optional<Any> value = Parse(parameter, texts[*call.texts[i]]);
        if (!value)
            return std::nullopt;
        call.arguments.push_back(*value);
    }
    return call;
}

// Reads the input images and object sets; outputs start empty, for the
// Make rules.
void ReadImages(Call& call, const std::vector<std::wstring>& texts)
{
    for (std::size_t i = 0; i < call.parameters.size(); ++i) {
        if (IsObjectSet(call.parameters[i]) && call.texts[i]) {
            ObjectSetRef set = ObjectSets::ObjectSet::New();
            if (call.directions[i] != Direction::Output)
                ObjectSets::IO::Functions::Read(set, texts[*call.texts[i]]);
            call.arguments[i] = System::ToAny(set);
            continue;
        }
        if (!IsImage(call.parameters[i]) || !call.texts[i])
            continue;
        ImageRef image = Images::Image::New();
        if (call.directions[i] != Direction::Output)
            Images::IO::Functions::Read(image, texts[*call.texts[i]]);
        call.arguments[i] = System::ToAny(image);
    }
}

// The set as CSV on standard output, through the CSV writer of the
// object-set writers and a file of its own.
void PrintObjectSet(const ObjectSetRef& set)
{
    System::Pointer<IO::IWriterCollection, 0> writers = ObjectSets::IO::Globals::ObjectSetWriters();
    for (std::int64_t i = 0; writers && i < writers->Count(); ++i) {
        System::Ref<IO::IWriter> writer = writers->Item(i);
        const std::vector<std::wstring> extensions = writer->Extensions();
        if (std::find(extensions.begin(), extensions.end(), L"csv") == extensions.end())
            continue;
        char pattern[] = "/tmp/quilon-run-XXXXXX";
        const int file = ::mkstemp(pattern);
        if (file < 0)
            break;
        ::close(file);
        const std::wstring path = System::ToString(pattern);
        try {
            writer->Write(set, path);
        } catch (...) {
            ::unlink(pattern);
            throw;
        }
        std::ifstream text(pattern, std::ios::binary);
        std::fflush(stdout);
        std::cout << text.rdbuf();
        std::cout.flush();
        ::unlink(pattern);
        return;
    }
    std::fputs("quilon: no CSV writer among the object-set writers\n", stderr);
}

void WriteImages(const Call& call, const std::vector<std::wstring>& texts)
{
    for (std::size_t i = 0; i < call.parameters.size(); ++i) {
        if (IsObjectSet(call.parameters[i]) && call.texts[i] && call.directions[i] != Direction::Input) {
            const ObjectSetRef set = call.arguments[i].CastTo<ObjectSetRef>();
            if (texts[*call.texts[i]] == L"-")
                PrintObjectSet(set);
            else
                ObjectSets::IO::Functions::Write(set, texts[*call.texts[i]]);
            continue;
        }
        if (IsImage(call.parameters[i]) && call.texts[i] && call.directions[i] != Direction::Input)
            Images::IO::Functions::Write(call.arguments[i].CastTo<ImageRef>(), texts[*call.texts[i]]);
    }
}

std::string ValueText(const Any& value)
{
    double number = 0;
    if (System::Helper::IsScalar(value) && System::Helper::ScalarValue(value, number)) {
        char text[64];
        std::snprintf(text, sizeof text, "%.17g", number);
        return text;
    }
    return "(" +
           System::ToAnsi(
               System::Helper::TypeName(value.Holder() ? value.Holder()->TypeInfo() : typeid(void))) +
           ")";
}

// The values handed back: results of measurements, printed one per line.
void PrintResults(const Call& call, const Any& result)
{
    for (std::size_t i = 0; i < call.parameters.size(); ++i) {
        if (call.parameters[i].output && !IsFileArgument(call.parameters[i]))
            std::printf("argument %zu = %s\n", i + 1, ValueText(call.arguments[i]).c_str());
    }
    if (result.Holder())
        std::printf("result = %s\n", ValueText(result).c_str());
}

void PrintOverloads(const std::vector<Overload>& overloads)
{
    std::fputs("overloads:\n", stderr);
    for (const Overload& overload : overloads)
        std::fprintf(stderr, "  %s\n", System::ToAnsi(SignatureText(overload)).c_str());
}

// The overloads of the object named `name` in full, or ending in "::name".
std::vector<Overload> Named(const std::wstring& name)
{
    std::vector<Overload> exact;
    std::vector<Overload> suffix;
    for (const Overload& overload : Overloads()) {
        if (overload.name == name)
            exact.push_back(overload);
        else if (overload.name.size() > name.size() + 2 && overload.name.ends_with(L"::" + name))
            suffix.push_back(overload);
    }
    return exact.empty() ? suffix : exact;
}

} // namespace

int Run(const Arguments& arguments)
{
    StartOptions options;
    if (!ParseStartOptions(arguments, options) || options.rest.empty()) {
        std::fputs("usage: quilon run [--init FILE] OPERATOR ARGS...\n", stderr);
        return 2;
    }
    Failures failures = StartLibrary(options);
    for (const auto& failure : failures) {
        std::fputs("quilon: warning:\n", stderr);
        PrintMessage(stderr, failure->Message());
    }

    const std::wstring name = System::ToString(options.rest[0]);
    std::vector<std::wstring> texts;
    for (std::size_t i = 1; i < options.rest.size(); ++i)
        texts.push_back(System::ToString(options.rest[i]));

    int status = 0;
    const std::vector<Overload> overloads = Named(name);
    std::optional<Call> call;
    for (const Overload& overload : overloads) {
        if (overload.name != overloads.front().name) {
            std::fprintf(stderr, "quilon: '%s' names several operators; give the full name\n",
                         System::ToAnsi(name).c_str());
            PrintOverloads(overloads);
            call.reset();
            status = 2;
            break;
        }
        if (!call)
            call = Prepare(overload, texts);
    }
    if (status == 0 && overloads.empty()) {
        std::fprintf(stderr, "quilon: no operator named '%s'\n", System::ToAnsi(name).c_str());
        status = 2;
    } else if (status == 0 && !call) {
        std::fprintf(stderr, "quilon: no overload of %s takes these %zu arguments\n",
                     System::ToAnsi(overloads.front().name).c_str(), texts.size());
        PrintOverloads(overloads);
        status = 2;
    }

    if (status == 0) {
        try {
            ReadImages(*call, texts);
            Any result;
            {
                ProgressScope progress(name);
                result = call->overload.function->Invoke(call->arguments);
                progress.Checkpoint();
            }
            WriteImages(*call, texts);
            PrintResults(*call, result);
        } catch (const System::Pointer<System::IException, 1>& failure) {
            if (IsCancellation(failure)) {
                std::fputs("quilon: cancelled\n", stderr);
                status = 130;
            } else {
                std::fputs("quilon: the operator failed\n", stderr);
                PrintMessage(stderr, failure->Message());
                status = 1;
            }
        }
        call.reset();
    }
    StopLibrary(failures);
    return status;
}

} // namespace Quilon_::Tool
