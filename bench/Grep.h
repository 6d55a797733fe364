#pragma once

#include <QProcess>

#include <cstdio>
#include <cstdlib>

namespace tarnloft {

// ripgrep over the manifests in a folder; stops the benchmark if it fails.
inline void grepManifests(const QString& folder, const QString& query) {
  QProcess rg;
  rg.setStandardOutputFile(QProcess::nullDevice());
  rg.start(QStringLiteral("rg"),
           {QStringLiteral("-i"), QStringLiteral("-F"), QStringLiteral("--no-ignore"),
            QStringLiteral("-g"), QStringLiteral("manifest.json"), query, folder});
  if (rg.waitForFinished(-1) && rg.exitCode() <= 1) return;
  std::fprintf(stderr, "ripgrep failed\n");
  std::exit(1);
}

}  // namespace tarnloft
