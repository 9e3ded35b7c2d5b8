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
                    "<book isbn='9780306406157'><title>Hairy dogs</title><author>A. Poodle</author>"
                    "<lentOn>2024-05-17</lentOn></book></library>");
        CBook& book = *shelf.GetBooks()->Item(0);
        book.SetPrice(u"19.90");
        book.SetBinding(Binding_hardcover);
        book.GetPlace()->SetLentOn({}); // it is back
        book.GetPlace()->SetShelf(u"A 12");

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
                        "<book isbn='0306'><title>Hairy dogs</title><author>A. Poodle</author>"
                        "<shelf>A 12</shelf></book></library>");
        });
        ShowFailure([&] {
            Read(shelf, "<library xmlns='urn:example:library'><book isbn='9780306406157'>"
                        "<title>Hairy dogs</title><shelf>A 12</shelf></book></library>");
        });
        ShowFailure([&] {
            Read(shelf, "<library xmlns='urn:example:library'><book isbn='9780306406157'>"
                        "<title>Hairy dogs</title><author>A. Poodle</author></book></library>");
        });
    }
}

} // namespace guide
