#include "platform/desktop/window/DesktopPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

namespace tarnloft {

void DesktopPasteboard::setText(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
}

void DesktopPasteboard::setForms(const QList<PasteboardForm>& forms) {
  auto data = std::make_unique<QMimeData>();
  for (const PasteboardForm& form : forms) data->setData(form.mimeType, form.bytes);
  QGuiApplication::clipboard()->setMimeData(data.release());
}

}  // namespace tarnloft
