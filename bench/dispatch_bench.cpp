// How the cost of feeding a page grows: a page of n text editors bound to a datafile with n
// parameters, fed with responses of n items. Beside it, in the same run and on the same documents,
// the plain way: one XPath expression per editor with libxml2.
//
// Prints Google Benchmark's lines, then the ratios that matter, as a table in Markdown.

#include "bench_support.h"
#include "editors/CtrTextEdit.h"
#include "framework/default_messenger.h"
#include "framework/documents.h"
#include "framework/view_base.h"

#include <cstdio>
#include <malloc.h>
#include <map>
#include <memory>

namespace {

using namespace quill;

std::string name(long i)
{
    return "parameter" + std::to_string(i);
}

std::string datafileXml(long n)
{
    std::string xml = std::string{"<dtm xmlns=\""} + documents::kDatafileSchema +
                      "\"><persistentData><parameters>";
    for (long i = 0; i < n; ++i) {
        xml += "<parameter name=\"" + name(i) +
               R"(" type="floatVal" value="12.5" unit="bar" decimals="2" minVal="0" maxVal="100")"
               R"( access="readWrite" synchronised="1"/>)";
    }
    xml += "</parameters></persistentData><requestGroups>";
    for (long group = 0; group * 50 < n; ++group) {
        xml += "<requestGroup name=\"group" + std::to_string(group) + "\">";
        for (long i = group * 50; i < n && i < (group + 1) * 50; ++i) {
            xml += "<includedParam name=\"" + name(i) + "\"/>";
        }
        xml += "</requestGroup>";
    }
    return xml + "</requestGroups></dtm>";
}

std::string responseXml(long n, const char* value)
{
    std::string xml = std::string{"<dtm xmlns=\""} + documents::kCommunicationSchema +
                      R"("><communicationResponse name="all" access="read" responseStatus="ok")"
                      R"( errorCode="" isFinal="1">)";
    for (long i = 0; i < n; ++i) {
        xml +=
            "<item name=\"" + name(i) + "\" unit=\"bar\"><floatVal>" + value + "</floatVal></item>";
    }
    return xml + "</communicationResponse></dtm>";
}

std::size_t allocated()
{
    return mallinfo2().uordblks;
}

/// A page of n editors, bound to a datafile, with a host that listens to nothing.
struct Page {
    explicit Page(long n) : count(n)
    {
        datafile = documents::openText(datafileXml(n));
        // What the datafile costs by itself, its look-ups included, is not the editors'.
        benchmark::DoNotOptimize(documents::findParameter(datafile, name(0)));
        const std::size_t before = allocated();
        page                     = std::make_unique<ViewBase>();
        for (long i = 0; i < n; ++i) {
            editors.push_back(std::make_unique<CtrTextEdit>(
                *page, platform::Design{.Name = name(i), .Tag = "ctr_" + name(i)}));
        }
        page->SetMessenger(&messenger);
        page->SetOfflineData(datafile);
        bytes = allocated() - before;
    }
    ~Page()
    {
        editors.clear();
        page.reset();
    }
    Page(const Page&)            = delete;
    Page& operator=(const Page&) = delete;

    long                                      count;
    DefaultMessenger                          messenger;
    IXMLDOMDocument                           datafile;
    std::unique_ptr<ViewBase>                 page;
    std::vector<std::unique_ptr<CtrTextEdit>> editors;
    std::size_t                               bytes = 0;
};

std::map<long, std::size_t> gBytesPerEditor;

void SetOnlineData(benchmark::State& state)
{
    const long n = state.range(0);
    Page       served{n};
    gBytesPerEditor[n] = served.bytes / static_cast<std::size_t>(n);
    // Two responses take turns, so that every pass changes every text, and each is a fresh
    // document, as one that arrives from the device is.
    const std::string texts[] = {responseXml(n, "25.5"), responseXml(n, "50.75")};
    std::size_t       turn    = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto response = documents::openText(texts[turn++ % 2]);
        state.ResumeTiming();
        served.page->SetOnlineData(response);
        state.PauseTiming();
        response = {};
        state.ResumeTiming();
    }
    if (served.editors.back()->Text() != (turn % 2 == 1 ? "25.50" : "50.75")) {
        state.SkipWithError("the values did not arrive");
    }
}

void SetOfflineData(benchmark::State& state)
{
    const long        n = state.range(0);
    Page              served{n};
    const std::string text = datafileXml(n);
    for (auto _ : state) {
        state.PauseTiming();
        auto datafile = documents::openText(text);
        state.ResumeTiming();
        served.page->SetOfflineData(datafile);
        state.PauseTiming();
        datafile = {};
        state.ResumeTiming();
    }
}

void XPathPerEditor(benchmark::State& state)
{
    const long n = state.range(0);
    bench::xpathPerItem(state, responseXml(n, "25.5"), n, name);
}

BENCHMARK(SetOfflineData)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(SetOnlineData)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(XPathPerEditor)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(XPathPerEditor)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return quill::bench::run(argc, argv, [](quill::bench::Reporter& reporter) {
        reporter.printRatio("SetOnlineData, 10,000 to 1,000 items", "SetOnlineData/10000",
                            "SetOnlineData/1000", "%.1f", "at most 13");
        reporter.printRatio("SetOfflineData, 10,000 to 1,000 parameters", "SetOfflineData/10000",
                            "SetOfflineData/1000", "%.1f", "at most 13");
        reporter.printRatio("XPath per editor to SetOnlineData, 1,000 items", "XPathPerEditor/1000",
                            "SetOnlineData/1000", "%.0f", "at least 20");
        reporter.printRatio("XPath per editor to SetOnlineData, 10,000 items",
                            "XPathPerEditor/10000", "SetOnlineData/10000", "%.0f", "at least 100");
        std::printf("| Bytes per bound text editor, its widgets included | %zu | at most 8192 |\n",
                    gBytesPerEditor[10000]);
    });
}
