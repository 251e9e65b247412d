#pragma once
// The mathematical functions of the calculator, on extended values.

#include <QtGlobal>

long double ArcSin(long double x);
// Deliberately the plain arc tangent of sqrt(1 - x^2) / x: negative for
// negative x, a division by zero at 0.
long double ArcCos(long double x);
long double Log10(long double x);
// 0^0 is 0; the sign of a negative base is dropped: (-2)^3 = 8.
long double Power(long double x, long double y);
// The n-th root of x.
long double Root(long double n, long double x);
// True for 0, 1, 2 and 3 as well as for the primes.
bool IsPrime(qint32 n);
// Overflows above 1754.
long double Factorial(qint32 n);

