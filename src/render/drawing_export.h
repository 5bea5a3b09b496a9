#pragma once
// A module's drawing written to a picture file, by the file's extension: GIF (the
// program's own picture files), PNG or any raster format Qt writes, on a white
// ground, or SVG as vectors.
#include <QSize>
#include <QString>

#include <string>

#include "draw/drawing.h"

namespace morve {

// "" on success, otherwise what went wrong.
std::string exportDrawing(const Drawing& drawing, const QString& path, QSize size);

}  // namespace morve
