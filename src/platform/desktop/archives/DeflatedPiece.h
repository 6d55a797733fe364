#pragma once

#include <QByteArray>

namespace tarnloft::zip {

// A piece of a file as it stands in an archive, with the checksum of what it was made from.
struct DeflatedPiece {
  QByteArray bytes;
  qint64 length = 0;  // of what it was made from
  unsigned long checksum = 0;
};

// Pieces that are deflated one by one, in any order and on any threads, make one stream (RFC 1951)
// when they stand behind each other. `before` is the end of the piece in front, to be referred to.
// No piece's bytes are there if the memory doesn't suffice.
DeflatedPiece deflated(const QByteArray& piece, const QByteArray& before, bool isLast);
DeflatedPiece stored(const QByteArray& piece);

// Of what has that checksum and the piece behind it.
unsigned long checksumBehind(unsigned long before, const DeflatedPiece& piece);

inline constexpr qsizetype reach = 32 * 1024;  // of references to what came before

// Whether a file that holds such samples hardly shrinks.
bool isCompressedAlready(const QByteArray& samples);

}  // namespace tarnloft::zip
