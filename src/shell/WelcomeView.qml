pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The first-run screen.
Column {
    id: root

    signal createRequested
    signal importRequested

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "square.grid.2x2.fill"
        size: 44
        color: Theme.accent
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 14
        text: "Welcome to Tarn Loft"
        font: Theme.font(26, Font.Bold)
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 8
        text: "Keep every client's colors, logos, type, and more in one tidy place —\nthen drag them straight into your work."
        font: Theme.callout
        color: Theme.secondaryLabel
        horizontalAlignment: Text.AlignHCenter
        lineHeight: 1.3
    }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 34
        spacing: 28

        FeatureCell {
            symbol: "paintpalette.fill"
            title: "Click a color"
            subtitle: "copies its hex instantly"
        }

        FeatureCell {
            symbol: "photo.fill"
            title: "Drag a logo out"
            subtitle: "as a real file, into any app"
        }

        FeatureCell {
            symbol: "square.grid.3x3.fill"
            title: "Organize by brand"
            subtitle: "sections for anything"
        }
    }

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 36
        spacing: 14

        Button {
            width: Math.max(220, implicitWidth)
            symbol: "plus"
            text: "Create your first brand"
            kind: Button.Prominent
            controlSize: ControlSize.Large
            onClicked: root.createRequested()
        }

        Button {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: "square.and.arrow.down"
            text: "Import…"
            kind: Button.Plain
            tint: Theme.secondaryLabel
            onClicked: root.importRequested()
        }
    }
}
