#pragma once

#include "controls/sheets/SheetModel.h"
#include "sheets/editors/CodeEditor.h"
#include "sheets/editors/ColorEditor.h"
#include "sheets/editors/FontEditor.h"
#include "sheets/editors/GradientEditor.h"

namespace tarnloft {

// The sheet that edits a colour, a gradient, a font or a piece of code, each change at once. It
// goes with the item. Main thread.
class ItemEditorSheet : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want it")
  Q_PROPERTY(QString title READ title CONSTANT)
  // Colours to pick again.
  Q_PROPERTY(QList<QColor> swatches READ swatches CONSTANT)
  // That of the item's kind; the others are null.
  Q_PROPERTY(tarnloft::ColorEditor* color READ color CONSTANT)
  Q_PROPERTY(tarnloft::GradientEditor* gradient READ gradient CONSTANT)
  Q_PROPERTY(tarnloft::FontEditor* font READ font CONSTANT)
  Q_PROPERTY(tarnloft::CodeEditor* code READ code CONSTANT)

 public:
  // `swatches` are the brand's own colours.
  ItemEditorSheet(std::unique_ptr<ItemBinding> item, QList<QColor> swatches,
                  const ColorEditor::Sampler& sampler);

  QString title() const;
  const QList<QColor>& swatches() const { return swatches_; }
  ColorEditor* color() const { return qobject_cast<ColorEditor*>(editor_.get()); }
  GradientEditor* gradient() const { return qobject_cast<GradientEditor*>(editor_.get()); }
  FontEditor* font() const { return qobject_cast<FontEditor*>(editor_.get()); }
  CodeEditor* code() const { return qobject_cast<CodeEditor*>(editor_.get()); }

  QString view() const override { return viewURL("Sheets", "ItemEditorSheetView"); }

 private:
  const std::unique_ptr<ItemBinding> item_;
  const QList<QColor> swatches_;
  const std::unique_ptr<ItemEditor> editor_;  // null for items of other kinds
};

}  // namespace tarnloft
