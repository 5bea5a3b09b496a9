#include "beams/torsion_trace.h"

namespace morve {

void traceTorsionStrut(TraceRecorder rec, const TorsionStrutValues& v) {
    if (!rec.on()) return;
    const char* clause = "NBR-6118:2014, 17.5.1.4";
    rec.stage("Seção vazada equivalente");
    const double he = v.b * v.h / (2 * (v.h + v.b));
    rec.step("Espessura da parede", "he = b · h / (2 · (h + b))", "{} · {} / (2 · ({} + {}))",
             {{v.b, "cm"}, {v.h, "cm"}, {v.h, "cm"}, {v.b, "cm"}}, he, "cm", -1, clause);
    if (2 * v.dPrime <= he) {
        rec.note("2 · d' ≤ he: a parede tem a espessura he.");
        rec.step("Área limitada pela linha média", "Ae = (h − he) · (b − he)", "({} − {}) · ({} − {})",
                 {{v.h, "cm"}, {he, "cm"}, {v.b, "cm"}, {he, "cm"}}, v.wall.ae, "cm²", -1, clause);
    } else {
        rec.step("Espessura adotada", "te = min(he, b − 2 · d')", "min({}, {} − 2 · {})",
                 {{he, "cm"}, {v.b, "cm"}, {v.dPrime, "cm"}}, v.wall.te, "cm", -1, clause);
        rec.step("Área limitada pela linha média", "Ae = (h − 2 · d') · (b − 2 · d')", "({} − 2 · {}) · ({} − 2 · {})",
                 {{v.h, "cm"}, {v.dPrime, "cm"}, {v.b, "cm"}, {v.dPrime, "cm"}}, v.wall.ae, "cm²", -1, clause);
    }
    rec.step("Perímetro pelos centros das barras", "ue = 2 · (h + b − 4 · d')", "2 · ({} + {} − 4 · {})",
             {{v.h, "cm"}, {v.b, "cm"}, {v.dPrime, "cm"}}, v.wall.ue, "cm", -1, clause);
    rec.stage("Esforço cortante e momento torçor");
    rec.step("Força cortante de cálculo", "Vd = γf · Vk", "{} · {}", {{v.gamaf, ""}, {v.vk, "kN"}}, v.gamaf * v.vk, "kN");
    rec.step("Momento torçor de cálculo", "Td = γf · Tk · 100", "{} · {} · 100", {{v.gamaf, ""}, {v.tk, "kN·m"}},
             v.gamaf * v.tk * 100, "kN·cm");
    rec.step("Tensão de cisalhamento de cálculo", "τwd = 10 · Vd / (b · d)", "10 · {} / ({} · {})",
             {{v.gamaf * v.vk, "kN"}, {v.b, "cm"}, {v.d, "cm"}}, v.tauwd, "MPa");
    rec.step("Limite da biela (cortante)", "τwd2 = 0.27 · (1 − fck / 250) · fcd", "0.27 · (1 − {} / 250) · {}",
             {{v.fck, "MPa"}, {v.fcd, "MPa"}}, v.tauwd2, "MPa", -1, "NBR-6118:2014, 17.4.2.2");
    rec.step("Tensão de torção de cálculo", "τtd = 10 · Td / (2 · Ae · te)", "10 · {} / (2 · {} · {})",
             {{v.gamaf * v.tk * 100, "kN·cm"}, {v.wall.ae, "cm²"}, {v.wall.te, "cm"}}, v.tautd, "MPa", -1, clause);
    rec.step("Limite da biela (torção)", "τtd2 = 0.25 · (1 − fck / 250) · fcd", "0.25 · (1 − {} / 250) · {}",
             {{v.fck, "MPa"}, {v.fcd, "MPa"}}, v.tautd2, "MPa", -1, clause);
    rec.check("Biela comprimida (cortante e torção)", "τwd / τwd2 + τtd / τtd2 ≤ 1", "{} / {} + {} / {}",
              {{v.tauwd, "MPa"}, {v.tauwd2, "MPa"}, {v.tautd, "MPa"}, {v.tautd2, "MPa"}}, v.ratio, "", !(v.ratio > 1),
              "NBR-6118:2014, 17.7.2.2");
}

}  // namespace morve
