// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

pragma ComponentBehavior: Bound

import QtQuick
import Selvane

/// The application's messages and questions over a window. Every window shows that work is in progress; only
/// the key window shows notices, errors and the questions of a launch, one at a time.
Item {
    id: feedback

    required property AppModel app
    required property bool isKey
    property bool isActive: Application.state === Qt.ApplicationActive
    property int noticeDuration: Theme.motion.noticeDuration
    property int offerDuration: Theme.motion.offerDuration
    property real noticesAside: 0 ///< how much at the left notices keep clear of
    property ModalLayer alert: null
    property string alertKind

    /// Whether a message or a question lies over the window, so that nothing behind it can be used.
    readonly property bool covers: busy.covers || (alert !== null && alert.isOpen)
    readonly property bool isBusy: app.busyMessage !== ""
    readonly property string wantedAlert: !isKey ? "" : app.errorMessage !== "" ? "error"
                                        : app.pendingLaunch !== "" ? "launch"
                                        : app.offerForceQuit !== "" ? "force"
                                        : app.signInOffer !== "" ? "offer"
                                        : app.signInPreset >= 0 && app.busyMessage === "" ? "signIn" : ""

    signal newProfileAsked

    /// "Nuovo profilo…" was chosen from the menu; only the key window responds.
    function offerNewProfile(): void {
        if (feedback.isKey && !feedback.isBusy && feedback.alertKind === "")
            feedback.newProfileAsked()
    }
    function update(): void {
        if (feedback.wantedAlert === feedback.alertKind)
            return
        feedback.alertKind = feedback.wantedAlert
        if (feedback.alert)
            feedback.alert.close()
        feedback.alert = null
        if (feedback.alertKind === "error")
            feedback.alert = errorAlert.createObject(feedback, {message: feedback.app.errorMessage}) as ModalLayer
        else if (feedback.alertKind === "launch")
            feedback.alert = launchAlert.createObject(feedback, {launching: feedback.app.pendingLaunch}) as ModalLayer
        else if (feedback.alertKind === "force")
            feedback.alert = forceAlert.createObject(feedback) as ModalLayer
        else if (feedback.alertKind === "offer")
            feedback.alert = offerAlert.createObject(feedback) as ModalLayer
        else if (feedback.alertKind === "signIn")
            feedback.alert = signInSheet.createObject(feedback) as ModalLayer
    }

    anchors.fill: parent
    z: Theme.toastLayer

    onWantedAlertChanged: update()
    Component.onCompleted: update()

    Connections {
        target: feedback.app

        function onErrorMessageChanged(): void {
            if (feedback.alertKind === "error" && feedback.app.errorMessage !== "")
                (feedback.alert as AlertDialog).message = feedback.app.errorMessage
        }
    }
    NoticeLayer {
        app: feedback.app
        isKey: feedback.isKey
        isActive: feedback.isActive
        isCovered: feedback.covers
        noticeDuration: feedback.noticeDuration
        offerDuration: feedback.offerDuration
        aside: feedback.noticesAside
    }
    BusyOverlay {
        id: busy

        message: feedback.app.busyMessage
        onMessageChanged: {
            if (feedback.isKey)
                Announcer.announce(busy, feedback.app.busyMessage)
        }
        work: feedback.app.work
    }

    Component {
        id: errorAlert

        AlertDialog {
            id: alert

            title: qsTr("Errore")
            cancelText: ""
            isError: true
            onConfirmed: feedback.app.clearError()
            onCancelled: feedback.app.clearError()
            onClosed: alert.destroy()
        }
    }
    Component {
        id: launchAlert

        AccountAlert {
            id: alert

            app: feedback.app
            onConfirmed: feedback.app.confirmLaunch()
            onCancelled: feedback.app.cancelLaunch()
            onClosed: alert.destroy()
        }
    }
    Component {
        id: forceAlert

        AlertDialog {
            id: alert

            title: qsTr("Claude non si è chiuso")
            message: qsTr("Claude potrebbe avere una finestra di conferma aperta. Puoi chiuderlo a mano oppure "
                          + "forzarne la chiusura.")
            confirmText: qsTr("Forza chiusura")
            destructive: true
            onConfirmed: feedback.app.forceLaunch()
            onCancelled: feedback.app.cancelForceQuit()
            onClosed: alert.destroy()
        }
    }
    Component {
        id: offerAlert

        AlertDialog {
            id: alert

            title: qsTr("Un accesso per ogni profilo")
            message: qsTr("L'accesso finisce nel browser, e di solito torna al Claude del profilo principale. Se lo "
                          + "riceve Selvane, arriva a quello da cui è cominciato. Si cambia quando vuoi nella "
                          + "finestra dei profili.")
            confirmText: qsTr("Ricevi gli accessi")
            cancelText: qsTr("Non ora")
            onConfirmed: feedback.app.answerSignInOffer(true)
            onCancelled: feedback.app.answerSignInOffer(false)
            onClosed: alert.destroy()
        }
    }
    Component {
        id: signInSheet

        SignInSheet {
            id: sheet

            app: feedback.app
            onClosed: sheet.destroy()
        }
    }
}
