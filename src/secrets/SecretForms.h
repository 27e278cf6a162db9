#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <vector>

namespace ravelo {

/// A kind of text that looks like a secret, as forms.json lists them.
struct SecretForm {
    /// Whether the whole text has the form, apart from white space at its ends, or a part of it.
    enum class Place { whole, anywhere };
    /// A further condition besides the expression.
    enum class Check { none, luhn, jwt, entropy };
    /// What of the text may be visible: a few characters at both ends, the last digits, or only the
    /// form's name.
    enum class Shown { ends, card, name };

    QString id;
    QString name; ///< For the user.
    QRegularExpression expression;
    QString contains; ///< The text has to contain this; quicker than the expression.
    Place place = Place::whole;
    Check check = Check::none;
    Shown shown = Shown::ends;
    QStringList yes; ///< Examples that have the form.
    QStringList no;  ///< Examples that almost have it.
};

/// Words that only have the entropy of a key, without a known form.
enum class KeyLikeWords { no, yes };

/// Any thread.
class SecretForms {
public:
    /// Every form, from the file.
    [[nodiscard]] static const std::vector<SecretForm>& all();

    /// The first form that the text has; null if it has none.
    [[nodiscard]] static const SecretForm* of(const QString& text, KeyLikeWords words);

    /// Null if there is no such form.
    [[nodiscard]] static const SecretForm* withId(const QString& id);
};

/// What is shown of a secret: the beginning and the ending are empty if too much would be.
struct MaskedSecret {
    QString beginning;
    QString dots;
    QString ending;
};

[[nodiscard]] MaskedSecret masked(const QString& text, const SecretForm& form);

} // namespace ravelo
