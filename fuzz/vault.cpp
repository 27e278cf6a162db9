// Any file of an encrypted store, and any key file.

#include "Input.h"
#include "vault/Envelope.h"
#include "vault/KeyFile.h"

#include <algorithm>

using namespace ravelo;

namespace {

LockedBytes sameBytes(size_t size, unsigned char byte) {
    LockedBytes bytes(size);
    std::fill_n(bytes.data(), size, byte);
    return bytes;
}

/// The same in every run, so that inputs can be sealed with it.
const StoreKey& key() {
    static const StoreKey key(KeyId{}, sameBytes(32, 7));
    return key;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    const QByteArray input = fuzz::view(bytes, size).toByteArray();
    const QString name = QStringLiteral("store.json");
    if (const auto opened = key().unseal(name, input)) {
        fuzz::require(formOf(input) != FileForm::plain);
    }
    // The input as contents, and a sealed file with some of its bytes changed.
    for (QByteArray sealed :
         {key().seal(name, input), sealForLater(key().id(), key().publicKey(), name, input)}) {
        fuzz::require(key().unseal(name, sealed) == input);
        if (size > 1) {
            const qsizetype place = (bytes[0] << 8 | bytes[1]) % sealed.size();
            sealed[place] = char(sealed[place] ^ (bytes[1] | 1));
            fuzz::require(!key().unseal(name, sealed));
        }
    }
    // A key file by a passphrase, and with one of its bytes changed.
    KeyFile own = KeyFile::of(key(), KeyFile::Guard::passphrase, {1, 8});
    const LockedBytes wrapper = own.stretched(LockedBytes::copyOf(input));
    own.wrap(key(), wrapper);
    own.setGoal(size % 2 == 0 ? KeyFile::Goal::plain : KeyFile::Goal::encrypted, key());
    QByteArray written = own.encoded();
    fuzz::require(KeyFile::decoded(written) == own && own.unwrap(wrapper).has_value());
    fuzz::require(!own.service().isEmpty());
    if (size > 1) {
        const qsizetype place = (bytes[0] << 8 | bytes[1]) % written.size();
        written[place] = char(written[place] ^ (bytes[1] | 1));
        const auto changed = KeyFile::decoded(written);
        fuzz::require(!changed || !changed->unwrap(wrapper));
    }
    if (const auto file = KeyFile::decoded(input)) {
        fuzz::require(file->encoded() == input);
        fuzz::require(!file->unwrap(sameBytes(KeyFile::wrapperLength, 7)));
    }
    return 0;
}
