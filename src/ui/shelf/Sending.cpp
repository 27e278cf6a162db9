#include "ui/shelf/Sending.h"

#include "ui/controls/Toast.h"

#include <QPointer>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxName = 40;

constexpr Seconds lookInterval{4};

/// Device names are not trusted.
QString shortName(const QString& name) {
    const QString line = name.simplified();
    return line.size() > maxName ? line.first(maxName - 1) + u'…' : line;
}

QString sentence(qsizetype sent, qsizetype all, const QString& device) {
    if (sent == 0) {
        return Sending::tr("Could not send to %1").arg(device);
    }
    return sent == all ? Sending::tr("Sent to %1").arg(device)
                       : Sending::tr("Sent %1 of %2 to %3").arg(sent).arg(all).arg(device);
}

} // namespace

Sending::Sending(NearbySend& nearby, Scheduler& scheduler, Toast& toast)
    : nearby_(nearby),
      scheduler_(scheduler),
      toast_(toast),
      changes_(nearby.onChange([this] { Q_EMIT changed(); })) {}

bool Sending::isPossible() const {
    return nearby_.way() != NearbySend::Way::none;
}

QString Sending::advice() const {
    return isPossible() ? QString() : NearbySend::advice();
}

QVariantList Sending::devices() const {
    QVariantList devices;
    for (const NearbyDevice& device : nearby_.devices()) {
        devices.append(QVariantMap{{u"name"_s, shortName(device.name)}, {u"id"_s, device.id}});
    }
    return devices;
}

void Sending::setShown(bool shown) {
    looks_.reset();
    if (shown) {
        refresh();
        looks_ = scheduler_.every(lookInterval, [this] { refresh(); });
    }
}

void Sending::refresh() {
    refreshing_ = nearby_.refresh([] {});
}

void Sending::send(const QList<QUrl>& files, const QVariantMap& device) {
    if (files.isEmpty() || !isPossible()) {
        return;
    }
    const QString name = device.value(u"name"_s).toString();
    nearby_.send(files, device.value(u"id"_s).toString(),
                 [self = QPointer(this), name, all = files.size()](NearbySend::Outcome outcome) {
                     if (self) {
                         self->report(outcome, all, name);
                     }
                 });
}

/// A desktop program, instead of a device, reports the result itself.
void Sending::report(NearbySend::Outcome outcome, qsizetype all, const QString& device) {
    if (outcome.sent == 0 && outcome.folders == all) {
        toast_.flash(all == 1 ? tr("A folder cannot be sent, only files")
                              : tr("Folders cannot be sent, only files"));
    } else if (!device.isEmpty()) {
        toast_.flash(sentence(outcome.sent, all, device));
    } else if (outcome.sent > 0) {
        Q_EMIT programStarted();
    } else {
        toast_.flash(tr("Could not send"));
    }
}

} // namespace ravelo
