// In the form that a generator emits, as are all files of this folder: the part that every schema shares.
#pragma once

#include <KzXmlLib10/collections/CXmlCollectionBase.h>
#include <KzXmlLib10/metadata/CAttributeInfo.h>
#include <KzXmlLib10/metadata/CElementInfo.h>
#include <KzXmlLib10/metadata/CParentElementInfo.h>
#include <KzXmlLib10/object/CXmlGeneratedClass.h>
#include <KzXmlLib10/values/KzVariant.h>

#include "PropertyValues.h"

#include <atomic>
#include <initializer_list>
#include <iterator>
#include <string>
#include <utility>

namespace orders {

using namespace KzXmlLib10;
using namespace KzXmlLib10Data;

/// What all classes of the schemas share: how their tables are built, and how their properties are reached.
class CGeneratedObject : public CXmlGeneratedClass {
public:
    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override { return this; }

protected:
    struct Tables {
        CParentElementInfo* info;
        CElementInfo** elements;
        CAttributeInfo** attributes;
    };

    /// The tables of one class, of which each class has one static instance. They are built by the first
    /// getter that is called, which costs all later ones a single load, and given back at the program's end.
    class ClassTables {
    public:
        explicit constexpr ClassTables(Tables (*build)()) : m_build(build) {}
        ClassTables(const ClassTables&) = delete;
        ClassTables& operator=(const ClassTables&) = delete;
        ~ClassTables() { CleanMetaData(m_tables.info, m_tables.elements, m_tables.attributes); }

        const Tables* operator->() {
            if (!m_isBuilt.load(std::memory_order_acquire))
                Build();
            return &m_tables;
        }

    private:
        void Build();

        Tables (*m_build)();
        Tables m_tables{};
        std::atomic<bool> m_isBuilt = false;
    };

    /// Tables with the null entry that ends them.
    static CElementInfo** ElementTable(std::initializer_list<CElementInfo*> elements);
    static CAttributeInfo** AttributeTable(std::initializer_list<CAttributeInfo*> attributes);

    [[noreturn]] static void FailUnknownProperty(int propertyIndex);
    [[noreturn]] static void FailDateKind(const CDateTime& value, CDateTime::DTType kind);

    // Each reads a property into a variant, or stores a variant in the property.

    /// Checks the facets of the descriptor before it stores.
    template <class T>
    static void AccessPrimitive(CElementInfo* descriptor, bool read, KzVariant& value, T& member) {
        Access(descriptor, read, value, member);
    }
    template <class T>
    static void AccessPrimitive(CAttributeInfo* descriptor, bool read, KzVariant& value, T& member) {
        Access(static_cast<CAttributeInfoPrimitive*>(descriptor), read, value, member);
    }
    /// As AccessPrimitive, for a value that must be of one kind of date.
    template <class Descriptor, class T>
    static void AccessDate(Descriptor* descriptor, CDateTime::DTType kind, bool read, KzVariant& value,
                           T& member) {
        if (!read && value.IsValid() && value.GetDateTime().GetType() != kind)
            FailDateKind(value.GetDateTime(), kind);
        AccessPrimitive(descriptor, read, value, member);
    }
    /// A collection is created with its object and stays with it: only its items change.
    static void AccessCollection(bool read, KzVariant& value, CXmlCollectionBase* member);
    /// An enumerator has no facets to check: the function that reads it from text refuses what is none.
    template <class T>
    static void AccessEnum(bool read, KzVariant& value, T& member) {
        if (read)
            ToVariant(member, value);
        else
            FromVariant(value, member);
    }

    /// What the public setters do.
    template <class T>
    void SetProperty(int propertyIndex, T member) {
        KzVariant value;
        ToVariant(std::move(member), value);
        AccessProperty(propertyIndex, false, value);
    }

private:
    template <class Descriptor, class T>
    static void Access(Descriptor* descriptor, bool read, KzVariant& value, T& member) {
        if (read)
            return ToVariant(member, value);
        if (value.IsValid() && !value.IsNil())
            descriptor->CheckRestriction(value);
        FromVariant(value, member);
    }
};

/// What the classes of one schema share: its target namespace.
template <const auto& targetNamespace>
class CObjectIn : public CGeneratedObject {
public:
    std::u16string GetTargetNamespace() const override { return GetNamespace(); }
    // Reading asks for it with each child, so nothing is looked up.
    std::u16string GetNamespace() const override { return {targetNamespace, std::size(targetNamespace) - 1}; }
};

} // namespace orders
