#include "entry/QuickModes.h"

#include "entry/LogoSeeding.h"
#include "publish/BrandPageExporter.h"

namespace tarnloft {

bool QuickModes::exportPage(const PageExportMode& mode, const DocumentServices& services) {
  const auto document = BrandDocument::load(services, mode.packageURL);
  if (!document) return false;
  Progress untold;
  return BrandPageExporter::writeFile(*document, services.files, mode.outputPath, untold)
      .has_value();
}

bool QuickModes::seedLogo(const LogoSeedingMode& mode, const DocumentServices& services) {
  const auto document = BrandDocument::load(services, mode.packageURL);
  return document && LogoSeeding::seed(*document);
}

}  // namespace tarnloft
