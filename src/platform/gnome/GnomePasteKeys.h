#pragma once

#include "base/Listeners.h"
#include "platform/RemoteKeyboard.h"
#include "platform/gnome/Channel.h"

#include <QTimer>

#include <optional>

namespace ravelo::gnome {

class GnomePasteboard;

/// Types by leave of the user (RemoteKeyboard); the extension says which window has the keyboard
/// and whether modifiers are down, when the panel gets the keyboard and when it is asked, which it
/// is while keys are to be typed.
class GnomePasteKeys final : public PasteKeys {
public:
    /// All must outlive it.
    GnomePasteKeys(Channel& channel, const GnomePasteboard& pasteboard, RemoteKeyboard& keyboard);

    [[nodiscard]] bool isPossible() const override { return true; }

    [[nodiscard]] std::optional<Target> target() override;

    /// As the extension reported it last; it is asked again.
    [[nodiscard]] Readiness readiness(const Target& target) override;

    /// Opens the keyboard, for which the user may have to be asked. The keys are typed once the
    /// extension says, after that, that all is ready. It may still change before they arrive: there
    /// is no way to prevent that.
    void press(const Target& target, PasteChord chord) override;

    [[nodiscard]] TypingPermission permission() const override { return keyboard_.permission(); }

    [[nodiscard]] Handle onPermissionChange(std::function<void()> callback) override {
        return keyboard_.onPermissionChange(std::move(callback));
    }

    void forgetRefusal() override { keyboard_.forgetRefusal(); }

private:
    struct Press {
        Target target;
        PasteChord chord;
        qint64 count; ///< The pasteboard's.
        qint64 end;   ///< In ms of the steady clock: then it is too late.
    };

    void ask();
    void heard(const KeyboardReport& report);
    void opened(bool open);
    void typeIfReady(const Press& press, const KeyboardReport& report);
    void end();
    [[nodiscard]] Readiness latest(const Target& target) const;

    Channel& channel_;
    const GnomePasteboard& pasteboard_;
    RemoteKeyboard& keyboard_;
    std::optional<KeyboardReport> report_;
    quint32 asked_ = 0; ///< The serial of the last question.
    std::optional<Press> press_;
    quint32 since_ = 0; ///< Older answers do not count for `press_`; 0 until it is open.
    QTimer again_;
    Handle deliveries_;
    Handle opening_;
};

} // namespace ravelo::gnome
