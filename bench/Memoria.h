#pragma once

#include <QtGlobal>

namespace bancada
{

/** Bytes that the allocator of this process has handed out and not got back: what a thing takes is
 * the difference before and after. */
qint64 MemoriaEmUso();

/** Bytes of data of this process that are mapped outside the allocator. */
qint64 MemoriaMapeada();

} // namespace bancada
