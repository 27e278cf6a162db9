#pragma once

#include <QString>
#include <QStringList>

namespace ravelo {

/// Where this user's associations and programs are, the most important first.
struct ProgramFolders {
    QStringList config;   ///< With "mimeapps.list" in them.
    QStringList data;     ///< With "applications" in them.
    QStringList desktops; ///< Lower case, such as "gnome".

    [[nodiscard]] static ProgramFolders usual();
};

/// The name, in the first of `languages` that it has, of the program that opens contents of this
/// type, such as "x-scheme-handler/zoommtg"; empty if there is none. By "Association between MIME
/// types and applications" 1.0.1 and the Desktop Entry Specification 1.5. Reads files: not for the
/// main thread.
[[nodiscard]] QString defaultProgram(const QString& mimeType, const ProgramFolders& folders,
                                     const QStringList& languages);

} // namespace ravelo
