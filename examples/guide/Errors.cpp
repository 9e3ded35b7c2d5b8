#include "Guide.h"

#include "classes/COrders.h"

#include <iostream>
#include <string>

namespace guide {

using namespace orders;

void Errors() {
    const CSmartPtr<COrders> orders = new COrders;
    {
        Section("catch");
        // [catch]
        try {
            orders->FromXmlFile(u"orders-faulty.xml", CXmlSerializationContext::GetDefaultContext());
        } catch (const CKzException& failure) {
            std::cout << failure << '\n'; // in UTF-8, the outermost element first
        }
        // [/catch]
    }
    {
        Section("chain");
        // [chain]
        try {
            orders->FromXmlFile(u"orders-faulty.xml", CXmlSerializationContext::GetDefaultContext());
        } catch (const CKzException& failure) {
            for (const CKzException* level = &failure; level; level = level->GetInnerException())
                std::cout << "- " << ToUtf8(level->GetMessageW()) << '\n';
        }
        // [/chain]
    }
    {
        Section("other-failures");
        ShowFailure([&] { orders->FromXmlFile(u"missing.xml", {}); });
        ShowFailure([&] { orders->FromXml("<orders>\n<order>\n</orders>", {}); });
        ShowFailure([&] { orders->FromXmlStream(CBinaryData(), {}); });
    }
}

} // namespace guide
