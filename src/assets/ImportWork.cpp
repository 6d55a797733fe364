#include "assets/ImportWork.h"

#include "model/ShownText.h"

#include <QFileInfo>

namespace tarnloft {

void ImportWork::begin(const QStringList& names) {
  if (!told_ || names.isEmpty()) return;
  constexpr int mostInName = 60;
  told_->begin(progress_,
               names.size() == 1
                   ? QStringLiteral("Adding “%1”…").arg(shownText(names.first(), mostInName))
                   : QStringLiteral("Adding %1 files…").arg(names.size()));
}

void ImportWork::measure(const QString& path, QThreadPool& workers) const {
  constexpr int aheadOfCopies = 1;
  workers.start([progress = progress_, path] { progress->expect(QFileInfo(path).size()); },
                aheadOfCopies);
}

void ImportWork::end() {
  if (told_) told_->end(progress_);
}

}  // namespace tarnloft
