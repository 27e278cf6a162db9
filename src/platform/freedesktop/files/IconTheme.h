#pragma once

#include "platform/FileIcons.h"

#include <QList>

#include <memory>
#include <mutex>

namespace ravelo {

/// The icons of a theme and its parents, finally "hicolor" (Icon Theme Specification 0.13). Only
/// from the contexts with icons of files.
class IconTheme final : public FileIcons {
public:
    /// Searches these folders in their order.
    explicit IconTheme(QStringList folders);
    ~IconTheme() override;

    /// The user's and the system's theme folders, in the order of the standard.
    [[nodiscard]] static QStringList usualFolders();

    /// Empty for "hicolor" only. Any thread.
    void setName(const QString& name);

    [[nodiscard]] QString find(const QStringList& names, int size) const override;

private:
    struct Theme;

    [[nodiscard]] std::shared_ptr<const QList<Theme>> chain() const;
    [[nodiscard]] Theme load(const QString& name) const;

    const QStringList folders_;
    mutable std::mutex mutex_; ///< Guards what follows; not held while reading files.
    QString name_;
    mutable std::shared_ptr<const QList<Theme>> chain_; ///< For `name_`; null until needed.
};

} // namespace ravelo
