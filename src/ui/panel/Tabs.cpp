#include "ui/panel/Tabs.h"

#include "settings/AppSettings.h"

#include <algorithm>

namespace ravelo {

Tabs::Tabs(AppSettings& settings) : settings_(settings) {
    connect(&settings, &AppSettings::lastTabChanged, this, &Tabs::currentChanged);
}

Tabs::~Tabs() = default;

void Tabs::append(std::unique_ptr<Tab> tab) {
    const auto index = static_cast<int>(list_.size());
    connect(tab.get(), &Tab::requested, this, [this, index] { choose(index); });
    list_.append(tab.get());
    owned_.push_back(std::move(tab));
}

int Tabs::current() const {
    const auto found = std::ranges::find(list_, settings_.lastTab(), &Tab::key);
    return found == list_.end() ? 0 : static_cast<int>(found - list_.begin());
}

int Tabs::searchable() const {
    const auto found = std::ranges::find_if(list_, &Tab::isSearchable);
    return found == list_.end() ? -1 : static_cast<int>(found - list_.begin());
}

void Tabs::choose(int index) {
    if (index != current()) {
        settings_.lastTab.set(list_[index]->key());
        Q_EMIT chosen();
    }
}

void Tabs::step(int by) {
    const auto count = static_cast<int>(list_.size());
    choose((current() + by + count) % count);
}

void Tabs::begin() {
    for (Tab* tab : list_) {
        tab->begin();
    }
}

void Tabs::reset() {
    for (Tab* tab : list_) {
        tab->reset();
    }
}

} // namespace ravelo
