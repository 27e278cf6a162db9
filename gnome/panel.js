import Clutter from 'gi://Clutter';
import * as Keyboard from 'resource:///org/gnome/shell/ui/status/keyboard.js';
import * as Main from 'resource:///org/gnome/shell/ui/main.js';
import {Signals} from './signals.js';

const PRESSES = [Clutter.EventType.BUTTON_PRESS, Clutter.EventType.TOUCH_BEGIN];

/// What would be mixed with keys that are typed; neither Num Lock nor Caps Lock.
const MODIFIERS = ['SHIFT', 'CONTROL', 'MOD1', 'MOD4', 'MOD5', 'SUPER', 'HYPER', 'META']
    .reduce((mask, name) => mask | Clutter.ModifierType[`${name}_MASK`], 0);

/// Whether Alt-Tab and the overview show it. Releases that cannot be asked look at this property.
function setListed(window, listed) {
    if (window.hide_from_window_list)
        listed ? window.show_in_window_list() : window.hide_from_window_list();
    else if (listed)
        delete window.skip_taskbar;
    else
        Object.defineProperty(window, 'skip_taskbar', {value: true, configurable: true});
}

/// Ravelo's panel, an ordinary window of its process with an agreed title: at the top centre of a monitor, above
/// everything, on all workspaces, without the shell's animation and without taking the focus. Reports presses
/// elsewhere while it is shown.
export class Panel {
    constructor(link, hello) {
        this._link = link;
        this._title = hello.title;
        this._screen = 0;
        this._wanted = false;
        this._window = this._before = null;
        this._signals = new Signals();
    }

    start() {
        this._signals.connect(global.display, 'window-created', (_, window) => this._created(window));
        this._signals.connect(global.window_manager, 'map', (_, actor) => this._mapped(actor));
        this._signals.connect(global.display, 'notify::focus-window', () => this._focusChanged());
        this._focusChanged();
        for (const actor of global.get_window_actors())
            this._mapped(actor);
    }

    destroy() {
        this._letGo();
        this._forget();
        this._signals.destroy();
    }

    // An ordinary window again.
    _letGo() {
        const actor = this._window?.get_compositor_private();
        if (!actor)
            return;
        actor.translation_y = 0;
        actor.get_parent()?.remove_child(actor);
        global.window_group.add_child(actor);
        this._window.unmake_above();
        this._window.unstick();
        setListed(this._window, true);
    }

    place(screen) {
        this._screen = screen;
        this._center();
    }

    focus(on) {
        this._wanted = on; // It may not be shown yet.
        if (on)
            this._window?.focus(global.display.get_current_time_roundtrip());
        else if (this._window?.has_focus())
            this._giveBack();
    }

    /// Which window has the keyboard, or gets it back from the panel; none if it is Ravelo's or the shell's.
    reportKeyboard(serial) {
        const has = global.display.get_focus_window();
        const window = has === this._window ? this._before : has;
        const isOther = window?.get_compositor_private() && window.get_pid() !== this._link.pid;
        const names = isOther ? [window.get_wm_class(), window.get_wm_class_instance()] : [];
        this._link.send({
            is: 'keyboard', serial, names: [...new Set(names.filter(name => name))],
            ...isOther ? {window: window.get_stable_sequence()} : {},
            focused: Boolean(isOther) && window === has && Main.modalCount === 0,
            layout: Keyboard.getInputSourceManager().currentSource?.xkbId ?? '',
            modifiers: (global.get_pointer()[2] & MODIFIERS) !== 0,
        });
    }

    _giveBack() {
        const time = global.display.get_current_time_roundtrip();
        const workspace = global.workspace_manager.get_active_workspace();
        if (this._before?.get_compositor_private() && // It still exists.
            this._before.located_on_workspace(workspace))
            this._before.focus(time);
        else
            global.display.unset_input_focus(time);
    }

    // Its title is not known yet.
    _created(window) {
        if (window.get_pid() === this._link.pid)
            Main.wm.skipNextEffect(window.get_compositor_private());
        if (this._window)
            this._watch(window);
    }

    _mapped(actor) {
        const window = actor.meta_window;
        if (window.get_pid() !== this._link.pid || window.get_title() !== this._title)
            return;
        this._forget();
        this._window = window;
        Main.wm.skipNextEffect(actor); // When it closes.
        setListed(window, false);
        window.make_above();
        window.stick();
        this._center();
        actor.get_parent()?.remove_child(actor);
        global.top_window_group.add_child(actor); // Above the bar.
        for (const change of ['size-changed', 'position-changed'])
            this._signals.connect(window, change, () => this._center());
        this._signals.connect(window, 'unmanaged', () => {
            this._forget();
            this._wanted = false;
        });
        this._watchOthers();
        if (this._wanted)
            this.focus(true);
        else
            this._focusChanged();
    }

    // A press in a window raises it, even if it has the focus already; the stage sees only presses elsewhere.
    _watchOthers() {
        this._others = new Signals();
        this._others.connect(global.stage, 'captured-event', (_, event) => {
            if (event.type() === Clutter.EventType.BUTTON_PRESS)
                this._pressed(false);
            return Clutter.EVENT_PROPAGATE;
        });
        for (const {meta_window: other} of global.get_window_actors()) {
            if (other !== this._window)
                this._watch(other);
        }
    }

    _watch(other) {
        const others = this._others, own = other.get_pid() === this._link.pid;
        others.connect(other, 'raised', () => this._pressed(own));
        others.connect(other, 'unmanaged', () => others.disconnect(other));
    }

    _forget() {
        this._others?.destroy();
        if (this._window)
            this._signals.disconnect(this._window);
        this._window = this._others = null;
    }

    _center() {
        const monitor = Main.layoutManager.monitors[this._screen] ?? Main.layoutManager.primaryMonitor;
        if (!this._window || !monitor)
            return;
        const frame = this._window.get_frame_rect();
        const x = monitor.x + Math.round((monitor.width - frame.width) / 2);
        if (frame.x !== x || frame.y !== monitor.y)
            this._window.move_frame(true, x, monitor.y);
        // Mutter wants a part of each window below the bar, but the timer's bar is as low as that one.
        const actor = this._window.get_compositor_private();
        actor.translation_y = monitor.y - this._window.get_frame_rect().y;
    }

    // By a press on it, or because Ravelo wants it. The shell gives the focus to each new window, too, some
    // releases later, and when the workspace changes.
    _focusChanged() {
        const focused = global.display.get_focus_window();
        if (focused !== this._window)
            this._before = focused;
        else if (focused && !this._wanted && !PRESSES.includes(Clutter.get_current_event()?.type()))
            this._giveBack();
        else if (focused)
            this.reportKeyboard(0); // Before any key reaches the panel.
    }

    _pressed(own) {
        if (this._window && !this._isUnderPointer())
            this._link.send({is: 'press', own});
    }

    _isUnderPointer() {
        const [x, y] = global.get_pointer();
        const frame = this._window.get_frame_rect();
        return x >= frame.x && x < frame.x + frame.width && y >= frame.y && y < frame.y + frame.height;
    }
}
