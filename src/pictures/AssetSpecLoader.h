#pragma once

#include "pictures/AssetSpecs.h"

#include <QQmlParserStatus>

namespace tarnloft {

// Reads what a file tells of itself, in the background; its end withdraws the request. Nothing is
// kept: each one reads the file anew.
class AssetSpecLoader : public QObject, public QQmlParserStatus {
  Q_OBJECT
  QML_ELEMENT
  Q_INTERFACES(QQmlParserStatus)
  Q_PROPERTY(tarnloft::AssetSpecs* specs MEMBER specs_ NOTIFY wantedChanged REQUIRED)
  Q_PROPERTY(QString path MEMBER path_ NOTIFY wantedChanged)
  Q_PROPERTY(tarnloft::AssetSpecs::Kind kind MEMBER kind_ NOTIFY wantedChanged)
  // "…" until it is there, and where the file tells nothing.
  Q_PROPERTY(QString line READ line NOTIFY lineChanged)

 public:
  explicit AssetSpecLoader(QObject* parent = nullptr);
  ~AssetSpecLoader() override;
  Q_DISABLE_COPY_MOVE(AssetSpecLoader)

  QString line() const { return line_.isEmpty() ? QStringLiteral("…") : line_; }

  void classBegin() override {}
  void componentComplete() override;

 signals:
  void wantedChanged();
  void lineChanged();

 private:
  void load();
  void setLine(const QString& line);

  AssetSpecs* specs_ = nullptr;
  QString path_;
  AssetSpecs::Kind kind_ = AssetSpecs::Kind::Image;
  bool isComplete_ = false;
  QString line_;
  BackgroundWork::TaskPtr task_;
  int request_ = 0;
};

}  // namespace tarnloft
