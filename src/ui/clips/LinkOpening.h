#pragma once

#include "base/Scheduler.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace ravelo {

class FileOpener;
class Toast;
struct ClipItem;

/// Opens the links among the clips: web and mail addresses at once, others after a question that
/// names the program, because any program of the desktop may have registered itself for a scheme
/// and a link may come from anywhere. What would run as a script in a browser is never opened.
/// Main thread.
class LinkOpening : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")

public:
    /// All of it outlives this.
    LinkOpening(FileOpener& opener, Scheduler& scheduler, Toast& toast);

    /// Nothing happens if the clip is no link.
    void open(const ClipItem& clip);

    /// The answer to the question is yes.
    Q_INVOKABLE void openAsked();

    /// Nobody is there to be asked any more.
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
    QUrl link_; ///< That is asked about.
    Handle looking_;
    Handle timeOut_;
};

} // namespace ravelo
