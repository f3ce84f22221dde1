// Watches that no exported function returns with the upper halves of vector registers in use, which
// would slow down the caller's SSE code.
#pragma once

namespace vlqtest {

// From here on each call goes through a check; the functions that fail it are named at the end of
// the program. Only for builds with wide vectors, on processors that tell what is in use.
void watchVectorState();

}  // namespace vlqtest
