#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <ctime>
#include <vector>

#include <pthread.h>
#include <ucontext.h>

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

/// Runs the action on a thread with a stack of so many bytes, and waits for its end.
template <class Action>
void RunOnStack(std::size_t bytes, Action action) {
    const auto run = [](void* argument) -> void* {
        (*static_cast<Action*>(argument))();
        return nullptr;
    };
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, bytes), 0);
    pthread_t thread;
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &action), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

/// Runs the action as a coroutine of this thread, on a stack elsewhere.
inline void RunAsCoroutine(void (*action)()) {
    std::vector<char> stack(1024 * 1024);
    ucontext_t caller, coroutine;
    getcontext(&coroutine);
    coroutine.uc_stack.ss_sp = stack.data();
    coroutine.uc_stack.ss_size = stack.size();
    coroutine.uc_link = &caller;
    makecontext(&coroutine, action, 0);
    swapcontext(&caller, &coroutine);
}

} // namespace KzXmlLib10::support
