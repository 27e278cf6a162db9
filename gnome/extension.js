// The companion of Ravelo: what a client of GNOME Shell cannot do itself. It exports nothing; it looks for Ravelo
// on the session bus and connects to its socket.

import * as Main from 'resource:///org/gnome/shell/ui/main.js';
import {Extension} from 'resource:///org/gnome/shell/extensions/extension.js';
import {Link} from './link.js';
import {Clipboard} from './clipboard.js';
import {Drags} from './drags.js';
import {Edge} from './edge.js';
import {Monitors} from './monitors.js';
import {Panel} from './panel.js';
import {Preferences} from './preferences.js';

export default class Companion extends Extension {
    enable() {
        this._parts = [];
        this._clipboard = new Clipboard(); // Remembers who copied last, for a Ravelo that comes later.
        this._link = new Link((link, hello) => this._attach(link, hello), () => this._detach());
    }

    // Also when the screen is locked: the extension does not run in that mode.
    disable() {
        if (Main.sessionMode.isLocked)
            this._link.send({is: 'locked'});
        this._link.destroy();
        this._detach();
        this._clipboard.destroy();
        this._link = this._clipboard = null;
    }

    _attach(link, hello) {
        try {
            this._makeParts(link, hello);
        } catch (error) {
            this._detach();
            throw error;
        }
    }

    // Each is kept before it starts: any may fail on the way.
    _makeParts(link, hello) {
        const keep = part => {
            this._parts.push(part);
            part.start();
            return part;
        };
        const drags = keep(new Drags(link));
        keep(new Edge(link, hello));
        const panel = keep(new Panel(link, hello));
        keep(new Monitors(link));
        keep(new Preferences(link));
        this._clipboard.attach(link);
        link.onMessage = message => {
            switch (message.is) {
            case 'want':
                (message.of === 'drag' ? drags : this._clipboard).give(message);
                break;
            case 'place':
                panel.place(message.screen);
                break;
            case 'focus':
                panel.focus(message.on);
                break;
            case 'keyboard':
                panel.reportKeyboard(message.serial);
                break;
            case 'offer':
                this._clipboard.offer(message.text, message.unless);
                break;
            }
        };
    }

    _detach() {
        for (const part of this._parts)
            part.destroy();
        this._parts = [];
        this._clipboard.detach();
    }
}
