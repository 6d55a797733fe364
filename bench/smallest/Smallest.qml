import QtQuick
import QtQuick.Controls.Basic

Window {
    visible: true
    width: 200
    height: 100

    Button { text: "Button" }
}
