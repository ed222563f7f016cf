import QtQuick
import Ombrivane.Private

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
        text: page.screen.nationalityText
        onTextEdited: page.screen.type(text)
        onAccepted: list.goTo(0)
        Keys.onDownPressed: list.goTo(list.currentIndex)
    }
    KeyList {
        id: list
        anchors { top: field.bottom; topMargin: 8; bottom: parent.bottom; left: parent.left; right: parent.right }
        clip: true
        cacheBuffer: 0 // rows are made when drawn, not while the page may be leaving
        model: page.screen.rows
        Accessible.name: page.screen.placeholder
        delegate: ListEntry {
            id: item
            required property NationalityRowAdapter row
            width: list.width
            implicitHeight: Math.max(Theme.target, name.implicitHeight + 16)
            objectName: "row"
            Accessible.name: row.nationality
            onClicked: row.tap()
            background: Rectangle { color: item.down ? Theme.segmentColor : "transparent" }
            contentItem: PlainText {
                id: name
                leftPadding: Words.rightToLeft ? 0 : Theme.margin
                rightPadding: Words.rightToLeft ? Theme.margin : 0
                verticalAlignment: Text.AlignVCenter
                text: item.row.nationality
                Accessible.ignored: true
            }
        }
    }
}
