#pragma once
// The one way a module's Drawing reaches a Qt surface: window, report page, PDF,
// picture file. The drawing's region is fitted into the target rectangle with its
// aspect kept and centred; y grows downwards in both, so no flip is needed.
#include <QRectF>

#include "draw/drawing.h"

class QPainter;

namespace morve {

// Sizes of text and line widths in the drawing are in pixels of a screen at 96
// dots per inch; pixelScale carries them to the surface (1 on screen, the
// device's dpi / 96 on paper). A label's point is the left end, the middle or
// the right end (by its alignment) of the text's middle line.
void paintDrawing(QPainter& painter, const Drawing& drawing, const QRectF& target,
                  double pixelScale = 1.0);

}  // namespace morve
