#pragma once

#include "quickgrab/panel/QuickGrab.h"
#include "workspace/Items.h"
#include "workspace/TestWorkspace.h"

namespace tarnloft {

// What the panel shows of a library on the real disk.
struct TestPanel : TestDesktop {
  std::unique_ptr<MenuBarPrefs> prefs;
  std::unique_ptr<QuickGrab> grab;

  explicit TestPanel(const QList<Section>& sections) {
    library.add("Acme", sections);
    library.add("Empty");
    library.start();
    library.store->select(library.packagePath("Acme"));
    prefs = std::make_unique<MenuBarPrefs>(library.preferences, library.disk.log);
    grab = std::make_unique<QuickGrab>(grabServices());
    grab->setActive(true);
  }
  QuickGrabServices grabServices() {
    return {*library.store, *prefs, pasteboard, thumbnails, library.disk.files,
            drags,          fonts,  workers,    dragThreads};
  }
  // Each thing in sight as "kind name", a header with its count.
  QStringList shown() const {
    QStringList result;
    for (const GrabThing& thing : grab->things()) {
      const bool isHeader =
          thing.kind == GrabKind::BlockHeader || thing.kind == GrabKind::GroupHeader;
      result << QStringLiteral("%1 %2").arg(
          QStringList{"#", "##", "color", "media", "font", "gradient", "code"}.at(thing.kind),
          isHeader ? thing.name + ' ' + thing.detail : thing.name);
      if (thing.backdrop == Backdrop::Dark) result.last() += " on dark";
    }
    return result;
  }
  // The place of the thing of that name.
  int place(const QString& name) const {
    for (const GrabThing& thing : grab->things())
      if (thing.name == name) return thing.place;
    return -1;
  }
};

// A section with something of each kind.
inline Section sectionOfAll() {
  return sectionOf(
      "Kit",
      {headerItem("Header"), colorItem("Sky", "#aabbcc"), colorItem("Sea", "#0000ff"),
       textItem("Text"), videoItem("Film"),
       Item::create(ImagePayload{{"a.png", ".png"}, std::nullopt}),
       Item::create(LogoPayload{
           {"Mark", {{QUuid::createUuid(), {"m.svg", "m.svg"}, {}, ImageBackground::dark}}}}),
       Item::create(LogoPayload{{"Nothing", {}}}),
       Item::create(FontPayload{{"Inter", "Bold", {}, {}, "Text face"}}),
       Item::create(GradientPayload{
           {{{QUuid::createUuid(), "#000000", 0}, {QUuid::createUuid(), "#FFFFFF", 1}}, 90, {}}}),
       Item::create(CodePayload{{"css", "a {\n}", {}}})});
}

}  // namespace tarnloft
