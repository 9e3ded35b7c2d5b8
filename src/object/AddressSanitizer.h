#pragma once

namespace KzXmlLib10 {

/// Whether this is a build with the address sanitizer.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool hasAddressSanitizer = true;
#elif defined(__has_feature)
#    if __has_feature(address_sanitizer)
inline constexpr bool hasAddressSanitizer = true;
#    else
inline constexpr bool hasAddressSanitizer = false;
#    endif
#else
inline constexpr bool hasAddressSanitizer = false;
#endif

} // namespace KzXmlLib10
