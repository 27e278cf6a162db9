#pragma once

#include "platform/FileIcons.h"

#include <QList>

#include <memory>
#include <mutex>

namespace ravelo {

/// The icons of an icon theme and of those it inherits from, with "hicolor" as the last (Icon Theme
/// Specification 0.13). Only the contexts in which kinds of files are.
class IconTheme final : public FileIcons {
public:
    /// Looks below these folders, the first first.
    explicit IconTheme(QStringList folders);
    ~IconTheme() override;

    /// Where themes are installed for this user, by the standard's order.
    [[nodiscard]] static QStringList usualFolders();

    /// Empty for none but "hicolor". Any thread.
    void setName(const QString& name);

    [[nodiscard]] QString find(const QStringList& names, int size) const override;

private:
    struct Theme;

    [[nodiscard]] std::shared_ptr<const QList<Theme>> chain() const;
    [[nodiscard]] Theme load(const QString& name) const;

    const QStringList folders_;
    mutable std::mutex mutex_; ///< Over what follows; not held while files are looked for.
    QString name_;
    mutable std::shared_ptr<const QList<Theme>> chain_; ///< Of `name_`; null until it is asked for.
};

} // namespace ravelo
