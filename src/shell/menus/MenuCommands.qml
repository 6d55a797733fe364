pragma ComponentBehavior: Bound

import QtQuick

// The commands of one menu in their order, with a MenuGroup where one begins.
//   MenuCommands { title: "File"; ShellCommand { … } MenuGroup {} ShellCommand { … } }
QtObject {
    required property string title
    default property list<QtObject> entries

    signal opening // its menu, which shall show how things are now
}
