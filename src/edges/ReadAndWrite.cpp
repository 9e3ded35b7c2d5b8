#include <KzXmlLib10/edges/ReadAndWrite.h>

#include "edges/Deflate.h"
#include "edges/FileName.h"
#include "edges/Messages.h"
#include "object/Throw.h"

#include <KzXmlLib10/collections/CElement.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/xml/CFileBinaryStream.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

namespace {

std::string_view AsChars(const CBinaryData& data) {
    return {reinterpret_cast<const char*>(data.GetData()), data.GetLength()};
}

CBinaryData ToData(std::string_view bytes) {
    CBinaryData data;
    data.Append(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    return data;
}

CBinaryData Write(const CXmlObjectBase& object, const ByteStyle& style,
                  const CXmlSerializationContext& context) {
    const bool isPlain = style.compression == CompressionType_None;
    if (style.format == DocumentFormat::FastInfoset) {
        const CBinaryData data = object.ToFastInfosetStream(style.declaration, context, CompressionType_None);
        return isPlain ? data : Deflate(AsChars(data), style.compression);
    }
    const std::string text = WriteText(object, style.text, context);
    return isPlain ? ToData(text) : Deflate(text, style.compression);
}

/// Puts the root of a document into a generic element, which by itself would take the root's first child.
class GenericRoot : public CXmlObjectBase {
public:
    explicit GenericRoot(CElement& element) : m_element(element) {}

    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override { return this; }
    std::u16string GetNamespace() const override { return m_element.GetNamespace(); }

protected:
    std::u16string GetTargetNamespace() const override { return GetNamespace(); }

    using CXmlObjectBase::FromXml_Int;
    using CXmlObjectBase::ToXml_Int;
    void ToXml_Int(CXmlWriter*, bool, const char16_t*, const CXmlSerializationContext&, bool) const override {
    } // nobody writes it
    CXmlElement* FromXml_Int(CXmlElement* root, CXmlElement*, const CXmlSerializationContext& context,
                             bool) override {
        m_element.GetAttributes()->Clear();
        m_element.GetChildElements()->Clear();
        if (CXmlObjectBase::FromXml_Int(&m_element, root, root, context) == root)
            Throw<CKzInvalidNamespaceException>(messages::RootNamespaceRefused, root->GetNamespaceURI());
        return nullptr;
    }

private:
    CElement& m_element;
};

/// Hands an action what reads a document into an object.
template <class Action>
void WithReader(CXmlObjectBase& object, Action action) {
    if (auto* const element = dynamic_cast<CElement*>(&object)) {
        GenericRoot root(*element);
        action(root);
    } else {
        action(object);
    }
}

} // namespace

void Read(CXmlObjectBase& object, std::string_view document, const CXmlSerializationContext& context) {
    Read(object, std::as_bytes(std::span(document)), context);
}

void Read(CXmlObjectBase& object, std::span<const std::byte> document,
          const CXmlSerializationContext& context) {
    // Loading copies the bytes and changes none of them.
    auto* bytes = reinterpret_cast<unsigned char*>(const_cast<std::byte*>(document.data()));
    WithReader(object,
               [&](CXmlObjectBase& reader) { reader.FromXmlStream(bytes, document.size(), context); });
}

void ReadFile(CXmlObjectBase& object, const std::filesystem::path& file,
              const CXmlSerializationContext& context) {
    WithReader(object, [&](CXmlObjectBase& reader) { reader.FromXmlFile(FileName(file).c_str(), context); });
}

std::string WriteText(const CXmlObjectBase& object, const TextStyle& style,
                      const CXmlSerializationContext& context) {
    return ToUtf8(object.ToXml(style.declaration, style.formatted, style.eol, context));
}

std::vector<std::byte> WriteBytes(const CXmlObjectBase& object, const ByteStyle& style,
                                  const CXmlSerializationContext& context) {
    const CBinaryData data = Write(object, style, context);
    const auto* bytes = reinterpret_cast<const std::byte*>(data.GetData());
    return {bytes, bytes + data.GetLength()};
}

void WriteFile(const CXmlObjectBase& object, const std::filesystem::path& file, const ByteStyle& style,
               const CXmlSerializationContext& context) {
    CFileBinaryStream stream(FileName(file).c_str(), XmlEncoding_None); // a byte order mark has no place here
    stream.m_data = Write(object, style, context);
    stream.SaveToFile();
}

} // namespace KzXmlLib10
