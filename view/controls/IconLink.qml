import QtQuick
import Ombrivane.Private

// An icon that leads out of the component. By hand, since no template of the toolkit is told as a link.
Rectangle {
    id: link

    required property string iconName
    required property string label
    signal clicked

    implicitWidth: Theme.target
    implicitHeight: Theme.target
    radius: Theme.target / 2
    color: tap.pressed ? Theme.segmentColor : "transparent"
    activeFocusOnTab: true
    Accessible.role: Accessible.Link
    Accessible.name: label
    Accessible.focusable: true
    Accessible.onPressAction: link.clicked()
    Keys.onReturnPressed: link.clicked()
    Keys.onEnterPressed: link.clicked()
    Keys.onSpacePressed: link.clicked()

    TapHandler { id: tap; gesturePolicy: TapHandler.ReleaseWithinBounds; onTapped: link.clicked() }
    Icon { anchors.centerIn: parent; width: 24; height: 24; name: link.iconName; color: Theme.blackColor; opacity: link.enabled ? 1 : 0.4 }
}
