// Nothing is left behind: after all scenarios the process has the descriptors, threads, handlers of signals,
// mask of signals, locale and directory that it had before. Nothing that a document names is opened.
#include "faults/Report.h"
#include "faults/Scenarios.h"
#include "support/ProcessState.h"
#include "support/Test.h"

namespace {

faults::Report report;

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
    const std::string before = ProcessState();
    for (int round = 0; round < 2; ++round)
        for (const faults::Scenario& scenario : faults::Scenarios())
            scenario.run();
    LoadWithExternalNames();
    const std::string after = ProcessState();
    report.Line(after == before, "the process before\n%sand after\n%s", before.c_str(), after.c_str());
    return report.ExitCode();
}
