#pragma once

#include <QString>
#include <QStringList>

namespace ravelo {

/// The folders with associations and programs, the most important first.
struct ProgramFolders {
    QStringList config;   ///< Contain "mimeapps.list".
    QStringList data;     ///< Contain "applications".
    QStringList desktops; ///< Lower case, for example "gnome".

    [[nodiscard]] static ProgramFolders usual();
};

/// The name of the program that opens this type, for example "x-scheme-handler/zoommtg", in the
/// first available of `languages`; empty if there is none. See "Association between MIME types and
/// applications" 1.0.1 and the Desktop Entry Specification 1.5. Reads files: not for the main
/// thread.
[[nodiscard]] QString defaultProgram(const QString& mimeType, const ProgramFolders& folders,
                                     const QStringList& languages);

} // namespace ravelo
