/*
 * The elementary functions of the core, taken from musl's libm (the functions
 * from FreeBSD's msun and Arm's optimized-routines): one implementation compiled
 * into every build, so that the desktop on any processor and the web version give
 * the same bits. See COPYRIGHT in this folder.
 */
#ifndef MORVE_LIBM_H
#define MORVE_LIBM_H

#include <stdint.h>
#include <float.h>
#include <math.h>

/* The public names, and the internal ones, apart from the C library's. */
#define sin morve_sin
#define cos morve_cos
#define exp morve_exp
#define pow morve_pow
#define log morve_log
#define log10 morve_log10
#define cbrt morve_cbrt
#define hypot morve_hypot
#define atan morve_atan
#define atan2 morve_atan2
#define tanh morve_tanh
#define expm1 morve_libm_expm1
#define __sin morve_libm_ksin
#define __cos morve_libm_kcos
#define __rem_pio2 morve_libm_rem_pio2
#define __rem_pio2_large morve_libm_rem_pio2_large
#define __math_xflow morve_libm_xflow
#define __math_uflow morve_libm_uflow
#define __math_oflow morve_libm_oflow
#define __math_divzero morve_libm_divzero
#define __math_invalid morve_libm_invalid
#define __exp_data morve_libm_exp_data
#define __pow_log_data morve_libm_pow_log_data
#define __log_data morve_libm_log_data

double sin(double);
double cos(double);
double exp(double);
double pow(double, double);
double log(double);
double log10(double);
double cbrt(double);
double hypot(double, double);
double atan(double);
double atan2(double, double);
double tanh(double);
double expm1(double);

#define hidden __attribute__((__visibility__("hidden")))

#define WANT_ROUNDING 1
#define TOINT_INTRINSICS 0
#define issignaling_inline(x) 0

#ifdef __GNUC__
#define predict_true(x) __builtin_expect(!!(x), 1)
#define predict_false(x) __builtin_expect(x, 0)
#else
#define predict_true(x) (x)
#define predict_false(x) (x)
#endif

static inline double eval_as_double(double x)
{
	double y = x;
	return y;
}

static inline double fp_barrier(double x)
{
	volatile double y = x;
	return y;
}

static inline void fp_force_eval(double x)
{
	volatile double y;
	y = x;
}

#define FORCE_EVAL(x) fp_force_eval(x)

#define asuint64(f) ((union{double _f; uint64_t _i;}){f})._i
#define asdouble(i) ((union{uint64_t _i; double _f;}){i})._f

#define EXTRACT_WORDS(hi,lo,d)                    \
do {                                              \
  uint64_t __u = asuint64(d);                     \
  (hi) = __u >> 32;                               \
  (lo) = (uint32_t)__u;                           \
} while (0)

#define GET_HIGH_WORD(hi,d)                       \
do {                                              \
  (hi) = asuint64(d) >> 32;                       \
} while (0)

#define GET_LOW_WORD(lo,d)                        \
do {                                              \
  (lo) = (uint32_t)asuint64(d);                   \
} while (0)

#define INSERT_WORDS(d,hi,lo)                     \
do {                                              \
  (d) = asdouble(((uint64_t)(hi)<<32) | (uint32_t)(lo)); \
} while (0)

#define SET_HIGH_WORD(d,hi)                       \
  INSERT_WORDS(d, hi, (uint32_t)asuint64(d))

#define SET_LOW_WORD(d,lo)                        \
  INSERT_WORDS(d, asuint64(d)>>32, lo)

hidden int    __rem_pio2_large(double*,double*,int,int,int);
hidden int    __rem_pio2(double,double*);
hidden double __sin(double,double,int);
hidden double __cos(double,double);

hidden double __math_xflow(uint32_t, double);
hidden double __math_uflow(uint32_t);
hidden double __math_oflow(uint32_t);
hidden double __math_divzero(uint32_t);
hidden double __math_invalid(double);

#endif
