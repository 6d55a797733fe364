#include "sheets/editors/ItemEditorSheet.h"

namespace tarnloft {
namespace {

std::unique_ptr<ItemEditor> editorOf(ItemBinding& item, const ColorEditor::Sampler& sampler) {
  using Editor = std::unique_ptr<ItemEditor>;
  return std::visit(
      Overloaded{
          [&](const ColorPayload&) -> Editor {
            return std::make_unique<ColorEditor>(item, sampler);
          },
          [&](const GradientPayload&) -> Editor { return std::make_unique<GradientEditor>(item); },
          [&](const FontPayload&) -> Editor { return std::make_unique<FontEditor>(item); },
          [&](const CodePayload&) -> Editor { return std::make_unique<CodeEditor>(item); },
          [](const auto&) -> Editor { return nullptr; }},
      item.item().payload);
}

}  // namespace

ItemEditorSheet::ItemEditorSheet(std::unique_ptr<ItemBinding> item, QList<QColor> swatches,
                                 const ColorEditor::Sampler& sampler)
    : item_(std::move(item)), swatches_(std::move(swatches)), editor_(editorOf(*item_, sampler)) {
  connect(item_.get(), &ItemBinding::gone, this, &SheetModel::finished);
}

QString ItemEditorSheet::title() const {
  if (color()) return QStringLiteral("Edit Color");
  if (gradient()) return QStringLiteral("Edit Gradient");
  if (font()) return QStringLiteral("Edit Type");
  if (code()) return QStringLiteral("Edit Code Snippet");
  return QStringLiteral("Edit");
}

}  // namespace tarnloft
