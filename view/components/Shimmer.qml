import QtQuick
import Ombrivane.Private

// What is not there yet: shapes stand in the places of the content, and a band of light sweeps over them from before
// their leading edge to beyond their trailing one.
Item {
    id: shimmer

    property bool running: true
    default property alias content: holder.data

    implicitHeight: holder.childrenRect.height

    Item {
        id: holder
        width: parent.width
        height: parent.height
        opacity: shimmer.running ? 0 : 1
    }
    Loader {
        anchors.fill: parent
        active: shimmer.running
        sourceComponent: Silhouette { of: holder; color: Theme.hairlineColor }
    }
    // Only the band is clipped: when the content comes, it stays as it is drawn.
    Loader {
        anchors.fill: parent
        active: shimmer.running && !Theme.reducedMotion
        clip: true
        sourceComponent: Item {
            Rectangle {
                x: -width
                width: shimmer.width
                height: shimmer.height
                opacity: Theme.dark ? 0.12 : 0.7
                gradient: Gradient {
                    orientation: Gradient.Horizontal
                    GradientStop { position: 0; color: "#00FFFFFF" }
                    GradientStop { position: 0.3; color: "#FFFFFFFF" }
                    GradientStop { position: 0.7; color: "#FFFFFFFF" }
                    GradientStop { position: 1; color: "#00FFFFFF" }
                }
                NumberAnimation on x {
                    from: Words.rightToLeft ? shimmer.width : -shimmer.width
                    to: -from
                    duration: 2000
                    loops: Animation.Infinite
                }
            }
        }
    }
}
