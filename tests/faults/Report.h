#pragma once

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace faults {

/// What a program prints: a line for each figure, with whether it reaches its goal.
class Report {
public:
    [[gnu::format(printf, 3, 4)]] void Line(bool reached, const char* format, ...) {
        std::va_list arguments;
        va_start(arguments, format);
        std::fputs(reached ? "ok    " : "FAILS ", stdout);
        std::vprintf(format, arguments);
        std::putchar('\n');
        std::fflush(stdout);
        va_end(arguments);
        m_exitCode |= !reached;
    }
    int ExitCode() const { return m_exitCode; }

private:
    int m_exitCode = 0;
};

/// What stands behind `name` among the arguments of the program, as in --levels 1000.
inline const char* Option(int argc, char** argv, const char* name, const char* otherwise) {
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], name) == 0)
            return argv[i + 1];
    return otherwise;
}

#if !defined(__has_feature)
#    define __has_feature(name) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// Whether times mean anything: not in a debug build, nor under a sanitizer.
#ifdef NDEBUG
constexpr bool isFast = !isSanitized;
#else
constexpr bool isFast = false;
#endif

} // namespace faults
