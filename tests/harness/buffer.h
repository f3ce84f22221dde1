// Vectors for tests: placed at any byte offset or flush against a protected page, with marked
// margins that show a stray write. Under the address sanitizer a stray read is an error as well.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace vlqtest {

struct Placement {
    int offset = 0;            // bytes past a 64-byte boundary
    bool atGuardPage = false;  // instead: the vector ends where a protected page begins
};

// Memory of at least `bytes` bytes that ends at a protected page and begins after one.
class GuardedPages {
public:
    explicit GuardedPages(std::size_t bytes);
    ~GuardedPages();
    GuardedPages(const GuardedPages&) = delete;
    GuardedPages& operator=(const GuardedPages&) = delete;
    std::byte* begin() const;
    std::byte* end() const;
    // Tells the address sanitizer, where it runs, that the library may use no byte but these.
    void allowOnly(const std::byte* first, const std::byte* last) const;

private:
    int slot_;  // of the pool
};

template <class T>
class Buffer {
public:
    static constexpr std::size_t kMargin = 192;
    static constexpr std::byte kMark{0xC3};

    explicit Buffer(std::size_t count, Placement place = {})
        : bytes_(count * sizeof(T)), pages_(bytes_ + 2 * kMargin + 64) {
        if (place.atGuardPage) {
            start_ = pages_.end() - bytes_;
        } else {
            start_ = pages_.begin() + kMargin;
            start_ += (64 - reinterpret_cast<std::uintptr_t>(start_) % 64) % 64 +
                      static_cast<std::size_t>(place.offset);
        }
        low_ = std::max(pages_.begin(), start_ - kMargin);
        high_ = std::min(pages_.end(), start_ + bytes_ + kMargin);
        std::fill(low_, high_, kMark);
        pages_.allowOnly(start_, start_ + bytes_);
    }
    Buffer(const std::vector<T>& values, Placement place = {}) : Buffer(values.size(), place) {
        assign(values);
    }

    // May be misaligned for T: only the library under test looks through it.
    T* data() { return reinterpret_cast<T*>(start_); }
    const T* data() const { return reinterpret_cast<const T*>(start_); }
    std::size_t size() const { return bytes_ / sizeof(T); }

    void assign(const std::vector<T>& values) {
        if (!values.empty())
            std::memcpy(start_, values.data(), std::min(bytes_, values.size() * sizeof(T)));
    }
    std::vector<T> values() const {
        std::vector<T> copy(size());
        if (bytes_) std::memcpy(copy.data(), start_, bytes_);
        return copy;
    }

    bool marginsIntact() const {
        auto marked = [](std::byte b) { return b == kMark; };
        return std::all_of(low_, start_, marked) && std::all_of(start_ + bytes_, high_, marked);
    }
    bool untouched() const {
        return std::all_of(low_, high_, [](std::byte b) { return b == kMark; });
    }

private:
    std::size_t bytes_;
    GuardedPages pages_;
    std::byte* start_;
    std::byte* low_;
    std::byte* high_;
};

// Bit for bit, margins included. The message names the first element that differs.
template <class T>
::testing::AssertionResult same(const Buffer<T>& got, const std::vector<T>& want) {
    const std::vector<T> values = got.values();
    if (!got.marginsIntact())
        return ::testing::AssertionFailure() << "a byte outside the vector was written";
    if (values.size() != want.size()) return ::testing::AssertionFailure() << "sizes differ";
    for (std::size_t i = 0; i < want.size(); ++i) {
        if (std::memcmp(&values[i], &want[i], sizeof(T)) != 0) {
            return ::testing::AssertionFailure()
                   << "element " << i << " of " << want.size() << ": "
                   << ::testing::PrintToString(values[i]) << ", expected "
                   << ::testing::PrintToString(want[i]);
        }
    }
    return ::testing::AssertionSuccess();
}

}  // namespace vlqtest
