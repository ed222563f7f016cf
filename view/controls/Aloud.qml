import QtQuick
import Ombrivane.Private

// Says its text aloud when it changes, and is found by assistive technology as long as it has one.
Announcement {
    id: said

    Accessible.role: Accessible.AlertMessage
    Accessible.name: said.text
    Accessible.ignored: said.text === ""
}
