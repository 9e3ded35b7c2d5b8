#include "support/Model.h"

#include <KzXmlLib10/metadata/CElementInfoSeq.h>

#include <stdexcept>
#include <string_view>

namespace kit {

namespace {

std::vector<const Model*>& Models() {
    static std::vector<const Model*> models;
    return models;
}

const char16_t* ColourToString(int colour) {
    static const char16_t* const names[] = {u"", u"red", u"green", u"blue"};
    return names[colour];
}

int StringToColour(const char16_t* text) {
    for (int colour = 1; colour <= 3; ++colour)
        if (std::u16string_view(text) == ColourToString(colour))
            return colour;
    return 0;
}

template <class T>
void AddTo(std::vector<T*>& table, T* descriptor) {
    table.back() = descriptor;
    table.push_back(nullptr);
}

} // namespace

CModelObject::CModelObject(const Model& model, const char16_t* elementName)
    : properties(model.m_propertyChecks.size()), m_model(model) {
    SetElementName(elementName);
    for (std::size_t i = 0; i < model.m_mandatoryChildren.size(); ++i) {
        const auto& [property, child] = model.m_mandatoryChildren[i];
        properties[static_cast<std::size_t>(property)].SetXmlObject(
            child->New(model.m_childNames[i].c_str()));
    }
}

std::u16string CModelObject::GetTargetNamespace() const { return m_model.m_namespace; }
std::u16string CModelObject::GetNamespace() const { return m_model.m_namespace; }
CParentElementInfo* CModelObject::GetClassInfo() const {
    if (!m_model.m_info)
        m_model.m_info = std::make_unique<CParentElementInfo>(
            m_model.m_group, m_model.m_type, m_model.m_name.c_str(), m_model.m_namespace.c_str(),
            m_model.m_failIfAttributeUnknown, m_model.m_hasBaseClasses, m_model.m_contentProperty,
            m_model.m_contentType, m_model.m_contentFormat.c_str(), m_model.m_contentAsText);
    return m_model.m_info.get();
}
CElementInfo** CModelObject::GetClassElementInfo() const { return m_model.m_elements.data(); }
CAttributeInfo** CModelObject::GetClassAttributeInfo() const { return m_model.m_attributes.data(); }

void CModelObject::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    const auto index = static_cast<std::size_t>(propertyIndex);
    if (read) {
        value = properties.at(index);
        return;
    }
    if (m_model.m_propertyChecks[index] && !value.IsNil())
        m_model.m_propertyChecks[index](value);
    properties.at(index) = value;
}

void CModelObject::Init() {
    for (std::size_t i = 0; i < properties.size(); ++i) {
        bool kept = false;
        for (const auto& [property, child] : m_model.m_mandatoryChildren)
            kept = kept || static_cast<std::size_t>(property) == i;
        if (!kept)
            properties[i] = KzVariant();
    }
}

std::u16string CModelObject::Text(int property) const {
    const KzVariant& value = properties.at(static_cast<std::size_t>(property));
    return value.IsNil() ? u"(nil)" : value.IsValid() ? value.ToString(nullptr) : u"(none)";
}

CModelObject* CModelObject::Child(int property) const {
    const KzVariant& value = properties.at(static_cast<std::size_t>(property));
    return value.IsValid() ? dynamic_cast<CModelObject*>(static_cast<CXmlObjectBase*>(value.GetXmlObject()))
                           : nullptr;
}

Model::Model(const char16_t* name, XmlElementGroupType group, XmlElementType type,
             const char16_t* namespaceUri)
    : m_name(name), m_group(group), m_type(type), m_namespace(namespaceUri),
      m_classId(static_cast<int>(Models().size())) {
    Models().push_back(this);
}

Model::~Model() {
    for (CElementInfo* element : m_elements)
        delete element;
    for (CAttributeInfo* attribute : m_attributes)
        delete attribute;
}

Model& Model::AllowUnknownAttributes() {
    m_failIfAttributeUnknown = false;
    return *this;
}
Model& Model::HasBaseClasses() {
    m_hasBaseClasses = true;
    return *this;
}
Model& Model::Nillable() {
    m_nillable = true;
    return *this;
}
Model& Model::Content(ItemType type, const char16_t* format, bool asText) {
    m_contentProperty = AddProperty();
    m_contentType = type;
    m_contentFormat = format;
    m_contentAsText = asText;
    return *this;
}

int Model::AddProperty(Check check) {
    m_propertyChecks.push_back(std::move(check));
    return NextProperty() - 1;
}

Model& Model::Attribute(const char16_t* name, Use use, ItemType type, const char16_t* defaultValue,
                        const CPrimitiveRestrictions& facets, const char16_t* namespaceUri) {
    auto* descriptor =
        new CAttributeInfoPrimitive(name, namespaceUri, NextProperty(), use == Optional, type, nullptr,
                                    CWhitespaceUtils::WhitespaceRule_Collapse, facets, defaultValue);
    AddProperty([=](const KzVariant& value) { descriptor->CheckRestriction(value); });
    AddTo<CAttributeInfo>(m_attributes, descriptor);
    return *this;
}

Model& Model::ColourAttribute(const char16_t* name, Use use, const char16_t* defaultValue) {
    AddTo<CAttributeInfo>(m_attributes, new CAttributeInfoEnum(name, u"", AddProperty(), use == Optional,
                                                               ColourToString, StringToColour, defaultValue));
    return *this;
}

Model& Model::Element(CElementInfo* descriptor) {
    AddTo(m_elements, descriptor);
    AddProperty();
    return *this;
}

Model& Model::Prim(const char16_t* name, Cardinality cardinality, ItemType type, bool nillable,
                   const CPrimitiveRestrictions& facets, const char16_t* format) {
    constexpr auto rule = CWhitespaceUtils::WhitespaceRule_Collapse;
    const char16_t* ns = m_namespace.c_str();
    const int property = NextProperty();
    CElementInfo* descriptor;
    if (cardinality == Mnd)
        descriptor = new CElementInfoSeqPrimMnd(name, ns, property, nillable, type, format, rule, facets);
    else
        descriptor = new CElementInfoSeqPrimOpt(name, ns, property, nillable, type, format, rule, facets);
    Element(descriptor);
    m_propertyChecks.back() = [=](const KzVariant& value) { descriptor->CheckRestriction(value); };
    return *this;
}

Model& Model::Colour(const char16_t* name, Cardinality cardinality, bool nillable) {
    const char16_t* ns = m_namespace.c_str();
    const int property = NextProperty();
    if (cardinality == Mnd)
        return Element(
            new CElementInfoSeqEnumMnd(name, ns, property, nillable, ColourToString, StringToColour));
    return Element(new CElementInfoSeqEnumOpt(name, ns, property, nillable, ColourToString, StringToColour));
}

Model& Model::Class(const char16_t* name, Cardinality cardinality, const Model& child, bool consumeRequired) {
    const char16_t* ns = m_namespace.c_str();
    const int property = NextProperty();
    if (cardinality == Mnd) {
        m_mandatoryChildren.emplace_back(property, &child);
        m_childNames.emplace_back(name);
        return Element(new CElementInfoSeqClsMnd(name, ns, property, child.m_type, Create, child.m_classId,
                                                 consumeRequired));
    }
    return Element(new CElementInfoSeqClsOpt(name, ns, property, child.m_type, Create, child.m_classId));
}

Model& Model::Abstract(const char16_t* name, Cardinality cardinality, SubstitutionFactory factory) {
    const char16_t* ns = m_namespace.c_str();
    const int property = NextProperty();
    if (cardinality == Mnd)
        return Element(new CElementInfoSeqAbsClsMnd(name, ns, property, XmlElementType_Element, factory));
    return Element(new CElementInfoSeqAbsClsOpt(name, ns, property, XmlElementType_Element, factory));
}

CSmartPtr<CModelObject> Model::New(const char16_t* elementName) const {
    const char16_t* name = elementName ? elementName : m_name.c_str();
    if (m_nillable)
        return new CNillableModelObject(*this, name);
    return new CModelObject(*this, name);
}

CSmartPtr<CXmlObjectBase> Model::Create(int classId, const char16_t* elementName) {
    return Models().at(static_cast<std::size_t>(classId))->New(elementName);
}

CPrimitiveRestrictions Facets(const char16_t* pattern, int minLength, int maxLength,
                              const char16_t* minInclusive, const char16_t* maxInclusive) {
    return CPrimitiveRestrictions(pattern, minLength, maxLength, minInclusive, maxInclusive, u"", u"", -1);
}

std::u16string FailureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const CKzException& failure) {
        return failure.GetFullMessage();
    }
    return u"";
}

} // namespace kit
