#pragma once

#include "platform/Pasteboard.h"
#include "platform/wayland/clipboard/DataControl.h"
#include "platform/wayland/clipboard/Pipes.h"

namespace ravelo::wayland {

/// Asks the owner of the clipboard for what a plan wants, one type after the other. Text is asked
/// for under the names that the owner has for it. For the clipboard's thread; dropping it stops it.
class OfferReading {
public:
    using Done = std::function<void(PasteboardSnapshot)>;

    /// `known` is what is known without asking, `types` what the owner offers. `control` and
    /// `pipes` must outlive this.
    OfferReading(DataControl& control, Pipes& pipes, DataControl::Types types,
                 PasteboardSnapshot known, PasteboardPlan plan, Done done);
    OfferReading(const OfferReading&) = delete;
    ~OfferReading();

    /// Once. `done` may be called from within, and may destroy this.
    void begin() { proceed(); }

private:
    void proceed();
    [[nodiscard]] DataControl::Types namesOf(const QString& type) const;
    void ask(const QByteArray& name);
    void take(const QByteArray& name, PipeResult result);

    DataControl& control_;
    Pipes& pipes_;
    DataControl::Types types_;
    PasteboardSnapshot snapshot_;
    PasteboardPlan plan_;
    Done done_;
    QString wanted_;           ///< The type that the plan asked for.
    DataControl::Types names_; ///< What to ask for if the owner gives nothing.
    Pipes::Key reading_ = 0;
};

} // namespace ravelo::wayland
