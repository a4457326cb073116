// The platform's drawing calls, pixel by pixel as that platform gives them. All take the drawing state (mode, width,
// style, fill) from the surface that they draw on, clip to it, and note what they touched. None allocates for figures
// of the size of a view, and none costs more than the figure's own pixels.
#pragma once

#include "platform/raster/surface.h"

namespace raster {

enum class Rop : uint32_t { SRCCOPY = 0xCC0020, SRCAND = 0x8800C6, SRCPAINT = 0xEE0086 };
inline constexpr Rop SRCCOPY = Rop::SRCCOPY, SRCAND = Rop::SRCAND, SRCPAINT = Rop::SRCPAINT;

enum class Stretch : int { BLACKONWHITE = 1, WHITEONBLACK = 2, COLORONCOLOR = 3 };

// --- block transfers: between surfaces of any depth; the same surface may be both, as if the source were copied first.
// Where the source lies outside its surface the destination keeps what it held.
void BitBlt(Surface& dest, int x, int y, int w, int h, const Surface& src, int sx, int sy, Rop rop = SRCCOPY);

// Axes are independent. Negative sizes mirror. Shrinking: mode 3 keeps the first row and the last column of a group,
// mode 1 the bitwise AND of the group, mode 2 the OR.
void StretchBlt(Surface& dest, int x, int y, int w, int h, const Surface& src, int sx, int sy, int sw, int sh,
                Rop rop = SRCCOPY, Stretch mode = Stretch::COLORONCOLOR);

// --- single pixels; coordinates outside answer CLR_INVALID or do nothing
Colour GetPixel(const Surface& s, int x, int y);
void SetPixelV(Surface& s, int x, int y, Colour colour);

// --- the rows of a bitmap as bytes, top row first, rows of bmWidthBytes (the pixels' bytes, made even)
struct BITMAP {
  int32_t bmType, bmWidth, bmHeight, bmWidthBytes;
  int16_t bmPlanes, bmBitsPixel;
};
BITMAP GetObjectA(const Surface& s);
// Both move min(count, the bitmap's size) bytes and answer that number.
int32_t GetBitmapBits(const Surface& s, int32_t count, uint8_t* buffer);
int32_t SetBitmapBits(Surface& s, int32_t count, const uint8_t* buffer);

// --- figures in the pen colour given, with integer coordinates in pixels
struct Point {
  int32_t x, y;
};
enum class LineForm { plain, box, box_fill };  // plain: at width 1 without its last point; boxes hold both corners

// Line draws with the surface's DrawMode and DrawWidth; a box_fill is filled with the pen's colour and each pixel is
// inked once, a box takes the surface's FillStyle for its inside.
void Line(Surface& s, int x1, int y1, int x2, int y2, Colour colour, LineForm form = LineForm::plain);
// One dot of DrawWidth pixels.
void PSet(Surface& s, int x, int y, Colour colour);

// These three take pen and brush from ForeColor and FillColor.
void Polygon(Surface& s, const Point* points, int n);  // winding fill, closed outline
void PolyBezier(Surface& s, const Point* points);      // one curve of four points, its last pixel is not painted
void Ellipse(Surface& s, int left, int top, int right, int bottom);  // right and bottom excluded

// --- four-way flood fills in FillColor, always as copy
// Acts only if the start has the colour given, and fills the connected pixels of it.
void ExtFloodFill(Surface& s, int x, int y, Colour colour);
// Acts only if the start has not the border colour, and fills until pixels of it.
void FloodFill(Surface& s, int x, int y, Colour border);

}  // namespace raster
