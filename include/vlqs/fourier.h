/**
 * @file fourier.h
 * @brief Fourier transforms.
 */
#ifndef VLQS_FOURIER_H
#define VLQS_FOURIER_H

#include "vlqs/types.h"

VLQS_BEGIN_DECLS

VLQS_END_DECLS

#endif
