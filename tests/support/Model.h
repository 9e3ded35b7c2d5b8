#pragma once

#include <KzXmlLib10/KzXmlLib10.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// Classes as a generator would write them, but described by the test that needs them:
///
///     const Model& line =
///         NewModel(u"line").Attribute(u"id").Prim(u"sku", Mnd, ItemType_string).Prim(u"count", Opt);
///     auto object = line.New();
///     object->FromXml(u"<line id='1'><sku>A</sku></line>", context);
///     EXPECT_EQ(object->Text(1), u"A");
///
/// Each call adds one descriptor and one property; properties are numbered in the order of the calls. Setters
/// check facets, mandatory objects are created by the constructor, Init resets everything else, as in
/// generated code. The group of the model decides which leaf class a call adds. A model must outlive its
/// objects.
namespace kit {

using namespace KzXmlLib10;
using namespace KzXmlLib10Data;

enum Cardinality { Mnd, Opt };
constexpr int unbounded = -1;
enum Use { Required, Optional };

class CModelCol;
class Model;

CPrimitiveRestrictions Facets(const char16_t* pattern = u"", int minLength = -1, int maxLength = -1,
                              const char16_t* minInclusive = u"", const char16_t* maxInclusive = u"");

/// An object of a model. Its properties are variants.
class CModelObject : public CXmlGeneratedClass {
public:
    CModelObject(const Model& model, const char16_t* elementName);

    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override { return this; }
    std::u16string GetTargetNamespace() const override;
    std::u16string GetNamespace() const override;
    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override;
    CElementInfo** GetClassElementInfo() const override;
    CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

    using CXmlObjectBase::SetElementName;

    /// The property as text; "-" if it has no value, "nil" if it is nil.
    std::u16string Text(int property) const;
    CModelObject* Child(int property) const;
    CModelCol* Children(int property) const;
    CXmlObjectBase* Held(int property) const;

    std::vector<KzVariant> properties;

private:
    const Model& m_model;
};

/// An object of a nillable model.
class CNillableModelObject : public CModelObject, public INillable {
public:
    using CModelObject::CModelObject;
    void Init() override {
        CModelObject::Init();
        m_nil = false;
    }
    bool IsNil() const override { return m_nil; }
    void SetNil(bool nil) override { m_nil = nil; }

private:
    bool m_nil = false;
};

/// A collection of objects of a model, as a generator would write it.
class CModelCol : public CXmlCollection {
public:
    CModelCol(const Model& item, const char16_t* elementName, const char16_t* elementNamespace, int minOccurs,
              int maxOccurs);

    void Add(CModelObject* item) { AppendItem(item); }
    CModelObject* Item(int index) const;

protected:
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                   const CXmlSerializationContext& context, bool isOptional) const override;
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                             const CXmlSerializationContext& context, bool isOptional) override;

private:
    const Model* m_model;
};

class Model {
public:
    explicit Model(const char16_t* name, XmlElementGroupType group = XmlElementGroupType_Sequence,
                   XmlElementType type = XmlElementType_Element, const char16_t* namespaceUri = u"");
    ~Model();
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    Model& AllowUnknownAttributes() { return Set(m_failIfAttributeUnknown, false); }
    Model& HasBaseClasses() { return Set(m_hasBaseClasses, true); }
    Model& Nillable() { return Set(m_nillable, true); }
    /// The class has a text of its own.
    Model& Content(ItemType type, const char16_t* format = u"", bool asText = false);

    Model& Attribute(const char16_t* name, Use use = Required, ItemType type = ItemType_i4,
                     const char16_t* defaultValue = nullptr, const CPrimitiveRestrictions& facets = Facets(),
                     const char16_t* namespaceUri = u"");
    /// The colours red 1, green 2 and blue 3; an unknown text is 0.
    Model& ColourAttribute(const char16_t* name, Use use, const char16_t* defaultValue = nullptr);

    Model& Prim(const char16_t* name, Cardinality cardinality = Mnd, ItemType type = ItemType_i4,
                bool nillable = false, const CPrimitiveRestrictions& facets = Facets(),
                const char16_t* format = nullptr);
    Model& Colour(const char16_t* name, Cardinality cardinality, bool nillable = false);
    Model& Class(const char16_t* name, Cardinality cardinality, const Model& child,
                 bool consumeRequired = false);
    Model& Abstract(const char16_t* name, Cardinality cardinality, SubstitutionFactory factory);
    /// A CModelCol of objects of the child model.
    Model& Collection(const char16_t* name, const Model& child, int minOccurs = 0, int maxOccurs = unbounded);
    /// Any other descriptor, made with NextProperty(). `make` creates what the constructor and Init put into
    /// its property, such as a collection.
    using Make = std::function<CXmlObjectBase*()>;
    Model& Element(CElementInfo* descriptor, Make make = nullptr);
    Model& AddAttribute(CAttributeInfo* descriptor, Make make = nullptr);
    int NextProperty() const { return static_cast<int>(m_propertyChecks.size()); }

    CSmartPtr<CModelObject> New(const char16_t* elementName = nullptr) const;

private:
    friend class CModelCol;
    friend class CModelObject;

    using Check = std::function<void(const KzVariant&)>;
    bool IsPseudo() const { return m_type != XmlElementType_Element; }
    int AddProperty(Check check = nullptr);
    Model& Hold(Make make);
    Model& Set(bool& flag, bool value) {
        flag = value;
        return *this;
    }

    CModelObject* NewRaw(const char16_t* elementName) const;
    static CSmartPtr<CXmlObjectBase> Create(int classId, const char16_t* elementName);

    std::u16string m_name;
    XmlElementGroupType m_group;
    XmlElementType m_type;
    std::u16string m_namespace;
    bool m_failIfAttributeUnknown = true;
    bool m_hasBaseClasses = false;
    bool m_nillable = false;
    int m_contentProperty = -1;
    ItemType m_contentType = ItemType_Invalid;
    std::u16string m_contentFormat;
    bool m_contentAsText = false;
    int m_classId;
    std::vector<Check> m_propertyChecks;
    /// Objects that the constructor puts into properties; Init keeps single ones and renews collections.
    struct Held {
        int property;
        Make make;
        bool renewed;
    };
    std::vector<Held> m_held;
    mutable std::unique_ptr<CParentElementInfo> m_info;
    mutable std::vector<CElementInfo*> m_elements{nullptr};
    mutable std::vector<CAttributeInfo*> m_attributes{nullptr};
};

/// A model that outlives all objects, so that one statement can make and describe it.
Model& NewModel(const char16_t* name, XmlElementGroupType group = XmlElementGroupType_Sequence,
                XmlElementType type = XmlElementType_Element, const char16_t* namespaceUri = u"");

/// The full message of the failure of the action; "" if it does not fail.
std::u16string FailureOf(const std::function<void()>& action);

} // namespace kit
