#pragma once

namespace KzXmlLib10 {

/// The check of every entry point: on a mismatch shows a message on standard error and throws CKzException.
void CheckGeneratorVersion();

/// The check of the first constructor in the process: on a mismatch shows the message, and throws nothing,
/// since a constructor does not fail for this reason.
void ShowVersionMismatchOnce();

} // namespace KzXmlLib10
