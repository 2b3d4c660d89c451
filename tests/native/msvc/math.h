// MSVC's <math.h> gives C++ the long double functions as inline calls of the double ones (long
// double is double there); Wine's msvcrt headers, which the MSVC-flavoured syntax check compiles
// against, leave them out, and a few C99 functions of the Universal CRT with them. libc++ needs
// them all.
#pragma once
#include_next <math.h>

extern "C" {
double erfc(double);
float erfcf(float);
double fma(double, double, double);
float fmaf(float, float, float);
double nexttoward(double, long double);
float nexttowardf(float, long double);
}

inline long double acosl(long double x) { return acos(double(x)); }
inline long double asinl(long double x) { return asin(double(x)); }
inline long double atanl(long double x) { return atan(double(x)); }
inline long double ceill(long double x) { return ceil(double(x)); }
inline long double cosl(long double x) { return cos(double(x)); }
inline long double coshl(long double x) { return cosh(double(x)); }
inline long double expl(long double x) { return exp(double(x)); }
inline long double fabsl(long double x) { return fabs(double(x)); }
inline long double floorl(long double x) { return floor(double(x)); }
inline long double logl(long double x) { return log(double(x)); }
inline long double log10l(long double x) { return log10(double(x)); }
inline long double sinl(long double x) { return sin(double(x)); }
inline long double sinhl(long double x) { return sinh(double(x)); }
inline long double sqrtl(long double x) { return sqrt(double(x)); }
inline long double tanl(long double x) { return tan(double(x)); }
inline long double tanhl(long double x) { return tanh(double(x)); }
inline long double acoshl(long double x) { return acosh(double(x)); }
inline long double asinhl(long double x) { return asinh(double(x)); }
inline long double atanhl(long double x) { return atanh(double(x)); }
inline long double cbrtl(long double x) { return cbrt(double(x)); }
inline long double erfl(long double x) { return erf(double(x)); }
inline long double erfcl(long double x) { return erfc(double(x)); }
inline long double exp2l(long double x) { return exp2(double(x)); }
inline long double expm1l(long double x) { return expm1(double(x)); }
inline long double lgammal(long double x) { return lgamma(double(x)); }
inline long double log1pl(long double x) { return log1p(double(x)); }
inline long double log2l(long double x) { return log2(double(x)); }
inline long double logbl(long double x) { return logb(double(x)); }
inline long double nearbyintl(long double x) { return nearbyint(double(x)); }
inline long double rintl(long double x) { return rint(double(x)); }
inline long double roundl(long double x) { return round(double(x)); }
inline long double tgammal(long double x) { return tgamma(double(x)); }
inline long double truncl(long double x) { return trunc(double(x)); }
inline long double atan2l(long double x, long double y) { return atan2(double(x), double(y)); }
inline long double fmodl(long double x, long double y) { return fmod(double(x), double(y)); }
inline long double powl(long double x, long double y) { return pow(double(x), double(y)); }
inline long double copysignl(long double x, long double y) { return copysign(double(x), double(y)); }
inline long double fdiml(long double x, long double y) { return fdim(double(x), double(y)); }
inline long double fmaxl(long double x, long double y) { return fmax(double(x), double(y)); }
inline long double fminl(long double x, long double y) { return fmin(double(x), double(y)); }
inline long double hypotl(long double x, long double y) { return hypot(double(x), double(y)); }
inline long double nextafterl(long double x, long double y) { return nextafter(double(x), double(y)); }
inline long double remainderl(long double x, long double y) { return remainder(double(x), double(y)); }
inline long double fmal(long double x, long double y, long double z) { return fma(double(x), double(y), double(z)); }
inline long double frexpl(long double x, int* e) { return frexp(double(x), e); }
inline long double ldexpl(long double x, int e) { return ldexp(double(x), e); }
inline long double modfl(long double x, long double* i)
{
    double whole;
    long double fraction = modf(double(x), &whole);
    *i = whole;
    return fraction;
}
inline long double scalbnl(long double x, int n) { return scalbn(double(x), n); }
inline long double scalblnl(long double x, long n) { return scalbln(double(x), n); }
inline long double nexttowardl(long double x, long double y) { return nextafter(double(x), double(y)); }
inline long double remquol(long double x, long double y, int* q) { return remquo(double(x), double(y), q); }
inline int ilogbl(long double x) { return ilogb(double(x)); }
inline long lrintl(long double x) { return lrint(double(x)); }
inline long long llrintl(long double x) { return llrint(double(x)); }
inline long lroundl(long double x) { return lround(double(x)); }
inline long long llroundl(long double x) { return llround(double(x)); }
