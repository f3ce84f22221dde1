// VOLK as a peer of the same instruction set: by itself it takes the widest vectors that the
// processor has, whatever build of ours runs beside it.
#pragma once

namespace vlqbench {

// Makes VOLK use its best kernels with the instructions of the build under test. Before its first
// call; a kernel that is not in the table of volk.cpp stays as VOLK chooses.
void limitVolkToBuild();

}  // namespace vlqbench
