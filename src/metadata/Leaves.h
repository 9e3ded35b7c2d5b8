#pragma once

/// The heads of the operations that the leaves of the descriptor family define, so that each leaf reads as
/// its rule.

#define QUILLON_TO_XML(Class)                                                                                \
    bool Class::ElementToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,      \
                             CXmlWriter* writer) const

#define QUILLON_FROM_XML(Class)                                                                              \
    bool Class::ElementFromXml([[maybe_unused]] const CXmlSerializationContext& context,                     \
                               [[maybe_unused]] CXmlGeneratedClass* object,                                  \
                               [[maybe_unused]] CXmlElement* parent, [[maybe_unused]] CXmlElement** current, \
                               [[maybe_unused]] const char16_t* ownerNamespace,                              \
                               [[maybe_unused]] XmlElementType ownerElementType)

#define QUILLON_VALIDATE(Class)                                                                              \
    bool Class::Validate(const CXmlSerializationContext&, const CXmlGeneratedClass*,                         \
                         [[maybe_unused]] bool found, [[maybe_unused]] bool isElement) const
