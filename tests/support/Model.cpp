#include "support/Model.h"

#include <deque>
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
    for (const Model::Held& held : model.m_held)
        properties[static_cast<std::size_t>(held.property)].SetXmlObject(held.make());
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
    std::vector<KzVariant> fresh(properties.size());
    for (const auto& [property, make, renewed] : m_model.m_held) {
        const auto index = static_cast<std::size_t>(property);
        if (renewed)
            fresh[index].SetXmlObject(make());
        else
            fresh[index] = properties[index];
    }
    properties = std::move(fresh);
}

std::u16string CModelObject::Text(int property) const {
    const KzVariant& value = properties.at(static_cast<std::size_t>(property));
    return value.IsNil() ? u"nil" : value.IsValid() ? value.ToString(nullptr) : u"-";
}

CXmlObjectBase* CModelObject::Held(int property) const {
    const KzVariant& value = properties.at(static_cast<std::size_t>(property));
    return value.IsValid() ? static_cast<CXmlObjectBase*>(value.GetXmlObject()) : nullptr;
}

CModelObject* CModelObject::Child(int property) const { return dynamic_cast<CModelObject*>(Held(property)); }

CModelCol* CModelObject::Children(int property) const { return dynamic_cast<CModelCol*>(Held(property)); }

CModelCol::CModelCol(const Model& item, const char16_t* elementName, const char16_t* elementNamespace,
                     int minOccurs, int maxOccurs)
    : CXmlCollection(elementName, elementNamespace, minOccurs, maxOccurs), m_model(&item) {}

CModelObject* CModelCol::Item(int index) const {
    return dynamic_cast<CModelObject*>(static_cast<CXmlObjectBase*>(GetNodeAtIndex(index)->m_item));
}

void CModelCol::ToXml_Int(CXmlWriter* writer, bool, const char16_t* elementNamespace,
                          const CXmlSerializationContext& context, bool) const {
    for (const CNode* node = m_head; node; node = node->m_next)
        CXmlObjectBase::ToXml_Int(node->m_item->GetBase(), writer, false, elementNamespace, context, false);
}

CXmlElement* CModelCol::FromXml_Int(CXmlElement* element, CXmlElement* current,
                                    const CXmlSerializationContext& context, bool) {
    while (current) {
        const CSmartPtr<CModelObject> item = m_model->New(GetElementName().c_str());
        if (m_model->IsPseudo()) {
            CXmlElement* next = CXmlObjectBase::FromXml_Int(item, element, current, context);
            if (next == current)
                break;
            current = next;
        } else {
            if (!DoesElementNameMatch(context, current, GetElementName().c_str(), m_elementNamespace.c_str()))
                break;
            CXmlObjectBase::FromXml_Int(item, current, current->GetFirstElement(), context);
            current = current->GetNextSiblingElement();
        }
        AppendItem(item);
    }
    return current;
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

Model& Model::Element(CElementInfo* descriptor, Make make) {
    AddTo(m_elements, descriptor);
    return Hold(std::move(make));
}

Model& Model::AddAttribute(CAttributeInfo* descriptor, Make make) {
    AddTo(m_attributes, descriptor);
    return Hold(std::move(make));
}

Model& Model::Hold(Make make) {
    const int property = AddProperty();
    if (make)
        m_held.push_back({property, std::move(make), true});
    return *this;
}

namespace {

/// Makes the leaf of the group and cardinality; a choice has optional members only.
template <class SeqMnd, class SeqOpt, class ChoiceOpt, class AllMnd, class AllOpt>
struct Leaf {
    template <class... Arguments>
    static CElementInfo* Make(XmlElementGroupType group, Cardinality cardinality, Arguments... arguments) {
        if (group == XmlElementGroupType_Choice)
            return new ChoiceOpt(arguments...);
        if (group == XmlElementGroupType_All)
            return cardinality == Mnd ? static_cast<CElementInfo*>(new AllMnd(arguments...))
                                      : new AllOpt(arguments...);
        return cardinality == Mnd ? static_cast<CElementInfo*>(new SeqMnd(arguments...))
                                  : new SeqOpt(arguments...);
    }
};

} // namespace

Model& Model::Prim(const char16_t* name, Cardinality cardinality, ItemType type, bool nillable,
                   const CPrimitiveRestrictions& facets, const char16_t* format) {
    using Leaves = Leaf<CElementInfoSeqPrimMnd, CElementInfoSeqPrimOpt, CElementInfoChoicePrimOpt,
                        CElementInfoAllPrimMnd, CElementInfoAllPrimOpt>;
    CElementInfo* descriptor =
        Leaves::Make(m_group, cardinality, name, m_namespace.c_str(), NextProperty(), nillable, type, format,
                     CWhitespaceUtils::WhitespaceRule_Collapse, facets);
    Element(descriptor);
    m_propertyChecks.back() = [=](const KzVariant& value) { descriptor->CheckRestriction(value); };
    return *this;
}

Model& Model::Colour(const char16_t* name, Cardinality cardinality, bool nillable) {
    using Leaves = Leaf<CElementInfoSeqEnumMnd, CElementInfoSeqEnumOpt, CElementInfoChoiceEnumOpt,
                        CElementInfoAllEnumMnd, CElementInfoAllEnumOpt>;
    return Element(Leaves::Make(m_group, cardinality, name, m_namespace.c_str(), NextProperty(), nillable,
                                ColourToString, StringToColour));
}

Model& Model::Class(const char16_t* name, Cardinality cardinality, const Model& child, bool consumeRequired) {
    const char16_t* ns = m_namespace.c_str();
    const int property = NextProperty();
    if (cardinality == Mnd && m_group != XmlElementGroupType_Choice) {
        const auto make = [&child, childName = std::u16string(name)]() -> CXmlObjectBase* {
            return child.NewRaw(childName.c_str());
        };
        m_held.push_back({property, make, false});
        using MandatoryLeaves = Leaf<CElementInfoSeqClsMnd, CElementInfoSeqClsMnd, CElementInfoSeqClsMnd,
                                     CElementInfoAllClsMnd, CElementInfoAllClsMnd>;
        return Element(MandatoryLeaves::Make(m_group, Mnd, name, ns, property, child.m_type, Create,
                                             child.m_classId, consumeRequired));
    }
    using Leaves = Leaf<CElementInfoSeqClsOpt, CElementInfoSeqClsOpt, CElementInfoChoiceClsOpt,
                        CElementInfoAllClsOpt, CElementInfoAllClsOpt>;
    return Element(Leaves::Make(m_group, Opt, name, ns, property, child.m_type, Create, child.m_classId));
}

Model& Model::Abstract(const char16_t* name, Cardinality cardinality, SubstitutionFactory factory) {
    const char16_t* ns = m_namespace.c_str();
    const int property = NextProperty();
    if (cardinality == Mnd && m_group == XmlElementGroupType_All)
        return Element(new CElementInfoAllAbsClsMnd(name, ns, property, XmlElementType_Element, factory, 0));
    using Leaves = Leaf<CElementInfoSeqAbsClsMnd, CElementInfoSeqAbsClsOpt, CElementInfoChoiceAbsClsOpt,
                        CElementInfoAllAbsClsOpt, CElementInfoAllAbsClsOpt>;
    return Element(Leaves::Make(m_group, cardinality, name, ns, property, XmlElementType_Element, factory));
}

Model& Model::Collection(const char16_t* name, const Model& child, int minOccurs, int maxOccurs) {
    const std::u16string itemName = name;
    const int property = NextProperty();
    const auto make = [this, &child, itemName, minOccurs, maxOccurs] {
        return new CModelCol(child, itemName.c_str(), m_namespace.c_str(), minOccurs, maxOccurs);
    };
    if (m_group == XmlElementGroupType_Choice)
        return Element(new CElementInfoChoiceClsCol(name, m_namespace.c_str(), property, child.m_type), make);
    return Element(new CElementInfoSeqClsCol(name, m_namespace.c_str(), property, child.m_type), make);
}

CSmartPtr<CModelObject> Model::New(const char16_t* elementName) const { return NewRaw(elementName); }

CModelObject* Model::NewRaw(const char16_t* elementName) const {
    const char16_t* name = elementName ? elementName : m_name.c_str();
    if (m_nillable)
        return new CNillableModelObject(*this, name);
    return new CModelObject(*this, name);
}

CSmartPtr<CXmlObjectBase> Model::Create(int classId, const char16_t* elementName) {
    return Models().at(static_cast<std::size_t>(classId))->New(elementName);
}

Model& NewModel(const char16_t* name, XmlElementGroupType group, XmlElementType type,
                const char16_t* namespaceUri) {
    static auto& models = *new std::deque<Model>; // never destroyed
    return models.emplace_back(name, group, type, namespaceUri);
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
