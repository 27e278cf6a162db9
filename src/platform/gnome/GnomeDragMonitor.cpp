#include "platform/gnome/GnomeDragMonitor.h"

#include "platform/Pasteboard.h"
#include "platform/gnome/Reading.h"

#include <QGuiApplication>
#include <QHash>
#include <QObject>

#include <utility>

namespace ravelo::gnome {

namespace {

/// Another program's drag begins with a press in one of its own windows.
bool isOurOwn() {
    return QGuiApplication::mouseButtons() != Qt::NoButton;
}

} // namespace

/// Asks the source through the extension, for one type at a time.
class GnomeDragOffer final : private QObject, public DragOffer {
public:
    GnomeDragOffer(Transfers& transfers, DragBegan drag)
        : transfers_(transfers), drag_(std::move(drag)) {}

    [[nodiscard]] std::optional<QByteArray> data(const QStringList& types) override {
        const auto known = answers_.constFind(types);
        if (known != answers_.constEnd()) {
            return *known;
        }
        for (const QString& type : types) {
            if (drag_.types.contains(type.toUtf8())) {
                answers_.insert(types, std::nullopt);
                ask(types, type.toUtf8());
                return std::nullopt;
            }
        }
        answers_.insert(types, QByteArray());
        return QByteArray();
    }

    [[nodiscard]] Handle onAnswer(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private:
    void ask(const QStringList& types, const QByteArray& type) {
        readings_.push_back(std::make_unique<Reading>(
            static_cast<QObject&>(*this), [this, types, type](const Cancellation& cancellation) {
                const Transferred given = transfers_.fetch(
                    {Selection::drag, drag_.serial, type, maxAnswerSize(type)}, cancellation);
                return [this, types, bytes = given.bytes.value_or(QByteArray())] {
                    answers_[types] = bytes;
                    listeners_.notify();
                };
            }));
    }

    Transfers& transfers_;
    DragBegan drag_;
    QHash<QStringList, std::optional<QByteArray>> answers_;
    Listeners<> listeners_;
    std::vector<std::unique_ptr<Reading>> readings_;
};

GnomeDragMonitor::GnomeDragMonitor(Channel& channel, Transfers& transfers)
    : transfers_(transfers),
      deliveries_(channel.onDelivery([this](Delivery& delivery) {
          if (const auto* drag = std::get_if<DragBegan>(&delivery.report)) {
              began(*drag);
          } else if (std::holds_alternative<DragEnded>(delivery.report)) {
              ended();
          }
      })),
      ups_(channel.onUpChange([this] { ended(); })) {}

std::shared_ptr<DragOffer> GnomeDragMonitor::newest() {
    return newest_;
}

void GnomeDragMonitor::began(const DragBegan& report) {
    if (isOurOwn()) {
        return;
    }
    ++count_;
    underWay_ = true;
    newest_ = std::make_shared<GnomeDragOffer>(transfers_, report);
    answer_ = newest_->onAnswer([this] { changes_.notify(); });
    changes_.notify();
}

void GnomeDragMonitor::ended() {
    if (std::exchange(underWay_, false)) {
        changes_.notify();
    }
}

} // namespace ravelo::gnome
