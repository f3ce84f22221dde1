// A test of many calls that differ in their function and constants alone: a table of rows, and one
// check that takes a row. A failure names the row. Compiles once where a template does so per type.
#pragma once

#include <gtest/gtest.h>

namespace vlqtest {

// Row has a member `name`. Stops at the first row that fails.
template <class Rows, class Check>
void eachRow(const Rows& rows, const Check& check) {
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        check(row);
        if (::testing::Test::HasFailure()) return;
    }
}

}  // namespace vlqtest
