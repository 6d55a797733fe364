pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// A sheet that is made and opened when it is asked for, and gone when it has closed.
//   LazySheet { active: model.asking; RenameSheet { … onClosed: model.end() } }
Lazy {
    onObjectChanged: (object as Sheet)?.open()
}
