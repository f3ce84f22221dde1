// Every exported function that returns a status, as a table: what it takes, and a way to call it.
#pragma once

#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

#include "vlqs.h"

namespace vlqtest {

// The arguments of one call: an address for each pointer, a number for each value.
struct Arguments {
    std::vector<void*> pointers;
    std::vector<long long> values;

    template <class T>
    T get(std::size_t i) const {
        if constexpr (std::is_pointer_v<T>) {
            return static_cast<T>(pointers[i]);
        } else if constexpr (std::is_class_v<T>) {  // a complex value
            T value;
            value.re = static_cast<decltype(value.re)>(values[i]);
            value.im = static_cast<decltype(value.im)>(values[i]);
            return value;
        } else {
            return static_cast<T>(values[i]);
        }
    }
};

struct Parameter {
    std::string_view type;
    std::string_view name;
    bool isPointer() const { return type.find('*') != std::string_view::npos; }
};

struct Signature {
    std::string_view name;
    std::span<const Parameter> parameters;
    VlqStatus (*call)(Arguments&);
};

std::span<const Signature> signatures();

}  // namespace vlqtest
