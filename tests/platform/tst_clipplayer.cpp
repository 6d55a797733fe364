#include "platform/desktop/clips/player/LibavClipPlayers.h"
#include "platform/desktop/clips/player/PulseSound.h"
#include "platform/desktop/decoding/CagedVideos.h"
#include "testing/TestServices.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <cmath>

using namespace tarnloft;

namespace {

using namespace std::chrono_literals;

CagedVideos videos() {
  static const auto decoders =
      std::make_shared<decoding::DecoderPool>(QStringLiteral(DECODER_PROGRAM));
  return CagedVideos(decoders);
}

const QString fixtures = QStringLiteral(VIDEO_FIXTURES "/");

constexpr auto patience = 20s;  // a machine may be busy with other things

// A server whose clock goes as fast as the test wants, and that remembers what it was given.
struct FakeSound : SoundOutputs {
  double speed = 1;
  bool answers = true;
  std::mutex mutex;
  std::vector<float> given;

  struct Output : SoundOutput {
    FakeSound& sound;
    QElapsedTimer running;
    double played = 0, written = 0;
    explicit Output(FakeSound& of) : sound(of) {}
    double now() const {
      return std::min(
          written,
          played + (running.isValid() ? double(running.nsecsElapsed()) * 1e-9 * sound.speed : 0));
    }
    State turn() override { return sound.answers ? State::ready : State::opening; }
    int room() const override { return std::max(0, int((0.2 - (written - now())) * rate)); }
    void write(const float* samples, int frames) override {
      const std::lock_guard lock(sound.mutex);
      sound.given.insert(sound.given.end(), samples, samples + ptrdiff_t(frames) * channels);
      written += double(frames) / rate;
    }
    void setRunning(bool runs) override {
      played = now();
      runs ? running.start() : running.invalidate();
    }
    void clear() override { played = written = 0; }
    std::optional<double> unheard() const override { return written - now(); }
  };
  std::unique_ptr<SoundOutput> open() override { return std::make_unique<Output>(*this); }

  float loudest() {
    const std::lock_guard lock(mutex);
    float most = 0;
    for (const float each : given) most = std::max(most, std::abs(each));
    return most;
  }
  double seconds() {
    const std::lock_guard lock(mutex);
    return double(given.size()) / SoundOutput::channels / SoundOutput::rate;
  }
};

struct Playing {
  LibavClipPlayers players;
  std::atomic<int> news = 0;
  std::unique_ptr<ClipPlayer> player;

  explicit Playing(const ClipSource& source, SoundOutputs* sounds = nullptr) : players(sounds) {
    player = players.open(source, [this] { ++news; });
  }
  explicit Playing(const char* name, SoundOutputs* sounds = nullptr)
      : Playing(ClipSource{fixtures + QLatin1String(name)}, sounds) {}

  ClipStatus status() const { return player->status(); }
  template <class Condition>
  bool await(Condition condition) {
    return QTest::qWaitFor([&] { return condition(status()); }, int(patience / 1ms));
  }
  bool awaitPicture() {
    return await([](const auto& status) { return status.pictures > 0; });
  }
  // At that moment.
  QImage pictureAt(double seconds) {
    const int before = status().pictures;
    player->seek(seconds);
    const bool came =
        await([before](const ClipStatus& status) { return status.pictures > before; });
    return came ? player->picture() : QImage();
  }
  bool awaitEnd() {
    return await([](const ClipStatus& status) { return !status.isPlaying; });
  }
  bool awaitBreak() {
    return await([](const auto& status) { return status.state == ClipStatus::State::broken; });
  }
};

int threads() {
  return int(QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
}

// Posters come with the transparency multiplied in.
QImage inPostersForm(const QImage& picture) {
  return picture.hasAlphaChannel() ? picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                                   : picture;
}

QImage posterAt(const char* name, double seconds) {
  return videos().frame(fixtures + QLatin1String(name), seconds, 1920).value_or(QImage());
}

}  // namespace

class TestClipPlayer : public QObject {
  Q_OBJECT

 private slots:
  // In any order, whatever the container can jump to.
  void showsAtEachMomentWhatPostersShow() {
    for (const char* name :
         {"h264.mp4", "h264.ts", "h264.flv", "hevc10.mov", "animation.mov", "mjpeg.avi", "vp9.webm",
          "no-duration.webm", "wmv2.wmv", "one-frame.mp4", "turned90.mp4", "perceptual.mp4",
          "glass.mov", "late-picture.mp4", "cover-and-clip.mkv", "tone.mp4"}) {
      Playing playing(name);
      QVERIFY2(playing.awaitPicture(), name);
      QCOMPARE(inPostersForm(playing.player->picture()), posterAt(name, 0));
      for (const double moment : {0.35, 0.0, 0.1, 0.25, 5.0, 0.15, 2.95, 1.95, 2.0}) {
        const double known = playing.status().duration;
        const double asked = known > 0 ? std::min(moment, known) : moment;
        const QImage shown = inPostersForm(playing.pictureAt(moment));
        const QImage expected = posterAt(name, asked);
        QVERIFY2(!shown.isNull() && shown == expected,
                 qPrintable(QString("%1 at %2").arg(name).arg(moment)));
      }
      QVERIFY(!playing.status().isPlaying);
    }
  }

  void fitsItsRoomUndistorted() {
    Playing playing("turned90.mp4");
    playing.player->setRoom({200, 100});
    QVERIFY(playing.await([&](const auto&) { return playing.player->picture().height() == 100; }));
    QCOMPARE(playing.player->picture().size(), QSize(75, 100));  // of 48 by 64
    playing.player->setRoom({20, 100});
    QVERIFY(playing.await([&](const auto&) { return playing.player->picture().width() == 20; }));
    QCOMPARE(playing.player->picture().height(), 27);
  }

  void playsToItsEndAndThenAnew() {
    for (const auto& [name, end] :
         {std::pair("tone.mp4", 3.0), {"no-duration.webm", 0.4}, {"sound-with-cover.m4a", 0.5}}) {
      Playing playing(name);
      QElapsedTimer time;
      time.start();
      playing.player->play();
      QVERIFY(playing.status().isPlaying);
      QVERIFY2(playing.awaitEnd(), name);
      QVERIFY(double(time.elapsed()) >= 1000 * end - 50);
      QVERIFY2(std::abs(playing.status().position - end) < 0.2, name);
      QCOMPARE(playing.status().duration, playing.status().position);
      QCOMPARE(playing.status().hasPictures, !QString(name).contains("m4a"));
      QCOMPARE(inPostersForm(playing.player->picture()), posterAt(name, end));
      QVERIFY(playing.news > 3);
      playing.player->play();
      QVERIFY(playing.status().isPlaying && playing.status().position < end / 2);
      QVERIFY2(playing.awaitEnd(), name);
    }
  }

  void pausesAndStepsByPictures() {
    Playing playing("tone.mp4");
    playing.player->play();
    QVERIFY(playing.await([](const auto& status) { return status.position > 0.3; }));
    playing.player->pause();
    QTest::qWait(50);
    const ClipStatus paused = playing.status();
    QTest::qWait(300);
    QCOMPARE(playing.status().position, paused.position);
    QCOMPARE(playing.status().pictures, paused.pictures);
    playing.pictureAt(1.05);
    using enum ClipPlayer::Step;
    for (const auto& [step, shown] :
         {std::pair(forth, 1.15), {forth, 1.25}, {back, 1.15}, {back, 1.05}, {back, 0.95}}) {
      const int before = playing.status().pictures;
      playing.player->step(step);
      QVERIFY(playing.await([&](const auto& status) { return status.pictures > before; }));
      QCOMPARE(playing.player->picture(), posterAt("tone.mp4", shown));
    }
    playing.player->play();
    QVERIFY(playing.awaitEnd());
  }

  void soundLeadsTheClock() {
    FakeSound sound;
    sound.speed = 0.5;
    Playing playing("tone.mp4", &sound);
    QElapsedTimer time;
    playing.player->seek(1.5);
    playing.player->play();
    time.start();
    QVERIFY(playing.await([](const auto& status) { return status.position > 2.2; }));
    QVERIFY2(time.elapsed() > 1100, qPrintable(QString::number(time.elapsed())));  // not 0.7 s
    QVERIFY(playing.awaitEnd());
    QVERIFY2(time.elapsed() > 2500, qPrintable(QString::number(time.elapsed())));  // not 1.5 s
    QVERIFY(std::abs(sound.seconds() - 1.5) < 0.2);
    QVERIFY(sound.loudest() > 0.05F);
    sound.given.clear();
    sound.speed = 4;
    playing.player->setVolume(0);
    playing.player->play();
    QVERIFY(playing.awaitEnd());
    QVERIFY(std::abs(sound.seconds() - 3) < 0.2);
    QCOMPARE(sound.loudest(), 0.0F);
  }

  // No server, one that never answers, and one whose sound nobody hears.
  void playsInSilenceWhereNothingTakesSound() {
    qputenv("PULSE_SERVER", "unix:/nowhere/at-all");
    PulseSounds none;
    FakeSound mute, stuck;
    mute.answers = false;
    stuck.speed = 0;
    for (SoundOutputs* const sounds : QList<SoundOutputs*>{&none, &mute, &stuck}) {
      Playing playing("tone.mp4", sounds);
      playing.player->seek(1.9);
      playing.player->play();
      QVERIFY(playing.awaitEnd());
      QCOMPARE(playing.player->picture(), posterAt("tone.mp4", 3));
    }
  }

  void tellsOfABrokenClip() {
    const TestServices disk;
    const auto made = [&](const char* name, const QByteArray& content) {
      writeFile(disk.path(name), content);
      return ClipSource{disk.path(name)};
    };
    const QByteArray whole = contentOf(fixtures + "tone.mp4");
    QByteArray blank = whole;  // its tables are there, and none of its pictures
    const qsizetype media = blank.indexOf("mdat") + 4;
    std::fill(blank.begin() + media, blank.end(), '\0');
    for (const ClipSource& source : {made("text.mp4", "no clip"), made("empty.mp4", ""),
                                     made("blank.mp4", blank), ClipSource{disk.path("missing.mp4")},
                                     ClipSource{fixtures + "tone.mp4", [] { return false; }}}) {
      Playing playing(source);
      playing.player->play();
      QVERIFY2(playing.awaitBreak(), qPrintable(source.path));
      QVERIFY(!playing.status().isPlaying);
      QCOMPARE(playing.status().pictures, 0);
    }
    Playing cut(made("cut.mp4", whole.left(media + (whole.size() - media) / 2)));
    cut.player->play();
    QVERIFY(cut.await([](const auto& status) { return status.pictures > 5; }));
    QVERIFY(cut.awaitBreak());
    QVERIFY(cut.status().position > 0.5 && cut.status().position < 2.5);
    QCOMPARE(cut.pictureAt(0.5), posterAt("tone.mp4", 0.5));  // the part that is whole
    QCOMPARE(cut.status().state, ClipStatus::State::open);
  }

  // While it plays, while it opens, and while a disk holds it.
  void leavesNothingBehind() {
    const int before = threads();
    QSemaphore disk;
    LibavClipPlayers players(nullptr);
    for (const int wait : {0, 5, 50, 300}) {
      std::atomic<int> news = 0;
      auto player = players.open({fixtures + "tone.mp4"}, [&] { ++news; });
      player->play();
      QTest::qWait(wait);
      player.reset();
      const int told = news;
      QVERIFY(players.finish(patience));
      QCOMPARE(news, told);
    }
    QTRY_COMPARE(threads(), before);
    auto held = players.open({fixtures + "tone.mp4",
                              [&] {
                                disk.acquire();
                                return true;
                              }},
                             [] {});
    held->play();
    QTRY_VERIFY(held->status().isWaiting);
    held.reset();
    QVERIFY(!players.finish(50ms));
    disk.release();
    QVERIFY(players.finish(patience));
    QTRY_COMPARE(threads(), before);
  }
};

QTEST_GUILESS_MAIN(TestClipPlayer)
#include "tst_clipplayer.moc"
