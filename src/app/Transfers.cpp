#include "app/Transfers.h"

#include "platform/DetachedJobs.h"
#include "platform/ImageDecoder.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "store/transfer/KnownRecords.h"
#include "store/transfer/SnippetFile.h"
#include "vault/Vault.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

Answer withoutImages(int missing) {
    return missing == 0 ? Answer()
           : missing == 1
               ? Answer{1, {}, u"1 image could not be read and is left out"_s}
               : Answer{1, {}, u"%1 images could not be read and are left out"_s.arg(missing)};
}

/// If the job was not even started, because too many hang.
tl::unexpected<Error> neverRan() {
    return failure(u"too many disks do not answer"_s);
}

} // namespace

Transfers::Transfers(Services services) : services_(std::move(services)) {}

/// Neither is possible while another runs, or while what is stored is encrypted.
std::optional<Transfers::Obstacle> Transfers::obstacle() const {
    return running_ || importing_       ? std::optional(Obstacle::running)
           : services_.store.isLocked() ? std::optional(Obstacle::locked)
                                        : std::nullopt;
}

Answer Transfers::answerTo(Obstacle obstacle) {
    return {1,
            {},
            obstacle == Obstacle::running ? u"another export or import is running"_s
                                          : u"what is stored is encrypted: unlock it first"_s};
}

QString Transfers::textOf(Obstacle obstacle) {
    return obstacle == Obstacle::running ? tr("Another export or import is running.")
                                         : tr("What is stored is encrypted: unlock it first.");
}

void Transfers::exportTo(const QString& path, Reply reply) {
    if (const auto obstacle = this->obstacle()) {
        reply(answerTo(*obstacle));
        return;
    }
    const auto outcome = std::make_shared<Result<int>>(neverRan());
    running_ = services_.jobs.run(
        [contents = services_.store.contents(), vault = services_.store.vault(), path, outcome] {
            *outcome = exportStore(contents, *vault, path);
        },
        [this, outcome, reply = std::move(reply)] {
            running_.reset();
            reply(*outcome ? withoutImages(**outcome) : Answer{1, {}, outcome->error().message});
        });
}

/// Reads in a job, then adds what was read.
void Transfers::import(std::function<Imported()> read, std::function<void(const Imported&)> add) {
    importing_ = services_.store.keepFiles([this, read = std::move(read), add = std::move(add)] {
        const auto outcome = std::make_shared<Imported>(neverRan());
        running_ = services_.jobs.run(
            [read, outcome, known = services_.store.contents().data,
             vault = services_.store.vault(), decoder = services_.decoder,
             mayWrite = services_.mayWrite] {
                *outcome = read();
                if (*outcome) {
                    dropKnownRecords((*outcome)->contents.data, known, *vault, *decoder, mayWrite);
                }
            },
            [this, outcome, add] {
                running_.reset();
                add(*outcome);
                importing_.reset();
            });
    });
}

void Transfers::warnOfLongHistory(Answer& answer) const {
    const auto clips = std::ranges::count(services_.store.clips(), false, &ClipItem::pinned);
    if (clips > AppSettings::longestHistory) {
        answer.errors +=
            (answer.errors.isEmpty() ? u""_s : u"\n"_s) +
            u"%1 clips are more than the history keeps: the oldest go with the next copy"_s.arg(
                clips);
    }
}

void Transfers::importFrom(const QString& path, Reply reply) {
    if (const auto obstacle = this->obstacle()) {
        reply(answerTo(*obstacle));
        return;
    }
    import(
        [vault = services_.store.vault(), path, decoder = services_.decoder,
         mayWrite = services_.mayWrite] { return importStore(path, *vault, *decoder, mayWrite); },
        [this, reply = std::move(reply)](const Imported& imported) {
            if (!imported) {
                reply({1, {}, imported.error().message});
                return;
            }
            const auto saved = [this, reply,
                                missing = imported->missing](const SaveOutcome& outcome) {
                Answer answer = outcome.kind == SaveOutcome::Kind::saved
                                    ? withoutImages(missing)
                                    : Answer{1, {}, u"not saved yet: "_s + outcome.reason};
                warnOfLongHistory(answer);
                reply(answer);
            };
            if (!services_.store.addAll(imported->contents, saved)) {
                reply({1,
                       {},
                       u"nothing was imported: what is stored was locked or erased meanwhile"_s});
            }
        });
}

void Transfers::exportSnippets(const QString& path, Done done) {
    if (const auto obstacle = this->obstacle()) {
        done(failure(textOf(*obstacle)));
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
    if (const auto obstacle = this->obstacle()) {
        done(failure(textOf(*obstacle)));
        return;
    }
    import(
        [vault = services_.store.vault(), path, decoder = services_.decoder,
         mayWrite = services_.mayWrite] {
            return ravelo::importSnippets(path, *vault, *decoder, mayWrite)
                .map([](const QList<Snippet>& snippets) {
                    Import import;
                    import.contents.data.snippets = snippets;
                    return import;
                });
        },
        [this, done = std::move(done)](const Imported& imported) {
            imported ? add(imported->contents, done) : done(tl::unexpected(imported.error()));
        });
}

void Transfers::add(const StoreContents& contents, const Done& done) {
    const auto count = std::make_shared<std::optional<qsizetype>>();
    *count = services_.store.addAll(contents, [done, count](const SaveOutcome& saved) {
        done(saved.kind == SaveOutcome::Kind::saved
                 ? Result<qsizetype>(count->value_or(0))
                 : failure(tr("Not saved yet: %1").arg(saved.reason)));
    });
    if (!*count) {
        done(failure(tr("Nothing was imported: what is stored was locked or erased meanwhile.")));
    }
}

} // namespace ravelo
