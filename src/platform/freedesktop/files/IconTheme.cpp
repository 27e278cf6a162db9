#include "platform/freedesktop/files/IconTheme.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const auto fallback = u"hicolor"_s;
constexpr int maxThemes = 16; ///< Themes may inherit in a cycle.

/// A folder of a theme, with icons of one size or a range of sizes, in device pixels.
struct Directory {
    QString path;
    int min = 0;
    int max = 0;

    /// The best match has the smallest; enlarged icons look worst.
    [[nodiscard]] int distance(int size) const {
        constexpr int enlarged = 10000;
        return size < min ? min - size : size > max ? enlarged + size - max : 0;
    }
};

Directory directory(QSettings& index, const QString& folder, const QString& name) {
    index.beginGroup(name);
    const int scale = std::max(1, index.value("Scale"_L1, 1).toInt());
    const int size = index.value("Size"_L1).toInt();
    Directory found{folder + u'/' + name, size * scale, size * scale};
    if (index.value("Type"_L1).toString() == "Scalable"_L1) {
        found.min = index.value("MinSize"_L1, size).toInt() * scale;
        found.max = index.value("MaxSize"_L1, size).toInt() * scale;
    }
    const QString context = index.value("Context"_L1).toString().toLower();
    index.endGroup();
    const bool ofFiles = context == "mimetypes"_L1 || context == "places"_L1;
    return ofFiles ? found : Directory();
}

constexpr std::array endings{".png"_L1, ".svg"_L1};

} // namespace

struct IconTheme::Theme {
    QList<Directory> directories;
    QStringList parents;

    [[nodiscard]] QString find(const QString& icon, int size) const {
        QList<const Directory*> nearest;
        for (const Directory& one : directories) {
            nearest.append(&one);
        }
        std::ranges::stable_sort(nearest, {}, [size](auto one) { return one->distance(size); });
        for (const Directory* one : nearest) {
            for (const auto ending : endings) {
                if (const QString path = one->path + u'/' + icon + ending;
                    QFileInfo::exists(path)) {
                    return path;
                }
            }
        }
        return {};
    }
};

IconTheme::IconTheme(QStringList folders) : folders_(std::move(folders)) {}

IconTheme::~IconTheme() = default;

QStringList IconTheme::usualFolders() {
    QStringList folders{QDir::homePath() + u"/.icons"_s};
    for (const QString& data :
         QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        folders.append(data + u"/icons"_s);
    }
    return folders;
}

void IconTheme::setName(const QString& name) {
    const std::lock_guard lock(mutex_);
    if (std::exchange(name_, name) != name) {
        chain_.reset();
    }
}

QString IconTheme::find(const QStringList& names, int size) const {
    const auto themes = chain(); // A copy, because the name may change meanwhile.
    for (const Theme& theme : *themes) {
        for (const QString& icon : names) {
            if (const QString path = theme.find(icon, size); !path.isEmpty()) {
                return path;
            }
        }
    }
    return {};
}

std::shared_ptr<const QList<IconTheme::Theme>> IconTheme::chain() const {
    QString name;
    {
        const std::lock_guard lock(mutex_);
        if (chain_) {
            return chain_;
        }
        name = name_;
    }
    auto chain = std::make_shared<QList<Theme>>();
    QStringList wanted{name, fallback};
    for (int i = 0; i < wanted.size() && i < maxThemes; ++i) {
        const Theme& theme = chain->emplace_back(load(wanted[i]));
        for (const QString& parent : theme.parents) {
            if (!wanted.contains(parent)) {
                wanted.insert(wanted.size() - 1, parent); // Before "hicolor", which stays last.
            }
        }
    }
    const std::lock_guard lock(mutex_);
    if (name == name_) {
        chain_ = chain;
    }
    return chain;
}

/// The parts of a theme in all folders; the first description counts.
IconTheme::Theme IconTheme::load(const QString& name) const {
    Theme theme;
    if (name.isEmpty() || name.contains(u'/')) {
        return theme;
    }
    QStringList homes;
    QString description;
    for (const QString& folder : folders_) {
        const QString home = folder + u'/' + name;
        if (QFileInfo(home).isDir()) {
            homes.append(home);
        }
        if (const QString file = home + u"/index.theme"_s;
            description.isEmpty() && QFileInfo::exists(file)) {
            description = file;
        }
    }
    QSettings index(description, QSettings::IniFormat);
    theme.parents = index.value("Icon Theme/Inherits"_L1).toStringList();
    const QStringList names = index.value("Icon Theme/Directories"_L1).toStringList() +
                              index.value("Icon Theme/ScaledDirectories"_L1).toStringList();
    for (const QString& home : homes) {
        for (const QString& one : names) {
            if (const Directory found = directory(index, home, one); !found.path.isEmpty()) {
                theme.directories.append(found);
            }
        }
    }
    return theme;
}

} // namespace ravelo
