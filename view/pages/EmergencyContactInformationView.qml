import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The form of the emergency contact.
Item {
    id: page

    required property EmergencyAdapter screen

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    PageHeader {
        id: header
        z: 1
        color: Theme.canvasColor
        scrolled: fields.contentY
        width: parent.width
        iconName: "crossIcon"
        leaveLabel: Words.close
        title: page.screen.title
        onLeave: page.screen.close()
    }
    PageColumn {
        id: fields
        inset: header.height
        footCover: page.screen.showSnackBar ? snack.implicitHeight + 8 : 0
        anchors { top: parent.top; left: parent.left; right: parent.right; bottom: save.top; bottomMargin: 8 }
        CustomTextFieldView {
            objectName: "name"
            Layout.fillWidth: true
            iconName: "userIcon"
            placeholder: Words.givenName
            value: page.screen.name
            mark: page.screen.nameColor
            onTextEdited: page.screen.typeName(text)
        }
        CustomTextFieldView {
            objectName: "surname"
            Layout.fillWidth: true
            iconName: "userIcon"
            placeholder: Words.surname
            value: page.screen.surname
            mark: page.screen.surnameColor
            onTextEdited: page.screen.typeSurname(text)
        }
        CustomTextFieldView {
            objectName: "email"
            Layout.fillWidth: true
            iconName: "emailIcon"
            placeholder: Words.email
            value: page.screen.email
            mark: page.screen.emailColor
            inputMethodHints: Qt.ImhEmailCharactersOnly
            onTextEdited: page.screen.typeEmail(text)
        }
        CustomTextFieldView {
            objectName: "phoneNumber"
            Layout.fillWidth: true
            iconName: "phoneIcon"
            placeholder: Words.contactPhone
            value: page.screen.phoneNumber
            mark: page.screen.phoneNumberColor
            inputMethodHints: Qt.ImhDialableCharactersOnly
            onTextEdited: page.screen.typePhoneNumber(text)
        }
        CheckLine {
            objectName: "box"
            Layout.fillWidth: true
            text: page.screen.boxText
            marked: page.screen.isPassanger
            onClicked: page.screen.tapBox()
        }
    }
    MainButton {
        id: save
        objectName: "save"
        anchors { bottom: parent.bottom; bottomMargin: Theme.margin; horizontalCenter: parent.horizontalCenter }
        width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
        text: page.screen.saveText
        onClicked: {
            refusal.restart()
            page.screen.save()
        }
    }
    // Also while the message of an earlier refusal stands; the page has gone where nothing was refused.
    Delay {
        id: refusal
        interval: 0
        onTriggered: if (page.screen.showSnackBar) fields.showFirstMissing()
    }
    Connections {
        target: page.screen
        function onShowSnackBarChanged() { if (page.screen.showSnackBar) fields.showFirstMissing() }
    }
    SnackBar {
        id: snack
        anchors { left: parent.left; right: parent.right; bottom: save.top; margins: Theme.margin }
        message: page.screen.message
        shown: page.screen.showSnackBar
    }
}
