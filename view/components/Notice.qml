import QtQuick
import Ombrivane.Private

// What the customer should know before going on, and has nothing to do about: said once, and then it stays. A part of
// it may be struck through.
Rectangle {
    id: notice

    required property string message
    property string struck: ""
    property bool glad: false
    property string iconName: "warningIcon"
    readonly property color tint: glad ? Theme.secondaryColor : Theme.noticeColor
    readonly property int struckAt: struck !== "" ? message.indexOf(struck) : -1

    implicitHeight: visible ? Math.max(44, words.implicitHeight + 16) : 0
    visible: message !== ""
    radius: Theme.fieldRadius
    color: glad ? Theme.calenderRangeColor : Theme.noticeFillColor
    Accessible.role: Accessible.StaticText
    Accessible.name: message

    Aloud { text: notice.message }
    Icon {
        id: icon
        anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter }
        width: 20
        height: 20
        name: notice.iconName
        color: notice.tint
    }
    Flow {
        id: words
        anchors { left: icon.right; leftMargin: 10; right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
        spacing: 4
        PlainText {
            width: Math.min(implicitWidth, words.width)
            visible: text !== ""
            text: (notice.struckAt < 0 ? notice.message : notice.message.slice(0, notice.struckAt)).trim()
            color: notice.tint
            font.pixelSize: Theme.captionSize
            font.weight: Font.Medium
            Accessible.ignored: true
        }
        PlainText {
            objectName: "struck"
            visible: notice.struckAt >= 0
            text: visible ? notice.struck : ""
            color: notice.tint
            font.pixelSize: Theme.captionSize
            font.weight: Font.Medium
            font.strikeout: true
            Accessible.ignored: true
        }
        PlainText {
            visible: text !== ""
            text: notice.struckAt < 0 ? "" : notice.message.slice(notice.struckAt + notice.struck.length).trim()
            color: notice.tint
            font.pixelSize: Theme.captionSize
            font.weight: Font.Medium
            Accessible.ignored: true
        }
    }
}
