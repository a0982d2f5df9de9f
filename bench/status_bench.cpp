// What a status response costs: a tree of n conditions in branches of 40, fed with responses that
// have an item for each condition. Beside it, in the same run and on the same documents, the plain
// way: one XPath expression per row with libxml2.
//
// Prints Google Benchmark's lines, then the ratios that matter, as a table in Markdown.

#include "bench_support.h"
#include "framework/default_messenger.h"
#include "framework/documents.h"
#include "status/CtrStatus.h"
#include "status/CtrStatusF.h"

#include <string>

namespace {

using namespace quill;

constexpr long kConditionsInBranch = 40;

std::string name(long i)
{
    return "statusCondition" + std::to_string(i) + "x";
}

std::string definitionXml(long n)
{
    const char* const severities[] = {"info", "warning", "alarm", "failsafe"};
    std::string       xml          = "<device><deviceStatus>";
    for (long i = 0; i < n; ++i) {
        if (i % kConditionsInBranch == 0) {
            xml += "<group name=\"group" + std::to_string(i) + "\">";
        }
        // An information is the one class that the configurable view takes back at once.
        xml += "<status name=\"" + name(i) + "\" class=\"" + severities[i % 4] +
               "\" classNAMUR=\"deviceInfo\" maskByte=\"" + std::to_string(i / 8) +
               "\" maskBit=\"" + std::to_string(i % 8) + "\"/>";
        if (i % kConditionsInBranch == kConditionsInBranch - 1 || i == n - 1) {
            xml += "</group>";
        }
    }
    return xml + "</deviceStatus></device>";
}

/// A datafile whose mask switches every condition on.
std::string datafileXml(long n)
{
    return std::string{"<dtm xmlns=\""} + documents::kDatafileSchema +
           "\"><persistentData><parameters><parameter name=\"statusMask1\" value=\"" +
           std::string(static_cast<std::size_t>(n / 4 + 2), 'F') +
           "\"/></parameters></persistentData></dtm>";
}

/// Every second condition is active, which ones depends on `turn`.
std::string responseXml(long n, long turn)
{
    std::string xml = std::string{"<dtm xmlns=\""} + documents::kCommunicationSchema +
                      R"("><communicationResponse name="deviceStatus" access="read")"
                      R"( responseStatus="ok" errorCode="" isFinal="0">)";
    for (long i = 0; i < n; ++i) {
        xml += "<item name=\"" + name(i) + "\" unit=\"noUnit\"><integerVal>" +
               std::to_string((i + turn) % 2) + "</integerVal></item>";
    }
    return xml + "</communicationResponse></dtm>";
}

class Host : public DefaultMessenger {
public:
    explicit Host(long n) : mDefinition(documents::openText(definitionXml(n))) {}
    IXMLDOMDocument GetDeviceTypeInfo() override { return mDefinition; }
    std::int32_t    GetCommunicationMode() override { return kOnline; }

private:
    IXMLDOMDocument mDefinition;
};

/// What the first condition shows while it is active, and while it is not.
struct Icons {
    const char* active;
    const char* other;
};

/// Two responses take turns, so that every pass changes every icon, and each is a fresh document,
/// as one that arrives from the device is.
template <class View>
void feed(benchmark::State& state, const Icons& icons)
{
    const long n = state.range(0);
    Host       host{n};
    View       view;
    view.SetMessenger(&host);
    view.SetOfflineData(documents::openText(datafileXml(n)));
    const std::string texts[] = {responseXml(n, 0), responseXml(n, 1)};
    std::size_t       turn    = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto response = documents::openText(texts[turn++ % 2]);
        state.ResumeTiming();
        view.SetOnlineData(response);
        state.PauseTiming();
        response = {};
        state.ResumeTiming();
    }
    if (view.scgStatus.CellIcon(2, 1) != (turn % 2 == 0 ? icons.active : icons.other)) {
        state.SkipWithError("the icons did not follow");
    }
}

void CtrStatusPass(benchmark::State& state)
{
    feed<CtrStatus>(state, {"info", "ok"});
}

void CtrStatusFPass(benchmark::State& state)
{
    feed<CtrStatusF>(state, {"deviceInfo", "deviceOk"});
}

void XPathPerRow(benchmark::State& state)
{
    const long n = state.range(0);
    bench::xpathPerItem(state, responseXml(n, 0), n, name);
}

void repeated(benchmark::internal::Benchmark* bench)
{
    bench->Arg(200)->Arg(2000)->MinTime(0.1)->Repetitions(7)->Unit(benchmark::kMillisecond);
}

BENCHMARK(CtrStatusPass)->Apply(repeated);
BENCHMARK(CtrStatusFPass)->Apply(repeated);
BENCHMARK(XPathPerRow)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return quill::bench::run(argc, argv, [](quill::bench::Reporter& reporter) {
        reporter.printRatio("CtrStatus, 2,000 to 200 conditions", "CtrStatusPass/2000",
                            "CtrStatusPass/200", "%.1f", "at most 11");
        reporter.printRatio("CtrStatusF, 2,000 to 200 conditions", "CtrStatusFPass/2000",
                            "CtrStatusFPass/200", "%.1f", "at most 13");
        reporter.printRatio("XPath per row to CtrStatus, 2,000 conditions", "XPathPerRow/2000",
                            "CtrStatusPass/2000", "%.0f", "at least 20");
        reporter.printRatio("XPath per row to CtrStatusF, 2,000 conditions", "XPathPerRow/2000",
                            "CtrStatusFPass/2000", "%.0f", "at least 20");
    });
}
