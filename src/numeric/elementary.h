#pragma once
// The elementary functions the calculations use, from one implementation compiled
// into every build (src/numeric/libm), instead of the C library's: glibc picks
// its own algorithms and, on a processor with FMA, other code paths, and the web
// version has musl's, so the last bits of a sine or a power would differ from one
// machine to another and with them a result rounded near a limit. The square root
// is exact everywhere and stays the standard one.
extern "C" {
double morve_sin(double);
double morve_cos(double);
double morve_exp(double);
double morve_pow(double, double);
double morve_log(double);
double morve_log10(double);
double morve_cbrt(double);
double morve_hypot(double, double);
double morve_atan(double);
double morve_atan2(double, double);
double morve_tanh(double);
}

namespace morve::portable {

inline double sin(double x) { return morve_sin(x); }
inline double cos(double x) { return morve_cos(x); }
inline double exp(double x) { return morve_exp(x); }
inline double pow(double x, double y) { return morve_pow(x, y); }
inline double log(double x) { return morve_log(x); }
inline double log10(double x) { return morve_log10(x); }
inline double cbrt(double x) { return morve_cbrt(x); }
inline double hypot(double x, double y) { return morve_hypot(x, y); }
inline double atan(double x) { return morve_atan(x); }
inline double atan2(double y, double x) { return morve_atan2(y, x); }
inline double tanh(double x) { return morve_tanh(x); }

}  // namespace morve::portable
