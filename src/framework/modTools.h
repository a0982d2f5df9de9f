#pragma once

#include "platform/xml_dom.h"

#include <string>

namespace quill {
class Translator;
}

/// Conversions between document text and screen text. These routines run without a Messenger:
/// what goes wrong is written to the debug output.
namespace quill::modTools {

/// Replaces "." by the locale's decimal separator and converts. A text that is no number is
/// failure 13.
[[nodiscard]] double ParseNumber(const std::string& text);
/// The plain text of the number, with "." as decimal separator.
[[nodiscard]] std::string FormatNumber(double number);

/// Creates a folder and its missing parents. Both "\\" and "/" separate. Failures are dropped.
void MakePath(const std::string& path);

/// The request group that a parameter belongs to, empty for none: the group of its only listing;
/// of several the first whose `clone` is missing or "0".
[[nodiscard]] std::string GetHomeRequestGroup(const platform::IXMLDOMNode& datafile,
                                              const std::string&           parameterName);

/// True unless the text begins with "Err:".
[[nodiscard]] bool IsNotErrorText(const std::string& text);
/// The translation of a key, and the key itself, which tells the user more, where the host says
/// "Err:". Throws what the Translator throws.
[[nodiscard]] std::string textOrKey(Translator& translator, const std::string& key);

/// "DD?MM?YYYY HH:MM:SS" reordered to "YYYY-MM-DD HH:MM:SS"; whatever stands at the fixed
/// positions is taken as it is.
[[nodiscard]] std::string StandardizeDatafileDate(const std::string& text);
/// The same date in the locale's short date and long time; empty, with a line of debug output, for
/// a text that is no date.
[[nodiscard]] std::string LocalizeDatafileDate(const std::string& text);

/// The text without a leading "ctr_".
[[nodiscard]] std::string RemoveCtrPrefix(const std::string& text);

/// One line of debug output: title, blank, where, " error ", number, ": ", description.
void WriteDebugError(const std::string& title, const std::string& where, int number,
                     const std::string& description);

} // namespace quill::modTools
