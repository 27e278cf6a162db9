import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import {SOCKET, VERSION, parsed, written} from './protocol.js';

const BUS_NAME = 'org.ravelo.Ravelo';
const DAEMON = 'org.freedesktop.DBus';

// Ravelo owns its name a moment before it listens.
const RETRY_MS = 100;
const RETRIES = 50;

/// Greetings that fail in a row, after which this owner of the name is none of ours.
const MAX_FAILURES = 3;

// A connection that ends sooner has failed, too. The pause before the next one doubles each time.
const LASTING_US = 10e6;
const MAX_PAUSE_S = 64;

/// The connection to Ravelo, for as long as it runs: found by its name on the bus, made to its socket, believed
/// only if the process at the other end is the one that owns the name, and ours. Nothing here ever waits: if
/// Ravelo does not read, it is dropped.
export class Link {
    /// `onUp` gets this link and Ravelo's greeting; if it throws, that is a greeting that failed.
    constructor(onUp, onDown) {
        this._onUp = onUp;
        this._onDown = onDown;
        this._failures = this._retry = 0;
        this._watch = Gio.bus_watch_name(Gio.BusType.SESSION, BUS_NAME, Gio.BusNameWatcherFlags.NONE,
            (connection, name, owner) => {
                this._failures = 0;
                this._appeared(owner);
            }, () => this._close());
    }

    destroy() {
        Gio.bus_unwatch_name(this._watch);
        this._close();
    }

    /// The process at the other end.
    get pid() {
        return this._pid;
    }

    /// Cancelled once the connection ends.
    get cancellable() {
        return this._cancel;
    }

    send(message) {
        this._put(written(message));
    }

    /// With a descriptor, which stays the caller's: a NUL byte carries it, before the message.
    sendWith(message, fd) {
        try {
            this._connection?.send_fd(fd, null);
        } catch {
            this._hangUp();
        }
        this.send(message);
    }

    /// Another connection, for bytes: first the message, then what `pour` writes to the stream.
    async pour(message, pour) {
        const cancel = this._cancel;
        const connection = await this._connect(cancel);
        try {
            if (connection.get_socket().get_credentials().get_unix_pid() !== this._pid)
                throw new Error('not Ravelo');
            const stream = connection.get_output_stream();
            stream.write_all(written(message), null); // Fits into the socket.
            await pour(stream, cancel);
        } finally {
            connection.close(null);
        }
    }

    async _appeared(owner) {
        this._close();
        const cancel = this._cancel = new Gio.Cancellable();
        try {
            const pid = await this._pidOf(owner, cancel);
            const connection = await this._connectAtLast(cancel);
            const socket = connection.get_socket();
            const peer = socket.get_credentials();
            if (peer.get_unix_user() !== new Gio.Credentials().get_unix_user() || peer.get_unix_pid() !== pid)
                throw new Error('the socket is not that of the name\'s owner');
            socket.set_blocking(false);
            this._connection = connection;
            this._pid = pid;
            this.send({is: 'hello', version: VERSION});
            await this._listen(new Gio.DataInputStream({base_stream: connection.get_input_stream()}), cancel);
        } catch (error) {
            if (!cancel.is_cancelled())
                console.warn(`Ravelo: ${error.message}`);
        }
        if (cancel === this._cancel)
            this._tryLater(owner);
    }

    // It may have hung for a while. Whether it has gone the bus says.
    _tryLater(owner) {
        const wasUp = this._isUp;
        const failures = wasUp && GLib.get_monotonic_time() - this._upSince > LASTING_US ? 0 : this._failures + 1;
        this._close();
        this._failures = failures;
        if (wasUp || failures < MAX_FAILURES) {
            const pause = Math.min(2 ** Math.max(0, failures - 1), MAX_PAUSE_S);
            this._retry = GLib.timeout_add_seconds(GLib.PRIORITY_DEFAULT, pause, () => {
                this._retry = 0;
                this._appeared(owner);
                return GLib.SOURCE_REMOVE;
            });
        }
    }

    _pidOf(owner, cancel) {
        return new Promise((done, failed) => Gio.DBus.session.call(DAEMON, '/org/freedesktop/DBus', DAEMON,
            'GetConnectionUnixProcessID', new GLib.Variant('(s)', [owner]), null, Gio.DBusCallFlags.NONE, 2000,
            cancel, (bus, result) => {
                try {
                    done(bus.call_finish(result).deepUnpack()[0]);
                } catch (error) {
                    failed(error);
                }
            }));
    }

    _connect(cancel) {
        const path = GLib.build_filenamev([GLib.get_user_runtime_dir(), SOCKET]);
        return new Promise((done, failed) => new Gio.SocketClient().connect_async(
            Gio.UnixSocketAddress.new(path), cancel, (client, result) => {
                try {
                    done(client.connect_finish(result));
                } catch (error) {
                    failed(error);
                }
            }));
    }

    async _connectAtLast(cancel) {
        for (let i = 1; ; i++) {
            try {
                return await this._connect(cancel);
            } catch (error) {
                if (i === RETRIES || cancel.is_cancelled())
                    throw error;
            }
            await this._pause();
        }
    }

    _pause() {
        return new Promise(done => {
            this._endPause = done;
            this._retry = GLib.timeout_add(GLib.PRIORITY_DEFAULT, RETRY_MS, () => {
                this._retry = 0;
                done();
                return GLib.SOURCE_REMOVE;
            });
        });
    }

    async _listen(stream, cancel) {
        for (;;) {
            const line = await this._line(stream, cancel);
            if (line === null || cancel.is_cancelled())
                return;
            const message = parsed(line);
            if (!message)
                throw new Error('a message that is none');
            if (!this._isUp) {
                if (message.is !== 'hello' || message.version !== VERSION)
                    throw new Error('Ravelo is of another version: log out and in once');
                this._onUp(this, message);
                this._isUp = true;
                this._upSince = GLib.get_monotonic_time();
            } else {
                this.onMessage(message);
            }
        }
    }

    _line(stream, cancel) {
        return new Promise((done, failed) => stream.read_line_async(GLib.PRIORITY_DEFAULT, cancel,
            (source, result) => {
                try {
                    done(source.read_line_finish_utf8(result)[0]);
                } catch (error) {
                    failed(error);
                }
            }));
    }

    _put(bytes) {
        if (!this._connection)
            return;
        try {
            if (this._connection.get_socket().send(bytes, null) === bytes.length)
                return;
        } catch {
            // It does not read, or is gone.
        }
        this._hangUp();
    }

    // Ends the listening, after which it is tried again.
    _hangUp() {
        try {
            this._connection.get_socket().shutdown(true, true);
        } catch {
            // It has hung up itself.
        }
    }

    _close() {
        this._cancel?.cancel();
        if (this._retry)
            GLib.source_remove(this._retry);
        this._retry = 0;
        this._endPause?.();
        this._endPause = null;
        this._connection?.close(null);
        this._cancel = this._connection = null;
        this._pid = 0;
        this.onMessage = null;
        if (this._isUp) {
            this._isUp = false;
            this._onDown();
        }
    }
}
