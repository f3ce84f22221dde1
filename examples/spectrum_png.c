/* Draws average spectra as a plot and writes it as PNG. */
#include "spectrum_png.h"

#include <math.h>
#include <png.h>
#include <stdlib.h>
#include <string.h>

#include "bitmap_font.h"

enum { width = 1000, height = 600, fontScale = 2 };
enum { plotLeft = 92, plotRight = 972, plotTop = 84, plotBottom = 528 };

typedef struct {
    unsigned char red, green, blue;
} Colour;

static const Colour ink = {38, 38, 46}, grid = {223, 226, 232};
static const Colour beforeColour = {240, 138, 36}, afterColour = {24, 90, 189},
                    cutOffColour = {150, 40, 60};

typedef struct {
    Colour pixels[height][width];
} Canvas;

/* Mixes a colour into a pixel; coverage 1 replaces what was there. */
static void blend(Canvas* canvas, int x, int y, Colour colour, double coverage) {
    if (x < 0 || x >= width || y < 0 || y >= height || coverage <= 0) return;
    const double share = coverage < 1 ? coverage : 1;
    Colour* pixel = &canvas->pixels[y][x];
    pixel->red = (unsigned char)lround(pixel->red + share * (colour.red - pixel->red));
    pixel->green = (unsigned char)lround(pixel->green + share * (colour.green - pixel->green));
    pixel->blue = (unsigned char)lround(pixel->blue + share * (colour.blue - pixel->blue));
}

static void fillRectangle(Canvas* canvas, int left, int top, int right, int bottom, Colour colour) {
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) blend(canvas, x, y, colour, 1);
    }
}

/* How far a pixel's centre lies from the line between two points. */
static double distanceToLine(double x, double y, double x0, double y0, double x1, double y1) {
    const double dx = x1 - x0, dy = y1 - y0, square = dx * dx + dy * dy;
    const double along = square > 0 ? ((x - x0) * dx + (y - y0) * dy) / square : 0;
    const double nearest = fmin(fmax(along, 0), 1);
    return hypot(x - x0 - nearest * dx, y - y0 - nearest * dy);
}

/* The vertical places of a curve at the pixel columns of the plot. */
typedef struct {
    double y[plotRight - plotLeft + 1];
} Curve;

/* Draws a curve with smooth edges. For each pixel only the nearest piece of the curve counts, so
 * that pieces which meet do not darken their joint. */
static void drawCurve(Canvas* canvas, const Curve* curve, double thickness, Colour colour) {
    const int reach = (int)ceil(thickness / 2) + 1, last = plotRight - plotLeft;
    for (int column = 0; column <= last; ++column) {
        const int from = column - reach > 0 ? column - reach : 0;
        const int to = column + reach < last ? column + reach : last;
        double top = curve->y[from], bottom = curve->y[from];
        for (int i = from; i <= to; ++i) {
            top = fmin(top, curve->y[i]);
            bottom = fmax(bottom, curve->y[i]);
        }
        for (int y = (int)top - reach; y <= (int)bottom + reach; ++y) {
            if (y < plotTop || y > plotBottom) continue;
            double distance = INFINITY;
            for (int i = from; i < to; ++i)
                distance = fmin(distance,
                                distanceToLine(column, y, i, curve->y[i], i + 1, curve->y[i + 1]));
            blend(canvas, plotLeft + column, y, colour, thickness / 2 + 0.5 - distance);
        }
    }
}

/* Width in pixels of a text that is drawn. */
static int textWidth(const char* text) {
    return ((int)strlen(text) * glyphAdvance - 1) * fontScale;
}

/* Draws text from left to right with its upper left corner at (x, y), or from bottom to top with
 * its lower left corner there. */
static void drawText(Canvas* canvas, int x, int y, const char* text, Colour colour, bool upwards) {
    for (int i = 0; text[i]; ++i) {
        for (int cell = 0; cell < glyphColumns * glyphRows; ++cell) {
            const int column = cell % glyphColumns, row = cell / glyphColumns;
            if (!glyphCovers(text[i], column, row)) continue;
            const int along = (i * glyphAdvance + column) * fontScale, across = row * fontScale;
            const int left = upwards ? x + across : x + along;
            const int top = upwards ? y - along - fontScale : y + across;
            fillRectangle(canvas, left, top, left + fontScale, top + fontScale, colour);
        }
    }
}

/* What the axes show. */
typedef struct {
    double highestFrequency; /* Hz, at the right edge */
    double lowest, highest;  /* dBFS, at the lower and the upper edge; multiples of 20 */
} Scale;

static double xOfFrequency(const Scale* scale, double frequency) {
    return plotLeft + (plotRight - plotLeft) * frequency / scale->highestFrequency;
}

static double yOfLevel(const Scale* scale, double level) {
    return plotTop +
           (plotBottom - plotTop) * (scale->highest - level) / (scale->highest - scale->lowest);
}

static Scale chooseScale(const SpectrumPicture* picture) {
    double lowest = 0, highest = -200;
    for (int i = 0; i < picture->lines; ++i) {
        lowest = fmin(lowest, fmin(picture->before[i], picture->after[i]));
        highest = fmax(highest, fmax(picture->before[i], picture->after[i]));
    }
    Scale scale = {.highestFrequency = picture->sampleRate / 2};
    scale.highest = fmax(20 * ceil(highest / 20), -100);
    /* What rounding to 16 bits leaves lies near -125 dBFS a line; silence has no bottom. */
    scale.lowest = fmin(fmax(20 * floor(lowest / 20), -140), scale.highest - 40);
    return scale;
}

/* A round number of hertz that divides the axis into at most twelve parts. */
static double frequencyStep(double highest) {
    static const double firstDigits[] = {1, 2, 5};
    for (double decade = 1;; decade *= 10) {
        for (int i = 0; i < 3; ++i) {
            if (highest / (decade * firstDigits[i]) <= 12) return decade * firstDigits[i];
        }
    }
}

static void drawAxes(Canvas* canvas, const Scale* scale) {
    char label[32];
    const double step = frequencyStep(scale->highestFrequency);
    for (double frequency = 0; frequency <= scale->highestFrequency; frequency += step) {
        const int x = (int)lround(xOfFrequency(scale, frequency));
        fillRectangle(canvas, x, plotTop, x + 1, plotBottom, grid);
        fillRectangle(canvas, x, plotBottom, x + 1, plotBottom + 6, ink);
        snprintf(label, sizeof label, "%g", frequency / 1000);
        drawText(canvas, x - textWidth(label) / 2, plotBottom + 12, label, ink, false);
    }
    for (double level = scale->lowest; level <= scale->highest; level += 20) {
        const int y = (int)lround(yOfLevel(scale, level));
        fillRectangle(canvas, plotLeft, y, plotRight, y + 1, grid);
        fillRectangle(canvas, plotLeft - 6, y, plotLeft, y + 1, ink);
        snprintf(label, sizeof label, "%g", level);
        drawText(canvas, plotLeft - 12 - textWidth(label), y - glyphCapital * fontScale / 2, label,
                 ink, false);
    }
    fillRectangle(canvas, plotLeft, plotTop, plotLeft + 1, plotBottom + 1, ink);
    fillRectangle(canvas, plotLeft, plotBottom, plotRight + 1, plotBottom + 1, ink);

    static const char xTitle[] = "Frequency (kHz)", yTitle[] = "Level (dBFS)";
    drawText(canvas, (plotLeft + plotRight - textWidth(xTitle)) / 2, height - 34, xTitle, ink,
             false);
    drawText(canvas, 12, (plotTop + plotBottom + textWidth(yTitle)) / 2, yTitle, ink, true);
}

static void drawCutOff(Canvas* canvas, const Scale* scale, double cutOff) {
    const int x = (int)lround(xOfFrequency(scale, cutOff));
    for (int y = plotTop; y + 6 < plotBottom; y += 10)
        fillRectangle(canvas, x, y, x + 2, y + 6, cutOffColour);
}

/* The spectrum's lines, joined, at each pixel column of the plot. */
static void traceCurve(Curve* curve, const Scale* scale, const double* levels, int lines) {
    const int last = plotRight - plotLeft;
    for (int column = 0; column <= last; ++column) {
        const double place = (double)column / last * (lines - 1);
        const int left = place < lines - 1 ? (int)place : lines - 2;
        const double level = levels[left] + (place - left) * (levels[left + 1] - levels[left]);
        curve->y[column] = yOfLevel(scale, fmax(level, scale->lowest));
    }
}

/* One row between title and plot, where it covers nothing. */
static void drawLegend(Canvas* canvas, double cutOff) {
    enum {
        sample = 36,
        gap = 10,
        space = 44,
        top = 52,
        middle = top + glyphCapital * fontScale / 2
    };
    char cutOffText[48];
    snprintf(cutOffText, sizeof cutOffText, "Cut-off %.0f Hz", cutOff);
    const struct {
        const char* text;
        Colour colour;
        int thickness;
    } entries[] = {
        {"Before", beforeColour, 4}, {"After", afterColour, 3}, {cutOffText, cutOffColour, 2}};

    int x = plotLeft;
    for (int i = 0; i < 3; ++i) {
        const int upper = middle - entries[i].thickness / 2;
        const bool dashed = i == 2;
        for (int dash = 0; dash < sample; dash += 10)
            fillRectangle(canvas, x + dash, upper,
                          x + dash + (dashed || dash + 10 > sample ? 6 : 10),
                          upper + entries[i].thickness, entries[i].colour);
        drawText(canvas, x + sample + gap, top, entries[i].text, ink, false);
        x += sample + gap + textWidth(entries[i].text) + space;
    }
}

static void drawTitle(Canvas* canvas, const char* title) {
    char shown[80];
    snprintf(shown, sizeof shown, "%.*s", (width - 40) / (glyphAdvance * fontScale) - 1, title);
    drawText(canvas, (width - textWidth(shown)) / 2, 16, shown, ink, false);
}

bool writeSpectrumPicture(FILE* file, const SpectrumPicture* picture) {
    Canvas* canvas = malloc(sizeof *canvas);
    if (!canvas) return false;
    memset(canvas, 255, sizeof *canvas);

    const Scale scale = chooseScale(picture);
    Curve before, after;
    traceCurve(&before, &scale, picture->before, picture->lines);
    traceCurve(&after, &scale, picture->after, picture->lines);
    drawAxes(canvas, &scale);
    drawCutOff(canvas, &scale, picture->cutOff);
    /* Where nothing was taken away the wider curve shows at both sides of the narrower one. */
    drawCurve(canvas, &before, 4.5, beforeColour);
    drawCurve(canvas, &after, 2, afterColour);
    drawLegend(canvas, picture->cutOff);
    drawTitle(canvas, picture->title);

    png_image image = {
        .version = PNG_IMAGE_VERSION, .width = width, .height = height, .format = PNG_FORMAT_RGB};
    const bool written =
        png_image_write_to_stdio(&image, file, 0, canvas, sizeof canvas->pixels[0], NULL) != 0;
    free(canvas);
    return written;
}
