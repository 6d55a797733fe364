#pragma once

#include "model/Error.h"
#include "model/RecordFields.h"

#include <QByteArray>

namespace tarnloft {

// Bytes that the reader wants to be allocated behind a document. A buffer with less is copied.
inline constexpr qsizetype jsonPadding = 64;

// Reads one JSON document as a record. The error's sentence names the place in the document and the
// reason, such as "sections[0].items[2].id: missing". Strict: a missing or mistyped required key,
// an unknown enumeration value, a payload without exactly one known key, a date with fractional
// seconds, invalid UTF-8 and a byte-order mark all fail. Unknown keys are ignored, of a repeated
// key the last counts, and `1.0` is an integer. Any thread. For all records of `RecordFields`, and
// for a record of another folder in whose source TARNLOFT_CODED makes it.
template <Record R>
Result<R> decode(const QByteArray& json);

// A record, and whether its document held keys that the record can't keep.
template <Record R>
struct Decoded {
  R record{};
  bool hasUnknownKeys = false;
};
template <Record R>
Result<Decoded<R>> decodeNoting(const QByteArray& json);

// The record in the exact layout of the files on disk. Fails on a number that is not finite.
template <Record R>
Result<QByteArray> encode(const R& record);

}  // namespace tarnloft
