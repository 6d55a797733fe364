#pragma once

#include "platform/ContentTypes.h"
#include "platform/DroppedThing.h"
#include "platform/Fonts.h"

#include <QFileInfo>
#include <QHash>
#include <QMutex>

namespace tarnloft {

// A dropped thing whose answers come at once, or when the test says so.
class FakeThing : public DroppedThing {
 public:
  std::optional<QString> path;
  QHash<QString, std::optional<QByteArray>> data;  // by type
  QString name;
  bool isLate = false;
  QList<QString> loaded;  // the types that were asked for

  static std::shared_ptr<FakeThing> file(const QString& path) {
    auto thing = std::make_shared<FakeThing>();
    thing->path = path;
    return thing;
  }
  static std::shared_ptr<FakeThing> of(const QString& type, const std::optional<QByteArray>& bytes,
                                       const QString& name = QString()) {
    auto thing = std::make_shared<FakeThing>();
    thing->data[type] = bytes;
    thing->name = name;
    return thing;
  }
  // Gives the answers that are due.
  void answer() {
    for (const auto& due : std::exchange(due_, {})) due();
  }

  bool conforms(const QString& type) const override {
    return type == DropType::fileURL ? path.has_value() : data.contains(type);
  }
  void loadURL(const std::function<void(std::optional<QString>)>& done) override {
    loaded << DropType::fileURL;
    const bool isReadable = path && !path->isEmpty();
    later([done, result = isReadable ? path : std::nullopt] { done(result); });
  }
  void loadData(const QString& type,
                const std::function<void(std::optional<QByteArray>)>& done) override {
    loaded << type;
    later([done, result = data.value(type)] { done(result); });
  }
  QString suggestedName() const override { return name; }

 private:
  void later(const std::function<void()>& answer) { isLate ? due_.append(answer) : answer(); }
  QList<std::function<void()>> due_;
};

// Tells types by the extension, as far as the test says.
class FakeTypes : public ContentTypes {
 public:
  QHash<QString, QString> types{{"png", "image/png"},     {"jpg", "image/jpeg"},
                                {"svg", "image/svg+xml"}, {"mp4", "video/mp4"},
                                {"ttf", "font/ttf"},      {"pdf", "application/pdf"},
                                {"txt", "text/plain"}};
  QString typeOfFile(const QString& path) const override {
    return types.value(QFileInfo(path).suffix());
  }
  QString typeOfExtension(const QString& extension) const override {
    return types.value(extension);
  }
  bool conforms(const QString& type, ContentClass contentClass) const override {
    switch (contentClass) {
      case ContentClass::image: return type.startsWith("image/");
      case ContentClass::movie: return type.startsWith("video/") && type != "video/raw";
      case ContentClass::video: return type.startsWith("video/");
      case ContentClass::font: return type.startsWith("font/");
      case ContentClass::data: return !type.isEmpty();
    }
    return false;
  }
};

// A file's content is what it is called: "Family" or "Family:Style"; an empty one is no font.
class FakeFonts : public Fonts {
 public:
  QStringList registered;
  std::optional<FontNames> names(const QString& path) override {
    QFile file(path);
    const QStringList words = file.open(QIODevice::ReadOnly)
                                  ? QString::fromUtf8(file.readAll()).split(':')
                                  : QStringList{QString()};
    if (words.first().isEmpty()) return std::nullopt;
    return FontNames{words.first(), words.size() > 1 ? std::optional(words.at(1)) : std::nullopt};
  }
  void registerForProcess(const QString& path) override {
    const QMutexLocker lock(&mutex_);
    registered << path;
  }

 private:
  QMutex mutex_;
};

}  // namespace tarnloft
