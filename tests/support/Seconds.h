#pragma once

#include <ctime>

namespace KzXmlLib10::support {

/// The seconds of processor time that an action takes; what else the machine does counts little.
template <class Action>
double Seconds(Action action) {
    const auto now = [] {
        timespec time;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    action();
    return now() - start;
}

} // namespace KzXmlLib10::support
