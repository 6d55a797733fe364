#include "sheets/editors/CodeEditor.h"

namespace tarnloft {

QString CodeEditor::language() const { return valueOf<CodePayload>().language; }

QString CodeEditor::name() const { return shown(valueOf<CodePayload>().name); }

QString CodeEditor::snippet() const { return valueOf<CodePayload>().snippet; }

void CodeEditor::setLanguage(const QString& language) {
  changeValue<CodePayload>([&](CodeValue& value) { value.language = language; });
}

void CodeEditor::setName(const QString& name) {
  changeValue<CodePayload>([&](CodeValue& value) { value.name = stored(name); });
}

void CodeEditor::setSnippet(const QString& snippet) {
  changeValue<CodePayload>([&](CodeValue& value) { value.snippet = snippet; });
}

}  // namespace tarnloft
