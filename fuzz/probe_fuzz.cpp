#include "probe/session.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Every line of the input goes to one session. Lines that write to the disk are left out.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view      rest{reinterpret_cast<const char*>(data), size};
    quill::probe::Session session{[](const std::string&) {}};
    while (!rest.empty()) {
        const auto             end  = rest.find('\n');
        const std::string_view line = rest.substr(0, end);
        if (line.find("MakePath") == std::string_view::npos) {
            session.line(line);
        }
        rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + 1);
    }
    return 0;
}
