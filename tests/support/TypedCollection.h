#pragma once

#include "support/Script.h"

namespace KzXmlLib10::support {

/// The arguments of a typed collection, as a generator would give them for a field without facets.
struct ColArguments {
    int minOccurs = 0;
    int maxOccurs = -1;
    const char16_t* pattern = u"";
    int minLength = -1;
    const char16_t* minInclusive = u"";
    const char16_t* maxInclusive = u"";
    const char16_t* format = nullptr;
    const char16_t* elementNamespace = u"";
};

/// A collection of elements <i>.
template <class Collection>
Collection Make(const ColArguments& with = {}) {
    return Collection(u"i", with.elementNamespace, with.minOccurs, with.maxOccurs, with.pattern,
                      with.minLength, -1, with.minInclusive, with.maxInclusive, u"", u"", -1,
                      CWhitespaceUtils::WhitespaceRule_Collapse, with.format);
}

/// Writes down the calls that a collection makes, such as "<i 5:-7>" for an element with a text of type 5.
class RecordingWriter : public CXmlWriter {
public:
    void WriteComment(const std::u16string&) override {}
    void WriteProcessingInstruction(const std::u16string&) override {}
    void WriteInlineSchema(const std::u16string&) override {}
    void StartElement(const std::u16string& name, const std::u16string&) override {
        calls += "<" + ToUtf8(name);
    }
    void WriteText(const std::u16string& text, ItemType type) override {
        calls += " " + std::to_string(type) + ":" + ToUtf8(text);
    }
    void EndElement() override { calls += ">"; }
    void WriteAttribute(const std::u16string&, const std::u16string&, const std::u16string&,
                        ItemType) override {}
    void WriteXsiType(const std::u16string&, const std::u16string&, ItemType) override {}
    void WriteXsiNil() override {}

    std::string calls;
};

/// An object <r> that contains one collection and nothing else.
class CollectionOwner : public ScriptedObject {
public:
    explicit CollectionOwner(CXmlTypeCollection& items)
        : ScriptedObject([&items](CXmlWriter& writer) {
              writer.StartElement(u"r", u"");
              CXmlObjectBase::ToXml_Int(&items, &writer, false, u"", CXmlSerializationContext(), false);
              writer.EndElement();
          }),
          m_items(items) {
        SetElementName(u"r");
    }

    /// What the collection calls when it is written.
    std::string Calls(const CXmlSerializationContext& context = {}) const {
        RecordingWriter writer;
        CXmlObjectBase::ToXml_Int(&m_items, &writer, false, u"urn:not-used", context, false);
        return writer.calls;
    }
    /// Reads the items from the content of <r>.
    void Read(const std::u16string& content, const CXmlSerializationContext& context = {}) {
        FromXml((u"<r>" + content + u"</r>").c_str(), context);
    }
    std::u16string Write() const { return ToXml(false, false, EOLType_LF, CXmlSerializationContext()); }

protected:
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                             const CXmlSerializationContext& context, bool) override {
        return CXmlObjectBase::FromXml_Int(&m_items, element, current, context);
    }

private:
    CXmlTypeCollection& m_items;
};

} // namespace KzXmlLib10::support
