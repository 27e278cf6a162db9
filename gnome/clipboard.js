import GLib from 'gi://GLib';
import Meta from 'gi://Meta';
import {reportable} from './protocol.js';
import {Giver} from './selection.js';
import {Signals} from './signals.js';

const CLIPBOARD = Meta.SelectionType.SELECTION_CLIPBOARD;

/// Reports each new owner of the clipboard with its types, and offers a text when Ravelo cannot, because none of
/// its windows has the focus.
export class Clipboard {
    constructor() {
        this._serial = 0;
        this._link = this._source = this._offered = null;
        this._giver = new Giver(CLIPBOARD, 'clip');
        this._signals = new Signals();
        this._signals.connect(global.display.get_selection(), 'owner-changed', (_, kind, source) => {
            if (kind === CLIPBOARD)
                this._changed(source);
        });
    }

    destroy() {
        this._signals.destroy();
        this._source = null;
    }

    attach(link) {
        this._link = link;
        this._report(true);
    }

    detach() {
        this._link = null;
    }

    give(want) {
        if (want.serial === this._serial)
            this._giver.give(this._link, this._source, want);
        else
            this._link.send({is: 'none', of: 'clip', serial: want.serial, type: want.type});
    }

    offer(text, unless) {
        if (this._types().includes(unless))
            return;
        const bytes = new GLib.Bytes(new TextEncoder().encode(text));
        this._offered = Meta.SelectionSourceMemory.new('text/plain;charset=utf-8', bytes);
        global.display.get_selection().set_owner(CLIPBOARD, this._offered);
    }

    _changed(source) {
        this._source = source;
        this._serial++;
        this._report(false);
    }

    _types() {
        return this._source?.get_mimetypes() ?? global.display.get_selection().get_mimetypes(CLIPBOARD);
    }

    _report(initial) {
        const types = reportable(this._types());
        // The shell itself keeps what a program had that has exited.
        const offered = this._source !== null && this._source === this._offered;
        const kept = !offered && this._source instanceof Meta.SelectionSourceMemory;
        this._link?.send({is: 'clip', serial: this._serial, types, kept, offered, initial});
    }
}
