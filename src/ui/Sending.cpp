#include "ui/Sending.h"

#include "shelf/NearbySend.h"
#include "ui/Toast.h"

#include <QPointer>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 40;

/// A device calls itself whatever it likes.
QString shortName(const QString& name) {
    const QString line = name.simplified();
    return line.size() > longestName ? line.first(longestName - 1) + u'…' : line;
}

QString outcome(qsizetype sent, qsizetype all) {
    if (sent == 0) {
        return u"Could not send to "_s;
    }
    return sent == all ? u"Sent to "_s : u"Sent %1 of %2 to "_s.arg(sent).arg(all);
}

} // namespace

Sending::Sending(NearbySend& nearby, Toast& toast)
    : nearby_(nearby), toast_(toast), changes_(nearby.onChange([this] { Q_EMIT changed(); })) {}

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

void Sending::refresh() {
    refreshing_ = nearby_.refresh([] {});
}

void Sending::send(const QList<QUrl>& files, const QString& deviceId) {
    if (files.isEmpty() || !isPossible()) {
        return;
    }
    QString name;
    for (const NearbyDevice& device : nearby_.devices()) {
        name = device.id == deviceId ? shortName(device.name) : name;
    }
    nearby_.send(files, deviceId,
                 [self = QPointer(this), name, all = files.size()](qsizetype sent) {
                     if (self && !name.isEmpty()) { // A program of its own tells by itself.
                         self->toast_.flash(outcome(sent, all) + name);
                     }
                 });
}

} // namespace ravelo
