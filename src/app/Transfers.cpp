#include "app/Transfers.h"

#include "platform/DetachedJobs.h"
#include "platform/ImageDecoder.h"
#include "store/SnippetFile.h"
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

bool Transfers::isPossible(const Done& done) const {
    if (running_) {
        done(failure(tr("Another export or import is running.")));
    } else if (services_.store.isLocked()) {
        done(failure(tr("What is stored is encrypted: unlock it first.")));
    }
    return !running_ && !services_.store.isLocked();
}

void Transfers::exportSnippets(const QString& path, Done done) {
    if (!isPossible(done)) {
        return;
    }
    const QList<Snippet> snippets = services_.store.snippets();
    const auto outcome = std::make_shared<Result<void>>(neverRan());
    running_ =
        services_.jobs.run([snippets, vault = services_.store.vault(), path,
                            outcome] { *outcome = ravelo::exportSnippets(snippets, *vault, path); },
                           [this, outcome, count = snippets.size(), done = std::move(done)] {
                               running_.reset();
                               done(outcome->map([count] { return count; }));
                           });
}

void Transfers::importSnippets(const QString& path, Done done) {
    if (!isPossible(done)) {
        return;
    }
    const auto outcome = std::make_shared<Result<QList<Snippet>>>(neverRan());
    running_ = services_.jobs.run(
        [vault = services_.store.vault(), path, outcome, decoder = services_.decoder,
         mayWrite = services_.mayWrite] {
            *outcome = ravelo::importSnippets(path, *vault, *decoder, mayWrite);
        },
        [this, outcome, done = std::move(done)] {
            running_.reset();
            if (*outcome) {
                add(**outcome, done);
            } else {
                done(tl::unexpected(outcome->error()));
            }
        });
}

void Transfers::add(const QList<Snippet>& snippets, const Done& done) {
    const qsizetype before = services_.store.snippets().size();
    StoreContents contents;
    contents.data.snippets = snippets;
    services_.store.addAll(contents, [this, before, done](const SaveOutcome& saved) {
        done(saved.kind == SaveOutcome::Kind::saved
                 ? Result<qsizetype>(services_.store.snippets().size() - before)
                 : failure(tr("Not saved yet: %1").arg(saved.reason)));
    });
}

} // namespace ravelo
