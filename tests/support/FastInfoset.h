#pragma once

#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

#include <functional>
#include <string>

namespace KzXmlLib10::support {

/// An object that writes itself by a list of calls.
class ScriptedObject : public CXmlObjectBase {
public:
    using Script = std::function<void(CXmlWriter&)>;

    explicit ScriptedObject(Script script) : m_script(std::move(script)) {}

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

private:
    Script m_script;
};

/// The Fast Infoset document that the calls make.
inline CBinaryData FastInfosetOf(const ScriptedObject::Script& script,
                                 const CXmlSerializationContext& context = CXmlSerializationContext(),
                                 FInfoDecl declaration = FInfoDecl_None) {
    return ScriptedObject(script).ToFastInfosetStream(declaration, context, CompressionType_None);
}

/// Bytes from hexadecimal digits, which may be set apart by blanks; characters between apostrophes stand for
/// themselves.
inline CBinaryData Bytes(const std::string& text) {
    CBinaryData bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == ' ')
            continue;
        if (text[i] == '\'') {
            while (text.at(++i) != '\'')
                bytes.Append(static_cast<unsigned char>(text[i]));
            continue;
        }
        bytes.Append(static_cast<unsigned char>(std::stoi(text.substr(i++, 2), nullptr, 16)));
    }
    return bytes;
}

} // namespace KzXmlLib10::support
