#include "probe/command_line.h"

#include "probe/session.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace quill::probe {

namespace {

constexpr int kDone  = 0;
constexpr int kNotOk = 1;
constexpr int kUsage = 2;

constexpr const char* kHelp =
    R"(Usage: quill-probe [FILE...]

Plays the host for one control or a page of controls. Reads one JSON object per
line from the files in order, else from standard input, does it, and writes JSON
objects to standard output: reports of what happened, then one reply per line.

  --help     shows this text
  --version  shows the version
  --         ends the options

Exit status: 0 when every line was answered with "ok": true, 1 when one was not,
2 for a usage error.
)";

void run(Session& session, std::istream& input)
{
    std::string line;
    while (std::getline(input, line)) {
        session.line(line);
    }
}

/// The file, opened; a folder cannot be read.
std::ifstream open(const std::string& path)
{
    std::error_code error;
    return std::filesystem::is_directory(path, error) ? std::ifstream{} : std::ifstream{path};
}

int complain(const std::string& what)
{
    std::cerr << "quill-probe: " << what << "\nTry 'quill-probe --help'.\n";
    return kUsage;
}

} // namespace

int runProbe(const std::vector<std::string>& arguments)
{
    std::vector<std::string> files;
    bool                     takesOptions = true;
    for (const auto& argument : arguments) {
        if (!takesOptions || argument.size() < 2 || argument[0] != '-') {
            files.push_back(argument);
        } else if (argument == "--") {
            takesOptions = false;
        } else if (argument == "--help") {
            std::cout << kHelp;
            return kDone;
        } else if (argument == "--version") {
            std::cout << "quill-probe " QUILL_VERSION "\n";
            return kDone;
        } else {
            return complain("unknown option " + argument);
        }
    }
    // Nothing runs unless all can be read. Each is opened once, as a pipe gives its lines once.
    std::vector<std::ifstream> inputs;
    for (const auto& file : files) {
        inputs.push_back(open(file));
        if (!inputs.back().is_open()) {
            return complain("cannot read " + file);
        }
    }
    Session session{[](const std::string& line) { std::cout << line << std::endl; }};
    if (inputs.empty()) {
        run(session, std::cin);
    }
    for (auto& input : inputs) {
        run(session, input);
    }
    return session.allOk() ? kDone : kNotOk;
}

} // namespace quill::probe
