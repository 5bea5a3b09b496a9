#pragma once
// The band Cholesky of the two LAPACKs the solver is measured against. Reference
// LAPACK and OpenBLAS export the same names, so neither is linked: each is opened
// from its own path and its routines are looked up in it alone. The reference
// LAPACK must run on the reference BLAS, which is opened first so that it, and not
// whichever BLAS the system's alternatives point to, serves that LAPACK.
#include <dlfcn.h>

#include <cstdlib>
#include <string>

namespace bench {

struct BandLapack {
    using Factor = void (*)(const char*, const int*, const int*, double*, const int*, int*);
    using Solve = void (*)(const char*, const int*, const int*, const int*, const double*, const int*, double*,
                           const int*, int*);
    Factor dpbtrf = nullptr;
    Solve dpbtrs = nullptr;
    void* handle = nullptr;
    std::string fault;  // why the library could not be used, "" when it can
};

inline BandLapack openBandLapack(const char* path, const char* blasFirst = nullptr) {
    BandLapack lib;
    if (blasFirst && !dlopen(blasFirst, RTLD_NOW | RTLD_LOCAL)) {
        lib.fault = dlerror();
        return lib;
    }
    lib.handle = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (!lib.handle) {
        lib.fault = dlerror();
        return lib;
    }
    lib.dpbtrf = reinterpret_cast<BandLapack::Factor>(dlsym(lib.handle, "dpbtrf_"));
    lib.dpbtrs = reinterpret_cast<BandLapack::Solve>(dlsym(lib.handle, "dpbtrs_"));
    if (!lib.dpbtrf || !lib.dpbtrs) lib.fault = std::string(path) + " has no dpbtrf_/dpbtrs_";
    return lib;
}

#ifdef MORVE_REFERENCE_LAPACK
inline const BandLapack& referenceLapack() {
    static const BandLapack lib = openBandLapack(MORVE_REFERENCE_LAPACK, MORVE_REFERENCE_BLAS);
    return lib;
}
#endif

#ifdef MORVE_OPENBLAS
// OpenBLAS on one thread, as the program's solver runs: the count is read from the
// environment when the library is opened, and set again through its own call.
inline const BandLapack& openBlas() {
    static const BandLapack lib = [] {
        setenv("OPENBLAS_NUM_THREADS", "1", 1);
        BandLapack l = openBandLapack(MORVE_OPENBLAS);
        if (l.fault.empty())
            if (auto threads = reinterpret_cast<void (*)(int)>(dlsym(l.handle, "openblas_set_num_threads")))
                threads(1);
        return l;
    }();
    return lib;
}
#endif

}  // namespace bench
