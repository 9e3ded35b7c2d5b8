#include <KzXmlLib10/object/Register.h>

#include <gtest/gtest.h>

namespace {

/// What generated code does at start-up: the whole suite runs as version 10.1.
class GeneratedStartUp : public testing::Environment {
public:
    void SetUp() override { KzXmlLib10::Register(10, 1); }
};

[[maybe_unused]] const auto* const startUp = testing::AddGlobalTestEnvironment(new GeneratedStartUp);

} // namespace
