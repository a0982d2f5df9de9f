#pragma once

#include "platform/xml_dom.h"

#include "platform/failure.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include <unistd.h>

#include <gtest/gtest.h>

/// What the tests of the DOM have in common.
namespace quill::platform {

inline constexpr const char* kData = "x-schema:QVXDatafileSchema.xml";
inline constexpr const char* kComm = "x-schema:QVXCommunicationSchema.xml";

inline IXMLDOMDocument opened(std::string_view text)
{
    const auto document = IXMLDOMDocument::create();
    document.setSelectionNamespaces({{"data", kData}, {"comm", kComm}});
    document.loadXML(text);
    return document;
}

inline std::string reread(const IXMLDOMNode& node)
{
    return opened(node.get_xml()).get_xml();
}

/// The failure that `step` raises; number 0 if it raises none.
inline Failure failureOf(const std::function<void()>& step)
{
    try {
        step();
    } catch (const Failure& failure) {
        return failure;
    }
    return {0, "no failure"};
}

inline int numberOf(const std::function<void()>& step)
{
    return failureOf(step).number();
}

/// Why a text is refused; the document must be as it was before.
inline std::string refusalOf(std::string_view text)
{
    const auto        document = opened("<before><a/></before>");
    const IXMLDOMNode held     = document.selectSingleNode("/before/a");
    const auto        version  = document.structureVersion();
    const Failure     failure  = failureOf([&] { document.loadXML(text); });
    EXPECT_EQ(failure.number(), kInvalidCall) << failure.description();
    EXPECT_EQ(document.get_xml(), "<before><a/></before>");
    EXPECT_EQ(document.selectSingleNode("/before/a"), held);
    EXPECT_EQ(document.structureVersion(), version);
    return failure.description();
}

inline bool contains(const std::string& text, std::string_view part)
{
    return text.find(part) != std::string::npos;
}

inline std::string repeated(std::string_view part, std::size_t times)
{
    std::string text;
    text.reserve(part.size() * times);
    for (std::size_t i = 0; i < times; ++i) {
        text += part;
    }
    return text;
}

inline std::size_t residentPages()
{
    std::ifstream statm{"/proc/self/statm"};
    std::size_t   total    = 0;
    std::size_t   resident = 0;
    statm >> total >> resident;
    return resident;
}

class TemporaryFile {
public:
    explicit TemporaryFile(std::string_view bytes)
        : mFolder(std::filesystem::temp_directory_path() /
                  ("xml_dom_test_" + std::to_string(::getpid())))
    {
        std::filesystem::create_directories(mFolder);
        std::ofstream{path(), std::ios::binary} << bytes;
    }
    ~TemporaryFile() { std::filesystem::remove_all(mFolder); }
    TemporaryFile(const TemporaryFile&)            = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] std::string path() const { return (mFolder / "document.xml").string(); }
    [[nodiscard]] std::string folder() const { return mFolder.string(); }

private:
    std::filesystem::path mFolder;
};

inline IXMLDOMDocument openedFile(std::string_view bytes)
{
    const TemporaryFile file{bytes};
    const auto          document = IXMLDOMDocument::create();
    document.load(file.path());
    return document;
}

} // namespace quill::platform
