#pragma once
// What no screen and no picture may ever show after any input: "nan", "inf" or a
// point that is not a number.
#include <cmath>
#include <string>
#include <type_traits>
#include <variant>

#include "app/form_state.h"
#include "draw/drawing.h"

inline bool anyNotFinite(const morve::FormState& s) {
    auto bad = [](const std::string& t) { return t.find("nan") != std::string::npos || t.find("inf") != std::string::npos; };
    for (const auto& [name, text] : s.texts())
        if (bad(text)) return true;
    for (const auto& [name, rows] : s.grids())
        for (const auto& row : rows)
            for (const auto& cell : row)
                if (bad(cell)) return true;
    return false;
}

inline bool finitePicture(const morve::Drawing& d) {
    bool ok = std::isfinite(d.left) && std::isfinite(d.right) && std::isfinite(d.top) && std::isfinite(d.bottom);
    auto at = [&](const morve::Point& p) { ok = ok && std::isfinite(p.x) && std::isfinite(p.y); };
    for (const morve::Shape& shape : d.shapes)
        std::visit([&](const auto& g) {
            using G = std::decay_t<decltype(g)>;
            if constexpr (std::is_same_v<G, morve::Line>) at(g.from), at(g.to);
            else if constexpr (std::is_same_v<G, morve::Polyline>) for (const morve::Point& p : g.points) at(p);
            else if constexpr (std::is_same_v<G, morve::Circle>) at(g.centre);
            else at(g.at), ok = ok && g.text.find("nan") == std::string::npos && g.text.find("inf") == std::string::npos;
        }, shape.geometry);
    return ok;
}
