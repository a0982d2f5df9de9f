#include "fuzz/fuzz_page.h"

using namespace quill;

/// The bytes as a datafile: a page takes it, is edited, and takes it again as an import.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto datafile = fuzz::read(data, size);
    if (!datafile) {
        return 0;
    }
    fuzz::Host host;
    {
        fuzz::Page page;
        page.SetMessenger(&host);
        page.SetOfflineData(*datafile);
        page.edit(host);
        page.SetImportData(*datafile);
        page.PrepareToRelease();
    }
    {
        fuzz::Page page;
        page.SetMessenger(&host);
        page.SetOfflineData(fuzz::sampleDatafile());
        page.SetImportData(*datafile);
        page.edit(host);
    }
    // What the editors have written can be read again.
    (void)documents::openText(datafile->get_xml());
    return 0;
}
