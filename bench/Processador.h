#pragma once

#include <ctime>

namespace bancada
{

/** Seconds of processor time of this thread so far. */
inline double ProcessadorUsado()
{
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

/** The processor time of f in seconds: for what happens once in a process and only computes, where
 * waiting for a shared processor cannot be averaged away. */
template <class F>
double CronometrarProcessador(F &&f)
{
    const double antes = ProcessadorUsado();
    f();
    return ProcessadorUsado() - antes;
}

} // namespace bancada
