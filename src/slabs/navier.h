#pragma once
// Moments and deflection at the centre of a rectangular slab simply supported on
// its four sides, under one local load, by the double sine series of the plate
// (the single series across the slab for a line load). Every series has a fixed
// number of terms, so a calculation always ends in the same time.
namespace morve {

inline constexpr int kSeriesTerms = 61;

// What the series give at the centre: D w (kN m), and the moments (kNm/m).
struct CentreValues {
    double dw = 0, mx = 0, my = 0;
};

// A point load p (kN) at (ax, ay) of a slab a by b (m).
CentreValues pointLoadAtCentre(double a, double b, double p, double ax, double ay, double nu);
// A load p (kN/m2) over bx by by centred at (ax, ay).
CentreValues patchLoadAtCentre(double a, double b, double p, double ax, double ay, double bx, double by,
                               double nu);
// A load p (kN/m) along the whole line x = ax, parallel to y.
CentreValues lineLoadAtCentre(double a, double b, double p, double ax, double nu);

}  // namespace morve
