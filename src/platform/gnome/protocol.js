// The messages between the extension and Ravelo, on the extension's side; Protocol.h is the other side and
// describes them. Both speak this version or nothing.

export const VERSION = 2;

/// The socket on which Ravelo listens, below XDG_RUNTIME_DIR.
export const SOCKET = 'ravelo-shell/socket';

/// One message as a line.
export function written(message) {
    return new TextEncoder().encode(`${JSON.stringify(message)}\n`);
}

// More types, or a longer line, Ravelo does not take.
const MAX_TYPES = 512;
const MAX_TYPES_BYTES = 60 << 10;

/// These types as they may be reported: none if they are too many, as one that is left out could mark a password.
export function reportable(types) {
    const fits = types.length <= MAX_TYPES && written(types).length <= MAX_TYPES_BYTES;
    return fits ? types : [];
}

const isWhole = value => Number.isInteger(value) && value >= 0;
const isText = value => typeof value === 'string';
const isOf = value => value === 'clip' || value === 'drag';

// What each message of Ravelo's must have.
const FIELDS = {
    hello: {version: isWhole, title: isText, stripWidth: isWhole, stripHeight: isWhole},
    want: {of: isOf, serial: isWhole, type: isText, cap: isWhole},
    place: {screen: isWhole},
    focus: {on: value => typeof value === 'boolean'},
    keyboard: {serial: isWhole},
    offer: {text: isText, unless: isText},
};

/// The message of a line; null if it is none that Ravelo may send.
export function parsed(line) {
    let message;
    try {
        message = JSON.parse(line);
    } catch {
        return null;
    }
    const fields = Object.hasOwn(FIELDS, message?.is) ? FIELDS[message.is] : null;
    const isValid = fields && Object.entries(fields).every(([name, check]) => check(message[name]));
    return isValid ? message : null;
}
