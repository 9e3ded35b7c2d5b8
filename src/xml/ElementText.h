#pragma once

#include "xml/TextArena.h"

#include <KzXmlLib10/xml/CXmlElement.h>

#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// The text of an element, which mostly is one piece that stays where it stands. Valid until the element
/// changes; a zero follows it.
class ElementText {
public:
    explicit ElementText(const CXmlElement& element)
        : m_text(element.m_text && element.m_text->IsAlone() ? element.m_text->View()
                                                             : element.ViewText(m_room)) {}
    ElementText(const ElementText&) = delete;
    ElementText& operator=(const ElementText&) = delete;

    std::u16string_view Get() const { return m_text; }

private:
    std::u16string m_room;
    std::u16string_view m_text;
};

} // namespace KzXmlLib10
