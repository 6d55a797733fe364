#include "entry/Main.h"

#include "entry/CommandLine.h"
#include "entry/LogoSeeding.h"
#include "entry/SupportFolder.h"
#include "entry/selftest/SelfTest.h"
#include "model/ItemPayload.h"
#include "publish/BrandPageExporter.h"

namespace tarnloft {
namespace {

bool exportPage(const PageExportMode& mode, const DocumentServices& services) {
  const auto document = BrandDocument::load(services, mode.packageURL);
  if (!document) return false;
  return BrandPageExporter::writeFile(*document, services.files, mode.outputPath).has_value();
}

bool seedLogo(const LogoSeedingMode& mode, const DocumentServices& services) {
  const auto document = BrandDocument::load(services, mode.packageURL);
  return document && LogoSeeding::seed(*document);
}

int status(bool success) { return success ? 0 : 1; }

}  // namespace

int Main::run(const QStringList& arguments, const DocumentServices& services,
              const StartApplication& startApplication) {
  SupportFolder::migrateIfNeeded(services.files, services.log);
  return std::visit(
      Overloaded{
          [&](const SelfTestMode&) { return status(SelfTest::run(services)); },
          [&](const PageExportMode& mode) { return status(exportPage(mode, services)); },
          [&](const LogoSeedingMode& mode) { return status(seedLogo(mode, services)); },
          [&](const ApplicationMode&) { return startApplication(); },
      },
      modeOf(arguments));
}

}  // namespace tarnloft
