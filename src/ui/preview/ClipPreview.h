#pragma once

#include "store/Records.h"
#include "store/history/ClipDetails.h"
#include "ui/images/SlowWork.h"

#include <QColor>
#include <QLocale>
#include <QObject>
#include <QQmlEngine>
#include <QSize>
#include <QStringList>
#include <QUuid>

#include <functional>
#include <memory>

namespace ravelo {

class ImageDecoder;
class Store;

/// What the preview shows of one clip; `None` once that is deleted. Main thread.
class ClipPreview : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(Kind kind READ kind NOTIFY changed)
    /// As far as it has been needed; `showMore` appends. Empty for a picture.
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// Of a link: scheme and host.
    Q_PROPERTY(QString scheme READ scheme NOTIFY changed)
    Q_PROPERTY(QString host READ host NOTIFY changed)
    /// Of a link, its parts; of a color, how it can be written; of files, their names and what is
    /// said below. The same number of each.
    Q_PROPERTY(QStringList names READ names NOTIFY changed)
    Q_PROPERTY(QStringList values READ values NOTIFY changed)
    /// Of files, addresses of their pictures.
    Q_PROPERTY(QStringList pictures READ pictures NOTIFY changed)
    /// That it was copied from; empty if it is not known.
    Q_PROPERTY(QString program READ program NOTIFY changed)
    Q_PROPERTY(QColor color READ color NOTIFY changed)
    Q_PROPERTY(QString imageFileName READ imageFileName NOTIFY changed)
    /// Pixels of the picture; empty until it is known.
    Q_PROPERTY(QSize pixels READ pixels NOTIFY pixelsChanged)
    Q_PROPERTY(QString measure READ measure NOTIFY pixelsChanged)
    Q_PROPERTY(QString forms READ forms NOTIFY changed)

public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML demands capitals.
    enum Kind { None, Text, Link, Color, Image, Files };
    Q_ENUM(Kind)

    /// `store` outlives this.
    ClipPreview(Store& store, std::shared_ptr<ImageDecoder> decoder, const QLocale& locale);

    /// Nothing for a null id, or if there is no such clip.
    void show(const QUuid& id);

    /// False if all of the text is there.
    Q_INVOKABLE bool showMore();

    [[nodiscard]] Kind kind() const { return kind_; }

    [[nodiscard]] QString text() const { return clip_.text.left(shown_); }

    [[nodiscard]] QString scheme() const { return scheme_; }

    [[nodiscard]] QString host() const { return host_; }

    [[nodiscard]] QStringList names() const { return names_; }

    [[nodiscard]] QStringList values() const { return values_; }

    [[nodiscard]] const QStringList& pictures() const { return pictures_; }

    [[nodiscard]] QString program() const;

    [[nodiscard]] QColor color() const { return color_; }

    [[nodiscard]] QString imageFileName() const { return clip_.imageFileName; }

    [[nodiscard]] QSize pixels() const { return pixels_; }

    [[nodiscard]] QString measure() const;
    [[nodiscard]] QString forms() const;

Q_SIGNALS:
    void changed();
    void pixelsChanged();
    /// More of the same text.
    void appended(const QString& text);

private:
    void describeLink();
    void describeColor();
    void add(const QString& name, const QString& value);
    void lookAtPicture();
    void lookAtForms();
    void showForms(const ClipDetails& details, const QList<QUrl>& files);
    void showSizes(const QList<qint64>& sizes);

    Store& store_;
    std::shared_ptr<ImageDecoder> decoder_;
    QLocale locale_;
    SlowWork work_;
    ClipItem clip_;
    Kind kind_ = None;
    qsizetype shown_ = 0; ///< UTF-16 code units of the text.
    QString scheme_;
    QString host_;
    QStringList names_;
    QStringList values_;
    QColor color_;
    QSize pixels_;
    ClipDetails details_;
    QStringList pictures_;
    qint64 bytes_ = -1; ///< Of all files; negative if not all are known.
};

} // namespace ravelo
