#include "model/FileName.h"

namespace tarnloft {
namespace {

// Where the dot in front of the extension stands, or the end.
template <class Character>
size_t extensionDot(std::basic_string_view<Character> path) {
  constexpr size_t none = path.npos;
  const size_t slash = path.rfind(Character('/')), dot = path.rfind(Character('.'));
  const size_t nameAt = slash == none ? 0 : slash + 1;
  return dot != none && dot > nameAt && dot + 1 < path.size() ? dot : path.size();
}

qsizetype extensionDot(const QString& path) {
  return qsizetype(extensionDot(std::u16string_view(QStringView(path).utf16(), path.size())));
}

}  // namespace

QString pathExtension(const QString& path) { return path.mid(extensionDot(path) + 1); }

QString lastPathComponent(const QString& path) {
  qsizetype end = path.size();
  while (end > 0 && path.at(end - 1) == QLatin1Char('/')) --end;
  const QString trimmed = path.left(end);
  return trimmed.mid(trimmed.lastIndexOf(QLatin1Char('/')) + 1);
}

bool isPlainFileName(const QString& name) {
  return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
         !name.contains(QLatin1Char('/')) && !name.contains(QChar(u'\0'));
}

QString withoutPathExtension(const QString& path) { return path.left(extensionDot(path)); }

std::string_view withoutPathExtension(std::string_view utf8) {
  return utf8.substr(0, extensionDot(utf8));
}

}  // namespace tarnloft
