pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A spring that keeps its velocity while its target moves, in steps of 16 ms.
//   Behavior on x { SpringFollow { response: 0.5; dampingFraction: 0.85 } }
SpringAnimation {
    property real response: 0.35
    property real dampingFraction: 1

    spring: Motion.stiffness(response, dampingFraction)
    damping: Motion.friction(response, dampingFraction)
    epsilon: 0.05
}
