// Every system call of every scenario with files fails in every way that it can.
#include "faults/Report.h"
#include "faults/Scenarios.h"
#include "support/FileTest.h"

namespace {

faults::Report report;
const SystemCalls real = systemCalls;

enum Fault { Eio, Enospc, Eintr, Short, Zero };
constexpr const char* names[] = {"EIO", "ENOSPC", "EINTR", "short", "zero"};
constexpr int errors[] = {EIO, ENOSPC, EINTR, 0, 0};

long calls, faultyCall;
Fault fault;
/// Why the call failed in the end, or 0 if it must not have mattered.
int cause;
bool hasWritten;

/// Whether this call is the faulty one and fails with an error. Where the system is never interrupted, EINTR
/// is an error like others.
bool Fails(bool matters, bool isInterrupted = true) {
    if (++calls != faultyCall || fault > Eintr)
        return false;
    errno = errors[fault];
    cause = matters && !(isInterrupted && fault == Eintr) ? errno : 0;
    return true;
}

template <class Transfer>
ssize_t Transferred(std::size_t length, int causeOfZero, Transfer transfer) {
    if (calls + 1 == faultyCall && fault > Eintr) {
        ++calls;
        if (fault == Short)
            return transfer(length > 1 ? length - 1 : length);
        cause = causeOfZero;
        return 0;
    }
    return Fails(true) ? -1 : transfer(length);
}

void InstallFaultyCalls() {
    systemCalls.open = [](const char* name, int flags, mode_t mode) {
        return Fails(true) ? -1 : real.open(name, flags, mode);
    };
    systemCalls.fstat = [](int file, struct stat* status) {
        return Fails(true, false) ? -1 : real.fstat(file, status);
    };
    systemCalls.clearNonBlocking = [](int file) {
        return Fails(true, false) ? -1 : real.clearNonBlocking(file);
    };
    systemCalls.advise = [](int file, off_t offset, off_t length, int advice) {
        return Fails(false) ? errno : real.advise(file, offset, length, advice);
    };
    systemCalls.pread = [](int file, void* buffer, std::size_t length, off_t offset) {
        return Transferred(length, AsyncFile::EndOfFile,
                           [&](std::size_t n) { return real.pread(file, buffer, n, offset); });
    };
    systemCalls.pwrite = [](int file, const void* bytes, std::size_t length, off_t offset) {
        hasWritten = true;
        return Transferred(length, EIO, [&](std::size_t n) { return real.pwrite(file, bytes, n, offset); });
    };
    systemCalls.write = [](int file, const void* bytes, std::size_t length) {
        hasWritten = true;
        return Transferred(length, EIO, [&](std::size_t n) { return real.write(file, bytes, n); });
    };
    systemCalls.close = [](int file) {
        const int result = real.close(file);    // it is closed in any case
        return Fails(hasWritten) ? -1 : result; // which does not matter for a file that was only read
    };
}

/// Whether a message is one of those about files, with the number of the cause.
bool Reports(const std::string& message, int error) {
    char end[32];
    const auto length = static_cast<std::size_t>(
        std::snprintf(end, sizeof end, "error [0x%08x]", static_cast<unsigned>(error)));
    return message.find("Failed to ") != message.npos && message.size() > length &&
           strcasecmp(message.c_str() + message.size() - length, end) == 0;
}

/// Whether the outcome is what a fault has to lead to.
bool IsGood(const faults::Scenario& scenario, const std::string& outcome, const std::string& expected) {
    if (cause == 0 || (fault == Zero && outcome == expected)) // nothing was left to read
        return outcome == expected;
    // What does not ask a file for its length takes it for a shorter one.
    const bool endsEarly = fault == Zero && scenario.name == "records of a file"s;
    return Reports(outcome, cause) || (endsEarly && outcome.find(" at line ") != outcome.npos);
}

struct Tally {
    long points = 0, wrong = 0;
    double slowest = 0;
};

/// Runs with one fault; false if there is no such call.
bool RunWithFault(const faults::Scenario& scenario, const std::string& expected, Tally& tally) {
    calls = cause = hasWritten = 0;
    const auto descriptors = OpenDescriptors();
    std::string outcome;
    InstallFaultyCalls();
    tally.slowest = std::max(tally.slowest, Seconds([&] { outcome = Outcome(scenario.run); }));
    systemCalls = real;
    if (calls < faultyCall)
        return false;
    ++tally.points;
    const bool isGood = IsGood(scenario, outcome, expected);
    const bool isWhole = OpenDescriptors() == descriptors && Outcome(scenario.run) == expected;
    if (!(isGood && isWhole) && ++tally.wrong == 1)
        std::printf("      %s, call %ld, %s: %.200s\n", scenario.name, faultyCall, names[fault],
                    outcome.c_str());
    return true;
}

} // namespace

int main() {
    Register(10, 1);
    long points = 0;
    for (const faults::Scenario& scenario : faults::Scenarios()) {
        if (!scenario.usesFiles)
            continue;
        scenario.run();
        const std::string expected = Outcome(scenario.run);
        Tally tally;
        for (const Fault each : {Eio, Enospc, Eintr, Short, Zero}) {
            fault = each;
            for (faultyCall = 1; RunWithFault(scenario, expected, tally); ++faultyCall)
                continue;
        }
        points += tally.points;
        report.Line(tally.wrong == 0 && tally.slowest < 5, "%-30s %4ld points: %ld wrong, at most %.3f s",
                    scenario.name, tally.points, tally.wrong, tally.slowest);
    }
    report.Line(points > 0, "%ld points", points);
    return report.ExitCode();
}
