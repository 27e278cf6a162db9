import GLib from 'gi://GLib';
import Meta from 'gi://Meta';

/// Hands what one owner of a selection has over to Ravelo: the descriptor that the owner writes to, so that no
/// byte passes through the shell. Owners without one (X11 programs, contents that the shell keeps) are copied
/// into a connection of their own, without being kept.
export class Giver {
    constructor(kind, name) {
        this._kind = kind;
        this._name = name;
    }

    /// What `want` asks for; `source` is null if the present owner is not known.
    async give(link, source, want) {
        const answer = {of: this._name, serial: want.serial, type: want.type};
        try {
            const stream = source && !(source instanceof Meta.SelectionSourceMemory)
                ? await this._open(source, want.type, link.cancellable) : null;
            const fd = stream?.fd ?? -1;
            if (fd >= 0)
                link.sendWith({is: 'data', ...answer}, fd);
            stream?.close_async(GLib.PRIORITY_DEFAULT, null, null);
            if (fd < 0)
                await link.pour({is: 'pour', ...answer}, (out, cancel) => this._copy(want, out, cancel));
        } catch {
            link.send({is: 'none', ...answer});
        }
    }

    _open(source, type, cancel) {
        return new Promise((done, failed) => source.read_async(type, cancel, (from, result) => {
            try {
                done(from.read_finish(result));
            } catch (error) {
                failed(error);
            }
        }));
    }

    // One byte more than allowed, because it is cut without a word.
    _copy(want, out, cancel) {
        return new Promise((done, failed) => global.display.get_selection().transfer_async(
            this._kind, want.type, want.cap + 1, out, cancel, (selection, result) => {
                try {
                    done(selection.transfer_finish(result));
                } catch (error) {
                    failed(error);
                }
            }));
    }
}
