// A pool of page regions between protected pages.
#include "harness/buffer.h"

#include <sys/mman.h>
#include <unistd.h>

#include <mutex>
#include <new>

// The address sanitizer's, when its runtime is loaded.
extern "C" {
[[gnu::weak]] void __asan_poison_memory_region(const volatile void* start, std::size_t bytes);
[[gnu::weak]] void __asan_unpoison_memory_region(const volatile void* start, std::size_t bytes);
}

namespace vlqtest {
namespace {

// Mapping pages costs more than most calls under test: regions are kept and used again.
struct Region {
    std::byte* begin;
    std::byte* end;
    bool taken;
};
std::mutex poolLock;
std::vector<Region> pool;

std::size_t pageSize() {
    static const auto size = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return size;
}

int acquire(std::size_t bytes) {
    const std::lock_guard<std::mutex> guard(poolLock);
    for (std::size_t i = 0; i < pool.size(); ++i) {
        const auto capacity = static_cast<std::size_t>(pool[i].end - pool[i].begin);
        if (!pool[i].taken && capacity >= bytes && capacity <= 4 * bytes + 4 * pageSize()) {
            pool[i].taken = true;
            return static_cast<int>(i);
        }
    }
    const std::size_t page = pageSize();
    const std::size_t usable = (bytes + page - 1) / page * page;
    void* mapped = mmap(nullptr, usable + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) throw std::bad_alloc();
    std::byte* begin = static_cast<std::byte*>(mapped) + page;
    if (mprotect(begin, usable, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
    pool.push_back({begin, begin + usable, true});
    return static_cast<int>(pool.size()) - 1;
}

}  // namespace

GuardedPages::GuardedPages(std::size_t bytes) : slot_(acquire(bytes)) {}
GuardedPages::~GuardedPages() {
    allowOnly(begin(), end());
    const std::lock_guard<std::mutex> guard(poolLock);
    pool[static_cast<std::size_t>(slot_)].taken = false;
}
std::byte* GuardedPages::begin() const {
    const std::lock_guard<std::mutex> guard(poolLock);
    return pool[static_cast<std::size_t>(slot_)].begin;
}
std::byte* GuardedPages::end() const {
    const std::lock_guard<std::mutex> guard(poolLock);
    return pool[static_cast<std::size_t>(slot_)].end;
}
void GuardedPages::allowOnly(const std::byte* first, const std::byte* last) const {
    if (!__asan_poison_memory_region) return;
    const auto length = [](const std::byte* from, const std::byte* to) {
        return static_cast<std::size_t>(to - from);
    };
    __asan_poison_memory_region(begin(), length(begin(), end()));
    __asan_unpoison_memory_region(first, length(first, last));
}

}  // namespace vlqtest
