pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The first-run screen.
Column {
    id: root

    required property real room // across

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
        readonly property bool fits: root.room >= 440

        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 8
        width: fits ? implicitWidth : root.room
        text: "Keep every client's colors, logos, type, and more in one tidy place —%1then drag them straight into your work.".arg(fits ? "\n" : " ")
        font: Theme.callout
        color: Theme.secondaryLabel
        horizontalAlignment: Text.AlignHCenter
        lineHeight: 1.3
        wrapMode: Text.Wrap
    }

    Grid {
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 34
        spacing: 28
        columns: root.room < 3 * 130 + 2 * spacing ? 1 : 3

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
