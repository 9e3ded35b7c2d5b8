#include "support/Roundtrip.h"

namespace kit {

namespace {

std::u16string ShowObject(const CXmlObjectBase* object);

std::u16string ShowProperties(const CModelObject& object, const char16_t* separator) {
    std::u16string text;
    for (std::size_t i = 0; i < object.properties.size(); ++i) {
        const int property = static_cast<int>(i);
        const bool isObject = object.properties[i].GetTypeAsEnum() >= ItemType_xmlObject;
        text += i ? separator : u"";
        text += isObject ? ShowObject(object.Held(property)) : object.Text(property);
    }
    return text;
}

std::u16string ShowObject(const CXmlObjectBase* object) {
    if (const auto* child = dynamic_cast<const CModelObject*>(object))
        return u"{" + ShowProperties(*child, u",") + u"}";
    std::u16string text;
    if (const auto* children = dynamic_cast<const CModelCol*>(object)) {
        for (int i = 0; i < children->GetCount(); ++i)
            text += ShowObject(children->Item(i));
        return u"[" + text + u"]";
    }
    if (const auto* attributes = dynamic_cast<const CAttributeCol*>(object)) {
        for (const CAttribute& attribute : *attributes)
            text += attribute.GetName() + u"=" + attribute.GetValue() + u" ";
        return u"[" + text + u"]";
    }
    if (const auto* elements = dynamic_cast<const CElementCol*>(object)) {
        for (const CElement& element : *elements)
            text += ShowObject(&element);
        return u"[" + text + u"]";
    }
    return object ? Write(*object) : u"-";
}

} // namespace

std::u16string FailedToRead(const char16_t* name, const std::u16string& cause) {
    return u"Failed to process the element [" + std::u16string(name) + u"]\n" + cause;
}

std::u16string FailedToWrite(const char16_t* name, const std::u16string& cause) {
    return u"Failed to convert the element [" + std::u16string(name) + u"] to XML\n" + cause;
}

std::u16string Show(const CModelObject& object) { return ShowProperties(object, u"|"); }

std::u16string Read(const Model& model, const std::u16string& xml, Context& context) {
    const CSmartPtr<CModelObject> object = model.New();
    const std::u16string failure = FailureOf([&] { object->FromXml(xml.c_str(), context); });
    return failure.empty() ? Show(*object) : failure;
}

/// What a row tells of an element of that name.
static std::u16string Meant(const std::u16string& row, const std::u16string& name) {
    if (row[0] == u'!')
        return FailedToRead(name.c_str(), Meant(row.substr(1), name));
    if (row[0] == u'?')
        return FailedToRead(name.c_str(), u"Failed to find a required element [" + row.substr(1) + u"]");
    if (row[0] != u'+')
        return row;
    return FailedToRead(name.c_str(), u"Failed read all the elements held within the element [" + name +
                                          u"]. The unexpected element [" + row.substr(1) +
                                          u"] remains un processed");
}

void ExpectReads(const Model& model, std::initializer_list<Row> rows, Context& context) {
    for (const auto& [xml, row] : rows)
        EXPECT_EQ(Read(model, xml, context),
                  Meant(FromUtf8(row), xml.substr(1, xml.find_first_of(u" />") - 1)))
            << ToUtf8(xml);
}

std::u16string Rewritten(const Model& model, const std::u16string& xml) {
    const CSmartPtr<CModelObject> object = model.New();
    object->FromXml(xml.c_str(), {});
    return Write(*object);
}

std::u16string Write(const CXmlObjectBase& object, Context& context) {
    std::u16string text;
    const std::u16string failure = FailureOf([&] { text = object.ToXml(false, false, EOLType_LF, context); });
    return failure.empty() ? text : failure;
}

} // namespace kit
