#include "Guide.h"

#include "classes/COrders.h"

#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace guide {

using namespace orders;

void Errors() {
    COrders orders;
    {
        Section("catch");
        // [catch]
        try {
            ReadFile(orders, "orders-faulty.xml");
        } catch (const CKzException& failure) {
            std::cout << failure << '\n'; // in UTF-8, the outermost element first
        }
        // [/catch]
    }
    {
        Section("frames");
        // [frames]
        try {
            ReadFile(orders, "orders-faulty.xml");
        } catch (const CKzException& failure) {
            const std::vector<FailureFrame> frames = GetFailureFrames(failure);
            for (const FailureFrame& frame : frames)
                if (frame.kind == FailureKind::ReadElement)
                    std::cout << '/' << frame.name;
            if (frames.back().kind == FailureKind::Value)
                std::cout << " has a bad value: " << frames.back().message << '\n';
        }
        // [/frames]
    }
    {
        Section("line");
        // [line]
        try {
            Read(orders, "<orders>\n<order>\n</orders>");
        } catch (const CKzException& failure) {
            const FailureFrame cause = GetFailureFrames(failure).back();
            if (cause.kind == FailureKind::Syntax)
                std::cout << "line " << cause.number << ": " << cause.message << '\n';
        }
        // [/line]
    }
    {
        Section("other-failures");
        ShowFailure([&] { ReadFile(orders, "missing.xml"); });
        ShowFailure([&] { Read(orders, "<orders>\n<order>\n</orders>"); });
        ShowFailure([&] { Read(orders, std::string_view()); });
    }
}

} // namespace guide
