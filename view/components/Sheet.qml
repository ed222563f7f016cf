import QtQuick
import Ombrivane

// A sheet from the foot of the stage: handle, content, the rest dims. A swipe, a tap outside and Escape close it.
FocusScope {
    id: sheet

    default property alias content: holder.data
    required property string name
    property real wantedHeight: 400
    property real shift: 0
    signal dismissed

    Accessible.role: Accessible.Dialog
    Accessible.name: name

    Rectangle {
        anchors.fill: parent
        color: Theme.dimColor
        TapHandler { onTapped: sheet.dismissed() }
    }
    Rectangle {
        id: panel
        readonly property real shownHeight: Math.min(sheet.wantedHeight + 28, sheet.height - 40)
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.contentWidth)
        height: shownHeight + Theme.cardRadius
        y: parent.height - shownHeight + sheet.shift
        radius: Theme.cardRadius
        color: Theme.whiteColor

        TapHandler {}
        Item {
            width: parent.width
            height: 28
            Icon {
                anchors.centerIn: parent
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
        Item {
            id: holder
            y: 28
            width: parent.width
            height: panel.shownHeight - 28
        }
        NumberAnimation on y {
            from: sheet.height
            duration: Theme.pageDuration
            easing.type: Easing.OutCubic
            running: Theme.pageDuration > 0
            to: sheet.height - panel.shownHeight
            onFinished: panel.y = Qt.binding(() => sheet.height - panel.shownHeight + sheet.shift)
        }
    }
    Keys.onEscapePressed: dismissed()
}
