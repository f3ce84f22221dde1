// States: a block of memory that a family's Init fills and its other calls work on. A family adds
// its fields, its size formula and its kernels; the rest is here.
#pragma once

#include "frame/state/layout.h"
#include "frame/state/life_cycle.h"
#include "frame/state/rel_ptr.h"
#include "frame/state/tag.h"
#include "frame/state/work_buffer.h"
