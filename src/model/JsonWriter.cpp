#include "model/JsonWriter.h"

#include "model/Uuid.h"

#include <algorithm>
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

JsonWriter::JsonWriter()
    : bytes_(4096, Qt::Uninitialized),
      end_(bytes_.data()),
      limit_(bytes_.constData() + bytes_.size()),
      utf8_(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless) {}

void JsonWriter::grow(qsizetype bytes) {
  const qsizetype written = end_ - bytes_.constData();
  bytes_.resize(std::max(2 * bytes_.size(), written + bytes));
  end_ = bytes_.data() + written;
  limit_ = bytes_.constData() + bytes_.size();
}

char* JsonWriter::lineFeed(char* out) {
  *out++ = '\n';
  std::memset(out, ' ', size_t(2 * depth_));
  return out + 2 * depth_;
}

// What stands between two members or elements, and in front of the first.
char* JsonWriter::separator(char* out) {
  if (!first_) *out++ = ',';
  first_ = false;
  return lineFeed(out);
}

void JsonWriter::nextLine() { end_ = separator(room(2 * depth_ + 2)); }

void JsonWriter::startMember(std::string_view key) {
  char* out = separator(room(2 * depth_ + 7 + qsizetype(key.size())));
  *out++ = '"';
  out = std::copy(key.begin(), key.end(), out);
  end_ = std::copy_n("\" : ", 4, out);
}

void JsonWriter::quotedAscii(std::string_view text) {
  char* out = room(qsizetype(text.size()) + 2);
  *out++ = '"';
  out = std::copy(text.begin(), text.end(), out);
  *out++ = '"';
  end_ = out;
}

void JsonWriter::open(char bracket) {
  *room(1) = bracket;
  ++end_;
  ++depth_;
  first_ = true;
}

void JsonWriter::close(char bracket) {
  --depth_;
  char* out = room(2 * depth_ + 3);
  if (first_) *out++ = '\n';  // an empty list keeps an empty line
  out = lineFeed(out);
  *out++ = bracket;
  end_ = out;
  first_ = false;
}

char* JsonWriter::escaped(char* out, char16_t unit) {
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
  end_ = out;
}

void JsonWriter::value(const QUuid& id) {
  const UuidText text = canonicalText(id);
  quotedAscii({text.data(), text.size()});
}

void JsonWriter::value(Timestamp moment) {
  if (!isWritable(moment)) {
    unwritable_ = "a date beyond the years 0 to 9999 can't be written";
    moment = Timestamp();
  }
  quotedAscii(iso8601(moment));
}

void JsonWriter::value(qint64 number) {
  char* const out = room(24);
  end_ = std::to_chars(out, out + 24, number).ptr;
}

void JsonWriter::value(double number) {
  if (!std::isfinite(number)) {
    unwritable_ = "a number that is not finite can't be written";
    number = 0;
  }
  // Readers take "-0" for the integer 0, so a negative zero would not survive another round.
  if (number == 0) number = 0;
  const double size = std::fabs(number);
  const bool fixed = size == 0 || (size >= 1e-4 && size < 1e16);
  char* const out = room(32);
  const auto format = fixed ? std::chars_format::fixed : std::chars_format::scientific;
  end_ = std::to_chars(out, out + 32, number, format).ptr;
}

void JsonWriter::value(const ItemPayload& payload) {
  open('{');
  std::visit([&](const auto& content) { member(payloadKeys[payload.index()], content); }, payload);
  close('}');
}

Result<QByteArray> JsonWriter::finish() {
  if (unwritable_) return failure(ErrorKind::unwritable, QString::fromUtf8(unwritable_));
  bytes_.resize(end_ - bytes_.constData());
  return std::move(bytes_);
}

}  // namespace tarnloft
