import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// What the program is for.
GuidePage {
    symbol: "bell.and.waveform.fill"
    title: qsTrId("onboarding.welcome.title")
    subtitle: qsTrId("onboarding.welcome.subtitle")

    FeatureRow {
        width: parent.width
        icon: "bell.fill"
        iconColor: Theme.colours.accent
        title: qsTrId("onboarding.feature1.title")
        text: qsTrId("onboarding.feature1.text")
    }

    FeatureRow {
        width: parent.width
        icon: "internaldrive.fill"
        iconColor: Theme.colours.blue
        title: qsTrId("onboarding.feature2.title")
        text: qsTrId("onboarding.feature2.text")
    }

    FeatureRow {
        width: parent.width
        icon: "magnifyingglass"
        iconColor: Theme.colours.green
        title: qsTrId("onboarding.feature3.title")
        text: qsTrId("onboarding.feature3.text")
    }

    FeatureRow {
        width: parent.width
        icon: "iphone.and.arrow.forward"
        iconColor: Theme.colours.purple
        title: qsTrId("onboarding.feature4.title")
        text: qsTrId("onboarding.feature4.text")
    }

    PlainLabel {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: qsTrId("onboarding.welcome.timeHint")
        color: Theme.colours.tertiaryLabel
        font.pixelSize: Metrics.textSmall
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
