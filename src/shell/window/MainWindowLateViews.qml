pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Shell

// The main window's views that come behind its first frame.
LateViews {
    id: root

    required property ContentModel content

    header: ShellMenuBar {
        content: root.content
    }
    detail: DetailView {
        content: root.content
    }
    curtain: SidebarCurtain {
        sidebar: root.content.sidebar
    }
    libraryProblem: LibraryProblemBar {
        content: root.content
    }
    overlay: WindowOverlay {
        content: root.content
    }
    brandMenu: BrandMenu {
        sidebar: root.content.sidebar
    }
    dragGhost: DragGhost {
        sidebar: root.content.sidebar
        thumbnails: root.content.thumbnails
    }
}
