#pragma once

class QPainter;

namespace tnw {

// The whole number of device pixels to a pixel the painter paints with, or 0 when its pixels do
// not fall on whole device pixels (a fractional scale, a turn, a shift by part of a pixel, a
// world transform). A picture kept at that ratio is copied pixel for pixel.
int wholeDeviceRatio(const QPainter& painter);

}  // namespace tnw
