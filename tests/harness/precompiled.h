// What nearly every test includes, compiled once. The library's own headers are left out, so that
// a change to one of them rebuilds the tests of its family alone.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "harness/element.h"
#include "harness/sweep.h"
