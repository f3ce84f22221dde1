/**
 * @file convert.h
 * @brief Conversion between sample types.
 */
#ifndef VLQS_CONVERT_H
#define VLQS_CONVERT_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

VLQS_END_DECLS

#endif
