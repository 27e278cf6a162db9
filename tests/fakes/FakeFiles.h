#pragma once

#include "platform/FileIcons.h"
#include "platform/FileOpener.h"

#include <QList>

namespace ravelo {

/// Remembers what it was to open.
class FakeFileOpener final : public FileOpener {
public:
    void open(const QUrl& file) override { opened.append(file); }

    void showInFolder(const QUrl& file) override { shown.append(file); }

    QList<QUrl> opened;
    QList<QUrl> shown;
};

/// A desktop without icons.
class NoFileIcons final : public FileIcons {
public:
    [[nodiscard]] QString find(const QStringList& /*names*/, int /*size*/) const override {
        return {};
    }
};

} // namespace ravelo
