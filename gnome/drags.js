import Meta from 'gi://Meta';
import {reportable} from './protocol.js';
import {Giver} from './selection.js';
import {Signals} from './signals.js';

const DRAG = Meta.SelectionType.SELECTION_DND;

/// Reports each drag of a client as it begins and ends.
export class Drags {
    constructor(link) {
        this._link = link;
        this._serial = 0;
        this._source = null;
        this._giver = new Giver(DRAG, 'drag');
        this._signals = new Signals();
    }

    start() {
        this._signals.connect(global.display.get_selection(), 'owner-changed', (_, kind, source) => {
            if (kind === DRAG)
                this._changed(source);
        });
    }

    destroy() {
        this._signals.destroy();
        this._source = null;
    }

    give(want) {
        if (want.serial === this._serial && this._source)
            this._giver.give(this._link, this._source, want);
        else
            this._link.send({is: 'none', of: 'drag', serial: want.serial, type: want.type});
    }

    _changed(source) {
        this._source = source;
        if (source)
            this._link.send({is: 'drag', serial: ++this._serial, types: reportable(source.get_mimetypes())});
        else
            this._link.send({is: 'dragEnd'});
    }
}
