// How the cost of the event log grows with the number of rows: dating the whole list anew, and
// reading one more page of events into a list that is long already.
//
// Prints Google Benchmark's lines, then the ratios that matter, as a table in Markdown.

#include "framework/default_messenger.h"
#include "framework/documents.h"
#include "records/CtrEventLog.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

using namespace quill;

constexpr int kEventsPerRead = 32;

class Texts : public Translator {
public:
    std::string GetLanguage() override { return "English"; }
    std::string Translate(const std::string& key) override { return "Text of " + key; }
    std::string TranslateDelimited(const std::string& text, const std::string&) override
    {
        return text;
    }
    std::string TranslateTag(const std::string& tag) override { return tag; }
};

class Host : public DefaultMessenger {
public:
    Texts       texts;
    Translator* GetTranslator() override { return &texts; }
    bool        ExecuteCommunicationRequest(const std::string&, const std::string&, std::int16_t,
                                            std::int16_t) override
    {
        return true;
    }
};

/// `count` events from index 0 on, the first of them number `first` of the log.
std::string message(const char* name, int first, int count, bool isFinal)
{
    std::string xml = std::string{"<dtm xmlns=\""} + documents::kCommunicationSchema +
                      "\"><communicationResponse name=\"" + name +
                      R"(" access="read" responseStatus="ok" errorCode="" isFinal=")" +
                      (isFinal ? "1" : "0") + "\">";
    for (int index = 0; index < count; ++index) {
        const std::string suffix = (index < 10 ? "0" : "") + std::to_string(index);
        const auto        item   = [&](const char* piece, const std::string& value) {
            xml.append("<item name=\"eventLog").append(piece).append(suffix);
            xml.append("\" unit=\"noUnit\"><stringVal>").append(value);
            xml.append("</stringVal></item>");
        };
        item("NextEvent", "event" + std::to_string(index));
        item("NextClass", "eventClassInfo");
        item("NextTime", std::to_string(100000 - first - index) + ".5");
    }
    return xml + "</communicationResponse></dtm>";
}

/// A view of a HART device's log.
struct Bench {
    Bench()
    {
        view.SetMessenger(&host);
        view.UseHART();
    }
    ~Bench() { view.PrepareToRelease(); }
    Bench(const Bench&)            = delete;
    Bench& operator=(const Bench&) = delete;

    /// The messages of one read, ready to be handed over.
    [[nodiscard]] static std::vector<IXMLDOMDocument> page(int read)
    {
        const char* name = read == 0 ? "eventLog" : "eventLogContinued";
        const int   half = kEventsPerRead / 2;
        return {
            documents::openText(message(name, read * kEventsPerRead, half, false)),
            documents::openText(message(name, read * kEventsPerRead + half, half, true)),
        };
    }
    void take(const std::vector<IXMLDOMDocument>& messages)
    {
        for (const IXMLDOMDocument& document : messages) {
            view.SetOnlineData(document);
        }
    }
    void read(int count)
    {
        for (; reads < count; ++reads) {
            if (reads > 0) {
                view.cmdNext.click();
            }
            take(page(reads));
        }
    }

    Host        host;
    CtrEventLog view;
    int         reads = 0;
};

void AddStamps(benchmark::State& state)
{
    const auto rows = static_cast<int>(state.range(0));
    Bench      bench;
    bench.read(rows / kEventsPerRead);
    if (bench.view.lsvEventLog.Count() != rows) {
        state.SkipWithError("the rows did not arrive");
        return;
    }
    // Two dates take turns, so that every pass changes every row.
    const char* dates[] = {"2024-05-06 07:08:09", "2024-05-07 08:09:10"};
    std::size_t turn    = 0;
    for (auto _ : state) {
        bench.view.AddStamps("100000.5", dates[turn++ % 2]);
    }
    if (bench.view.lsvEventLog.Item(1).SubItems[eventLog::kDate] != dates[(turn - 1) % 2]) {
        state.SkipWithError("the list was not dated");
    }
}

/// The n-th read of a list, all others done before.
void Read(benchmark::State& state)
{
    const auto last = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        {
            Bench bench;
            bench.read(last - 1);
            if (last > 1) {
                bench.view.cmdNext.click();
            }
            auto messages = Bench::page(last - 1);
            state.ResumeTiming();
            bench.take(messages);
            state.PauseTiming();
            if (bench.view.lsvEventLog.Count() != last * kEventsPerRead) {
                state.SkipWithError("the rows did not arrive");
            }
        }
        state.ResumeTiming();
    }
}

BENCHMARK(AddStamps)->Arg(320)->Arg(3200)->Unit(benchmark::kMillisecond);
BENCHMARK(Read)->Arg(1)->Arg(2)->Arg(100)->Iterations(20)->Unit(benchmark::kMillisecond);

std::map<std::string, double> gSeconds;

/// Keeps the times beside printing them: those of the processor, as both lines of a ratio must not
/// depend on what else the machine does.
class Reporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            gSeconds[run.run_name.function_name + "/" + run.run_name.args] =
                run.GetAdjustedCPUTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }
};

double ratio(const std::string& a, const std::string& b)
{
    return gSeconds[b] > 0 ? gSeconds[a] / gSeconds[b] : 0;
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n| Ratio | Measured | Bound |\n|---|---|---|\n");
    std::printf("| AddStamps, 3,200 to 320 rows | %.1f | at most 11 |\n",
                ratio("AddStamps/3200", "AddStamps/320"));
    std::printf("| Hundredth to first read of %d events | %.2f | at most 3 |\n", kEventsPerRead,
                ratio("Read/100", "Read/1"));
    return 0;
}
