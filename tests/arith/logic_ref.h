// The definition of the bitwise operations, one element at a time.
#pragma once

namespace vlqtest {

template <class T>
T andRef(T a, T b) {
    return static_cast<T>(a & b);
}
template <class T>
T orRef(T a, T b) {
    return static_cast<T>(a | b);
}
template <class T>
T xorRef(T a, T b) {
    return static_cast<T>(a ^ b);
}
template <class T>
T notRef(T a) {
    return static_cast<T>(~a);
}

}  // namespace vlqtest
