/* A small built-in font: the printable ASCII characters on a grid of 5 columns and 9 rows, the
 * last two rows for what hangs below the line. */
#ifndef BITMAP_FONT_H
#define BITMAP_FONT_H

#include <stdbool.h>

enum { glyphColumns = 5, glyphRows = 9, glyphCapital = 7, glyphAdvance = 6 };

/* Tells whether a character covers a cell of the grid; characters outside ASCII show as '?'. */
bool glyphCovers(char character, int column, int row);

#endif
