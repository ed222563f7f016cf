import QtQuick
import OmbrivaneDemo

// What the wallet stands in, beside it: how it looks and speaks, and what its customer meets.
Rectangle {
    id: strip

    required property WalletLook look
    required property Conditions conditions
    color: look.card
    Accessible.role: Accessible.Pane
    Accessible.name: heading.text

    Flickable {
        anchors { fill: parent; margins: 24 }
        contentHeight: column.height
        boundsBehavior: Flickable.StopAtBounds
        clip: contentHeight > height

        Column {
            id: column
            width: parent.width
            spacing: 12
            WalletText { id: heading; look: strip.look; text: "Conditions"; size: 20; font.weight: Font.DemiBold }
            ChoiceRow {
                look: strip.look
                width: parent.width
                name: "Look"
                labels: ["Device", "Light", "Dark"]
                values: ["device", "light", "dark"]
                value: strip.conditions.look
                onChosen: value => strip.conditions.look = value
            }
            ChoiceRow {
                look: strip.look
                width: parent.width
                name: "Text size"
                labels: ["Device", "100 %", "130 %", "200 %"]
                values: ["0", "1", "1.3", "2"]
                value: String(strip.conditions.textScale)
                onChosen: value => strip.conditions.textScale = Number(value)
            }
            ChoiceRow {
                look: strip.look
                width: parent.width
                name: "Language"
                labels: ["English", "नेपाली", "العربية", "Device"]
                values: ["", "ne", "ar", "device"]
                value: strip.conditions.language
                onChosen: value => strip.conditions.language = value
            }
            ChoiceRow {
                look: strip.look
                width: parent.width
                name: "Brand"
                labels: strip.conditions.brands
                values: ["0", "1", "2"]
                value: String(strip.conditions.brand)
                onChosen: value => strip.conditions.brand = Number(value)
            }
            Column {
                width: parent.width
                Repeater {
                    model: strip.conditions.troubles
                    SwitchRow {
                        required property string modelData
                        objectName: modelData
                        look: strip.look
                        width: column.width
                        text: strip.conditions.label(modelData)
                        enabled: strip.conditions.isPossible(modelData)
                        reason: enabled ? "" : strip.conditions.reason
                        on: strip.conditions.on.indexOf(modelData) >= 0
                        onClicked: strip.conditions.turn(modelData, !on)
                    }
                }
            }
            WalletText {
                look: strip.look
                visible: text !== ""
                width: parent.width
                text: strip.conditions.reason
                size: 13
                color: look.quiet
            }
            WalletText {
                objectName: "said"
                look: strip.look
                width: parent.width
                text: strip.conditions.said !== "" ? strip.conditions.said : "Choose one: when it is felt is told here."
                size: 14
            }
        }
    }
}
