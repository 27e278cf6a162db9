#pragma once

#include "platform/FileIcons.h"
#include "platform/FileOpener.h"

#include <QList>

#include <utility>

namespace ravelo {

/// Records what it is asked to open.
class FakeFileOpener final : public FileOpener {
public:
    void open(const QUrl& file) override { opened.append(file); }

    [[nodiscard]] Handle findProgram(const QUrl& /*what*/,
                                     std::function<void(QString name)> done) override {
        found_ = std::move(done);
        return Handle([this] { found_ = nullptr; });
    }

    /// Ends the search for a program.
    void answer(const QString& name) {
        if (const auto done = std::exchange(found_, nullptr)) {
            done(name);
        }
    }

    void showInFolder(const QUrl& file) override { shown.append(file); }

    QList<QUrl> opened;
    QList<QUrl> shown;

private:
    std::function<void(QString)> found_;
};

/// A desktop without icons.
class NoFileIcons final : public FileIcons {
public:
    [[nodiscard]] QString find(const QStringList& /*names*/, int /*size*/) const override {
        return {};
    }
};

} // namespace ravelo
