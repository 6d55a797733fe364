#include "model/Utf8.h"

namespace tarnloft {

QString textFromUtf8(std::string_view utf8) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (utf8.substr(0, mark.size()) == mark) {
    return QChar(0xFEFF) + textFromUtf8(utf8.substr(mark.size()));
  }
  return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

void appendUtf8(const QString& text, std::string& utf8) {
  const QByteArray bytes = text.toUtf8();
  utf8.append(bytes.constData(), size_t(bytes.size()));
}

bool isAscii(std::string_view utf8) {
  unsigned char all = 0;  // without a branch for each byte, which is what makes it fast
  for (const char c : utf8) all |= static_cast<unsigned char>(c);
  return all < 0x80;
}

}  // namespace tarnloft
