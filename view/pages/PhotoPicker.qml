import QtQuick
import QtQuick.Dialogs
import QtQuick.Layouts
import Ombrivane.Private

// The picker of a desktop: a file, then the part of it that is kept.
Sheet {
    id: page

    required property PhotoPickerAdapter screen

    name: Words.documentUpload
    wantedHeight: height * 0.85
    onDismissed: page.screen.cancel()
    Component.onCompleted: if (page.screen.asksForFile) dialog.open()
    Component.onDestruction: dialog.close()

    FileDialog {
        id: dialog
        title: Words.documentUpload
        nameFilters: ["*.png *.jpg *.jpeg"]
        onAccepted: preview.source = selectedFile
        onRejected: if (preview.status === Image.Null) page.screen.cancel()
    }
    PlainText {
        id: hint
        anchors { top: parent.top; left: parent.left; right: parent.right; leftMargin: Theme.margin; rightMargin: Theme.margin }
        text: {
            if (preview.status === Image.Error) return Words.pictureCannotBeShown
            if (preview.status === Image.Loading) return Words.loading
            return preview.status === Image.Ready ? Words.pictureDragCorners : Words.pictureNone
        }
        color: Theme.placeHolderColor
    }
    Item {
        id: frame
        anchors { top: hint.bottom; left: parent.left; right: parent.right; bottom: foot.top; margins: Theme.margin + 8 }
        Image {
            id: preview
            anchors.fill: parent
            fillMode: Image.PreserveAspectFit
            asynchronous: true
            autoTransform: true
            sourceSize.width: 1024
            onSourceChanged: crop.keepAll()
        }
        CropFrame {
            id: crop
            visible: preview.status === Image.Ready
            x: (frame.width - preview.paintedWidth) / 2
            y: (frame.height - preview.paintedHeight) / 2
            width: preview.paintedWidth
            height: preview.paintedHeight
        }
    }
    GridLayout {
        id: foot
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        columns: width < 400 * Theme.textScale ? 1 : 2
        columnSpacing: Theme.gap
        rowSpacing: 8
        MainButton {
            objectName: "another"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            quiet: true
            text: preview.status === Image.Null ? Words.pictureChoose : Words.pictureAnother
            onClicked: dialog.open()
        }
        MainButton {
            objectName: "use"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            enabled: preview.status === Image.Ready
            text: Words.pictureUse
            onClicked: page.screen.choose(preview.source, crop.kept)
        }
    }
}
