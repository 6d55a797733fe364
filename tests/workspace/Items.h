#pragma once

#include "model/Section.h"

namespace tarnloft {

// Short words for the items that tests are told in.
inline Item colorItem(const QString& name, const QString& hex = "#123456") {
  return Item::create(ColorPayload{{hex, name, std::nullopt}});
}
inline Item imageItem(const QString& name, const QString& file = "mark.png") {
  return Item::create(ImagePayload{{file, "Client " + file}, name});
}
inline Item videoItem(const QString& name, const QString& file = "clip.mp4") {
  return Item::create(VideoPayload{{file, file}, name});
}
inline Item headerItem(const QString& text, int level = 1) {
  return Item::create(HeaderPayload{text, level});
}
inline Item textItem(const QString& body) { return Item::create(TextPayload{body}); }

inline Section sectionOf(const QString& name, std::initializer_list<Item> items) {
  return {QUuid::createUuid(), name, std::nullopt, SharedList<Item>(items)};
}
inline Section colorSection(const QString& name, int count) {
  Section section = Section::create(name);
  for (int i = 0; i < count; ++i) {
    section.items.append(
        colorItem(QString::number(i), QString("#%1").arg(i % 0xffffff, 6, 16, QChar('0'))));
  }
  return section;
}

}  // namespace tarnloft
