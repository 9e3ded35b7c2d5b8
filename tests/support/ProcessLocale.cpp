// Lets the whole suite run under the locale of its environment, as a program does that speaks its user's
// language:
//
//     LC_ALL=de_DE.UTF-8 TZ=Pacific/Chatham quillon_tests

#include <gtest/gtest.h>

#include <clocale>
#include <locale>

namespace {

class ProcessLocale : public testing::Environment {
public:
    void SetUp() override {
        if (!std::setlocale(LC_ALL, ""))
            return; // the environment names a locale that is not there
        std::locale::global(std::locale(""));
    }
};

[[maybe_unused]] const auto* const processLocale = testing::AddGlobalTestEnvironment(new ProcessLocale);

} // namespace
