import Ravelo.Focus
import Ravelo.Panel

/// The closed panel while a timer runs or reminders are shown.
TimerBarView {
    required property NotchController controller
    required property Pausing pausing

    objectName: "bar"
    paused: pausing.paused
    notch: controller.notch
    ended: controller.timerEnded
}
