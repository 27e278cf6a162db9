#pragma once

#include "base/Scheduler.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace ravelo {

class FileOpener;
class Toast;
struct ClipItem;

/// Opens links in clips: web and mail addresses at once, others after a question that names the
/// program, because any program can register a scheme and a link can come from anywhere. Never
/// opens what a browser would run as a script. Main thread.
class LinkOpening : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")

public:
    /// All outlive this.
    LinkOpening(FileOpener& opener, Scheduler& scheduler, Toast& toast);

    /// Does nothing if the clip is not a link.
    void open(const ClipItem& clip);

    /// The question was answered with yes.
    Q_INVOKABLE void openAsked();

    /// The question can no longer be answered.
    void reset();

Q_SIGNALS:
    void asked(const QString& question);
    void opened();

private:
    void openNow(const QUrl& link);
    void ask(const QUrl& link);

    FileOpener& opener_;
    Scheduler& scheduler_;
    Toast& toast_;
    QUrl link_; ///< The link in question.
    Handle looking_;
    Handle timeOut_;
};

} // namespace ravelo
