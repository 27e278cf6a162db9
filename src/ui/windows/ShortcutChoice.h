#pragma once

#include "base/Handle.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace ravelo {

class AppSettings;
class GlobalShortcut;

/// The keys that open the panel from anywhere, as the user sets them. Main thread.
class ShortcutChoice : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    /// Of the keys that are set; empty if there are none.
    Q_PROPERTY(QStringList caps READ caps NOTIFY changed)
    /// Whether the field waits for keys.
    Q_PROPERTY(bool recording READ isRecording NOTIFY changed)
    /// Whether the keys are not in use, though they are set.
    Q_PROPERTY(bool mistaken READ isMistaken NOTIFY changed)
    /// One sentence for the user.
    Q_PROPERTY(QString note READ note NOTIFY changed)
    /// Text for the desktop's own configuration, if it lets no program take keys; else empty.
    Q_PROPERTY(QString line READ line NOTIFY changed)
    /// Whether Super+V can be offered.
    Q_PROPERTY(bool isOffered READ isOffered NOTIFY changed)

public:
    /// Both outlive this; `shortcut` may be null. `desktop` is as in XDG_CURRENT_DESKTOP.
    ShortcutChoice(GlobalShortcut* shortcut, AppSettings& settings, QString desktop);

    [[nodiscard]] QStringList caps() const;

    [[nodiscard]] bool isRecording() const { return recording_; }

    [[nodiscard]] bool isMistaken() const;
    [[nodiscard]] QString note() const;
    [[nodiscard]] QString line() const;
    [[nodiscard]] bool isOffered() const;

    /// To be called when the user sees it: finds out what the desktop can do.
    Q_INVOKABLE void look();

    /// Until `record` or `stop`, the present keys are not taken.
    Q_INVOKABLE void start();
    Q_INVOKABLE void stop();

    /// A key of a Qt::Key with Qt::KeyboardModifiers; see KeyCombination.
    Q_INVOKABLE void record(int key, int modifiers, quint32 scanCode);
    Q_INVOKABLE void clear();

    /// Sets Super+V, or nothing.
    Q_INVOKABLE void useOffered(bool on);

Q_SIGNALS:
    void changed();

private:
    enum class Refused { none, tooFew, copying };

    [[nodiscard]] QString refusal() const;

    GlobalShortcut* shortcut_;
    AppSettings& settings_;
    QString desktop_;
    bool recording_ = false;
    Refused refused_ = Refused::none; ///< Why the last keys cannot be a shortcut.
    Handle suspended_;
    Handle listening_;
};

/// The name of a compositor that takes its keys, and what it starts, from a file of its own; empty
/// for other desktops.
[[nodiscard]] QString compositorWithFile(const QString& desktop);

/// What makes a desktop run `ravelo --toggle` with these keys, as a line for its configuration; the
/// command itself if it has settings for that.
[[nodiscard]] QString shortcutLine(const QString& desktop, const QString& keys);

} // namespace ravelo
