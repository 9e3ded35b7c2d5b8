#pragma once

#include <functional>
#include <string>
#include <vector>

namespace faults {

/// Something that an application does, with an outcome that is the same each time.
struct Scenario {
    const char* name;
    /// What came out, as text; a failure that belongs to the scenario is its message. May be called again
    /// after it has thrown, on the same objects.
    std::function<std::string()> run;
    bool usesFiles = false;
};

/// At least one for each way into the library and out of it, each class of values and each limit.
const std::vector<Scenario>& Scenarios();

} // namespace faults
