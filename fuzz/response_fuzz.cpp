#include "fuzz/fuzz_page.h"

using namespace quill;

/// The bytes as a communication response for a page that is bound to a sound datafile.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto response = fuzz::read(data, size);
    if (!response) {
        return 0;
    }
    fuzz::Host host;
    fuzz::Page page;
    page.SetMessenger(&host);
    const auto datafile = fuzz::sampleDatafile();
    page.SetOfflineData(datafile);
    page.SetOnlineData(*response);
    page.edit(host);
    page.SetErrorData(*response);
    page.SetOnlineData(*response);
    // What the editors have written can be read again.
    (void)documents::openText(datafile.get_xml());
    return 0;
}
