import QtQuick
import QtQuick.Dialogs
import Ombrivane

// The picker of a desktop: a file, then the part of it that is kept.
Sheet {
    id: page

    required property PhotoPickerAdapter screen
    signal back

    wantedHeight: height * 0.85
    onDismissed: page.screen.cancel()
    Component.onCompleted: dialog.open()

    FileDialog {
        id: dialog
        title: qsTr("Upload Document")
        nameFilters: ["*.png *.jpg *.jpeg"]
        onAccepted: preview.source = selectedFile
        onRejected: page.screen.cancel()
    }
    Item {
        id: frame
        anchors { top: parent.top; left: parent.left; right: parent.right; bottom: use.top; margins: Theme.margin }
        Image {
            id: preview
            anchors.fill: parent
            fillMode: Image.PreserveAspectFit
            asynchronous: true
            autoTransform: true
            sourceSize.width: 1024
        }
        Rectangle {
            id: crop
            visible: preview.status === Image.Ready
            x: (frame.width - preview.paintedWidth) / 2
            y: (frame.height - preview.paintedHeight) / 2
            width: preview.paintedWidth
            height: preview.paintedHeight
            color: "transparent"
            border.width: 2
            border.color: Theme.primaryColor
        }
    }
    MainButton {
        id: use
        objectName: "use"
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        enabled: preview.status === Image.Ready
        text: qsTr("Use this picture")
        onClicked: page.screen.choose(dialog.selectedFile, Qt.rect(0, 0, 1, 1))
    }
}
