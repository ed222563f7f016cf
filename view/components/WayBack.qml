import QtQuick

// In the header of a page: what its control that leads back does, for a swipe from the edge. It is there for the swipe
// while the control is.
Item {
    signal taken
}
