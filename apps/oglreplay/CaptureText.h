#ifndef OGLREPLAY_CAPTURETEXT_H
#define OGLREPLAY_CAPTURETEXT_H

#include "oru_ogl/extensionator/CaptureReader.h"

#include <ostream>

namespace Oru
{
namespace OGL
{

/// A capture as text, one record per line: calls as
///
///     12 glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 64, 64, 0, GL_RGBA, GL_UNSIGNED_BYTE, <16384 bytes>)
///
/// with their index, enums by name and pointer data summarised; the other
/// records (frames, windows, client arrays, mapped buffers) as "-- " lines.
class CaptureText
{
public:
    /// Writes every record of the reader from where it is; throws CaptureError
    /// as the reader does, after writing the records before the fault.
    static void write(CaptureReader& reader, std::ostream& out);
    /// One record's line, without the line end.
    static void writeRecord(CaptureRecord const& record, std::ostream& out);
};

} // namespace OGL
} // namespace Oru

#endif
