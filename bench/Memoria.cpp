#include "bench/Memoria.h"

#include <QFile>

#include <stdexcept>

#include <malloc.h>
#include <unistd.h>

namespace bancada
{

qint64 MemoriaEmUso()
{
    const struct mallinfo2 m = mallinfo2();
    return qint64(m.uordblks) + qint64(m.hblkhd);
}

qint64 MemoriaMapeada()
{
    QFile arquivo(QStringLiteral("/proc/self/statm"));
    const bool aberto = arquivo.open(QIODevice::ReadOnly);
    const QList<QByteArray> paginas = arquivo.readLine().simplified().split(' ');
    if (!aberto || paginas.size() < 6)
        throw std::runtime_error("the system does not tell this process's memory");
    const struct mallinfo2 m = mallinfo2();
    return paginas[5].toLongLong() * sysconf(_SC_PAGESIZE) - qint64(m.arena) - qint64(m.hblkhd);
}

} // namespace bancada
