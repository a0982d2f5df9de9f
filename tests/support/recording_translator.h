#pragma once

#include "framework/host_contract.h"
#include "platform/failure.h"

#include <map>
#include <string>
#include <vector>

namespace quill::test {

/// Answers the texts that a test has set, else the key itself behind a prefix, so that a text that
/// went through the Translator can be told from one that did not.
class RecordingTranslator : public Translator {
public:
    std::map<std::string, std::string> texts;
    std::string                        prefix;
    std::string                        language = "English";
    /// `Translate(key)`, `TranslateTag(tag)`, ... in order.
    std::vector<std::string> calls;
    /// A key for which every operation throws failure 5.
    std::string failingKey = "\x01";

    std::string GetLanguage() override
    {
        calls.emplace_back("GetLanguage()");
        return language;
    }
    std::string Translate(const std::string& key) override
    {
        calls.push_back("Translate(" + key + ")");
        return text(key);
    }
    /// The text of what stands before the delimiter, a blank, and what stands behind it.
    std::string TranslateDelimited(const std::string& delimited,
                                   const std::string& delimiter) override
    {
        calls.push_back("TranslateDelimited(" + delimited + ")");
        const auto at = delimited.find(delimiter);
        return at == std::string::npos
                   ? text(delimited)
                   : text(delimited.substr(0, at)) + " " + delimited.substr(at + delimiter.size());
    }
    std::string TranslateTag(const std::string& tag) override
    {
        calls.push_back("TranslateTag(" + tag + ")");
        return text(tag);
    }

private:
    [[nodiscard]] std::string text(const std::string& key) const
    {
        if (key == failingKey) {
            throw platform::failure(platform::kInvalidCall);
        }
        const auto found = texts.find(key);
        return found != texts.end() ? found->second : prefix + key;
    }
};

} // namespace quill::test
