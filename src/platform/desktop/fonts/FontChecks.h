#pragma once

#include "platform/Fonts.h"
#include "platform/desktop/decoding/DecoderPool.h"

#include <QByteArray>
#include <QList>

// What decoders tell of a foreign font. Any thread; waits for them.
namespace tarnloft::FontChecks {

std::optional<FontNames> namesOf(decoding::DecoderPool& decoders, const posix::OpenFile& file);

// The file's fonts as the toolkit may read them: rewritten by the sanitizer that browsers use, and
// drawn within bounds. None of what didn't stand it.
QList<QByteArray> soundFonts(decoding::DecoderPool& decoders, const posix::OpenFile& file);

}  // namespace tarnloft::FontChecks
