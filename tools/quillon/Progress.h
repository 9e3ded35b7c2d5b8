#pragma once

#include <mutex>
#include <string>
#include <thread>

namespace quillon {

/// Tells a user who waits at a terminal what the program is doing and for how long it has done so: on
/// standard error, from the first second on, in one line that goes away at the end.
class Progress {
public:
    Progress();
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Names what is being done from now on, such as "reading in.xml".
    void SetStep(std::string step);

private:
    void Show(const std::stop_token& stop);

    std::mutex m_mutex;
    std::string m_step;
    std::jthread m_clock; // last, so that it ends first
};

} // namespace quillon
