#include "Guide.h"

#include "library/CLibrary.h"

#include <iostream>

namespace guide {

using namespace library;

void Generators() {
    {
        Section("library");
        // [library]
        CLibrary shelf;
        Read(shelf, "<library xmlns='urn:example:library'>"
                    "<book isbn='9780306406157'><title>Hairy dogs</title><author>A. Poodle</author></book>"
                    "</library>");
        shelf.GetBooks()->Item(0)->SetPrice(u"19.90");
        shelf.GetBooks()->Item(0)->SetBinding(Binding_hardcover);

        CXmlSerializationContext context;
        context.SetDefaultNamespaceURI(libraryNamespace);
        std::cout << WriteText(shelf, {.declaration = false}, context);
        // [/library]
    }
    {
        Section("library-broken");
        CLibrary shelf;
        ShowFailure([&] {
            Read(shelf, "<library xmlns='urn:example:library'>"
                        "<book isbn='0306'><title>Hairy dogs</title><author>A. Poodle</author></book>"
                        "</library>");
        });
        ShowFailure([&] {
            Read(shelf, "<library xmlns='urn:example:library'>"
                        "<book isbn='9780306406157'><title>Hairy dogs</title></book></library>");
        });
    }
}

} // namespace guide
