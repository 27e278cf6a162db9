import QtQuick
import Ravelo.Controls
import Ravelo.Vault

/// Shown in place of the encrypted content while its key is not available.
Lazy {
    id: locked

    /// Whether the tab is shown.
    required property bool shown

    /// As if typed into the field.
    function type(text: string) {
        item.type(text); // qmllint disable
    }

    needed: Vault.locked
    page: Qt.resolvedUrl("LockedPage.qml")
    properties: ({ view: locked })
}
