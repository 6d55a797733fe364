pragma ComponentBehavior: Bound

import QtQml

// One choice of a SegmentedPicker, ScopeBar or PopUpPicker. A choice without a text needs a help.
QtObject {
    property string text: ""
    property string symbol: ""
    property string help: ""
}
