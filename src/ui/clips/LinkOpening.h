#pragma once

#include "base/Scheduler.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace ravelo {

class DetachedJobs;
class FileOpener;
class Toast;
struct ClipItem;

/// Opens links in clips: web and mail addresses at once, others after a question that names the
/// program, because any program can register a scheme and a link can come from anywhere. Never
/// opens what a browser would run as a script. Also opens files that a clip names. Main thread.
class LinkOpening : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    /// Whether what was last looked at is a file.
    Q_PROPERTY(bool file READ isFile NOTIFY fileChanged)

public:
    /// All outlive this.
    LinkOpening(FileOpener& opener, DetachedJobs& jobs, Scheduler& scheduler, Toast& toast);

    /// Does nothing if the clip is neither a link nor the path of a file.
    void open(const ClipItem& clip);

    /// Finds out, soon, whether the clip is the path of a file that exists, or a link to one.
    void look(const ClipItem& clip);

    [[nodiscard]] bool isFile() const { return isFile_; }

    /// The question was answered with yes.
    Q_INVOKABLE void openAsked();

    /// Withdraws the question.
    void reset();

Q_SIGNALS:
    void asked(const QString& question);
    void opened();
    void fileChanged();

private:
    void openNow(const QUrl& link);
    void ask(const QUrl& link);
    void openFile(const QUrl& file);
    void setFile(bool isFile);

    FileOpener& opener_;
    DetachedJobs& jobs_;
    Scheduler& scheduler_;
    Toast& toast_;
    QUrl link_; ///< The link in question.
    Handle looking_;
    Handle timeOut_;
    Handle presence_;
    bool isFile_ = false;
};

} // namespace ravelo
