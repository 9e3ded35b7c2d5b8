#include <KzXmlLib10/object/Register.h>

#include <gtest/gtest.h>

#include <clocale>
#include <locale>

namespace {

/// What a program does first that speaks its user's language and uses generated code: it adopts the locale of
/// its environment, and registers as version 10.1. So the whole suite runs under any locale and in any time
/// zone:
///
///     LC_ALL=de_DE.UTF-8 TZ=Pacific/Chatham quillon_tests
class Startup : public testing::Environment {
public:
    void SetUp() override {
        if (std::setlocale(LC_ALL, "")) // or the environment names a locale that is not there
            std::locale::global(std::locale(""));
        KzXmlLib10::Register(10, 1);
    }
};

[[maybe_unused]] const auto* const startup = testing::AddGlobalTestEnvironment(new Startup);

} // namespace
