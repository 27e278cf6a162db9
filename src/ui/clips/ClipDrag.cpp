#include "ui/clips/ClipDrag.h"

#include "base/FileUrl.h"
#include "platform/DetachedJobs.h"
#include "platform/TimedJob.h"
#include "store/Store.h"
#include "store/images/ImageFiles.h"
#include "ui/images/FilePage.h"
#include "vault/Vault.h"

#include <QGuiApplication>
#include <QMimeData>
#include <QQuickWindow>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Forms = QList<PasteboardEntry>;

constexpr Seconds timeout(1); ///< For reading; the user sees nothing until then.
constexpr double pageSize = 56;

/// Otherwise the release would pass for a click.
void letGo(const QQuickItem& item) {
    QQuickItem* const grabber =
        item.window() == nullptr ? nullptr : item.window()->mouseGrabberItem();
    if (grabber != nullptr) {
        grabber->ungrabMouse();
    }
}

/// An image, and its file for programs that only take those, unless it is encrypted.
Forms imageForms(const Vault& vault, const QString& path) {
    const auto bytes = vault.bytes(path);
    if (!bytes || !isPng(*bytes)) {
        return {};
    }
    Forms forms{{u"image/png"_s, *bytes}};
    if (!vault.encryptedBytes(path)) {
        forms.append({QString(uriListType), fileAddress(QUrl::fromLocalFile(path)) + "\r\n"});
    }
    return forms;
}

/// What is meant for the clipboard only is left out.
Forms textForms(const Vault& vault, const QString& path, const QString& text) {
    Forms forms = readForms(vault, path).value_or(ClipForms()).forms;
    forms.removeIf([](const PasteboardEntry& form) { return form.type == gnomeFilesType; });
    forms.append({QString(plainTextType), text.toUtf8()});
    return forms;
}

} // namespace

void ClipDrag::start(const ClipItem& clip, QQuickItem& from) {
    const Picture picture{clip.kind == ClipKind::image ? u"png"_s : u"txt"_s, scaleOf(from)};
    letGo(from);
    if (isDragging() || !clip.secret.isEmpty()) {
        return;
    }
    if (clip.kind == ClipKind::image) {
        read({}, store_.imagePath(clip.imageFileName), picture);
    } else if (store_.hasForms(clip.id)) {
        read(clip.text, store_.formsPath(clip.id), picture);
    } else {
        start(clip.text, from);
    }
}

/// Deferred: a drag runs its own event loop, in which the pressed item may be deleted.
void ClipDrag::start(const QString& text, QQuickItem& from) {
    letGo(from);
    if (!isDragging()) {
        reading_ = scheduler_.after(Seconds(0), [this, text, scale = scaleOf(from)] {
            dragForms({{QString(plainTextType), text.toUtf8()}}, {u"txt"_s, scale});
        });
    }
}

/// Of an image if there is no text. Else the text alone is dragged if its forms take too long.
void ClipDrag::read(const QString& text, const QString& path, const Picture& picture) {
    const Forms plain = text.isEmpty() ? Forms() : Forms{{QString(plainTextType), text.toUtf8()}};
    reading_ = runTimed<Forms>(
        jobs_, scheduler_, timeout,
        [vault = store_.vault(), text, path] {
            return text.isEmpty() ? imageForms(*vault, path) : textForms(*vault, path, text);
        },
        [this, plain, picture](const std::optional<Forms>& read) {
            dragForms(read.value_or(plain), picture);
        });
}

void ClipDrag::dragForms(const QList<PasteboardEntry>& forms, const Picture& picture) {
    if (forms.isEmpty() || !(QGuiApplication::mouseButtons() & Qt::LeftButton)) {
        return;
    }
    const int size = qRound(pageSize * picture.scale);
    QImage page = filePage(picture.extension, size);
    page.setDevicePixelRatio(picture.scale);
    auto* data = new QMimeData;
    for (const PasteboardEntry& form : forms) {
        data->setData(form.type, form.bytes);
    }
    drag(data, page, {pageSize / 2, pageSize / 2});
}

} // namespace ravelo
