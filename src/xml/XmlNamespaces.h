#pragma once

/// The namespaces that XML itself and XML Schema reserve.
namespace KzXmlLib10 {

inline constexpr char16_t xmlNamespace[] = u"http://www.w3.org/XML/1998/namespace";
inline constexpr char16_t xmlnsNamespace[] = u"http://www.w3.org/2000/xmlns/";
inline constexpr char16_t schemaInstanceNamespace[] = u"http://www.w3.org/2001/XMLSchema-instance";

} // namespace KzXmlLib10
