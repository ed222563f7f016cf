import QtQuick
import OmbrivaneDemo
import QtQuick.Shapes
import QtQuick.Templates as T

// One thing that the wallet does. One that is not part of the demo says so.
T.Button {
    id: tile

    required property WalletLook look
    required property string drawing
    property string absence: ""

    enabled: absence === ""
    implicitHeight: Math.max(104, column.implicitHeight + 24)
    focusPolicy: Qt.StrongFocus
    Accessible.name: text
    Accessible.description: absence
    Keys.onReturnPressed: tile.clicked()
    Keys.onEnterPressed: tile.clicked()
    background: Rectangle {
        id: ground
        radius: tile.look.radius
        color: tile.enabled ? tile.look.card : "transparent"
        opacity: tile.down ? 0.8 : 1
        border { width: 1; color: tile.enabled ? tile.look.accent : tile.look.hairline }
        FocusFrame { look: tile.look; shown: tile.visualFocus; radius: ground.radius }
    }
    contentItem: Item {
        Column {
            id: column
            anchors { left: parent.left; right: parent.right; margins: 4; verticalCenter: parent.verticalCenter }
            spacing: 4
            Shape {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 24; height: 24
                ShapePath {
                    strokeColor: tile.enabled ? tile.look.accent : tile.look.quiet
                    strokeWidth: 1.75
                    fillColor: "transparent"
                    capStyle: ShapePath.RoundCap
                    joinStyle: ShapePath.RoundJoin
                    PathSvg { path: tile.drawing }
                }
            }
            WalletText {
                look: tile.look
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: tile.text
                size: 14
                color: tile.enabled ? look.ink : look.quiet
                font.weight: tile.enabled ? Font.DemiBold : Font.Normal
                Accessible.ignored: true
            }
            WalletText {
                look: tile.look
                visible: tile.absence !== ""
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: tile.absence
                size: 11
                color: look.quiet
                Accessible.ignored: true
            }
        }
    }
}
