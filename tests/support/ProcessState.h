#pragma once

#include <clocale>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <string>

namespace KzXmlLib10::support {

/// What a library has to leave as it was, a line each: how many descriptors and threads the process has, the
/// handlers and the mask of its signals, its locale and its directory.
inline std::string ProcessState() {
    const auto entries = [](const char* directory) {
        return std::to_string(std::distance(std::filesystem::directory_iterator(directory), {}));
    };
    std::string handlers;
    sigset_t mask;
    pthread_sigmask(SIG_SETMASK, nullptr, &mask);
    for (int signal = 1; signal < SIGRTMIN; ++signal) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        handlers += std::to_string(reinterpret_cast<std::uintptr_t>(action.sa_handler)) +
                    (sigismember(&mask, signal) ? " masked, " : ", ");
    }
    return "descriptors: " + entries("/proc/self/fd") + "\nthreads: " + entries("/proc/self/task") +
           "\nsignals: " + handlers + "\nlocale: " + std::setlocale(LC_ALL, nullptr) +
           "\ndirectory: " + std::filesystem::current_path().string() + '\n';
}

} // namespace KzXmlLib10::support
