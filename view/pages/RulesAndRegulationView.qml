import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The fare rules, between the result list and the booking.
Item {
    id: page

    required property RulesAdapter screen
    signal back

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    PageHeader {
        id: header
        width: parent.width
        title: page.screen.title
        onLeave: page.back()
    }
    ScrollKeys { id: keys }
    ListView {
        id: list
        objectName: "rules"
        anchors { top: header.bottom; bottom: foot.top; horizontalCenter: parent.horizontalCenter }
        width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
        clip: true
        spacing: 8
        model: page.screen.paragraphs
        onContentHeightChanged: page.screen.measured(contentHeight)
        // A text to read is scrolled, not walked through: one stop where it is longer than the page.
        activeFocusOnTab: contentHeight > height
        keyNavigationEnabled: false
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: page.screen.title
        Keys.onPressed: event => {
            const place = keys.place(event.key, contentY, originY, originY + Math.max(0, contentHeight - height), height)
            event.accepted = !isNaN(place)
            if (event.key === Qt.Key_End) positionViewAtEnd() // which is not known before
            else if (event.accepted) contentY = place
        }
        delegate: PlainText {
            id: paragraph
            required property string content
            required property bool listItem
            required property bool underlined
            required property list<int> underlines
            width: list.width
            leftPadding: listItem && !Words.rightToLeft ? 16 : 0
            rightPadding: listItem && Words.rightToLeft ? 16 : 0
            text: content
            font.underline: underlined
            font.pixelSize: Theme.sectionSize
            font.weight: Theme.readingWeight
            Rectangle {
                objectName: "bullet"
                visible: paragraph.listItem
                anchors { left: parent.left; leftMargin: 4 }
                y: paragraph.topPadding + 0.6 * Theme.sectionSize - height / 2
                width: 6
                height: 6
                radius: 3
                color: Theme.blackColor
            }
            Underlines {
                width: paragraph.width - paragraph.rightPadding
                height: paragraph.height
                visible: stretches.length > 0
                stretches: paragraph.underlines
                text: paragraph.content
                font: paragraph.font
                color: paragraph.color
                alignment: paragraph.effectiveHorizontalAlignment
                origin: Qt.point(paragraph.leftPadding, paragraph.topPadding)
                lineHeight: paragraph.lineHeight
            }
        }
        AwaitedText {
            y: Theme.margin
            width: parent.width
            visible: page.screen.showProgressView
            running: visible
        }
    }
    WaitPanel {
        anchors { bottom: foot.top; bottomMargin: Theme.gap; horizontalCenter: parent.horizontalCenter }
        width: foot.width
        text: page.screen.waitText
        hint: page.screen.waitHint
    }
    GridLayout {
        id: foot
        anchors { bottom: parent.bottom; bottomMargin: Theme.margin; horizontalCenter: parent.horizontalCenter }
        width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
        columns: width < 300 * Theme.textScale ? 1 : 2
        columnSpacing: Theme.gap
        rowSpacing: 8
        MainButton {
            objectName: "cancel"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            quiet: true
            text: page.screen.cancelText
            enabled: page.screen.cancelEnabled
            onClicked: page.screen.cancel()
        }
        MainButton {
            objectName: "continue"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            text: page.screen.continueText
            enabled: page.screen.proceedEnabled
            onClicked: page.screen.proceed()
        }
    }
    SnackBar {
        anchors { left: parent.left; right: parent.right; bottom: foot.top; margins: Theme.margin }
        message: page.screen.errorMessage
        shown: page.screen.showSnackBar
    }
}
