#include <KzXmlLib10/object/Register.h>

#include "object/GeneratorVersion.h"
#include "object/Messages.h"
#include "object/Throw.h"

#include <KzXmlLib10/object/Text.h>

#include <atomic>
#include <cstdio>

namespace KzXmlLib10 {

namespace {

constexpr int libraryMajor = 10;
constexpr int libraryMinor = 1;

int generatorMajorVersion = 0;
int generatorMinorVersion = 0;
bool registered = false;
std::atomic<bool> firstObjectSeen = false;

bool VersionsMatch() {
    return generatorMajorVersion == libraryMajor && generatorMinorVersion == libraryMinor;
}

std::u16string WithVersions(Message<int, int, int, int> message) {
    return message.Format(libraryMajor, libraryMinor, generatorMajorVersion, generatorMinorVersion);
}

void ShowVersionMismatch() {
    const std::string text = ConvertToUtf8(WithVersions(messages::PleaseEnsureVersion));
    std::fprintf(stderr, "Version Mismatch Error: %s\n", text.c_str());
}

} // namespace

void Register(int generatorMajor, int generatorMinor) {
    if (registered)
        return;
    registered = true;
    generatorMajorVersion = generatorMajor;
    generatorMinorVersion = generatorMinor;
}

void CheckGeneratorVersion() {
    if (VersionsMatch())
        return;
    ShowVersionMismatch();
    throw CKzException(WithVersions(messages::WrongVersion));
}

void ShowVersionMismatchOnce() {
    if (firstObjectSeen.load(std::memory_order_relaxed) || firstObjectSeen.exchange(true))
        return;
    if (!VersionsMatch())
        ShowVersionMismatch();
}

} // namespace KzXmlLib10
