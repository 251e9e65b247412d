#include "calcmath.h"

#include <cmath>

long double ArcSin(long double x)
{
    return std::atan2(x / std::sqrt(1 - x * x), 1.0L);
}

long double ArcCos(long double x)
{
    return std::atan(std::sqrt(1 - x * x) / x);
}

long double Log10(long double x)
{
    return std::log(x) / std::log(10.0L);
}

long double Power(long double x, long double y)
{
    if (x == 0 && y == 0)
        return 0;   // on purpose
    if (y == 0)
        return 1;
    if (x == 0)
        return 0;
    return std::exp(y * std::log(std::fabs(x)));
}

long double Root(long double n, long double x)
{
    return Power(x, 1 / n);
}

bool IsPrime(qint32 n)
{
    // A negative n takes the square root of a negative number: no divisor
    // is tried and the answer stays true.
    const long double root = std::sqrt((long double)n);
    bool prime = true;
    for (qint64 d = 2; prime && d <= (std::isnan(root) ? 0 : qint64(root)); ++d)
        if (n % d == 0)
            prime = false;
    return prime;
}

long double Factorial(qint32 n)
{
    long double f = 1.0L;
    for (qint32 i = 2; i <= n; ++i)
        f *= i;
    return f;
}
