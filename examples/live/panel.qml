import QtQuick

// The panel of qt.cc. The layout mirrors itself where the language is written from right to left.
Column {
    id: panel
    padding: 24
    spacing: 6
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Text {
        text: clock
        color: "#e3e7ee"
        font { pixelSize: 28; bold: true }
        bottomPadding: 12
        anchors.left: parent.left
        anchors.leftMargin: panel.padding
    }

    Repeater {
        model: rows
        Row {
            required property var modelData
            spacing: 32
            Text {
                text: modelData.label
                color: "#9aa5b6"
                width: 220
                anchors.verticalCenter: parent.verticalCenter
                horizontalAlignment: Text.AlignLeft
            }
            Text {
                text: modelData.text
                color: "#e3e7ee"
                font: textFont
                width: textWidth
                horizontalAlignment: Text.AlignRight
            }
        }
    }
}
