pragma ComponentBehavior: Bound

import QtQuick

// Where a group of commands begins in its menu: a line, and a title if it has one.
QtObject {
    property string title: ""
}
