#pragma once

#include "platform/Pasteboard.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QUuid>

#include <optional>

namespace ravelo {

/// What is kept of a copy beside its clip, in a file of its own in the clips folder. Never in
/// memory for longer than it is read or written.
struct ClipForms {
    QString program;                ///< That it was copied from; empty if unknown.
    QList<PasteboardEntry> forms{}; ///< Other forms than plain text and images, best first.

    [[nodiscard]] bool isEmpty() const { return program.isEmpty() && forms.isEmpty(); }
};

/// Bytes of all forms of a clip together.
inline constexpr qsizetype maxFormsSize = qsizetype(8) << 20;

inline constexpr qsizetype maxFormCount = 64;

/// A list of files, and the same as GNOME's file managers exchange it.
inline constexpr QLatin1StringView uriListType("text/uri-list");
inline constexpr QLatin1StringView gnomeFilesType("x-special/gnome-copied-files");

[[nodiscard]] bool isFilesForm(const QString& type);

/// Whether a form of this type is worth keeping: formatted text, tables, documents, and files.
[[nodiscard]] bool isKeptForm(const QString& type);

/// The local files of a clip; empty if it is not one of files.
[[nodiscard]] QList<QUrl> filesOf(const ClipForms& kept);

/// The format of such a file; numbers are little endian:
///
///     7 bytes   "RvForms"
///     1         version: 1
///     2         length of the program's name
///     2         number of forms
///
/// then for each form the length of its type (2) and of its contents (4), then the program's name
/// in UTF-8, then all types in ASCII, then all contents. Any thread.
[[nodiscard]] QByteArray encodeForms(const ClipForms& kept);

/// All or nothing: nothing for a form that is not to be kept, twice the same, too many bytes, or
/// anything after the last form. Any thread.
[[nodiscard]] std::optional<ClipForms> decodeForms(const QByteArray& bytes);

/// Bytes of program and forms.
[[nodiscard]] qint64 formsSize(const ClipForms& kept);

/// Name of the file of a clip.
[[nodiscard]] QString formsFileName(const QUuid& clip);
[[nodiscard]] bool isFormsFileName(const QString& name);

} // namespace ravelo
