#pragma once

#include "framework/documents.h"

#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// What the benchmarks share.
namespace quill::bench {

/// The plain way: one XPath expression per item with libxml2, on a response of n items that are
/// named `name(0)`, `name(1)`, ...
template <class Name>
void xpathPerItem(benchmark::State& state, const std::string& responseXml, long n, Name&& name)
{
    xmlDocPtr document = xmlReadMemory(responseXml.data(), static_cast<int>(responseXml.size()),
                                       nullptr, "UTF-8", XML_PARSE_NOBLANKS | XML_PARSE_HUGE);
    for (auto _ : state) {
        xmlXPathContextPtr context = xmlXPathNewContext(document);
        xmlXPathRegisterNs(context, reinterpret_cast<const xmlChar*>("comm"),
                           reinterpret_cast<const xmlChar*>(documents::kCommunicationSchema));
        long found = 0;
        for (long i = 0; i < n; ++i) {
            const std::string expression =
                "comm:dtm/comm:communicationResponse/comm:item[@name = \"" + name(i) + "\"]";
            context->node            = reinterpret_cast<xmlNodePtr>(document);
            xmlXPathObjectPtr result = xmlXPathEvalExpression(
                reinterpret_cast<const xmlChar*>(expression.c_str()), context);
            found += result->nodesetval->nodeNr;
            xmlXPathFreeObject(result);
        }
        xmlXPathFreeContext(context);
        if (found != n) {
            state.SkipWithError("the expressions did not find every item");
        }
    }
    xmlFreeDoc(document);
}

/// Keeps the times beside printing them, for the ratios that matter: those of the processor, and of
/// several repetitions the best, as a ratio must not depend on what else the machine does.
class Reporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration) {
                const auto [time, isNew] = mTimes.try_emplace(
                    run.run_name.function_name + "/" + run.run_name.args, run.GetAdjustedCPUTime());
                time->second = std::min(time->second, run.GetAdjustedCPUTime());
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }
    /// A row of the table in Markdown: the time of `a` by the time of `b`.
    void printRatio(const char* label, const std::string& a, const std::string& b,
                    const char* format, const char* bound)
    {
        const double below = mTimes[b];
        std::printf("| %s | ", label);
        std::printf(format, below > 0 ? mTimes[a] / below : 0);
        std::printf(" | %s |\n", bound);
    }

private:
    std::map<std::string, double> mTimes;
};

/// Runs the benchmarks that the command line asks for; `printRows` then prints the table's rows.
template <class PrintRows>
int run(int argc, char** argv, PrintRows&& printRows)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n| Ratio | Measured | Bound |\n|---|---|---|\n");
    printRows(reporter);
    return 0;
}

} // namespace quill::bench
