#include <KzXmlLib10/object/UniqueNumber.h>

#include <atomic>

namespace KzXmlLib10 {

std::uint64_t UniqueNumber::Next() {
    static std::atomic<std::uint64_t> last = 0;
    return last.fetch_add(1, std::memory_order_relaxed) + 1;
}

} // namespace KzXmlLib10
