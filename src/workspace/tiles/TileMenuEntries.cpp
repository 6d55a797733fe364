#include "workspace/tiles/TileMenuEntries.h"

#include "model/ById.h"
#include "model/ShownText.h"
#include "platform/DesktopWords.h"
#include "publish/ColorUtil.h"
#include "workspace/tiles/TileCommands.h"
#include "workspace/tiles/TileFacts.h"

namespace tarnloft {
namespace {

// Collects the entries of one menu.
class Entries {
 public:
  Entries(const Item& item, const Section& section, TileCommands& commands)
      : item_(item), section_(section), commands_(&commands) {}

  QList<MenuEntry> all() {
    std::visit([this](const auto& payload) { addKind(payload); }, item_.payload);
    addCommon();
    return entries_;
  }

 private:
  // Runs `verb(TileCommands&)`.
  template <class Verb>
  MenuEntry& add(const QString& text, Verb&& verb) {
    entries_ << MenuEntry{.text = inDesktopWords(shownText(text, mostInMenu)),
                          .run = [commands = commands_, verb] {
                            if (commands) verb(*commands);
                          }};
    return entries_.last();
  }
  // Runs `(commands.*verb)(item)`.
  MenuEntry& addVerb(const QString& text, void (TileCommands::*verb)(const QUuid&)) {
    return add(text, [verb, id = item_.id](TileCommands& commands) { (commands.*verb)(id); });
  }
  MenuEntry& addCopy(const QString& title, const QString& text, const QString& what) {
    return add(title, [text, what](TileCommands& commands) { commands.copy(text, what); });
  }
  void addDivider() { entries_ << MenuEntry{}; }
  void addRename() { addVerb(QStringLiteral("Rename…"), &TileCommands::rename); }
  void addEdit() { addVerb(QStringLiteral("Edit…"), &TileCommands::edit); }
  void addFile(const AssetRef& asset) {
    addCopy(QStringLiteral("Copy File Name"), asset.originalName, asset.originalName);
    addReveal(QStringLiteral("Reveal in Finder"), asset);
  }
  void addReveal(const QString& text, const AssetRef& asset) {
    add(text, [asset](TileCommands& commands) { commands.reveal(asset); });
  }

  void addExport(const QString& text, const AssetRef& asset) {
    add(text, [id = item_.id, asset](TileCommands& commands) { commands.startExport(id, asset); });
  }

  void addKind(const HeaderPayload&) {}
  void addKind(const TextPayload&) {}

  void addKind(const ColorPayload& payload) {
    const ColorValue& color = payload.value;
    for (const FormatVariant& variant : ColorUtil::formatVariants(color.hex)) {
      addCopy(QStringLiteral("Copy %1: %2").arg(variant.label, variant.value), variant.value,
              variant.value);
    }
    const QString spot = color.spot.value_or(QString());
    if (!spot.isEmpty()) addCopy(QStringLiteral("Copy Spot: ") + spot, spot, spot);
    addDivider();
    if (const QStringList rows = ColorUtil::contrastRows(color.hex); !rows.isEmpty()) {
      entries_ << MenuEntry{.text = QStringLiteral("Contrast (WCAG)"), .isTitle = true};
      for (const QString& row : rows) entries_ << MenuEntry{.text = row};
      addDivider();
    }
    add(QStringLiteral("Set as Brand Accent"),
        [hex = color.hex](TileCommands& commands) { commands.setAccent(hex); });
    addEdit();
  }

  void addKind(const GradientPayload& payload) {
    add(QStringLiteral("Copy CSS Gradient"), [value = payload.value](TileCommands& commands) {
      commands.copy(value.cssString(), QStringLiteral("CSS gradient"));
    }).isEnabled = payload.value.hasCss();
    addRename();
    addEdit();
  }

  void addKind(const ImagePayload& payload) {
    addRename();
    addExport(QStringLiteral("Export As…"), payload.asset);
    addDivider();
    entries_ << MenuEntry{.text = QStringLiteral("Background"), .entries = backdrops()};
    add(QStringLiteral("Set as Brand Icon"),
        [asset = payload.asset](TileCommands& commands) { commands.setBrandIcon(asset); });
    add(QStringLiteral("Set as Section Icon"),
        [asset = payload.asset, section = section_.id](TileCommands& commands) {
          commands.setSectionIcon(asset, section);
        });
    addDivider();
    addFile(payload.asset);
  }

  void addKind(const VideoPayload& payload) {
    addRename();
    addDivider();
    addVerb(QStringLiteral("Play"), &TileCommands::play);
    addFile(payload.asset);
  }

  void addKind(const FontPayload& payload) {
    const auto& asset = payload.value.asset;
    addRename();
    addVerb(asset ? QStringLiteral("Replace Font File…") : QStringLiteral("Attach Font File…"),
            &TileCommands::attachFontFile);
    if (asset) addFile(*asset);
    addEdit();
  }

  void addKind(const CodePayload& payload) {
    addCopy(QStringLiteral("Copy Snippet"), payload.value.snippet, QStringLiteral("snippet"));
    addRename();
    addEdit();
  }

  void addKind(const LogoPayload& payload) {
    addRename();
    addVerb(QStringLiteral("Edit Variants…"), &TileCommands::editVariants);
    if (payload.value.variants.isEmpty()) return;
    addVerb(QStringLiteral("Ungroup Logo"), &TileCommands::ungroupLogo);
    const AssetRef primary = payload.value.primary()->asset;
    addExport(QStringLiteral("Export Primary As…"), primary);
    add(QStringLiteral("Set Primary as Brand Icon"), [primary](TileCommands& commands) {
      commands.setBrandIcon(primary);
      commands.tell(QStringLiteral("Brand icon set"));
    });
    addReveal(QStringLiteral("Reveal Primary in Finder"), primary);
  }

  QList<MenuEntry> backdrops() {
    using Backdrop = std::optional<ImageBackground>;
    const std::pair<QString, Backdrop> all[] = {
        {QStringLiteral("Default"), std::nullopt},
        {QStringLiteral("White"), ImageBackground::white},
        {QStringLiteral("Dark"), ImageBackground::dark},
        {QStringLiteral("Checkerboard"), ImageBackground::checkerboard}};
    Entries menu(item_, section_, *commands_);
    for (const auto& [text, backdrop] : all) {
      MenuEntry& entry =
          menu.add(text, [id = item_.id, backdrop = backdrop](TileCommands& commands) {
            commands.setBackdrop(id, backdrop);
          });
      entry.isCheckable = true;
      entry.isChecked = item_.imageBackground == backdrop;
    }
    return menu.entries_;
  }

  void addCommon() {
    const auto move = [id = item_.id](int step) {
      return [id, step](TileCommands& commands) { commands.move(id, step); };
    };
    const qsizetype place = indexOf(section_.items, item_.id);
    if (!entries_.isEmpty()) addDivider();
    addVerb(TileFacts::notesText(item_), &TileCommands::editNotes);
    addDivider();
    addVerb(QStringLiteral("Duplicate"), &TileCommands::duplicate);
    add(QStringLiteral("Move Left"), move(-1)).isEnabled = place > 0;
    add(QStringLiteral("Move Right"), move(1)).isEnabled = place + 1 < section_.items.size();
    addDivider();
    addVerb(QStringLiteral("Delete"), &TileCommands::remove).isDestructive = true;
  }

  const Item& item_;
  const Section& section_;
  const QPointer<TileCommands> commands_;
  QList<MenuEntry> entries_;
};

}  // namespace

QList<MenuEntry> tileMenuEntries(const Item& item, const Section& section, TileCommands& commands) {
  return Entries(item, section, commands).all();
}

}  // namespace tarnloft
