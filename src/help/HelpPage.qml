import QtQuick
import Tessarine.Help
import Tessarine.Theme

// What stands on the page of a section, from its title down. A section is one of these.
Column {
    required property HelpView view

    spacing: Metrics.spacingMedium
}
