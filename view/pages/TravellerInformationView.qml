import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The form of one traveller.
Item {
    id: page

    required property TravellerAdapter screen

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    PageHeader {
        id: header
        z: 1
        color: Theme.canvasColor
        scrolled: fields.contentY
        enabled: !picker.shown
        width: parent.width
        iconName: "crossIcon"
        leaveLabel: Words.close
        title: page.screen.title
        onLeave: page.screen.close()
    }
    PageColumn {
        id: fields
        enabled: !picker.shown
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
        RowLayout {
            Layout.fillWidth: true
            Accessible.role: Accessible.Grouping
            Accessible.name: Words.gender
            Choice { objectName: "male"; Layout.fillWidth: true; text: Words.genderMale; marked: page.screen.gender === "Male"; onClicked: page.screen.chooseGender("Male") }
            Choice { objectName: "female"; Layout.fillWidth: true; text: Words.genderFemale; marked: page.screen.gender === "Female"; onClicked: page.screen.chooseGender("Female") }
        }
        DatePickerTextFIeldView {
            id: dateOfBirth
            objectName: "dateOfBirth"
            Layout.fillWidth: true
            placeholder: Words.travellerDateOfBirth
            value: page.screen.dateOfBirth
            mark: page.screen.dateOfBirthColor
            earliest: page.screen.earliestDateOfBirth
            latest: page.screen.latestDateOfBirth
            day: page.screen.dayOfBirth
            onClicked: picker.open(dateOfBirth)
            onPicked: day => page.screen.pickDateOfBirth(day)
        }
        LabelledLine { Layout.fillWidth: true; iconName: "globeIcon"; label: Words.nationality; value: page.screen.nationality }
        DatePickerTextFIeldView {
            id: expiryDate
            objectName: "expiryDate"
            visible: page.screen.showsExpiryDate
            Layout.fillWidth: true
            iconName: "numberIcon"
            placeholder: Words.documentExpiry
            value: page.screen.expiryDate
            mark: page.screen.expiryDateColor
            earliest: page.screen.earliestExpiryDate
            day: page.screen.expiryDay
            onClicked: picker.open(expiryDate)
            onPicked: day => page.screen.pickExpiryDate(day)
        }
        CustomTextFieldView {
            objectName: "documentNumber"
            visible: page.screen.showsDocuments
            Layout.fillWidth: true
            iconName: "numberIcon"
            placeholder: Words.documentNumber
            value: page.screen.documentNumber
            mark: page.screen.documentNumberColor
            onTextEdited: page.screen.typeDocumentNumber(text)
        }
        Flow {
            visible: page.screen.showsDocuments
            Layout.fillWidth: true
            spacing: 8
            Accessible.role: Accessible.Grouping
            Accessible.name: Words.documentKind
            Repeater {
                model: page.screen.documentTypes
                Choice {
                    required property DocumentTypeAdapter row
                    text: row.label
                    marked: row.isSelected
                    onClicked: row.tap()
                }
            }
        }
        DocumentTile {
            objectName: "upload"
            visible: page.screen.showsDocuments
            Layout.fillWidth: true
            placeholder: Words.documentUpload
            value: page.screen.document
            mark: page.screen.documentImageColor
            onClicked: page.screen.openPhotoPicker()
        }
    }
    MainButton {
        id: save
        enabled: !picker.shown
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
    Unspoken { item: header; when: picker.shown }
    Unspoken { item: fields; when: picker.shown }
    Unspoken { item: save; when: picker.shown }
    DatePicker {
        id: picker
        z: 2
        anchors.fill: parent
    }
}
