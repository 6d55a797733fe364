pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Page {
    title: "Type"

    Specimen {
        title: "Scale"
        Column {
            spacing: 6
            Label { text: "Large title 26"; font: Theme.largeTitle }
            Label { text: "Title 22"; font: Theme.title }
            Label { text: "Title 2, 17"; font: Theme.title2 }
            Label { text: "Title 3, 15"; font: Theme.title3 }
        }
        Column {
            spacing: 6
            leftPadding: 40
            Label { text: "Headline 13 bold"; font: Theme.headline }
            Label { text: "Body 13"; font: Theme.body }
            Label { text: "Callout 12"; font: Theme.callout }
            Label { text: "Subheadline 11"; font: Theme.subheadline }
            Label { text: "Footnote and caption 10"; font: Theme.footnote }
        }
        Column {
            spacing: 6
            leftPadding: 40
            Label { text: "Large title, bold"; font: Theme.font(26, Font.Bold) }
            Label { text: "Medium 13"; font: Theme.font(13, Font.Medium) }
            Label { text: "Semibold 13"; font: Theme.font(13, Font.DemiBold) }
            Label { text: "const hex = \"#4C6FFF\""; font: Theme.monospaced(12) }
            Label { text: "1.0 × 1,024 px · 11:01 · 87 %"; font: Theme.monospaced(11) }
        }
        Column {
            spacing: 6
            leftPadding: 40
            Label { text: "Primary label" }
            Label { text: "Secondary label"; color: Theme.secondaryLabel }
            Label { text: "Tertiary label"; color: Theme.tertiaryLabel }
            Label { text: "Quaternary label"; color: Theme.quaternaryLabel }
            Label { text: "Accent label"; color: Theme.accentText }
        }
    }
    Specimen {
        title: "Emoji"
        gap: 16
        Label { text: "Juniper 🌿 & Salt ⭐️ 1:2" }
        Label { text: "Launch 🚀"; font: Theme.largeTitle }
        Label { text: "\"🎨\""; font: Theme.monospaced(12) }
        Label { text: "❤️🅰️🏷️"; font: Theme.emoji(22) }
    }
}
