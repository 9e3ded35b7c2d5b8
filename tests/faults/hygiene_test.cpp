// Nothing is left behind: after all scenarios the process has the descriptors, threads, handlers of signals,
// mask of signals, locale and directory that it had before. Nothing that a document names is opened.
#include "faults/Report.h"
#include "faults/Scenarios.h"
#include "support/Test.h"

#include <clocale>
#include <csignal>

namespace {

faults::Report report;

long Entries(const char* directory) {
    return static_cast<long>(std::distance(std::filesystem::directory_iterator(directory), {}));
}

std::string Handlers() {
    std::string text;
    for (int signal = 1; signal < SIGRTMIN; ++signal) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        text += std::to_string(reinterpret_cast<std::uintptr_t>(action.sa_handler)) + ' ';
    }
    sigset_t mask;
    pthread_sigmask(SIG_SETMASK, nullptr, &mask);
    for (int signal = 1; signal < SIGRTMIN; ++signal)
        text += sigismember(&mask, signal) ? '1' : '0';
    return text;
}

struct State {
    long descriptors = Entries("/proc/self/fd");
    long threads = Entries("/proc/self/task");
    std::string handlers = Handlers();
    std::string locale = std::setlocale(LC_ALL, nullptr);
    std::filesystem::path directory = std::filesystem::current_path();
};

/// A document that names pipes: whoever opened one to read would wait for ever.
void LoadWithExternalNames() {
    const TempDir directory;
    const std::string pipe = directory.Path("pipe");
    if (mkfifo(pipe.c_str(), 0600) != 0)
        std::abort();
    const std::string name = "'file://" + pipe + "'";
    const std::string document = "<!DOCTYPE r SYSTEM " + name + " [<!ENTITY e SYSTEM " + name +
                                 "><!ENTITY % p SYSTEM '" + pipe + "'>%p;]><r>a&e;b</r>";
    CXmlDocument loaded;
    loaded.LoadXml(document.c_str());
    const std::string tree = DumpTree(loaded.GetDocumentElement());
    report.Line(tree == "r[\"ab\"]", "external names: %s", tree.c_str());
}

} // namespace

int main() {
    Register(10, 1);
    alarm(300);
    const State before;
    for (int round = 0; round < 2; ++round)
        for (const faults::Scenario& scenario : faults::Scenarios())
            scenario.run();
    LoadWithExternalNames();
    const State after;
    report.Line(after.descriptors == before.descriptors, "descriptors: %ld before, %ld after",
                before.descriptors, after.descriptors);
    report.Line(after.threads == 1, "threads: %ld before, %ld after", before.threads, after.threads);
    report.Line(after.handlers == before.handlers, "handlers and mask of signals are as before");
    report.Line(after.locale == before.locale && after.directory == before.directory,
                "locale and working directory are as before");
    return report.ExitCode();
}
