pragma ComponentBehavior: Bound

import QtQuick

// What a window's first frame does without, so that it needn't wait for it. The window has them as
// soon as they are loaded; they name none of these views, since naming a type loads it.
QtObject {
    required property Component header // on top of the sidebar
    required property Component detail // beside the sidebar
    required property Component curtain // under the sidebar that lies over the page
    required property Component libraryProblem // at the sidebar's foot
    required property Component overlay // over the whole window
    required property Component brandMenu // with a `packageURL`
    required property Component dragGhost
}
