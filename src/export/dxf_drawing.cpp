#include "export/dxf_drawing.h"

#include <cstdio>
#include <fstream>
#include <memory>

#include <dxflib/dl_dxf.h>

#include "reports/atomic_file.h"

namespace morve {

namespace {

constexpr ShapeKind kKinds[] = {ShapeKind::Outline, ShapeKind::Bars,  ShapeKind::Dimensions,
                                ShapeKind::Texts,   ShapeKind::Loads, ShapeKind::Diagrams};
// The CAD colour numbers of the layers: white, red, green, white, blue, cyan.
constexpr int kLayerColours[] = {7, 1, 3, 7, 5, 4};
// The width in pixels at which a drawing is shown, to turn text sizes into lengths.
constexpr double kShownWidth = 600;

// Texts go in the file's code page (Windows-1252, as CAD programs read a file of
// this version); a character outside it, such as the φ of a bar, as \U+XXXX.
std::string dxfText(const std::string& utf8) {
    std::string out;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        unsigned code = c;
        int extra = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC0 ? 1 : 0;
        if (extra) code = c & (0x3F >> extra);
        ++i;
        for (; extra > 0 && i < utf8.size(); --extra, ++i) code = (code << 6) | (static_cast<unsigned char>(utf8[i]) & 0x3F);
        if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
            out += static_cast<char>(code);
        } else {
            char escaped[16];
            std::snprintf(escaped, sizeof escaped, "\\U+%04X", code & 0xFFFF);
            out += escaped;
        }
    }
    return out;
}

struct Place {
    double scale;
    double x(const Point& p) const { return p.x * scale; }
    double y(const Point& p) const { return -p.y * scale; }  // the drawing's y grows downwards
};

void writeShape(DL_Dxf& dxf, DL_WriterA& w, const Shape& shape, const Place& at, double textPerPixel) {
    const DL_Attributes layer(dxfLayer(shape.kind), 256, -1, "BYLAYER", 1.0);
    if (const auto* l = std::get_if<Line>(&shape.geometry)) {
        dxf.writeLine(w, DL_LineData(at.x(l->from), at.y(l->from), 0, at.x(l->to), at.y(l->to), 0), layer);
    } else if (const auto* p = std::get_if<Polyline>(&shape.geometry)) {
        if (p->points.empty()) return;
        dxf.writePolyline(w, DL_PolylineData(static_cast<int>(p->points.size()), 0, 0, p->closed ? 1 : 0), layer);
        for (const Point& v : p->points) dxf.writeVertex(w, DL_VertexData(at.x(v), at.y(v), 0, 0));
        dxf.writePolylineEnd(w);
    } else if (const auto* c = std::get_if<Circle>(&shape.geometry)) {
        dxf.writeCircle(w, DL_CircleData(at.x(c->centre), at.y(c->centre), 0, c->radius * at.scale), layer);
    } else if (const auto* t = std::get_if<Label>(&shape.geometry)) {
        if (t->text.empty()) return;
        const int h = t->align == TextAlign::Left ? 0 : t->align == TextAlign::Centre ? 1 : 2;
        const double x = at.x(t->at), y = at.y(t->at);
        dxf.writeText(w, DL_TextData(x, y, 0, x, y, 0, t->size * textPerPixel, 1, 0, h, 2, dxfText(t->text), "Standard", 0),
                      layer);
    }
}

int insUnits(DrawingUnit unit) { return unit == DrawingUnit::Centimetre ? 5 : unit == DrawingUnit::Metre ? 6 : 0; }

void writeFile(const Drawing& drawing, DL_WriterA& w) {
    DL_Dxf dxf;
    dxf.writeHeader(w);
    w.dxfString(9, "$INSUNITS");
    w.dxfInt(70, insUnits(drawing.unit));
    w.dxfString(9, "$DWGCODEPAGE");
    w.dxfString(3, "ANSI_1252");
    w.sectionEnd();

    w.sectionTables();
    dxf.writeVPort(w);
    w.tableLinetypes(3);
    dxf.writeLinetype(w, DL_LinetypeData("BYBLOCK", "", 0, 0, 0.0));
    dxf.writeLinetype(w, DL_LinetypeData("BYLAYER", "", 0, 0, 0.0));
    dxf.writeLinetype(w, DL_LinetypeData("CONTINUOUS", "Solid line", 0, 0, 0.0));
    w.tableEnd();
    w.tableLayers(1 + static_cast<int>(std::size(kKinds)));
    dxf.writeLayer(w, DL_LayerData("0", 0), DL_Attributes("", 7, 100, "CONTINUOUS", 1.0));
    for (std::size_t k = 0; k < std::size(kKinds); ++k)
        dxf.writeLayer(w, DL_LayerData(dxfLayer(kKinds[k]), 0), DL_Attributes("", kLayerColours[k], 100, "CONTINUOUS", 1.0));
    w.tableEnd();
    w.tableStyle(1);
    dxf.writeStyle(w, DL_StyleData("Standard", 0, 0.0, 1.0, 0.0, 0, 2.5, "txt", ""));
    w.tableEnd();
    dxf.writeView(w);
    dxf.writeUcs(w);
    w.tableAppid(1);
    dxf.writeAppid(w, "ACAD");
    w.tableEnd();
    dxf.writeDimStyle(w, 1, 1, 1, 1, 1);
    dxf.writeBlockRecord(w);
    w.tableEnd();
    w.sectionEnd();

    w.sectionBlocks();
    dxf.writeBlock(w, DL_BlockData("*Model_Space", 0, 0.0, 0.0, 0.0));
    dxf.writeEndBlock(w, "*Model_Space");
    dxf.writeBlock(w, DL_BlockData("*Paper_Space", 0, 0.0, 0.0, 0.0));
    dxf.writeEndBlock(w, "*Paper_Space");
    w.sectionEnd();

    const Place at{drawing.unit == DrawingUnit::None ? 1 : drawing.perCoordinate};
    const double textPerPixel = std::abs(drawing.right - drawing.left) / kShownWidth * at.scale;
    w.sectionEntities();
    for (const Shape& shape : drawing.shapes) writeShape(dxf, w, shape, at, textPerPixel);
    w.sectionEnd();
    dxf.writeObjects(w);
    dxf.writeObjectsEnd(w);
    w.dxfEOF();
}

}  // namespace

const char* dxfLayer(ShapeKind kind) {
    switch (kind) {
        case ShapeKind::Bars: return "ARMADURAS";
        case ShapeKind::Dimensions: return "COTAS";
        case ShapeKind::Texts: return "TEXTOS";
        case ShapeKind::Loads: return "CARGAS";
        case ShapeKind::Diagrams: return "DIAGRAMAS";
        default: return "CONCRETO";
    }
}

std::string writeDxf(const Drawing& drawing, const std::string& path) {
    const std::string failed = replaceFileBy(path, [&](const std::string& temporary) {
        DL_Dxf dxf;
        std::unique_ptr<DL_WriterA> w(dxf.out(temporary.c_str(), DL_Codes::AC1015));
        if (!w) return false;
        writeFile(drawing, *w);
        w->close();
        // dxflib passes on no error of its stream: a file cut short by a full disk
        // is told by its missing end.
        std::ifstream written(temporary, std::ios::binary | std::ios::ate);
        const auto size = static_cast<long long>(written.tellg());
        if (size < 4) return false;
        written.seekg(size - 4);
        std::string end(4, '\0');
        written.read(end.data(), 4);
        return end.find("EOF") != std::string::npos;
    });
    return failed.empty() ? "" : "Não foi possível salvar o desenho " + path + ": " + failed + ".";
}

}  // namespace morve
