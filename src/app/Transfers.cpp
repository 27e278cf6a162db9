#include "app/Transfers.h"

#include "platform/DetachedJobs.h"
#include "platform/ImageDecoder.h"
#include "store/Store.h"
#include "store/Transfer.h"
#include "vault/Vault.h"

#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// If the job was not even started, because too many hang.
tl::unexpected<Error> neverRan() {
    return failure(u"too many disks do not answer"_s);
}

} // namespace

Transfers::Transfers(Services services) : services_(std::move(services)) {}

bool Transfers::isPossible(const Reply& reply) const {
    if (running_) {
        reply({1, {}, u"another export or import is running"_s});
    } else if (services_.store.isLocked()) {
        reply({1, {}, u"what is stored is encrypted: unlock it first"_s});
    }
    return !running_ && !services_.store.isLocked();
}

void Transfers::exportTo(const QString& path, Reply reply) {
    if (!isPossible(reply)) {
        return;
    }
    const auto outcome = std::make_shared<Result<int>>(neverRan());
    running_ = services_.jobs.run(
        [contents = services_.store.contents(), vault = services_.store.vault(), path, outcome] {
            *outcome = exportStore(contents, *vault, path);
        },
        [this, outcome, reply = std::move(reply)] {
            running_.reset();
            if (!*outcome) {
                reply({1, {}, outcome->error().message});
            } else if (**outcome > 0) {
                reply({1, {}, u"%1 images could not be read and are left out"_s.arg(**outcome)});
            } else {
                reply({});
            }
        });
}

void Transfers::importFrom(const QString& path, Reply reply) {
    if (!isPossible(reply)) {
        return;
    }
    const auto outcome = std::make_shared<Result<StoreContents>>(neverRan());
    running_ = services_.jobs.run(
        [vault = services_.store.vault(), path, outcome, decoder = services_.decoder,
         mayWrite = services_.mayWrite] {
            *outcome = importStore(path, *vault, *decoder, mayWrite);
        },
        [this, outcome, reply = std::move(reply)] {
            running_.reset();
            if (!*outcome) {
                reply({1, {}, outcome->error().message});
                return;
            }
            services_.store.addAll(**outcome, [reply](const SaveOutcome& saved) {
                reply(saved.kind == SaveOutcome::Kind::saved
                          ? Answer()
                          : Answer{1, {}, u"not saved yet: "_s + saved.reason});
            });
        });
}

} // namespace ravelo
