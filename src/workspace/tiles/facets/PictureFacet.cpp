#include "workspace/tiles/facets/PictureFacet.h"

#include "workspace/BrandWorkspace.h"

namespace tarnloft {

QString PictureFacet::path() const {
  const auto asset = TileFacts::picture(item());
  return asset ? workspace().assetPath(*asset) : QString();
}

QString PictureFacet::failureHelp() const {
  if (workspace().isPlain()) return QStringLiteral("The brand is shown without its pictures.");
  const auto name = TileFacts::pictureName(item());
  if (!name) {
    return QStringLiteral("Couldn't load this image — the file may be corrupt. Re-import it.");
  }
  return QStringLiteral("Couldn't load “%1” — the file may be corrupt. Re-import it.").arg(*name);
}

}  // namespace tarnloft
