#include "platform/freedesktop/packages/PackageKit.h"

#include "platform/freedesktop/packages/PackageKitTransaction.h"

#include <algorithm>
#include <memory>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Transaction = PackageKitTransaction;

// Bits of the protocol (pk-enum.h).
constexpr qulonglong noFilter = 0;
constexpr qulonglong onlyInstalled = 1U << 2U;
constexpr qulonglong onlyTrusted = 1U << 1U;

/// The current transaction; its end starts the next.
using Step = std::shared_ptr<std::unique_ptr<Transaction>>;

/// A transaction must not be destroyed while it reports its end.
void begin(const Step& step, std::unique_ptr<Transaction> next) {
    if (*step) {
        step->release()->deleteLater();
    }
    *step = std::move(next);
}

QString nameIn(const QString& id) {
    return id.section(u';', 0, 0);
}

/// The part after the architecture: how and from where it was installed, "manual:local".
bool isFromRepository(const QString& id) {
    return !id.section(u';', 3).endsWith(":local"_L1);
}

} // namespace

Handle PackageKit::check(std::function<void(Checked)> done) {
    const auto step = std::make_shared<std::unique_ptr<Transaction>>();
    const auto isOurs = [name = package_](const QString& id) {
        return nameIn(id) == name;
    };
    const auto lookForNewer = [=, bus = bus_, timeout = timeout_](bool isKnown) {
        begin(step, std::make_unique<Transaction>(
                        bus, u"GetUpdates"_s, QVariantList{noFilter},
                        [=](const Transaction::Done& updates) {
                            if (!updates) {
                                done(tl::unexpected(updates.error()));
                                return;
                            }
                            const auto newer = std::ranges::find_if(*updates, isOurs);
                            if (newer != updates->end()) {
                                done(AvailableUpdate{newer->section(u';', 1, 1), *newer});
                            } else if (isKnown) {
                                done(std::nullopt);
                            } else {
                                done(tl::unexpected(
                                    UpdateProblem{UpdateProblem::Kind::notFromRepository, {}}));
                            }
                        },
                        timeout));
    };
    const auto refresh = [=, bus = bus_, timeout = timeout_](bool isKnown) {
        const bool evenIfFresh = false;
        begin(step, std::make_unique<Transaction>(
                        bus, u"RefreshCache"_s, QVariantList{evenIfFresh},
                        [=](const Transaction::Done& refreshed) {
                            if (refreshed) {
                                lookForNewer(isKnown);
                            } else {
                                done(tl::unexpected(refreshed.error()));
                            }
                        },
                        timeout));
    };
    begin(
        step,
        std::make_unique<Transaction>(
            bus_, u"Resolve"_s, QVariantList{onlyInstalled, QStringList{package_}},
            [=](const Transaction::Done& installed) {
                if (!installed) {
                    done(tl::unexpected(installed.error()));
                } else if (const auto own = std::ranges::find_if(*installed, isOurs);
                           own != installed->end()) {
                    refresh(isFromRepository(*own));
                } else {
                    done(tl::unexpected(UpdateProblem{UpdateProblem::Kind::notFromRepository, {}}));
                }
            },
            timeout_));
    return Handle([step] { begin(step, nullptr); });
}

Handle PackageKit::install(const AvailableUpdate& update,
                           std::function<void(std::optional<int>)> progress,
                           std::function<void(Installed)> done) {
    const auto step = std::make_shared<std::unique_ptr<Transaction>>();
    begin(step,
          std::make_unique<Transaction>(bus_, u"UpdatePackages"_s,
                                        QVariantList{onlyTrusted, QStringList{update.packageId}},
                                        [=](const Transaction::Done& updated) {
                                            if (updated) {
                                                done({});
                                            } else {
                                                done(tl::unexpected(updated.error()));
                                            }
                                        }));
    (*step)->onProgress = std::move(progress);
    return Handle([step] { begin(step, nullptr); });
}

} // namespace ravelo
