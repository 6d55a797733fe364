#pragma once

#include "platform/ContentTypes.h"

#include <QMimeDatabase>

namespace tarnloft {

// The desktop's shared table of MIME types; a table built into the toolkit where there is none.
class MimeContentTypes : public ContentTypes {
 public:
  QString typeOfFile(const QString& path) const override;
  QString typeOfExtension(const QString& extension) const override;
  bool conforms(const QString& mimeType, ContentClass contentClass) const override;

 private:
  QMimeDatabase database_;
};

}  // namespace tarnloft
