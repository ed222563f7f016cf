pragma Singleton
import QtQuick
import Ombrivane

// Colours, type and measures of every page. `dark`, `textScale` and `reducedMotion` follow the host.
QtObject {
    id: theme

    property bool dark: false
    property real textScale: 1
    property bool reducedMotion: false

    readonly property color canvasColor: dark ? "#0E1116" : "#F3F5F9"
    readonly property color whiteColor: dark ? "#171C24" : "#FFFFFF"
    readonly property color whiteDarkGreyColor: whiteColor
    readonly property color formBackgroundColor: whiteColor
    readonly property color blackColor: dark ? "#EEF1F6" : "#14181F"
    readonly property color placeHolderColor: dark ? "#A3ADBD" : "#5B6472"
    readonly property color formBorderColor: dark ? "#6F7A8C" : "#7F8899"
    readonly property color canvasFormBorderColor: formBorderColor
    readonly property color primaryColor: dark ? "#FF8A7A" : "#C8372D"
    readonly property color primaryTextColor: dark ? "#14181F" : "#FFFFFF"
    readonly property color secondaryColor: dark ? "#4FD1C0" : "#0F766E"
    readonly property color secondaryTextColor: dark ? "#14181F" : "#FFFFFF"
    readonly property color calenderRangeColor: dark ? "#123B38" : "#DCEFEC"
    readonly property color segmentColor: dark ? "#1F2631" : "#EEF2F8"
    readonly property color filterBackgroundColor: dark ? "#12171E" : "#F8FAFD"
    readonly property color hairlineColor: dark ? "#2C3542" : "#D5DBE5"
    readonly property color dimColor: "#80000000"

    readonly property string fontFamily: Words.fontFamily !== "" ? Words.fontFamily : "Fira Sans"
    // What letters may reach beyond the advance of their text, in points: joined and stacked ones do.
    readonly property real overhang: Words.fontFamily !== "" ? 8 : 1
    readonly property real titleSize: 20 * textScale
    readonly property real sectionSize: 16 * textScale
    readonly property real timeSize: 20 * textScale
    readonly property real priceSize: 18 * textScale
    readonly property real bodySize: 15 * textScale
    readonly property real captionSize: 13 * textScale
    readonly property real smallSize: 12 * textScale

    readonly property real margin: 16
    readonly property real gap: 12
    readonly property real sectionGap: 24
    readonly property real cardRadius: 14
    readonly property real fieldRadius: 12
    readonly property real fieldHeight: 52
    readonly property real target: 48
    // A header beyond this takes too much of its page to stay.
    readonly property real tallHeader: 72
    readonly property real contentWidth: 560
    // From here on a window has room for a filter beside its list.
    readonly property real wideWidth: 840
    readonly property real besideWidth: 360

    readonly property int stateDuration: reducedMotion ? 0 : 150
    readonly property int pageDuration: reducedMotion ? 0 : 250
}
