#include "entry/CommandLine.h"

#include <QDir>

#include <algorithm>
#include <optional>

namespace tarnloft {
namespace {

const auto filesMark = QByteArrayLiteral("open:");

// The `count` arguments right behind the option's first occurrence.
std::optional<QStringList> valuesOf(const QString& option, qsizetype count,
                                    const QStringList& arguments) {
  const qsizetype at = arguments.indexOf(option);
  if (at < 0 || arguments.size() - at - 1 < count) return std::nullopt;
  return arguments.sliced(at + 1, count);
}

}  // namespace

Mode modeOf(const QStringList& arguments) {
  if (valuesOf(QStringLiteral("--selftest"), 0, arguments)) return SelfTestMode{};
  if (const auto values = valuesOf(QStringLiteral("--export-page"), 2, arguments)) {
    return PageExportMode{values->at(0), values->at(1)};
  }
  if (const auto values = valuesOf(QStringLiteral("--seed-logo"), 1, arguments)) {
    return LogoSeedingMode{values->at(0)};
  }
  for (const char16_t* const action : actions) {
    const QString name = QString::fromUtf16(action);
    if (arguments.contains(QStringLiteral("--") + name)) return ApplicationMode{name, {}};
  }
  const QStringList values = arguments.mid(1);
  const bool hasOption = std::any_of(values.cbegin(), values.cend(), [](const QString& each) {
    return each.startsWith(QLatin1Char('-'));
  });
  QStringList files;
  if (!hasOption) {
    for (const QString& value : values)
      files << QDir::cleanPath(QDir::current().absoluteFilePath(value));
  }
  return ApplicationMode{{}, files};
}

QByteArray wordOf(const ApplicationMode& asked) {
  if (asked.files.isEmpty()) return asked.action.toLatin1();
  QByteArrayList paths;
  for (const QString& file : asked.files) paths << file.toUtf8().toPercentEncoding();
  return filesMark + paths.join(',');
}

ApplicationMode askedBy(const QByteArray& word) {
  if (!word.startsWith(filesMark)) return {QString::fromLatin1(word), {}};
  QStringList files;
  for (const QByteArray& path : word.sliced(filesMark.size()).split(','))
    files << QString::fromUtf8(QByteArray::fromPercentEncoding(path));
  return {{}, files};
}

}  // namespace tarnloft
