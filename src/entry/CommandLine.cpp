#include "entry/CommandLine.h"

#include <optional>

namespace tarnloft {
namespace {

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
    if (arguments.contains(QStringLiteral("--") + name)) return ApplicationMode{name};
  }
  return ApplicationMode{};
}

}  // namespace tarnloft
