#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace ravelo {

/// One of several tabs: its button and its page. Derived classes name it in full, or qmllint does
/// not find it. Main thread.
class Tab : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("each feature has its own")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(QUrl page READ page CONSTANT)
    Q_PROPERTY(bool eager READ isEager CONSTANT)
    Q_PROPERTY(bool kept READ isKept CONSTANT)
    Q_PROPERTY(bool searchable READ isSearchable CONSTANT)

public:
    struct Look {
        /// While another tab is shown: there from the start, as a sheet of it may cover that one;
        /// kept once it was shown; or gone.
        enum class Page { eager, kept, dropped };
        enum class Search { none, has };

        QString key;    ///< Stored in the preferences; never shown, never changed.
        QString title;  ///< Translated.
        QString symbol; ///< Name of a symbol.
        QUrl page;      ///< A QML file whose root is a TabPage.
        Page whileHidden = Page::kept;
        Search search = Search::none;
    };

    explicit Tab(Look look) : look_(std::move(look)) {}

    [[nodiscard]] QString key() const { return look_.key; }

    [[nodiscard]] QString title() const { return look_.title; }

    [[nodiscard]] QString symbol() const { return look_.symbol; }

    [[nodiscard]] QUrl page() const { return look_.page; }

    [[nodiscard]] bool isEager() const { return look_.whileHidden == Look::Page::eager; }

    [[nodiscard]] bool isKept() const { return look_.whileHidden == Look::Page::kept; }

    [[nodiscard]] bool isSearchable() const { return look_.search == Look::Search::has; }

    /// About to be shown.
    virtual void begin() {}

    /// No longer shown: forgets what was opened, typed or searched for.
    virtual void reset() {}

Q_SIGNALS:
    /// Asks to become the current tab.
    void requested();

private:
    Look look_;
};

} // namespace ravelo
