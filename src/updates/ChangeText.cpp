#include "updates/ChangeText.h"

#include <QRegularExpression>
#include <QStringList>

namespace tarnloft {
namespace {

// "name (version) distribution; urgency=medium", perhaps with a mark of the service around it.
const QRegularExpression& heading() {
  static const QRegularExpression form(QStringLiteral(R"(^\S+ \((\S+)\) [^;]*; urgency=\S+)"));
  return form;
}

bool isSignature(const QString& line) { return line.startsWith(QLatin1String(" -- ")); }

}  // namespace

QString readableChanges(const QString& changelog) {
  QStringList lines;
  bool isInList = false;
  for (const QString& line : changelog.split(QLatin1Char('\n'))) {
    const QString text = line.simplified();
    const auto version = heading().match(line);
    if (version.hasMatch()) {
      if (!lines.isEmpty()) lines << QString();
      lines << version.captured(1);
      isInList = true;
    } else if (isInList && (text.isEmpty() || isSignature(line))) {
      continue;
    } else if (isInList && text.startsWith(QLatin1String("* "))) {
      lines << QStringLiteral("• ") + text.mid(2);
    } else if (isInList) {
      lines.last() += QLatin1Char(' ') + text;
    } else {
      lines << line;
    }
  }
  return lines.join(QLatin1Char('\n')).trimmed();
}

}  // namespace tarnloft
