#include "sheets/SheetViews.h"

#include "controls/sheets/SheetModel.h"

#include <utility>

namespace tarnloft {

void SheetViews::load(QQmlEngine& engine) {
  if (!views_.empty()) return;
  for (const auto& [module, name] : {std::pair("Sheets", "ItemEditorSheetView"),
                                     {"Controls", "NameSheetView"},
                                     {"Sheets", "UsageNotesSheetView"},
                                     {"Sheets", "LogoSetSheetView"},
                                     {"Sheets", "ExportImageSheetView"},
                                     {"Sheets", "EmblemPickerView"},
                                     {"Sheets", "AccentColorSheetView"},
                                     {"Sheets", "VersionHistorySheetView"}}) {
    views_.push_back(std::make_unique<QQmlComponent>(
        &engine, QUrl(SheetModel::viewURL(module, name)), QQmlComponent::Asynchronous));
  }
}

}  // namespace tarnloft
