#include "platform/wayland/clipboard/Selection.h"

#include <QUuid>

#include <array>
#include <utility>

namespace ravelo::wayland {

namespace {

/// How programs ask for text: the MIME types of Wayland's, and those that XWayland passes on.
constexpr std::array textNames = {"text/plain;charset=utf-8", "text/plain", "UTF8_STRING", "STRING",
                                  "TEXT"};

std::map<QByteArray, QByteArray> byName(const QList<PasteboardEntry>& forms) {
    std::map<QByteArray, QByteArray> contents;
    for (const PasteboardEntry& form : forms) {
        if (form.type != plainTextType) {
            contents.emplace(form.type.toUtf8(), form.bytes);
            continue;
        }
        for (const char* name : textNames) {
            contents.emplace(name, form.bytes);
        }
    }
    return contents;
}

/// In the order of the forms: many programs take the first that they know.
DataControl::Types namesOf(const QList<PasteboardEntry>& forms) {
    DataControl::Types names;
    for (const PasteboardEntry& form : forms) {
        if (form.type == plainTextType) {
            names.append(DataControl::Types(textNames.begin(), textNames.end()));
        } else {
            names.append(form.type.toUtf8());
        }
    }
    return names;
}

} // namespace

std::shared_ptr<Selection> Selection::create(ClipboardThread& thread,
                                             std::shared_ptr<ChangeCount> count,
                                             std::function<void()> changed) {
    const std::shared_ptr<Selection> self(
        new Selection(thread, std::move(count), std::move(changed)));
    thread.control().listen({[self](const auto& types) { self->update(types); },
                             [self](qint64 offer, const QByteArray& type, Descriptor into) {
                                 self->send(offer, type, std::move(into));
                             },
                             [self](qint64 offer) {
                                 self->lose(offer);
                             }});
    thread.catchUp(); // What is there already is no change.
    self->isStarted_ = true;
    return self;
}

Selection::Selection(ClipboardThread& thread, std::shared_ptr<ChangeCount> count,
                     std::function<void()> changed)
    : thread_(thread),
      count_(std::move(count)),
      changed_(std::move(changed)),
      mark_("application/x-ravelo-" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces)) {}

void Selection::update(const std::optional<DataControl::Types>& types) {
    readings_.clear(); // They were with another owner.
    types_ = types;
    isOwn_ = types_ && types_->removeAll(mark_) > 0;
    if (!isStarted_) {
        return;
    }
    if (isOwn_ && !offers_.empty()) {
        count_->settle(offers_.rbegin()->first);
    } else if (!isOwn_ && (types_ ? count_->countForeign() : count_->countEmptied())) {
        changed_();
    }
}

void Selection::read(Key key, qint64 count, PasteboardPlan plan, OfferReading::Done done) {
    // Otherwise the event of an earlier change could still arrive and end the reading.
    thread_.catchUp();
    if (count_->value() != count) {
        return;
    }
    PasteboardSnapshot known;
    known.changeCount = count;
    known.lastEnd = count_->lastEnd();
    const auto finish = [this, key, done = std::move(done)](PasteboardSnapshot snapshot) {
        const auto reading = readings_.extract(key); // Until this has returned.
        done(std::move(snapshot));
    };
    const auto reading = std::make_shared<OfferReading>(thread_.control(), thread_.pipes(),
                                                        types_.value_or(DataControl::Types()),
                                                        std::move(known), std::move(plan), finish);
    readings_.emplace(key, reading);
    reading->begin();
}

void Selection::write(qint64 count, const QList<PasteboardEntry>& forms, Over over) {
    thread_.catchUp();
    if (over == Over::nothing && types_) {
        refuse(count);
        return;
    }
    offers_.emplace(count, byName(forms));
    thread_.control().offer(count, namesOf(forms) + DataControl::Types{mark_});
    // What happens up to our offer's own notice came before it.
    thread_.catchUp();
    if (offers_.contains(count)) {
        count_->settle(count);
    }
}

void Selection::send(qint64 offer, const QByteArray& type, Descriptor into) {
    const auto contents = offers_.find(offer);
    if (contents == offers_.end()) {
        return;
    }
    if (const auto form = contents->second.find(type); form != contents->second.end()) {
        thread_.pipes().write(std::move(into), form->second);
    }
}

void Selection::lose(qint64 offer) {
    offers_.erase(offer);
    if (count_->isOwnPending() && offers_.empty()) {
        refuse(offer); // Unless it has been replaced already, which comes to the same.
    }
}

/// What others did was not counted, as it was about to be overwritten.
void Selection::refuse(qint64 count) {
    count_->settle(count);
    if (!isOwn_ && (types_ ? count_->countForeign() : count_->countEmptied())) {
        changed_();
    }
}

} // namespace ravelo::wayland
