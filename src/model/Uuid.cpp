#include "model/Uuid.h"

#include <QtEndian>

#include <cstring>

namespace tarnloft {
namespace {

// Where each of the 16 bytes stands in the text.
constexpr std::array<unsigned char, 16> offsets{0,  2,  4,  6,  9,  11, 14, 16,
                                                19, 21, 24, 26, 28, 30, 32, 34};

constexpr std::array<signed char, 256> digitValues = [] {
  std::array<signed char, 256> values{};
  values.fill(-1);
  for (int i = 0; i < 10; ++i) values[size_t('0' + i)] = static_cast<signed char>(i);
  for (int i = 0; i < 6; ++i) {
    values[size_t('A' + i)] = static_cast<signed char>(10 + i);
    values[size_t('a' + i)] = static_cast<signed char>(10 + i);
  }
  return values;
}();

int digitValue(char c) { return digitValues[static_cast<unsigned char>(c)]; }

}  // namespace

UuidText canonicalText(const QUuid& id) {
  constexpr char digits[] = "0123456789ABCDEF";
  const std::array<uchar, 16> bytes{
      uchar(id.data1 >> 24), uchar(id.data1 >> 16), uchar(id.data1 >> 8), uchar(id.data1),
      uchar(id.data2 >> 8),  uchar(id.data2),       uchar(id.data3 >> 8), uchar(id.data3),
      id.data4[0],           id.data4[1],           id.data4[2],          id.data4[3],
      id.data4[4],           id.data4[5],           id.data4[6],          id.data4[7]};
  UuidText text;
  text.fill('-');
  for (size_t i = 0; i < offsets.size(); ++i) {
    text[offsets[i]] = digits[bytes[i] >> 4];
    text[offsets[i] + 1u] = digits[bytes[i] & 15];
  }
  return text;
}

QString canonicalString(const QUuid& id) {
  const UuidText text = canonicalText(id);
  return QString::fromLatin1(text.data(), qsizetype(text.size()));
}

std::optional<QUuid> uuidFromText(std::string_view text) {
  if (text.size() != std::tuple_size_v<UuidText>) return std::nullopt;
  for (const size_t dash : {8, 13, 18, 23}) {
    if (text[dash] != '-') return std::nullopt;
  }
  // Eight bytes of it as one number; each digit that isn't one sets `bad` below 0.
  int bad = 0;
  const auto half = [&](size_t first) {
    quint64 number = 0;
    for (size_t i = first; i < first + 8; ++i) {
      const int high = digitValue(text[offsets[i]]), low = digitValue(text[offsets[i] + 1u]);
      bad |= high | low;
      number = (number << 8) | quint64((high << 4) | low);
    }
    return number;
  };
  const quint64 front = half(0), back = qToBigEndian(half(8));
  if (bad < 0) return std::nullopt;
  QUuid id;
  id.data1 = uint(front >> 32);
  id.data2 = ushort(front >> 16);
  id.data3 = ushort(front);
  std::memcpy(id.data4, &back, sizeof back);
  return id;
}

}  // namespace tarnloft
