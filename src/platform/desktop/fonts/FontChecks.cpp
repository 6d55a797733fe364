#include "platform/desktop/fonts/FontChecks.h"

#include "platform/desktop/fonts/FontSanitizer.h"

#include <QtEndian>

namespace tarnloft::FontChecks {

using namespace decoding;

namespace {

constexpr DecoderPool::Patience patience{std::chrono::seconds(30), std::chrono::seconds(15)};
constexpr qint64 largestFile = qint64(64) << 20;
constexpr qint64 namesBytes = 64 << 10;

std::unique_ptr<OpenedFile> open(DecoderPool& decoders, const posix::Descriptor& file) {
  return decoders.open(Role::fonts, file, {}, patience);
}

// The faces of what only the decoder can unwrap, not yet sanitized.
QList<QByteArray> unwrapped(DecoderPool& decoders, const posix::OpenFile& file) {
  const qint64 room = 2 * file.info.st_size + namesBytes;
  const auto font = open(decoders, file.file);
  const auto target = font ? SharedMemory::ofSize(room) : std::nullopt;
  const auto product =
      target ? font->make({.action = Action::faces}, *target, font->facts().needs) : std::nullopt;
  QByteArray bytes =
      product ? target->read(qint64(product->bytes)).value_or(QByteArray()) : QByteArray();
  QList<QByteArray> faces;
  qsizetype place = 0;
  while (place + qsizetype(sizeof(quint64)) <= bytes.size()) {
    const auto size = qFromLittleEndian<quint64>(bytes.constData() + place);
    place += sizeof size;
    if (size == 0 || size > quint64(bytes.size() - place)) break;
    faces << bytes.mid(place, qsizetype(size));
    place += qsizetype(size);
  }
  return faces;
}

bool isDrawnWithinBounds(DecoderPool& decoders, const SharedMemory& bytes) {
  const auto font = open(decoders, bytes.descriptor());
  const auto target = font ? SharedMemory::ofSize(1) : std::nullopt;
  return target && font->make({.action = Action::tryOut}, *target, font->facts().needs);
}

// Copied before it is tried, so that what is tried can't change it any more.
void appendSound(QList<QByteArray>& fonts, DecoderPool& decoders, const posix::Descriptor& file,
                 qint64 size) {
  const auto clean = sanitized(decoders, file, size);
  const auto bytes = clean ? clean->read(clean->size()) : std::nullopt;
  if (bytes && isDrawnWithinBounds(decoders, *clean)) fonts << *bytes;
}

}  // namespace

std::optional<FontNames> namesOf(DecoderPool& decoders, const posix::OpenFile& file) {
  const auto font =
      file.info.st_size <= largestFile ? open(decoders, file.file) : std::unique_ptr<OpenedFile>();
  const auto target = font ? SharedMemory::ofSize(namesBytes) : std::nullopt;
  const auto product =
      target ? font->make({.action = Action::names}, *target, font->facts().needs) : std::nullopt;
  const auto bytes = product ? target->read(qint64(product->bytes)) : std::nullopt;
  if (!bytes) return std::nullopt;
  const QList<QByteArray> parts = bytes->split('\0');
  FontNames names{QString::fromUtf8(parts.first()), std::nullopt};
  const QString style = QString::fromUtf8(parts.value(1));
  if (!style.isEmpty()) names.style = style;
  return names.family.isEmpty() ? std::nullopt : std::optional(names);
}

QList<QByteArray> soundFonts(DecoderPool& decoders, const posix::OpenFile& file) {
  QList<QByteArray> fonts;
  if (file.info.st_size > largestFile) return fonts;
  appendSound(fonts, decoders, file.file, file.info.st_size);
  if (!fonts.isEmpty()) return fonts;
  for (const QByteArray& face : unwrapped(decoders, file)) {
    const auto memory = SharedMemory::holding(face);
    if (memory) appendSound(fonts, decoders, memory->descriptor(), face.size());
  }
  return fonts;
}

}  // namespace tarnloft::FontChecks
