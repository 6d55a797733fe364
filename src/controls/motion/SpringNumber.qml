pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A NumberAnimation that moves like a damped spring, in real time at any frame rate.
//   Behavior on y { SpringNumber { response: 0.5; dampingFraction: 0.85 } }
// Stopped midway it starts anew at rest.
NumberAnimation {
    property real response: 0.35
    property real dampingFraction: 1

    duration: Motion.duration(response, dampingFraction)
    easing: Motion.easing(response, dampingFraction)
}
