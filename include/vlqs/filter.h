/**
 * @file filter.h
 * @brief Filters.
 */
#ifndef VLQS_FILTER_H
#define VLQS_FILTER_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

VLQS_END_DECLS

#endif
