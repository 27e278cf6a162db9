#include "ui/Toast.h"

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds toastTime(1.1);

} // namespace

void Toast::flashCopied() {
    flash(u"Copied \u2713"_s);
}

void Toast::flash(const QString& text) {
    setText(text);
    ends_.push_back(scheduler_.after(toastTime, [this] {
        // The oldest one is the one that has come.
        const Handle done = std::move(ends_.front());
        ends_.erase(ends_.begin());
        setText({});
    }));
}

void Toast::reset() {
    ends_.clear();
    setText({});
}

void Toast::setText(const QString& text) {
    if (text != text_) {
        text_ = text;
        Q_EMIT textChanged();
    }
}

} // namespace ravelo
