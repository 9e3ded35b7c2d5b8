#include "support/ProcessState.h"

#include <KzXmlLib10/object/Register.h>

#include <gtest/gtest.h>

#include <chrono>
#include <clocale>
#include <locale>
#include <thread>

namespace {

using KzXmlLib10::support::ProcessState;

/// What a program does first that speaks its user's language and uses generated code: it adopts the locale of
/// its environment, and registers as version 10.1. So the whole suite runs under any locale and in any time
/// zone:
///
///     LC_ALL=de_DE.UTF-8 TZ=Pacific/Chatham quillon_tests
///
/// What it does last is to see that the tests left the process as it was.
class Startup : public testing::Environment {
public:
    void SetUp() override {
        if (std::setlocale(LC_ALL, "")) // or the environment names a locale that is not there
            std::locale::global(std::locale(""));
        KzXmlLib10::Register(10, 1);
        const std::string alone = ProcessState();
        std::thread([] {}).join();
        m_before = Settled(alone, 20); // beside the first, the thread sanitizer starts one that stays
    }

    void TearDown() override { EXPECT_EQ(Settled(m_before, 100), m_before); }

private:
    /// The state once it is as expected, or after so many hundredths of a second. The system shows a thread
    /// for a moment after it has been joined.
    static std::string Settled(const std::string& expected, int patience) {
        for (; patience > 0 && ProcessState() != expected; --patience)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return ProcessState();
    }

    std::string m_before;
};

[[maybe_unused]] const auto* const startup = testing::AddGlobalTestEnvironment(new Startup);

} // namespace
