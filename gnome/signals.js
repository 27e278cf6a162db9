/// Signal connections that end together.
export class Signals {
    constructor() {
        this._all = [];
    }

    connect(object, signal, handler) {
        this._all.push([object, object.connect(signal, handler)]);
    }

    /// Those of one object, which is going away or no longer of interest.
    disconnect(object) {
        for (const [from, id] of this._all) {
            if (from === object)
                from.disconnect(id);
        }
        this._all = this._all.filter(([from]) => from !== object);
    }

    destroy() {
        for (const [object, id] of this._all)
            object.disconnect(id);
        this._all = [];
    }
}
