import QtQuick
import QtQuick.Templates as T
import Ombrivane

// The choice of a nationality.
Sheet {
    id: page

    required property NationalitySheetAdapter screen
    signal back

    name: page.screen.placeholder
    wantedHeight: height * 0.8
    onDismissed: back()

    SearchField {
        id: field
        objectName: "search"
        anchors { top: parent.top; left: parent.left; right: parent.right; margins: Theme.margin; topMargin: 0 }
        focus: true
        placeholder: page.screen.placeholder
        onTextEdited: page.screen.type(text)
    }
    ListView {
        id: list
        anchors { top: field.bottom; topMargin: 8; bottom: parent.bottom; left: parent.left; right: parent.right }
        clip: true
        cacheBuffer: 0 // rows are made when drawn, not while the page may be leaving
        model: page.screen.rows
        delegate: T.AbstractButton {
            id: item
            required property NationalityRowAdapter row
            width: list.width
            implicitHeight: Math.max(Theme.target, name.implicitHeight + 16)
            focusPolicy: Qt.StrongFocus
            Accessible.role: Accessible.ListItem
            Accessible.name: row.nationality
            onClicked: row.tap()
            Keys.onReturnPressed: item.clicked()
            background: Rectangle {
                color: item.down ? Theme.segmentColor : "transparent"
                border.width: item.visualFocus ? 2 : 0
                border.color: Theme.secondaryColor
            }
            contentItem: PlainText {
                id: name
                leftPadding: Theme.margin
                verticalAlignment: Text.AlignVCenter
                text: item.row.nationality
                Accessible.ignored: true
            }
        }
    }
}
