#pragma once

#include <QByteArray>

namespace ficha
{

/*
 * Whether a picture file is whole. The toolkit's decoders fill what a file that was cut short lacks
 * with grey or leave it black, and call that a picture.
 */

/** From its first marker to its last; what comes behind that does not matter. A progressive photo
 * of more than 64 million pixels, which takes gigabytes to decode, is not. */
bool JpegInteiro(const QByteArray &bytes);
/** Its pixels are all there; of a compressed bitmap, its header. */
bool BitmapInteiro(const QByteArray &bytes);
/** Each picture of the icon's list lies within the file. */
bool IconeInteiro(const QByteArray &bytes);

} // namespace ficha
