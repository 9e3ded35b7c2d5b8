#include "Progress.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace quillon {

Progress::Progress() {
    if (!isatty(STDERR_FILENO))
        return;
    try {
        m_clock = std::jthread([this](const std::stop_token& stop) { Show(stop); });
    } catch (const std::system_error&) {
        // No thread is to be had: the work goes on without.
    }
}

Progress::~Progress() = default;

void Progress::SetStep(std::string step) {
    const std::lock_guard lock(m_mutex);
    m_step = std::move(step);
}

void Progress::Show(const std::stop_token& stop) {
    std::condition_variable_any never;
    std::unique_lock lock(m_mutex);
    int seconds = 0;
    while (!never.wait_for(lock, stop, std::chrono::seconds(1), [&] { return stop.stop_requested(); }))
        std::fprintf(stderr, "\r\033[Kquillon: %s, %d s", m_step.c_str(), ++seconds);
    if (seconds > 0)
        std::fputs("\r\033[K", stderr);
}

} // namespace quillon
