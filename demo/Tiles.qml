import QtQuick
import OmbrivaneDemo
import QtQuick.Layouts

// What the wallet does: flights, and what is only named.
GridLayout {
    id: tiles

    required property WalletLook look
    signal flightsChosen

    columns: look.textScale > 1.5 ? 2 : 3
    columnSpacing: 8
    rowSpacing: 8

    component NamedTile: Tile {
        look: tiles.look
        absence: tiles.look.words.notHere
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredWidth: 100
    }
    NamedTile {
        objectName: "flights"
        absence: ""
        text: tiles.look.words.flights
        drawing: "M 21 3 L 3 10.5 L 9.5 14.5 L 13.5 21 Z M 21 3 L 9.5 14.5"
        onClicked: tiles.flightsChosen()
    }
    NamedTile { text: tiles.look.words.send; drawing: "M 4 8 H 20 M 16 4 L 20 8 L 16 12 M 20 17 H 4 M 8 13 L 4 17 L 8 21" }
    NamedTile { text: tiles.look.words.topUp; drawing: "M 8 2 H 16 Q 18 2 18 4 V 20 Q 18 22 16 22 H 8 Q 6 22 6 20 V 4 Q 6 2 8 2 M 12 8 V 15 M 8.5 11.5 H 15.5" }
    NamedTile { text: tiles.look.words.power; drawing: "M 13 2 L 5 13.5 H 11 L 10 22 L 19 9.5 H 13 Z" }
    NamedTile { text: tiles.look.words.bus; drawing: "M 5 4 H 19 Q 21 4 21 6 V 17 H 3 V 6 Q 3 4 5 4 M 3 11 H 21 M 6.5 17 V 20 M 17.5 17 V 20 M 7 14 H 8 M 16 14 H 17" }
    NamedTile { text: tiles.look.words.events; drawing: "M 3 7 H 21 V 10.5 Q 19 10.5 19 12 Q 19 13.5 21 13.5 V 17 H 3 V 13.5 Q 5 13.5 5 12 Q 5 10.5 3 10.5 Z M 14 7 V 17" }
}
