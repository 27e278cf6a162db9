import St from 'gi://St';
import * as Main from 'resource:///org/gnome/shell/ui/main.js';
import {Signals} from './signals.js';

/// Reports the monitors and what bars leave of them, in the pixels that clients count in.
export class Monitors {
    constructor(link) {
        this._link = link;
        this._last = '';
        this._signals = new Signals();
    }

    start() {
        this._signals.connect(Main.layoutManager, 'monitors-changed', () => this._report());
        this._signals.connect(global.display, 'workareas-changed', () => this._report());
        this._report();
    }

    destroy() {
        this._signals.destroy();
    }

    _report() {
        const scale = St.ThemeContext.get_for_stage(global.stage).scale_factor;
        const rectangle = ({x, y, width, height}) => [x, y, width, height].map(length => length / scale);
        const layout = Main.layoutManager;
        const message = {
            is: 'screens', primary: Math.max(0, layout.primaryIndex),
            screens: layout.monitors.map((monitor, index) =>
                ({frame: rectangle(monitor), free: rectangle(layout.getWorkAreaForMonitor(index))})),
        };
        const text = JSON.stringify(message);
        if (text !== this._last)
            this._link.send(message);
        this._last = text;
    }
}
