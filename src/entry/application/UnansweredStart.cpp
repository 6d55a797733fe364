#include "entry/application/UnansweredStart.h"

#include "controls/theme/Theme.h"
#include "library/LibraryPreferences.h"
#include "platform/desktop/system/IniPreferences.h"
#include "platform/desktop/system/Syslog.h"
#include "platform/desktop/window/DesktopAppearance.h"

#include <QQmlComponent>

namespace tarnloft {
namespace {

using Start = RunningInstance::Start;

AppearanceOverride chosenAppearance() {
  Syslog log;
  IniPreferences preferences(log);
  switch (LibraryPreferences(preferences).appearanceMode()) {
    case AppearanceMode::light: return AppearanceOverride::light;
    case AppearanceMode::dark: return AppearanceOverride::dark;
    case AppearanceMode::system: break;
  }
  return AppearanceOverride::none;
}

const QVariantMap texts{
    {QStringLiteral("title"), QStringLiteral("Tarn Loft doesn't answer")},
    {QStringLiteral("heading"), QStringLiteral("Tarn Loft runs already, but doesn't answer.")},
    {QStringLiteral("message"),
     QStringLiteral("It may be busy and answer in a moment. If you end it, changes of the last "
                    "moment may be lost.")},
    {QStringLiteral("confirmText"), QStringLiteral("End It")}};

}  // namespace

UnansweredStart::UnansweredStart(RunningInstance& start) : other_(start) {
  connect(&other_, &UnansweringInstance::settled, this, &UnansweredStart::finish);
  connect(&other_, &UnansweringInstance::endFailed, this, &UnansweredStart::tellFailure);
}

Start UnansweredStart::ask() {
  Theme& theme = Theme::of(engine_);
  DesktopAppearance appearance;
  appearance.setOverride(chosenAppearance());
  const auto follow = [&] { theme.setDark(appearance.isDark()); };
  follow();
  connect(&appearance, &DesktopAppearance::darkChanged, this, follow);

  QQmlComponent component(
      &engine_,
      QUrl(QStringLiteral("qrc:/qt-project.org/imports/TarnLoft/Controls/AlertWindow.qml")));
  window_.reset(component.createWithInitialProperties(texts));
  if (!window_) {
    qCritical("%s", qPrintable(component.errorString()));
    return Start::noAnswer;
  }
  connect(window_.get(), SIGNAL(confirmed()), this, SLOT(end()));
  connect(window_.get(), SIGNAL(dismissed()), this, SLOT(dismiss()));
  window_->setProperty("visible", true);
  const auto start = Start(loop_.exec());
  window_.reset();
  return start;
}

void UnansweredStart::end() {
  window_->setProperty("busy", true);
  other_.end();
}

void UnansweredStart::dismiss() { finish(Start::noAnswer); }

void UnansweredStart::tellFailure() {
  window_->setProperty("busy", false);
  window_->setProperty("confirmText", QString());
  window_->setProperty("cancelText", QStringLiteral("OK"));
  window_->setProperty("heading", QStringLiteral("Tarn Loft can't be ended."));
  window_->setProperty("message",
                       QStringLiteral("Perhaps a disk that it uses doesn't answer. Try again "
                                      "later, or log out and in."));
}

void UnansweredStart::finish(Start start) { loop_.exit(int(start)); }

}  // namespace tarnloft
