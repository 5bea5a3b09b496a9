#include "render/drawing_export.h"

#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

#include <fcntl.h>
#include <gif_lib.h>
#include <unistd.h>

#include <vector>

#include "render/drawing_painter.h"

namespace morve {

namespace {

QImage rendered(const Drawing& drawing, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintDrawing(painter, drawing, QRectF(QPointF(0, 0), QSizeF(size)));
    return image;
}

// A GIF holds at most 256 colours: the picture is reduced to a palette of its own
// (the drawings have few colours; the smoothing of lines adds shades) and written
// row by row. Qt has no GIF writer, so giflib does the encoding.
bool writeGif(const QImage& picture, const QString& path) {
    const QImage indexed = picture.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither);
    const QList<QRgb> table = indexed.colorTable();
    if (table.isEmpty() || table.size() > 256) return false;
    std::vector<GifColorType> colours(256, GifColorType{255, 255, 255});
    for (qsizetype i = 0; i < table.size(); ++i)
        colours[static_cast<std::size_t>(i)] = {static_cast<GifByteType>(qRed(table[i])),
                                                static_cast<GifByteType>(qGreen(table[i])),
                                                static_cast<GifByteType>(qBlue(table[i]))};
    ColorMapObject* map = GifMakeMapObject(256, colours.data());
    if (!map) return false;
    int error = 0;
    // Opened here rather than by giflib, which makes its files readable by their
    // owner only: a drawing gets the permissions of any file the user saves.
    const int fd = ::open(path.toLocal8Bit().constData(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    GifFileType* gif = fd >= 0 ? EGifOpenFileHandle(fd, &error) : nullptr;
    if (fd >= 0 && !gif) ::close(fd);
    bool ok = gif != nullptr;
    const int w = indexed.width(), h = indexed.height();
    ok = ok && EGifPutScreenDesc(gif, w, h, 8, 0, map) == GIF_OK;
    ok = ok && EGifPutImageDesc(gif, 0, 0, w, h, false, nullptr) == GIF_OK;
    std::vector<GifPixelType> row(static_cast<std::size_t>(w));
    for (int y = 0; ok && y < h; ++y) {
        const uchar* line = indexed.constScanLine(y);
        std::copy(line, line + w, row.begin());
        ok = EGifPutLine(gif, row.data(), w) == GIF_OK;
    }
    if (gif && EGifCloseFile(gif, &error) != GIF_OK) ok = false;
    GifFreeMapObject(map);
    return ok;
}

}  // namespace

std::string exportDrawing(const Drawing& drawing, const QString& path, QSize size) {
    const std::string failed = "não foi possível gravar " + path.toStdString();
    if (size.isEmpty()) return failed;
    const QRectF area(QPointF(0, 0), QSizeF(size));
    if (path.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive)) {
        QSvgGenerator svg;
        svg.setFileName(path);
        svg.setSize(size);
        svg.setViewBox(area);
        svg.setTitle(QStringLiteral("MORVE"));
        QPainter painter;
        if (!painter.begin(&svg)) return failed;
        painter.fillRect(area, Qt::white);
        paintDrawing(painter, drawing, area);
        return painter.end() ? "" : failed;
    }
    const QImage image = rendered(drawing, size);
    if (path.endsWith(QStringLiteral(".gif"), Qt::CaseInsensitive)) return writeGif(image, path) ? "" : failed;
    return image.save(path) ? "" : failed;
}

}  // namespace morve
