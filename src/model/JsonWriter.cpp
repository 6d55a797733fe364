#include "model/JsonWriter.h"

#include "model/Uuid.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace tarnloft {
namespace {

// What can be copied into a string as one byte.
constexpr bool isPlain(char16_t unit) {
  return unit >= 0x20 && unit < 0x80 && unit != u'"' && unit != u'\\' && unit != u'/';
}

// The letter of a two-character escape, or 0.
constexpr char shortEscape(char16_t unit) {
  switch (unit) {
    case u'"': return '"';
    case u'\\': return '\\';
    case u'/': return '/';
    case u'\b': return 'b';
    case u'\f': return 'f';
    case u'\n': return 'n';
    case u'\r': return 'r';
    case u'\t': return 't';
    default: return 0;
  }
}

constexpr qsizetype longestEscape = 6;

}  // namespace

JsonWriter::JsonWriter() : utf8_(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless) {}

char* JsonWriter::room(qsizetype bytes) {
  if (size_ + bytes > bytes_.size()) bytes_.resize(std::max(bytes_.size() * 2, size_ + bytes + 4096));
  return bytes_.data() + size_;
}

void JsonWriter::raw(std::string_view text) {
  char* const out = room(qsizetype(text.size()));
  std::memcpy(out, text.data(), text.size());
  size_ += qsizetype(text.size());
}

void JsonWriter::quotedAscii(std::string_view text) {
  char* const out = room(qsizetype(text.size()) + 2);
  out[0] = '"';
  std::memcpy(out + 1, text.data(), text.size());
  out[text.size() + 1] = '"';
  size_ += qsizetype(text.size()) + 2;
}

void JsonWriter::lineFeed() {
  const qsizetype blanks = 2 * depth_;
  char* const out = room(blanks + 1);
  out[0] = '\n';
  std::memset(out + 1, ' ', size_t(blanks));
  size_ += blanks + 1;
}

void JsonWriter::nextLine() {
  if (!first_) raw(",");
  first_ = false;
  lineFeed();
}

void JsonWriter::open(char bracket) {
  raw({&bracket, 1});
  ++depth_;
  first_ = true;
}

void JsonWriter::close(char bracket) {
  --depth_;
  if (first_) raw("\n");  // an empty list keeps an empty line
  lineFeed();
  raw({&bracket, 1});
  first_ = false;
}

char* JsonWriter::escaped(char* out, char16_t unit) const {
  constexpr char digits[] = "0123456789abcdef";
  *out++ = '\\';
  if (const char letter = shortEscape(unit)) {
    *out++ = letter;
    return out;
  }
  std::memcpy(out, "u00", 3);
  out[3] = digits[unit >> 4];
  out[4] = digits[unit & 15];
  return out + 5;
}

void JsonWriter::value(const QString& text) {
  char* out = room(text.size() * longestEscape + 2);
  *out++ = '"';
  const char16_t* unit = reinterpret_cast<const char16_t*>(text.utf16());
  const char16_t* const end = unit + text.size();
  while (unit != end) {
    if (isPlain(*unit)) {
      *out++ = static_cast<char>(*unit++);
    } else if (*unit < 0x80) {
      out = escaped(out, *unit++);
    } else {
      const char16_t* const run = unit;
      while (unit != end && *unit >= 0x80) ++unit;
      out = utf8_.appendToBuffer(out, QStringView(run, unit));
    }
  }
  *out++ = '"';
  advanceTo(out);
}

void JsonWriter::value(const QUuid& id) {
  const UuidText text = canonicalText(id);
  quotedAscii({text.data(), text.size()});
}

void JsonWriter::value(Timestamp moment) { quotedAscii(iso8601(moment)); }

void JsonWriter::value(qint64 number) {
  char* const out = room(24);
  advanceTo(std::to_chars(out, out + 24, number).ptr);
}

void JsonWriter::value(double number) {
  if (!std::isfinite(number)) {
    finite_ = false;
    number = 0;
  }
  // Readers take "-0" for the integer 0, so a negative zero would not survive another round.
  if (number == 0) number = 0;
  const double size = std::fabs(number);
  const bool fixed = size == 0 || (size >= 1e-4 && size < 1e16);
  char* const out = room(32);
  advanceTo(std::to_chars(out, out + 32, number,
                          fixed ? std::chars_format::fixed : std::chars_format::scientific)
                .ptr);
}

void JsonWriter::value(const ItemPayload& payload) {
  open('{');
  std::visit([&](const auto& content) { member(payloadKeys[payload.index()], content); }, payload);
  close('}');
}

Result<QByteArray> JsonWriter::finish() {
  if (!finite_) {
    return failure(ErrorKind::unwritable,
                   QStringLiteral("a number that is not finite can't be written"));
  }
  bytes_.resize(size_);
  return std::move(bytes_);
}

}  // namespace tarnloft
