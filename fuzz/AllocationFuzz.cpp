// Any other target, with one allocation of C++ that fails: the failure is reported as std::bad_alloc, and
// nothing is lost.
//
// First byte: the target. Two bytes: which allocation fails.
#include "support/FailingNew.h"
#include "support/Targets.h"

#include <KzXmlLib10/object/CKzException.h>

#include <iterator>
#include <new>

namespace fuzz {

long allocationsLeft = 0;
bool allocationFailed = false;

void Allocation(Input input) {
    const NamedTarget& target = targets[input.Byte() % (std::size(targets) - 1)];
    const auto position = input.Number<std::uint16_t>();
    Run(target.run, input.Data(), input.Size()); // what is made once, is made here
    bool reported = false;
    allocationFailed = false;
    allocationsLeft = position;
    try {
        target.run(input);
    } catch (const std::bad_alloc&) {
        reported = true;
    } catch (const KzXmlLib10::CKzException&) {
        // Refused before, or without, the allocation.
    } catch (const KzXmlLib10::CKzException* thrown) {
        delete thrown;
    }
    allocationsLeft = 0;
    Expect(reported == allocationFailed, "a failed allocation is reported");
}

} // namespace fuzz
