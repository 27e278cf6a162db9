#pragma once

#include "panel/Pasting.h"

#include <QObject>
#include <QQmlEngine>

#include <functional>

namespace ravelo {

class AppSettings;
class NotchController;

/// Copies, closes the panel and, if the keys ask for it, pastes at once. Text of several lines goes
/// into a terminal only after a question: there each line may be a command. Main thread.
class ClipPasting : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool possible READ isPossible CONSTANT)
    /// The keys that copy, and those that paste, for the user.
    Q_PROPERTY(QString copyKeys READ copyKeys NOTIFY keysChanged)
    Q_PROPERTY(QString keys READ keys NOTIFY keysChanged)

public:
    /// All outlive this. Without `pasting` nothing is ever pasted.
    ClipPasting(Pasting* pasting, const AppSettings& settings, NotchController& controller);

    [[nodiscard]] bool isPossible() const;
    [[nodiscard]] QString copyKeys() const;
    [[nodiscard]] QString keys() const;

    /// Whether Return, or a digit, with these Qt::KeyboardModifiers pastes.
    [[nodiscard]] Q_INVOKABLE bool pastes(int modifiers) const;

    enum class Kind { ordinary, secret };

    /// `text` is what `copy` copies, if that is a text. A secret is only copied for terminals that
    /// paste the selected text: it would stay there.
    void run(const QString& text, Kind kind, const Pasting::Copy& copy);

    /// The question was answered with yes.
    Q_INVOKABLE void runAsked();

    /// Withdraws the question.
    void reset() { asked_ = nullptr; }

Q_SIGNALS:
    void keysChanged();
    void asked(const QString& question);

private:
    Pasting* pasting_;
    const AppSettings& settings_;
    NotchController& controller_;
    std::function<void()> asked_; ///< What to do after "Yes".
};

} // namespace ravelo
