import Clutter from 'gi://Clutter';
import St from 'gi://St';
import * as Main from 'resource:///org/gnome/shell/ui/main.js';
import * as DND from 'resource:///org/gnome/shell/ui/dnd.js';
import {Signals} from './signals.js';

/// A strip at the middle of each monitor's top edge that reports the pointer, and drags, entering and leaving;
/// over the bar and over full-screen windows.
export class Edge {
    constructor(link, hello) {
        this._link = link;
        this._hello = hello;
        this._strips = [];
        this._over = -1;
        this._signals = new Signals();
        // During a drag GNOME 45 and later tell this monitor, earlier releases the strip itself.
        this._monitor = {
            dragMotion: event => {
                this._report(this._strips.indexOf(event.targetActor));
                return DND.DragMotionResult.CONTINUE;
            },
        };
    }

    start() {
        this._signals.connect(Main.layoutManager, 'monitors-changed', () => this._makeStrips());
        // The overview hides all windows, the panel too.
        for (const change of ['showing', 'hidden'])
            this._signals.connect(Main.overview, change, () => this._showStrips());
        DND.addDragMonitor(this._monitor);
        this._makeStrips();
    }

    destroy() {
        DND.removeDragMonitor(this._monitor);
        this._signals.destroy();
        this._dropStrips();
    }

    _dropStrips() {
        for (const strip of this._strips)
            strip.destroy();
        this._strips = [];
    }

    _makeStrips() {
        this._dropStrips();
        this._report(-1);
        const scale = St.ThemeContext.get_for_stage(global.stage).scale_factor;
        Main.layoutManager.monitors.forEach((monitor, index) => {
            const width = this._hello.stripWidth * scale;
            const strip = new St.Widget({
                name: 'ravelo-edge', reactive: true, x: monitor.x + Math.round((monitor.width - width) / 2),
                y: monitor.y, width, height: this._hello.stripHeight * scale,
            });
            Main.layoutManager.addTopChrome(strip, {trackFullscreen: false});
            strip.connect('enter-event', () => {
                this._report(index);
                return Clutter.EVENT_PROPAGATE;
            });
            strip.connect('leave-event', () => {
                this._report(-1);
                return Clutter.EVENT_PROPAGATE;
            });
            this._strips.push(strip);
        });
        this._showStrips();
    }

    _showStrips() {
        for (const strip of this._strips)
            strip.visible = !Main.overview.visible;
        if (Main.overview.visible)
            this._report(-1);
    }

    _report(screen) {
        if (screen === this._over)
            return;
        this._over = screen;
        this._link.send(screen < 0 ? {is: 'edge'} : {is: 'edge', screen});
    }
}
