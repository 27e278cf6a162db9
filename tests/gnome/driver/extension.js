// Runs JavaScript that a test sends over its private bus: input devices, pictures, windows. Never packaged.
import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import Clutter from 'gi://Clutter';
import Meta from 'gi://Meta';
import Shell from 'gi://Shell';
import St from 'gi://St';
import * as DND from 'resource:///org/gnome/shell/ui/dnd.js';
import * as Main from 'resource:///org/gnome/shell/ui/main.js';
import {Extension} from 'resource:///org/gnome/shell/extensions/extension.js';

const INTERFACE = `<node><interface name="org.ravelo.Test.Driver">
  <method name="Run"><arg type="s" direction="in"/><arg type="s" direction="out"/></method>
</interface></node>`;
const AsyncFunction = Object.getPrototypeOf(async function () {}).constructor;

// For tests. The shell disables and enables again what was enabled after an extension that goes.
const kept = {};

/// What the code of a test can use by name.
class Tools {
    constructor() {
        Object.assign(this, {Gio, GLib, Clutter, Meta, Shell, St, DND, Main, kept});
        const seat = Clutter.get_default_backend().get_default_seat();
        this.pointer = seat.create_virtual_device(Clutter.InputDeviceType.POINTER_DEVICE);
        this.keyboard = seat.create_virtual_device(Clutter.InputDeviceType.KEYBOARD_DEVICE);
        for (const name of ['sleep', 'move', 'glide', 'button', 'click', 'key', 'type', 'windows', 'shot'])
            this[name] = this[name].bind(this);
    }

    sleep(ms) {
        return new Promise(done => GLib.timeout_add(GLib.PRIORITY_DEFAULT, ms, () => {
            done();
            return GLib.SOURCE_REMOVE;
        }));
    }

    move(x, y) {
        this.pointer.notify_absolute_motion(GLib.get_monotonic_time(), x, y);
    }

    async glide(x0, y0, x1, y1, steps = 20) {
        for (let i = 0; i <= steps; i++) {
            this.move(x0 + (x1 - x0) * i / steps, y0 + (y1 - y0) * i / steps);
            await this.sleep(16);
        }
    }

    button(down) {
        this.pointer.notify_button(GLib.get_monotonic_time(), Clutter.BUTTON_PRIMARY, down ? 1 : 0);
    }

    async click(x, y) {
        this.move(x, y);
        await this.sleep(80);
        this.button(true);
        await this.sleep(40);
        this.button(false);
        await this.sleep(80);
    }

    async key(value) {
        for (const state of [1, 0]) {
            this.keyboard.notify_keyval(GLib.get_monotonic_time(), value, state);
            await this.sleep(20);
        }
    }

    async type(text) {
        for (const character of text)
            await this.key(character.codePointAt(0));
    }

    windows() {
        return global.get_window_actors().map(actor => {
            const window = actor.meta_window, frame = window.get_frame_rect();
            return {title: window.title, pid: window.get_pid(), focus: window.has_focus(), visible: actor.mapped,
                frame: [frame.x, frame.y + actor.translation_y, frame.width, frame.height], fullscreen: window.is_fullscreen(),
                above: window.is_above(), workspaces: window.is_on_all_workspaces() ? 'all' : '', top: actor.get_parent() === global.top_window_group};
        });
    }

    async shot(path) {
        const stream = Gio.File.new_for_path(path).replace(null, false, 0, null);
        const shooter = new Shell.Screenshot();
        await new Promise(done => shooter.screenshot(true, stream, (_, result) => {
            shooter.screenshot_finish(result);
            done();
        }));
        stream.close(null);
    }
}

export default class Driver extends Extension {
    enable() {
        const tools = new Tools();
        this._object = Gio.DBusExportedObject.wrapJSObject(INTERFACE, {
            RunAsync: async ([code], invocation) => {
                let answer;
                try {
                    const run = new AsyncFunction(...Object.keys(tools), code);
                    answer = JSON.stringify({value: await run(...Object.values(tools)) ?? null});
                } catch (error) {
                    answer = JSON.stringify({error: `${error}\n${error.stack}`});
                }
                invocation.return_value(new GLib.Variant('(s)', [answer]));
            },
        });
        this._object.export(Gio.DBus.session, '/org/ravelo/Test/Driver');
        this._name = Gio.DBus.session.own_name('org.ravelo.Test.Driver', 0, null, null);
    }

    disable() {
        this._object.unexport();
        Gio.DBus.session.unown_name(this._name);
    }
}
