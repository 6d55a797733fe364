#pragma once

#include "model/Brand.h"

#include <QRandomGenerator>

namespace tarnloft {

// Values for property tests and benchmarks, the same for the same seed. All nine kinds of item,
// emblems, notes and odd texts take part.
class RandomBrand {
 public:
  explicit RandomBrand(quint32 seed) : random_(seed) {}

  Brand brand(int sections, int itemsEach);
  Section section(int items);
  Item item();
  // The brand behind some of what a user can do to it.
  Brand edited(Brand brand);

  int below(int bound) { return int(random_.bounded(quint32(bound))); }

 private:
  bool chance() { return below(2) == 0; }
  template <class Make>
  auto maybe(Make&& make) -> std::optional<decltype(make())> {
    return chance() ? std::optional(make()) : std::nullopt;
  }
  template <class E>
  E anyOf();
  QUuid id();
  QString text();
  QString hex();
  AssetRef asset();
  Emblem emblem();
  QList<UsageNote> notes();
  ItemPayload payload();
  GradientValue gradient();
  LogoValue logo();
  FontValue font();

  void edit(Brand& brand);

  QRandomGenerator random_;
};

}  // namespace tarnloft
