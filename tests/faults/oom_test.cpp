// Memory runs out at every single allocation of every scenario, once and from there on. This program's malloc
// serves the C libraries too.
//
//     oom_test [--stride N]   tries the first allocations and then every N-th, 1 unless given
#include "faults/Report.h"
#include "faults/Scenarios.h"

#include <KzXmlLib10/KzXmlLib10.h>

#include <cerrno>
#include <new>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace {

/// What the allocator does on the thread that is under test.
struct Memory {
    bool isArmed = false;
    bool staysOut = false; ///< from the failing allocation on
    long failAt = 0;
    long allocations = 0;
    long live = 0;

    bool RunsOut() {
        if (!isArmed)
            return false;
        ++allocations;
        return allocations == failAt || (staysOut && allocations > failAt);
    }
};
constinit thread_local Memory memory;

void* Counted(void* block) {
    memory.live += block != nullptr;
    return block;
}

void* NoMemory() {
    errno = ENOMEM;
    return nullptr;
}

} // namespace

extern "C" {

void* malloc(std::size_t size) { return memory.RunsOut() ? NoMemory() : Counted(__libc_malloc(size)); }

void* calloc(std::size_t count, std::size_t size) {
    return memory.RunsOut() ? NoMemory() : Counted(__libc_calloc(count, size));
}

void* realloc(void* block, std::size_t size) {
    if (memory.RunsOut())
        return NoMemory();
    return block ? __libc_realloc(block, size) : Counted(__libc_malloc(size));
}

void* memalign(std::size_t alignment, std::size_t size) {
    return memory.RunsOut() ? NoMemory() : Counted(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) { return memalign(alignment, size); }

int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
    *block = memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}

void free(void* block) {
    memory.live -= block != nullptr;
    __libc_free(block);
}
}

namespace {

using KzXmlLib10::CKzException;
using KzXmlLib10::ToUtf8;

faults::Report report;

struct Tally {
    long points = 0;
    long thrown = 0;   ///< std::bad_alloc
    long reported = 0; ///< in the words of a C library
    long correct = 0;  ///< the same result as with memory
    long wrong = 0;
    long leaked = 0;
};

/// One run that meets the end of memory at the given allocation; false if there is no such allocation.
bool RunOut(const faults::Scenario& scenario, const std::string& expected, long failAt, bool staysOut,
            Tally& tally) {
    std::string outcome; // has no part in what the scenario allocates
    outcome.reserve(1 << 20);
    bool isThrown = false;
    memory = {.isArmed = true, .staysOut = staysOut, .failAt = failAt, .allocations = 0, .live = memory.live};
    try {
        const std::string result = scenario.run();
        memory.isArmed = false;
        outcome = result;
    } catch (const std::bad_alloc&) {
        isThrown = true;
    } catch (const CKzException& failure) {
        memory.isArmed = false;
        outcome = ToUtf8(failure.GetFullMessage());
    }
    memory.isArmed = false;
    if (memory.allocations < failAt)
        return false;
    ++tally.points;
    if (isThrown)
        ++tally.thrown;
    else if (outcome == expected)
        ++tally.correct;
    else if (outcome.find("out of memory") != outcome.npos)
        ++tally.reported;
    else if (++tally.wrong == 1)
        std::printf("      %s, allocation %ld%s: %.300s\n", scenario.name, failAt, staysOut ? " and on" : "",
                    outcome.c_str());
    return true;
}

Tally TryAll(const faults::Scenario& scenario, long stride) {
    Tally tally;
    const std::string expected = scenario.run();
    for (const bool staysOut : {false, true}) {
        for (long failAt = 1;; failAt += failAt < 30 ? 1 : stride) {
            const long live = memory.live;
            if (!RunOut(scenario, expected, failAt, staysOut, tally))
                break;
            // The same objects are good for the next run, after which all is as it was.
            const bool isWhole = scenario.run() == expected;
            if (!isWhole && ++tally.wrong == 1)
                std::printf("      %s differs after allocation %ld\n", scenario.name, failAt);
            if (memory.live != live && ++tally.leaked == 1)
                std::printf("      %s keeps %ld blocks after allocation %ld%s\n", scenario.name,
                            memory.live - live, failAt, staysOut ? " and on" : "");
        }
    }
    return tally;
}

} // namespace

int main(int argc, char** argv) {
    const long stride = std::atol(faults::Option(argc, argv, "--stride", "1"));
    KzXmlLib10::Register(10, 1);
    for (const faults::Scenario& scenario : faults::Scenarios())
        scenario.run(); // what is made once and kept
    long points = 0;
    for (const faults::Scenario& scenario : faults::Scenarios()) {
        const Tally tally = TryAll(scenario, stride);
        points += tally.points;
        report.Line(tally.wrong == 0 && tally.leaked == 0,
                    "%-30s %6ld points: %6ld thrown, %4ld reported, %4ld correct, %ld wrong, %ld leaks",
                    scenario.name, tally.points, tally.thrown, tally.reported, tally.correct, tally.wrong,
                    tally.leaked);
    }
    report.Line(faults::Scenarios().size() >= 40, "%zu scenarios, %ld points", faults::Scenarios().size(),
                points);
    return report.ExitCode();
}
