#include "ui/preview/ClipPreview.h"

#include "base/FileUrl.h"
#include "platform/ImageDecoder.h"
#include "store/Store.h"
#include "ui/images/FileThumb.h"
#include "ui/lists/DataSize.h"
#include "ui/preview/ClipColor.h"
#include "ui/preview/FormNames.h"
#include "ui/preview/ProgramName.h"
#include "vault/Vault.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// UTF-16 code units that are laid out at once: megabytes would take seconds.
constexpr qsizetype portion = 20'000;

constexpr qsizetype longestValue = 2000;

constexpr qsizetype maxFiles = 50; ///< Shown of a clip.

/// Bytes of a file, 0 of a folder, -1 if it is not there. May block for ever.
qint64 sizeOfFile(const QUrl& file) {
    const QFileInfo info(QFile::decodeName(filePath(file)));
    return !info.exists() ? -1 : info.isDir() ? 0 : info.size();
}

/// Does not split a surrogate pair.
qsizetype portionEnd(const QString& text, qsizetype begin) {
    const qsizetype end = std::min(begin + portion, text.size());
    return end < text.size() && text[end].isLowSurrogate() ? end + 1 : end;
}

ClipPreview::Kind kindOf(const ClipItem& clip) {
    switch (clip.kind) {
    case ClipKind::image:
        return ClipPreview::Image;
    case ClipKind::url:
        return QUrl(clip.text.trimmed()).host().isEmpty() ? ClipPreview::Text : ClipPreview::Link;
    case ClipKind::text:
        break;
    }
    return colorOf(clip.text).isValid() ? ClipPreview::Color : ClipPreview::Text;
}

/// Null if there is no such clip, or if it is a secret.
const ClipItem* find(const QList<ClipItem>& clips, const QUuid& id) {
    const auto found = std::ranges::find(clips, id, &ClipItem::id);
    return found == clips.end() || !found->secret.isEmpty() ? nullptr : &*found;
}

QString percent(double part) {
    return QString::number(qRound(part * 100)) + u'%';
}

} // namespace

ClipPreview::ClipPreview(Store& store, std::shared_ptr<ImageDecoder> decoder, const QLocale& locale)
    : store_(store), decoder_(std::move(decoder)), locale_(locale) {
    connect(&store, &Store::clipsChanged, this, [this] {
        if (kind_ != None && find(store_.clips(), clip_.id) == nullptr) {
            show({});
        }
    });
}

void ClipPreview::show(const QUuid& id) {
    const ClipItem* const found = find(store_.clips(), id);
    clip_ = found ? *found : ClipItem();
    kind_ = found ? kindOf(clip_) : None;
    shown_ = kind_ == Image ? 0 : portionEnd(clip_.text, 0);
    names_.clear();
    values_.clear();
    pictures_.clear();
    pixels_ = {};
    details_ = found ? store_.detailsOf(id) : ClipDetails();
    bytes_ = -1;
    if (kind_ == Link) {
        describeLink();
    } else if (kind_ == Color) {
        describeColor();
    } else if (kind_ == Image) {
        lookAtPicture();
    }
    if (kind_ != None && store_.hasForms(id)) {
        lookAtForms();
    }
    Q_EMIT changed();
    Q_EMIT pixelsChanged();
}

bool ClipPreview::showMore() {
    const qsizetype end = portionEnd(clip_.text, shown_);
    if (kind_ == Image || end == shown_) {
        return false;
    }
    const QString more = clip_.text.mid(shown_, end - shown_);
    shown_ = end;
    Q_EMIT appended(more);
    return true;
}

void ClipPreview::describeLink() {
    const QUrl url(clip_.text.trimmed());
    scheme_ = url.scheme() + u"://"_s;
    host_ = url.host();
    if (url.port() >= 0) {
        host_ += u':' + QString::number(url.port());
    }
    add(tr("User"), url.userName());
    add(tr("Path"), url.path() == u"/"_s ? QString() : url.path());
    for (const auto& [name, value] : QUrlQuery(url).queryItems(QUrl::FullyDecoded)) {
        add(name, value.isEmpty() ? u"\u2013"_s : value);
    }
    add(tr("Part"), url.fragment());
}

void ClipPreview::describeColor() {
    color_ = colorOf(clip_.text);
    const bool clear = color_.alpha() < 255;
    const QString hex = color_.name(QColor::HexRgb).mid(1).toUpper();
    const QString alpha = QString::number(color_.alpha(), 16).rightJustified(2, u'0').toUpper();
    const QString share = clear ? u", "_s + percent(color_.alphaF()) : QString();
    add(tr("Hex"), u'#' + hex + (clear ? alpha : QString()));
    add(tr("RGB"),
        u"rgb(%1, %2, %3%4)"_s.arg(color_.red()).arg(color_.green()).arg(color_.blue()).arg(share));
    add(tr("HSL"), u"hsl(%1, %2, %3%4)"_s.arg(std::max(0, qRound(color_.hslHueF() * 360)))
                       .arg(percent(color_.hslSaturationF()), percent(color_.lightnessF()), share));
}

void ClipPreview::add(const QString& name, const QString& value) {
    if (!value.isEmpty()) {
        names_.append(name);
        values_.append(value.left(longestValue));
    }
}

/// On a thread of its own: the decoder blocks.
void ClipPreview::lookAtPicture() {
    const QByteArray path = QFile::encodeName(store_.imagePath(clip_.imageFileName));
    work_.run([decoder = decoder_, path, id = clip_.id, self = QPointer(this)] {
        const QSize size = decoder->look(PictureFile{path}).size;
        QMetaObject::invokeMethod(qApp, [self, id, size] {
            if (self && self->clip_.id == id) {
                self->pixels_ = size;
                Q_EMIT self->pixelsChanged();
            }
        });
    });
}

/// What is kept beside the clip, and then whether its files are still there.
void ClipPreview::lookAtForms() {
    work_.run([vault = store_.vault(), path = store_.formsPath(clip_.id), id = clip_.id,
               self = QPointer(this)] {
        const auto kept = readForms(*vault, path).value_or(ClipForms());
        const QList<QUrl> files = filesOf(kept);
        const auto report = [&self, &id](auto show) {
            QMetaObject::invokeMethod(qApp, [self, id, show] {
                if (self && self->clip_.id == id && self->kind_ != None) {
                    show(*self);
                }
            });
        };
        report([details = detailsOf(kept), files](ClipPreview& preview) {
            preview.showForms(details, files);
        });
        QList<qint64> sizes;
        for (const QUrl& file : files.first(std::min(files.size(), maxFiles))) {
            sizes.append(sizeOfFile(file));
        }
        report([sizes](ClipPreview& preview) { preview.showSizes(sizes); });
    });
}

void ClipPreview::showForms(const ClipDetails& details, const QList<QUrl>& files) {
    details_ = details;
    if (!files.isEmpty() && kind_ == Text) {
        kind_ = Files;
        for (const QUrl& file : files.first(std::min(files.size(), maxFiles))) {
            names_.append(file.fileName());
            values_.append(QString());
            pictures_.append(fileThumbAddress(file));
        }
    }
    Q_EMIT changed();
    Q_EMIT pixelsChanged();
}

void ClipPreview::showSizes(const QList<qint64>& sizes) {
    if (kind_ != Files) {
        return;
    }
    bytes_ = sizes.size() == details_.files && !sizes.contains(-1) ? 0 : -1;
    for (qsizetype i = 0; i < sizes.size(); ++i) {
        bytes_ += bytes_ < 0 ? 0 : sizes[i];
        values_[i] = sizes[i] < 0    ? tr("Not there any more")
                     : sizes[i] == 0 ? QString()
                                     : dataSize(sizes[i], locale_);
    }
    Q_EMIT changed();
    Q_EMIT pixelsChanged();
}

QString ClipPreview::program() const {
    return programName(details_.program);
}

QString ClipPreview::measure() const {
    if (kind_ == Files) {
        const QString files = details_.files == 1
                                  ? tr("1 file")
                                  : tr("%1 files").arg(locale_.toString(details_.files));
        return bytes_ <= 0 ? files : files + u", "_s + dataSize(bytes_, locale_);
    }
    if (kind_ == Image) {
        return pixels_.isEmpty() ? QString()
                                 : tr("%1 \u00d7 %2").arg(pixels_.width()).arg(pixels_.height());
    }
    const auto count = [this](qsizetype number) {
        return locale_.toString(qint64(number));
    };
    const qsizetype lines = clip_.text.count(u'\n') + (clip_.text.endsWith(u'\n') ? 0 : 1);
    const QString characters = clip_.text.size() == 1
                                   ? tr("1 character")
                                   : tr("%1 characters").arg(count(clip_.text.size()));
    return lines == 1 ? characters : tr("%1 lines, %2").arg(count(lines), characters);
}

QString ClipPreview::forms() const {
    switch (kind_) {
    case Image: {
        const qint64 bytes = QFileInfo(store_.imagePath(clip_.imageFileName)).size();
        return tr("PNG, %1").arg(dataSize(bytes, locale_));
    }
    case Link:
        return tr("Link");
    case None:
        return {};
    case Files:
        return tr("Files");
    case Text:
    case Color:
        break;
    }
    return (QStringList{tr("Text")} + formNames(details_.forms)).join(u", "_s);
}

} // namespace ravelo
