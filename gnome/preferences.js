import Gio from 'gi://Gio';
import {Signals} from './signals.js';

/// Reports what the user has chosen for all programs: less animation, and the icons.
export class Preferences {
    constructor(link) {
        this._link = link;
        this._settings = new Gio.Settings({schema_id: 'org.gnome.desktop.interface'});
        this._signals = new Signals();
    }

    start() {
        for (const key of ['enable-animations', 'icon-theme'])
            this._signals.connect(this._settings, `changed::${key}`, () => this._report());
        this._report();
    }

    destroy() {
        this._signals.destroy();
    }

    _report() {
        this._link.send({
            is: 'look', animations: this._settings.get_boolean('enable-animations'),
            icons: this._settings.get_string('icon-theme'),
        });
    }
}
