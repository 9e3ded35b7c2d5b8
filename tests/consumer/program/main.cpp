// A program of a user: it sees the installed headers and the shared library only.
#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/FormatString.h>

#include <iostream>

using namespace KzXmlLib10;

namespace {

// Derives from an exported class in the user's own program, as generated code does.
class OrderRefused : public CKzInvalidValueException {
public:
    explicit OrderRefused(int number) : CKzInvalidValueException(FormatString(u"order %d", number)) {}
};

} // namespace

int main() {
    try {
        throw OrderRefused(7);
    } catch (const CKzValidationException& failure) {
        std::cout << CKzException(u"refused", failure) << '\n';
        return CKzException(u"refused", failure).GetFullMessage() == u"refused\norder 7" ? 0 : 1;
    }
}
