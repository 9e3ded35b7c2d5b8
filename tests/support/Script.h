#pragma once

#include "support/Basics.h"

#include <map>

namespace KzXmlLib10::support {

/// Calls the writer by a text with a word for each call:
///
///     +p=urn:p   AddNamespace, SetDefaultNamespace for an empty prefix
///     <a  <{uri}a   StartElement     >   EndElement
///     @b=v  @{uri}b=v   WriteAttribute     'x  "x   WriteText of a string, of a char
///     type={uri}T   WriteXsiType     nil   WriteXsiNil
void RunScript(CXmlWriter& writer, const std::string& words);

/// Writes an element with nothing but text, at one go or by the three calls that it stands for.
inline void WriteLeaf(CXmlWriter& writer, bool atOnce, const std::u16string& name, const char16_t* uri,
                      const std::u16string& text) {
    static std::map<std::u16string, UniqueNumber> numbers; // each name has one, as in a descriptor
    if (atOnce)
        return writer.WriteLeaf({name, uri, numbers[name + u'\n' + uri].Get()}, text, ItemType_string);
    writer.StartElement(name, uri);
    writer.WriteText(text, ItemType_string);
    writer.EndElement();
}

/// An object that writes itself by a function, or by such a text.
class ScriptedObject : public CXmlObjectBase {
public:
    using Script = std::function<void(CXmlWriter&)>;

    explicit ScriptedObject(Script script) : m_script(std::move(script)) {}
    explicit ScriptedObject(const std::string& words)
        : m_script([words](CXmlWriter& writer) { RunScript(writer, words); }) {}

    CXmlObjectBase* GetBase() override { return this; }
    std::u16string GetTargetNamespace() const override { return u""; }
    std::u16string GetNamespace() const override { return u""; }
    void ToXml_Int(CXmlWriter* writer, bool, const char16_t*, const CXmlSerializationContext&,
                   bool) const override {
        m_script(*writer);
    }
    CXmlElement* FromXml_Int(CXmlElement*, CXmlElement*, const CXmlSerializationContext&, bool) override {
        return nullptr;
    }

    /// The object as Fast Infoset.
    CBinaryData Written(const CXmlSerializationContext& context = CXmlSerializationContext(),
                        FInfoDecl declaration = FInfoDecl_None) const {
        return ToFastInfosetStream(declaration, context, CompressionType_None);
    }

private:
    Script m_script;
};

/// Bytes from hexadecimal digits, which may be set apart by blanks; characters between apostrophes stand for
/// themselves.
CBinaryData HexBytes(const std::string& text);

} // namespace KzXmlLib10::support
