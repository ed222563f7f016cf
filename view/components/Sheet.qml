import QtQuick
import Ombrivane.Private

// A sheet from the foot of the stage: handle, content, the rest dims. It takes the focus when it opens. A swipe, a tap
// outside, its control, Escape and Back close it; a tap inside does not.
// One that is `beside` stands at the leading edge instead, next to what it belongs to, and nothing dims.
FocusScope {
    id: sheet

    default property alias content: holder.data
    required property string name
    property real wantedHeight: 400
    property bool beside: false
    property color ground: Theme.whiteColor
    property real shift: 0
    signal dismissed

    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: name
    Accessible.focusable: true

    Dim {
        color: sheet.beside ? "transparent" : Theme.dimColor
        onTapped: sheet.dismissed()
    }
    Rectangle {
        id: panel
        readonly property real head: Theme.target
        readonly property real shownHeight: sheet.beside ? sheet.height : Math.min(sheet.wantedHeight + head, sheet.height - 40)
        x: !sheet.beside ? (parent.width - width) / 2 : Words.rightToLeft ? parent.width - width : 0
        width: sheet.beside ? Theme.besideWidth : Math.min(parent.width, Theme.contentWidth)
        height: shownHeight + (sheet.beside ? 0 : Theme.cardRadius) + Theme.safeBottom
        y: parent.height - shownHeight + sheet.shift
        radius: sheet.beside ? 0 : Theme.cardRadius
        color: sheet.ground

        Blocker { anchors.fill: parent }
        Rectangle {
            visible: sheet.beside
            x: Words.rightToLeft ? parent.width : -width
            y: -Theme.safeTop
            width: Words.rightToLeft ? Theme.safeRight : Theme.safeLeft
            height: parent.height + Theme.safeTop
            color: sheet.ground
        }
        Rectangle { visible: sheet.beside; width: parent.width; y: -height; height: Theme.safeTop; color: sheet.ground }
        Rectangle { visible: sheet.beside; x: Words.rightToLeft ? -1 : parent.width; width: 1; height: parent.height; color: Theme.hairlineColor }
        Item {
            visible: !sheet.beside
            width: parent.width
            height: panel.head
            Icon {
                anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: 10 }
                width: 40
                height: 8
                name: "dashIcon"
                color: Theme.formBorderColor
            }
            DragHandler {
                target: null
                xAxis.enabled: false
                onTranslationChanged: sheet.shift = Math.max(0, translation.y)
                onActiveChanged: if (!active) { if (sheet.shift > 80) sheet.dismissed(); else sheet.shift = 0 }
            }
        }
        IconButton {
            objectName: "closeSheet"
            anchors { right: parent.right; rightMargin: 4 }
            iconName: "crossIcon"
            label: Words.close
            onClicked: sheet.dismissed()
        }
        Item {
            id: holder
            y: panel.head
            width: parent.width
            height: panel.shownHeight - panel.head
        }
        NumberAnimation on y {
            from: sheet.height
            duration: Theme.pageDuration
            easing.type: Easing.OutCubic
            running: Theme.pageDuration > 0 && !sheet.beside
            to: sheet.height - panel.shownHeight
            onFinished: panel.y = Qt.binding(() => sheet.height - panel.shownHeight + sheet.shift)
        }
    }
    Keys.onEscapePressed: dismissed()
    Keys.onBackPressed: dismissed()
}
