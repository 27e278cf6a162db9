#include "platform/freedesktop/files/DefaultProgram.h"

#include "base/Files.h"

#include <QFile>
#include <QHash>
#include <QSet>
#include <QStandardPaths>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxFile = 1 << 20;

using Group = QHash<QString, QString>;
using KeyFile = QHash<QString, Group>;

/// Empty if it cannot be read.
KeyFile readKeyFile(const QString& path) {
    const auto bytes = readFileEnd(QFile::encodeName(path), maxFile);
    KeyFile file;
    Group* group = nullptr;
    for (const QString& raw : QString::fromUtf8(bytes.value_or(QByteArray())).split(u'\n')) {
        const QString line = raw.trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            group = &file[line.sliced(1, line.size() - 2)];
        } else if (group != nullptr && equals > 0 && !line.startsWith(u'#')) {
            group->insert(line.first(equals).trimmed(), line.sliced(equals + 1).trimmed());
        }
    }
    return file;
}

QStringList idsIn(const KeyFile& file, const QString& group, const QString& mimeType) {
    return file.value(group).value(mimeType).split(u';', Qt::SkipEmptyParts);
}

/// The files with associations, the most important first.
QList<KeyFile> associations(const ProgramFolders& folders) {
    QList<KeyFile> files;
    const auto add = [&](const QString& folder) {
        for (const QString& desktop : folders.desktops) {
            files.append(readKeyFile(folder + u'/' + desktop + u"-mimeapps.list"_s));
        }
        files.append(readKeyFile(folder + u"/mimeapps.list"_s));
    };
    for (const QString& folder : folders.config) {
        add(folder);
    }
    for (const QString& folder : folders.data) {
        add(folder + u"/applications"_s);
        files.append(readKeyFile(folder + u"/applications/mimeinfo.cache"_s));
    }
    return files;
}

/// In the order of preference.
QStringList candidates(const QList<KeyFile>& files, const QString& mimeType) {
    QStringList ids;
    for (const KeyFile& file : files) {
        ids += idsIn(file, u"Default Applications"_s, mimeType);
    }
    QSet<QString> removed;
    for (const KeyFile& file : files) {
        QStringList added =
            idsIn(file, u"Added Associations"_s, mimeType) + idsIn(file, u"MIME Cache"_s, mimeType);
        added.removeIf([&](const QString& id) { return removed.contains(id); });
        ids += added;
        for (const QString& id : idsIn(file, u"Removed Associations"_s, mimeType)) {
            removed.insert(id);
        }
    }
    return ids;
}

/// A dash in an ID may stand for a slash.
Group desktopEntry(QString id, const QStringList& dataFolders) {
    for (qsizetype dash = 0; dash >= 0; dash = id.indexOf(u'-', 1)) {
        if (dash > 0) {
            id[dash] = u'/';
        }
        for (const QString& folder : dataFolders) {
            const KeyFile file = readKeyFile(folder + u"/applications/"_s + id);
            if (!file.isEmpty()) {
                return file.value(u"Desktop Entry"_s);
            }
        }
    }
    return {};
}

QString nameOf(const Group& entry, const QStringList& languages) {
    for (const QString& language : languages) {
        if (const auto name = entry.find(u"Name[%1]"_s.arg(language)); name != entry.end()) {
            return *name;
        }
    }
    return entry.value(u"Name"_s);
}

} // namespace

ProgramFolders ProgramFolders::usual() {
    return {QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation),
            QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation),
            qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower().split(u':', Qt::SkipEmptyParts)};
}

QString defaultProgram(const QString& mimeType, const ProgramFolders& folders,
                       const QStringList& languages) {
    for (const QString& id : candidates(associations(folders), mimeType)) {
        if (id.contains(u'/')) {
            continue; // Not an ID: it would leave the folder.
        }
        const Group entry = desktopEntry(id, folders.data);
        const bool hidden = entry.value(u"Hidden"_s) == u"true";
        const QString name = nameOf(entry, languages);
        if (entry.value(u"Type"_s) == u"Application" && !hidden && !name.isEmpty()) {
            return name;
        }
    }
    return {};
}

} // namespace ravelo
