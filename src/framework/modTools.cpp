#include "framework/modTools.h"

#include "framework/documents.h"
#include "framework/host_contract.h"
#include "framework/steps.h"
#include "framework/values.h"

#include "platform/failure.h"
#include "platform/toolkit.h"
#include "platform/utf8.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace quill::modTools {

namespace utf8 = platform::utf8;

namespace {

/// Routines of this module have no Messenger; a failed step leaves its text empty.
Steps debugSteps(const std::string& title, const std::string& where)
{
    return Steps{[=](int number, const std::string& description) {
        WriteDebugError(title, where, number, description);
    }};
}

} // namespace

double ParseNumber(const std::string& text)
{
    return values::parseLocal(values::replaceAll(text, ".", values::decimalSeparator()));
}

std::string FormatNumber(double number)
{
    return values::replaceAll(values::numberText(number), values::decimalSeparator(), ".");
}

void MakePath(const std::string& path)
{
    namespace fs       = std::filesystem;
    std::string native = path;
    std::replace(native.begin(), native.end(), '\\', '/');

    // Lengths of the folders that are missing, the innermost first.
    std::vector<std::size_t> missing;
    std::error_code          ignored;
    for (std::size_t size = native.size();
         size > 0 && !fs::is_directory(native.substr(0, size), ignored);) {
        missing.push_back(size);
        const auto cut = size < 2 ? std::string::npos : native.rfind('/', size - 2);
        size           = cut == std::string::npos ? 0 : cut;
    }
    for (auto size = missing.rbegin(); size != missing.rend(); ++size) {
        fs::create_directory(native.substr(0, *size), ignored);
    }
}

std::string GetHomeRequestGroup(const platform::IXMLDOMNode& datafile,
                                const std::string&           parameterName)
{
    return silentSteps().text([&] { return documents::homeRequestGroup(datafile, parameterName); });
}

bool IsNotErrorText(const std::string& text)
{
    return !text.starts_with("Err:");
}

std::string textOrKey(Translator& translator, const std::string& key)
{
    const std::string text = translator.Translate(key);
    return IsNotErrorText(text) ? text : key;
}

std::string StandardizeDatafileDate(const std::string& text)
{
    return debugSteps("Quill GUI", "StandardizeDatafileDate").text([&] {
        const auto time = std::max(utf8::length(text) - 8, 0);
        return utf8::substring(text, 6, 4) + '-' + utf8::substring(text, 3, 2) + '-' +
               utf8::substring(text, 0, 2) + ' ' + utf8::substring(text, time);
    });
}

std::string LocalizeDatafileDate(const std::string& text)
{
    return debugSteps("Quill GUI modTools", "LocalizeDatafileDate").text([&] {
        const auto date = values::parseDate(StandardizeDatafileDate(text));
        if (!date) {
            throw platform::failure(platform::kTypeMismatch);
        }
        return values::formatDate(*date, "ddddd ttttt");
    });
}

std::string RemoveCtrPrefix(const std::string& text)
{
    const std::string prefix = "ctr_";
    return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
}

void WriteDebugError(const std::string& title, const std::string& where, int number,
                     const std::string& description)
{
    platform::Toolkit::current().debugOutput(title + " " + where + " error " +
                                             std::to_string(number) + ": " + description);
}

} // namespace quill::modTools
