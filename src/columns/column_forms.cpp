// The eight column modules as data: their boxes, their words, their screens.
#include "columns/column_form.h"

namespace morve {

namespace {

ColumnForm layeredDesign(std::string key, std::string heading, ColumnShape shape) {
    ColumnForm f;
    f.key = std::move(key);
    f.heading = std::move(heading);
    f.shape = shape;
    f.design = true;
    f.b = "Text4";
    f.h = "Text5";
    f.count = "Text7";
    f.normal = "Text8";
    f.moment = "Text9";
    f.gamac = "Text16";
    f.gamas = "Text14";
    f.gamaf = "Text15";
    f.asResult = "Text10";
    f.asMinimum = "Text11";
    f.layersCommand = "Command3";
    f.calculate = "Command4";
    f.drawCommand = "Command5";
    return f;
}

ColumnForm layeredVerification(std::string key, std::string heading, ColumnShape shape) {
    ColumnForm f;
    f.key = std::move(key);
    f.heading = std::move(heading);
    f.shape = shape;
    f.design = false;
    f.b = "Text4";
    f.h = "Text5";
    f.dPrime = "Text6";
    f.count = "Text7";
    f.gamas = "Text14";
    f.layersCommand = "Command3";
    f.calculate = "Command4";
    f.drawCommand = "Command5";
    f.diagramCommand = "Command6";
    return f;
}

ColumnForm circularForm(std::string key, std::string heading, ColumnShape shape, bool design) {
    ColumnForm f;
    f.key = std::move(key);
    f.heading = std::move(heading);
    f.shape = shape;
    f.design = design;
    f.h = "Text4";
    f.dPrime = "Text5";
    f.count = "Text6";
    if (shape == ColumnShape::Ring) f.ho = "Text11";
    f.gamas = "Text14";
    f.drawCommand = "Command5";
    if (design) {
        f.normal = "Text7";
        f.moment = "Text8";
        f.gamac = "Text16";
        f.gamaf = "Text15";
        f.asResult = "Text9";
        f.asMinimum = "Text10";
        f.barCount = "Text12";
        f.diameter = "Text13";
        f.existing = "Text19";
        f.calculate = "Command6";
        f.unloads = {"Form12c", "FormAjuda"};
    } else {
        f.gamac = "Text10";
        f.calculate = "Command4";
        f.diagramCommand = "Command6";
    }
    return f;
}

}  // namespace

const ColumnForm& form12() {
    static const ColumnForm f = [] {
        ColumnForm f = layeredDesign(
            "Form12", "DIMENSIONAMENTO À FLEXO-COMPRESSÃO NORMAL DE SEÇÕES RETANGULARES MACIÇAS",
            ColumnShape::Rectangle);
        f.unloads = {"Form12b", "Form12c", "FormAjuda"};
        f.dPrime = "Text6";
        f.layerScreen = "Form12b";
        f.barCount = "Text12";
        f.diameter = "Text13";
        f.existing = "Text17";
        return f;
    }();
    return f;
}

const ColumnForm& form12d() {
    static const ColumnForm f = [] {
        ColumnForm f = layeredDesign(
            "Form12d", "DIMENSIONAMENTO À FLEXO-COMPRESSÃO NORMAL DE SEÇÕES RETANGULARES VAZADAS",
            ColumnShape::Box);
        f.unloads = {"Form12e", "Form12c", "FormAjuda"};
        f.bw = "Text12";
        f.hf = "Text6";
        f.dPrime = "Text13";
        f.layerScreen = "Form12e";
        f.barCount = "Text17";
        f.diameter = "Text18";
        f.existing = "Text19";
        return f;
    }();
    return f;
}

const ColumnForm& form13() {
    static const ColumnForm f = [] {
        ColumnForm f = layeredVerification(
            "Form13", "VERIFICAÇÃO DE SEÇÕES RETANGULARES MACIÇAS SUBMETIDAS À FLEXO-COMPRESSÃO NORMAL",
            ColumnShape::Rectangle);
        f.unloads = {"Form13b", "Form13c", "Form12c", "FormAjuda"};
        f.layerScreen = "Form13b";
        f.normal = "Text8";
        f.area = "Form13b.Text1";
        f.gamac = "Text13";
        f.resistingMoment = "Text10";
        return f;
    }();
    return f;
}

const ColumnForm& form13e() {
    static const ColumnForm f = [] {
        ColumnForm f = layeredVerification(
            "Form13e", "VERIFICAÇÃO DE SEÇÕES RETANGULARES VAZADAS SUBMETIDAS À FLEXO-COMPRESSÃO NORMAL",
            ColumnShape::Box);
        f.unloads = {"Form13f", "Form13c", "Form12c", "FormAjuda"};
        f.bw = "Text12";
        f.hf = "Text13";
        f.layerScreen = "Form13f";
        f.normal = "Text10";
        f.area = "Form13f.Text1";
        f.gamac = "Text8";
        f.resistingMoment = "Text11";
        return f;
    }();
    return f;
}

const ColumnForm& form14() {
    static const ColumnForm f = circularForm(
        "Form14", "DIMENSIONAMENTO À FLEXO-COMPRESSÃO NORMAL DE SEÇÕES CIRCULARES MACIÇAS",
        ColumnShape::Circle, true);
    return f;
}

const ColumnForm& form14c() {
    static const ColumnForm f = circularForm(
        "Form14c", "DIMENSIONAMENTO À FLEXO-COMPRESSÃO NORMAL DE SEÇÕES CIRCULARES VAZADAS",
        ColumnShape::Ring, true);
    return f;
}

const ColumnForm& form15() {
    static const ColumnForm f = [] {
        ColumnForm f = circularForm(
            "Form15", "VERIFICAÇÃO DE SEÇÕES CIRCULARES MACIÇAS SUBMETIDAS À FLEXO-COMPRESSÃO NORMAL",
            ColumnShape::Circle, false);
        f.unloads = {"Form12c", "Form13c", "FormAjuda"};
        f.normal = "Text7";
        f.area = "Text9";
        f.resistingMoment = "Text8";
        return f;
    }();
    return f;
}

const ColumnForm& form25() {
    static const ColumnForm f = [] {
        ColumnForm f = circularForm(
            "Form25", "VERIFICAÇÃO DE SEÇÕES CIRCULARES VAZADAS SUBMETIDAS À FLEXO-COMPRESSÃO NORMAL",
            ColumnShape::Ring, false);
        f.unloads = {"FormAjuda", "Form12c", "Form13c"};
        f.area = "Text7";
        f.normal = "Text8";
        f.resistingMoment = "Text9";
        f.parityTitle = "Flexo-compressão normal";
        return f;
    }();
    return f;
}

// The module classes the registry builds.
#define MORVE_COLUMN_MODULE(Name, description)                    \
    struct Name : ColumnModule {                                  \
        Name() : ColumnModule(description()) {}                   \
    };                                                            \
    RegisterModule<Name> registration##Name;

namespace {
MORVE_COLUMN_MODULE(Form12, form12)
MORVE_COLUMN_MODULE(Form12d, form12d)
MORVE_COLUMN_MODULE(Form13, form13)
MORVE_COLUMN_MODULE(Form13e, form13e)
MORVE_COLUMN_MODULE(Form14, form14)
MORVE_COLUMN_MODULE(Form14c, form14c)
MORVE_COLUMN_MODULE(Form15, form15)
MORVE_COLUMN_MODULE(Form25, form25)
}  // namespace

#undef MORVE_COLUMN_MODULE

}  // namespace morve
