#pragma once

#include "support/Test.h"
#include "xml/AsyncFiles.h"

namespace KzXmlLib10::support {

/// A test with files of its own. It may replace system calls and set both roads; at its end these are as
/// before, and as many descriptors have to be open.
class FileTest : public testing::Test {
protected:
    ~FileTest() override {
        AsyncFromXmlFile(false);
        AsyncToXmlFile(false);
        systemCalls = m_realCalls;
        EXPECT_EQ(OpenDescriptors(), m_descriptors);
    }

    TempDir m_dir;

private:
    const SystemCalls m_realCalls = systemCalls;
    const std::ptrdiff_t m_descriptors = OpenDescriptors();
};

} // namespace KzXmlLib10::support
