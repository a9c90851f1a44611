#include "bench/Memoria.h"

#include <malloc.h>

namespace bancada
{

qint64 MemoriaEmUso()
{
    const struct mallinfo2 m = mallinfo2();
    return qint64(m.uordblks) + qint64(m.hblkhd);
}

} // namespace bancada
