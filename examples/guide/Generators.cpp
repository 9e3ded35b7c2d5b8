#include "Guide.h"

#include "library/CLibrary.h"

#include <iostream>

namespace guide {

using namespace library;

void Generators() {
    {
        Section("library");
        // [library]
        const CSmartPtr<CLibrary> shelf = new CLibrary;
        shelf->FromXml(
            u"<library xmlns='urn:example:library'>"
            u"<book isbn='9780306406157'><title>Hairy dogs</title><author>A. Poodle</author></book>"
            u"</library>",
            CXmlSerializationContext::GetDefaultContext());
        shelf->GetBooks()->Item(0)->SetPrice(u"19.90");
        shelf->GetBooks()->Item(0)->SetBinding(Binding_hardcover);

        CXmlSerializationContext context;
        context.SetDefaultNamespaceURI(libraryNamespace);
        Print(shelf->ToXml(false, true, EOLType_LF, context));
        // [/library]
    }
    {
        Section("library-broken");
        const CSmartPtr<CLibrary> shelf = new CLibrary;
        ShowFailure([&] {
            shelf->FromXml(u"<library xmlns='urn:example:library'>"
                           u"<book isbn='0306'><title>Hairy dogs</title><author>A. Poodle</author></book>"
                           u"</library>",
                           {});
        });
        ShowFailure([&] {
            shelf->FromXml(u"<library xmlns='urn:example:library'>"
                           u"<book isbn='9780306406157'><title>Hairy dogs</title></book></library>",
                           {});
        });
    }
}

} // namespace guide
