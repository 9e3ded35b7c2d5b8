#pragma once

/// Whom to contact, as some messages end.
#define QUILLON_SUPPORT_CONTACT u"the Quillon Runtime maintainers"
